// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Kaaviotulostus.h"

#include <memory>

#include "pdf/Pdfpalat.h"
#include "ui/qt/Kayrakuva.h"
#include "ui/qt/Lampotilakuva.h"
#include "ui/qt/Piirakka.h"
#include "ui/qt/Pylvaikko.h"
#include "ui/qt/Vesiputouskuva.h"
#include "ui/qt/Viikkokuva.h"

namespace {

constexpr double kNaytonTihein = 96;  // dots to the inch of a screen: what a chart's lines and letters are made for
constexpr double kKirjasin = 7.5;     // points

template <class Kuva>
std::unique_ptr<Kaaviokuva> Tee() {
  return std::make_unique<Kuva>();
}
struct Maalari {
  Kaaviolaji laji;
  std::unique_ptr<Kaaviokuva> (*tee)();
};
constexpr Maalari kMaalarit[] = {
    {Kaaviolaji::Piirakka, Tee<Piirakka>}, {Kaaviolaji::Pylvaikko, Tee<Pylvaikko>},
    {Kaaviolaji::Kayrat, Tee<Kayrakuva>},  {Kaaviolaji::Leikkaus, Tee<Lampotilakuva>},
    {Kaaviolaji::Viikko, Tee<Viikkokuva>}, {Kaaviolaji::Vesiputous, Tee<Vesiputouskuva>},
};

}  // namespace

void TulostaKaavio(QPainter& maalain, const QRectF& alue, int resoluutio, const Raporttikaavio& kaavio) {
  for (const Maalari& m : kMaalarit) {
    if (m.laji != kaavio.laji) continue;
    const auto kuva = m.tee();
    QFont fontti = Sivupohja::Fontti(kKirjasin);
    fontti.setPixelSize(qRound(kKirjasin * kNaytonTihein / 72));
    kuva->setFont(fontti);
    kuva->AsetaKaavio(kaavio.tiedot);
    kuva->Tulosta(maalain, alue, resoluutio / kNaytonTihein);
  }
}
