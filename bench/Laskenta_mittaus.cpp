// SPDX-License-Identifier: GPL-3.0-or-later
// Recalculation of the whole building against the same formulas over plain arrays.
#include "bench/Mittaukset.h"
#include "bench/vertailu/Vertailulaskenta.h"
#include "building/Tasehaarukka.h"
#include "ventilation/clsIVKoneet.h"

namespace mittaus {

namespace {

constexpr double kTarkkuus = 1e-12;

/// The bracket, and the figures of the heat summary that are read in it.
Vertailulaskenta::Tulos Laske(clsRakennus& rakennus) {
  const Tasehaarukka haarukka(rakennus);
  Vertailulaskenta::Tulos tulos;
  tulos.lampoenergianTarve = rakennus.VuotuinenLampoEnergianTarveTilat();
  tulos.haviot = rakennus.VuotuisetLampoHaviot();
  tulos.saatohaviot = rakennus.VuotuisetSaatohaviot();
  tulos.konversiohaviot = rakennus.VuotuisetLammonKonversiohaviot();
  tulos.jalkilammitys = rakennus.VuotuinenIVjalkilammitysLampo();
  Kayta(rakennus.VuotuisetLKVHaviot());
  Kayta(rakennus.VuotuisetProsessiVesiHaviot());
  Kayta(rakennus.ToteutunutNormitettuLampo());
  return tulos;
}

void VaadiSamat(const Vertailulaskenta::Tulos& oma, const Vertailulaskenta::Tulos& vertailu) {
  VaadiSama(oma.lampoenergianTarve, vertailu.lampoenergianTarve, kTarkkuus, "heat demand");
  VaadiSama(oma.haviot, vertailu.haviot, kTarkkuus, "losses");
  VaadiSama(oma.saatohaviot, vertailu.saatohaviot, kTarkkuus, "control losses");
  VaadiSama(oma.konversiohaviot, vertailu.konversiohaviot, kTarkkuus, "conversion losses");
  VaadiSama(oma.jalkilammitys, vertailu.jalkilammitys, kTarkkuus, "after-heating");
}

struct Laskettavat {
  explicit Laskettavat(clsRakennus& r) : rakennus(r), vertailu(r) {}
  clsRakennus& rakennus;
  Vertailulaskenta vertailu;
  Vertailulaskenta::Tulos oma, toinen;
};

}  // namespace

Vertailupari Laskentapari(clsRakennus& rakennus) {
  auto tila = std::make_shared<Laskettavat>(rakennus);
  return {[tila] { return Suoritinaika([&] { tila->oma = Laske(tila->rakennus); }); },
          [tila] {
            return Suoritinaika([&] {
              tila->toinen = tila->vertailu.Laske();
              Kayta(tila->toinen);
            });
          },
          [tila] { VaadiSamat(tila->oma, tila->toinen); }};
}

Vertailupari Ilmanvaihtopari(clsRakennus& rakennus) {
  auto tila = std::make_shared<Laskettavat>(rakennus);
  return {[tila] {
            clsIVKoneet& koneet = tila->rakennus.IVKoneet;
            koneet.VuotuinenIVjalkilammitysLampoUpToDate = false;
            return Suoritinaika([&] { tila->oma.jalkilammitys = koneet.VuotuinenIVjalkilammitysLampo(); });
          },
          [tila] {
            return Suoritinaika([&] {
              tila->toinen.jalkilammitys = tila->vertailu.Jalkilammitys();
              Kayta(tila->toinen);
            });
          },
          [tila] { VaadiSamat(tila->oma, tila->toinen); }};
}

}  // namespace mittaus
