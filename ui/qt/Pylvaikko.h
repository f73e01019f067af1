// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "ui/qt/Asteikko.h"
#include "ui/qt/Kaaviokuva.h"

/// A column chart: at each place of the axis stacked columns side by side, and lines over them. What is below zero is
/// stacked downward. The part under the pointer is outlined and tells its value.
class Pylvaikko : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;
  void AsetaKaavio(const Kaaviotiedot& kaavio) override;
  QSize sizeHint() const override;
  /// "Place, series: value unit" of the part at the point; "" when there is none.
  QString Seloste(const QPointF& kohta) const override;

 protected:
  void Piirra(QPainter& maalain) const override;
  void resizeEvent(QResizeEvent* tapahtuma) override;
  void changeEvent(QEvent* tapahtuma) override;
  QStringList Luvut() const override;
  QStringList Nimet() const override;
  void PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const override;

 private:
  /// A part of a column, or the point of a line.
  struct Pala {
    QRectF alue;
    std::size_t sarja, paikka;
  };

  QRectF Sovitettu() const;
  void Sommittele();
  double Y(double arvo) const { return asteikko_.Y(arvo, kuvaala_); }
  double PaikanLeveys() const {
    return kuvaala_.width() / static_cast<double>(std::max<std::size_t>(1, Tiedot().nimet.size()));
  }
  std::vector<Pala> Palat() const;
  void LisaaPino(int pino, std::size_t paikka, std::vector<Pala>& palat) const;
  QPointF Viivalla(const Kaaviosarja& sarja, std::size_t paikka) const;
  const Pala* Kohdassa(const QPointF& kohta) const;
  QString Seloste(const Pala& pala) const;
  void PiirraAsteikko(QPainter& maalain) const;
  void PiirraPalat(QPainter& maalain) const;
  void PiirraViivat(QPainter& maalain) const;

  Asteikko asteikko_;
  int pinoja_ = 1;
  QRectF kuvaala_;  // between the scale's ends
  std::vector<Pala> palat_;
};
