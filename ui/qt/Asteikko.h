// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QRectF>
#include <QString>

class QPainter;

/// The upright scale of a chart: its ends and the distance of its lines, in the unit of the values.
struct Asteikko {
  double ala = 0, yla = 1, vali = 1;

  /// Round steps (1, 2 or 5 times a power of ten), from zero or below it to the largest value or zero, with a little
  /// room beyond; 0 to 1 when all is zero.
  static Asteikko Sovita(double pienin, double suurin);
  /// Height of a value on the area between the scale's ends.
  double Y(double arvo, const QRectF& alue) const;
  /// Pattern of Muotoile for a value that is told beside the scale: a digit more than the lines have.
  const char* Kuvio() const;
  /// Lines across the area, their numbers to the left of it, the unit above them; in the painter's colour.
  void Piirra(QPainter& maalain, const QRectF& alue, const QString& yksikko) const;
  /// Width of the widest number.
  int LukujenLeveys(const QFontMetrics& mitat) const;
};
