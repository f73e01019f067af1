// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/qt/Asteikko.h"
#include "ui/qt/Kaaviokuva.h"

/// Curves over a scale of numbers: places of the axis in `arvot`, its name as the only one of `nimet`, and a value of
/// each series for each place. A value that isn't finite leaves a gap; one that has gaps on both sides is a point. The
/// curves differ in colour and in dashes. What stands nearest to the pointer tells its values.
class Kayrakuva : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;
  void AsetaKaavio(const Kaaviotiedot& kaavio) override;
  QSize sizeHint() const override;
  /// "Axis: place; series: value unit; ..." of the place nearest to the point; "" outside the curves.
  QString Seloste(const QPointF& kohta) const override;

 protected:
  void Piirra(QPainter& maalain) const override;
  QStringList Luvut() const override;
  QStringList Nimet() const override;
  void PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const override;

 private:
  QRectF Kuvaala() const;
  double X(double paikka) const;
  QPointF Piste(std::size_t sarja, std::size_t i) const;
  QPen Kyna(std::size_t sarja) const;
  /// Place nearest to the point; -1 outside the curves.
  int Lahin(const QPointF& kohta) const;
  void PiirraAkseli(QPainter& maalain) const;
  void PiirraKayra(QPainter& maalain, std::size_t sarja) const;
  void PiirraKohta(QPainter& maalain) const;

  Asteikko asteikko_;
};
