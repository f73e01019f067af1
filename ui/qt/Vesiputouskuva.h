// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/qt/Asteikko.h"
#include "ui/qt/Kaaviokuva.h"

/// A waterfall of rows from the top: a bar for the first level, for each row what it takes away or adds where the rows
/// above have left off, and a bar for the last level. What is added is hatched and has a plus before its value. Rows
/// get lower and their letters smaller when there are many; long names end in an ellipsis and are told by the tip.
/// Paler when the widget is disabled.
class Vesiputouskuva : public Kaaviokuva {
 public:
  using Kaaviokuva::Kaaviokuva;
  void AsetaKaavio(const Kaaviotiedot& kaavio) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// "Name: value unit" of the row at the point, and for a change the level after it; "" when there is none.
  QString Seloste(const QPointF& kohta) const override;

 protected:
  void Piirra(QPainter& maalain) const override;
  QStringList Luvut() const override;
  QStringList Nimet() const override;

 private:
  struct Askel {
    double alku, loppu;  // levels before and after it; a level begins from zero
    std::size_t sarja;
    bool taso;
    double Arvo() const { return loppu - alku; }
  };
  /// Where the things of one painting lie.
  struct Asettelu {
    QRectF palkit;
    double rivi;  // height of a row
    QFont fontti;
  };

  Askel TeeAskel(std::size_t i, double ennen) const;
  QFont Pienempi(double osuus) const;
  Asettelu Sommittele() const;
  QString Arvoteksti(const Askel& askel) const;
  const char* Kuvio() const;
  int Arvoleveys(const QFontMetrics& mitat) const;
  double X(double arvo, const QRectF& alue) const;
  QRectF Palkki(std::size_t i, const Asettelu& a) const;
  void PiirraAsteikko(QPainter& maalain, const Asettelu& a) const;
  void PiirraRivi(QPainter& maalain, std::size_t i, const Asettelu& a) const;
  void PiirraPalkki(QPainter& maalain, std::size_t i, const Asettelu& a) const;
  void PiirraSelitteet(QPainter& maalain) const;

  std::vector<Askel> askeleet_;
  Asteikko asteikko_;
};
