// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/qt/Kaaviokuva.h"

/// Section through a structure: its layers from inside (left) to outside (right), as wide as they are thick, and the
/// temperature through them. A layer that doesn't count towards the U-value is hatched. Filled by Lampotilakuvaus() of
/// ui/Lampotilakuvaus.h.
class Lampotilakuva : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;
  void AsetaKaavio(const Kaaviotiedot& kaavio) override;
  QSize sizeHint() const override;

 protected:
  void Piirra(QPainter& maalain) const override;
  QStringList Luvut() const override;
  QStringList Nimet() const override;
  void PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const override;

 private:
  const std::vector<double>& Sarja(std::size_t i) const;
  bool Vastustaa(std::size_t kerros) const { return Sarja(1)[kerros] > 0; }
  QColor Aineenvari(std::size_t i) const;
  QRectF Kuvaala() const;
  /// Width left on both sides for the room and the outdoors.
  double Ilmaa() const;
  /// Where the layers begin, and the end of the last one.
  std::vector<double> Rajat() const;
  std::vector<QPointF> Viiva() const;
  double Y(double lampotila) const;
  void PiirraKerrokset(QPainter& maalain) const;
  void PiirraNollaviiva(QPainter& maalain) const;
  void PiirraLampotilat(QPainter& maalain) const;
  void PiirraAsteet(QPainter& maalain, const std::vector<QPointF>& pisteet) const;
  void PiirraReunat(QPainter& maalain) const;
};
