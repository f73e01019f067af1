// SPDX-License-Identifier: GPL-3.0-or-later
// The tree of electricity consumers against a plain sum of the same groups.
#include "bench/Mittaukset.h"
#include "consumers/clsSahkonKulutusryhmat.h"

namespace mittaus {

namespace {

constexpr int kNimikkeita = 10;
constexpr double kTarkkuus = 1e-12;

struct Puu {
  explicit Puu(int ryhmia) {
    puu.LuoKiinteatRivit();
    std::vector<Tunniste> nimikkeet;
    for (int i = 0; i < kNimikkeita; ++i) nimikkeet.push_back(puu.LisaaNimike("Nimike " + std::to_string(i + 1)).sKey);
    for (int i = 0; i < ryhmia; ++i) {
      clsSahkonKulutusryhma& ryhma = puu.LisaaRyhma(nimikkeet[static_cast<std::size_t>(i % kNimikkeita)], true);
      ryhma.KulutusRyhma = "Laiteryhmä " + std::to_string(i + 1);
      ryhma.LaskentaperusteNumber = 10 + i % 90;
      ryhma.LaskentayksikkoNumber = 1 + i % 7;
      ryhma.KayttoaikaHpD = 8;
      ryhma.KayttoaikaDpA = 250;
    }
  }

  clsSahkonKulutusryhmat puu;
  double summa = 0;
};

}  // namespace

Vertailupari Kulutuspuupari(int ryhmia) {
  auto tila = std::make_shared<Puu>(ryhmia);
  return {[tila] { return Suoritinaika([&] { tila->puu.PaivitaKulutusRyhmatJaLaitteet(); }); },
          [tila] {
            return Suoritinaika([&] {
              tila->summa = 0;
              for (const clsSahkonKulutusryhma& ryhma : tila->puu) tila->summa += ryhma.Vuosikulutus();
              Kayta(tila->summa);
            });
          },
          [tila] {
            VaadiSama(tila->puu.ListaItem(tila->puu.JuurenAvain()).Vuosikulutus, tila->summa, kTarkkuus, "tree's sum");
          }};
}

}  // namespace mittaus
