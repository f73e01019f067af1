// SPDX-License-Identifier: GPL-3.0-or-later
// The object: what it is, its spaces, its auditors, its present state.
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "results/clsRaporttiasetukset.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/raportti.h"
#include "ui/Tekstivarasto.h"

namespace {

Raporttitaulukko Perustiedot(const clsPerustiedot& p) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapPerustiedot),
                     .sarakkeet = {{Teksti(tekstit::kRapTieto), "", "", 3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapArvo), "", "", 2},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1, Summaus::Ei, false}}};
  const auto luku = [&](int nimi, double arvo, const char* kuvio, const char* yksikko, const char* solu = "") {
    t.Lisaa({Teksti(nimi), Raporttiluku{arvo, kuvio, "", solu}, yksikko});
  };
  luku(tekstit::kRapBruttoala, p.BruttoAla, "### ##0.##", "m²", "BruttoAla");
  luku(tekstit::kRapTilavuus, p.Kokonaistilavuus, "### ##0.##", "m³", "Tilavuus");
  luku(tekstit::kRapKylmaAla, p.KylmanAlanOsuus, "0.#", "%");
  luku(tekstit::kRapKylmaTilavuus, p.KylmanTilavuudenOsuus, "0.#", "%");
  luku(tekstit::kRapKerroksia, p.KerrostenLukumaara, "0.#", "");
  luku(tekstit::kRapHenkiloita, p.KohteenHenkiloMaara, "### ##0", "");
  luku(tekstit::kRapNormTarveluku, p.NormVuodenLammTarveLuku, "### ##0", "°Cd", "NormLammitystarveluku");
  return t;
}

Raporttitaulukko Tilat(const clsTilat& tilat) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapTilat),
                     .sarakkeet = {{Teksti(tekstit::kSarakeTila), "", "", 4, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapTilavuus), "m³", "tilavuus", 1.5, Summaus::Luvut},
                                   {Teksti(tekstit::kRapBruttoala), "m²", "ala", 1.5, Summaus::Luvut},
                                   {Teksti(tekstit::kRapLampotila), "°C", "", 1.3},
                                   {Teksti(tekstit::kRapHenkiloita), "", "henkilot", 1.3, Summaus::Luvut},
                                   {Teksti(tekstit::kRapKayttoaika), "h/a", "", 1.4}}};
  for (const clsTila& tila : tilat)
    t.Lisaa({tila.TilanNimi, Raporttiluku{tila.Kokonaistilavuus, "### ##0"}, Raporttiluku{tila.BruttoAla, "### ##0"},
             Raporttiluku{tila.Sisalampotila, "0.0"}, Raporttiluku{tila.TilanHenkilomaara, "### ##0"},
             Raporttiluku{tila.TilanKayttoaikaHpA, "### ##0"}});
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  return t;
}

void LisaaKatselmoija(Raporttitaulukko& taulukko, int ala, const clsKatselmoijanTiedot& k) {
  if (k.Nimi.empty()) return;
  taulukko.Lisaa({Teksti(ala), k.Tehtavanimike.empty() ? k.Nimi : k.Nimi + ", " + k.Tehtavanimike,
                  k.Matkapuhelin.empty() ? k.Puhelin : k.Matkapuhelin, k.Sahkoposti});
}

Raporttitaulukko Katselmoijat(const clsKatselmoijienTiedot& k) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapKatselmoijat),
                     .sarakkeet = {{Teksti(tekstit::kRapOsaAlue), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapNimi), "", "", 3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapPuhelin), "", "", 1.5, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapSahkoposti), "", "", 2.5, Summaus::Ei, false}}};
  LisaaKatselmoija(t, tekstit::kRapLvi, k.LVIKatselmoija);
  LisaaKatselmoija(t, tekstit::kRapSahkotekniikka, k.SahkoKatselmoija);
  return t;
}

std::string Kohdelause(const clsPerustiedot& p) {
  std::string lause =
      Lause(tekstit::kRapKohdelause, {p.KohteenNimi, p.Kayttotarkoitus, Lukuna(p.BruttoAla, "### ##0", "m²"),
                                      Lukuna(p.Kokonaistilavuus, "### ##0", "m³")});
  if (p.ValmistumisVuosi > 0) lause += " " + Lause(tekstit::kRapValmistumislause, {std::to_string(p.ValmistumisVuosi)});
  if (!p.LammTarveLukuPaikkakunta.empty())
    lause += " " + Lause(tekstit::kRapPaikkakuntalause,
                         {p.LammTarveLukuPaikkakunta, Lukuna(p.NormVuodenLammTarveLuku, "### ##0", "°Cd")});
  return lause;
}

}  // namespace

void raportti::Kohde(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const clsRakennus& rakennus = aineisto.rakennus;
  osa.Kappale(Kohdelause(rakennus.Perustiedot));
  osa.Taulukko(Perustiedot(rakennus.Perustiedot));
  if (!rakennus.Raporttiasetukset.Nykytila.empty()) {
    osa.Otsikko(Teksti(tekstit::kRapNykytila));
    osa.Kappale(rakennus.Raporttiasetukset.Nykytila);
  }
  if (rakennus.Tilat.Count() == 0)
    osa.Kappale(Teksti(tekstit::kRapEiTiloja));
  else
    osa.Taulukko(Tilat(rakennus.Tilat));
  Raporttitaulukko katselmoijat = Katselmoijat(rakennus.KatselmoijienTiedot);
  if (!katselmoijat.OnTyhja()) osa.Taulukko(std::move(katselmoijat));
}
