// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "ui/qt/Kaaviokuva.h"

/// The running times of a week: a row for each day from midnight to midnight, in it bars as high and as dark as the
/// flow is great. Filled by Viikkokuvaus() of ui/Viikkokuvaus.h.
class Viikkokuva : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;
  void AsetaKaavio(const Kaaviotiedot& kaavio) override;
  QSize sizeHint() const override;
  /// "Day hh:mm–hh:mm: flow %" of the bar at the point; "" when there is none.
  QString Seloste(const QPointF& kohta) const override;

 protected:
  void Piirra(QPainter& maalain) const override;
  QStringList Luvut() const override;
  QStringList Nimet() const override;
  void PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const override;

 private:
  std::size_t Jaksoja() const { return Tiedot().sarjat.empty() ? 0 : Tiedot().sarjat.front().arvot.size(); }
  double Arvo(std::size_t sarja, std::size_t jakso) const { return Tiedot().sarjat[sarja].arvot[jakso]; }
  QString Aika(std::size_t sarja, std::size_t jakso) const;
  QRectF Kuvaala() const;
  /// For each period the full height of its day between its times, and the bar in it.
  std::vector<QRectF> Vyot() const;
  QRectF Palkki(const QRectF& vyo, double virta) const;
  QColor Savy(double virta) const;
  void PiirraRuudukko(QPainter& maalain) const;

  std::vector<double> virrat_;  // %, the different ones from the greatest down: rows of the legend
  double suurin_ = 0;           // %, that fills a day's height
};
