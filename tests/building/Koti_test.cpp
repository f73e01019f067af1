// SPDX-License-Identifier: GPL-3.0-or-later
// Buildings are calculated by themselves: copies with what they hold, several side by side.
#include <thread>

#include "building/Koti.h"
#include "building/Tasehaarukka.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "kernel/Virhe.h"
#include "tests/ventilation/Koekone.h"

namespace {

std::vector<double> Luvut(clsRakennus& r) {
  const Tasehaarukka haarukka(r);
  std::vector<double> luvut{r.VuotuinenBruttoLampoEnergia(), r.VuotuinenBruttoSahkoEnergia(),
                            r.VuotuinenIVjalkilammitysLampo(), r.VuotuisetSaatohaviot()};
  for (int m = 0; m < kKuukausia; ++m) {
    luvut.push_back(r.LampoEnergianTarveTilatKk(m));
    luvut.push_back(r.AurinkoKuorma(m));
  }
  return luvut;
}

class KotiTesti : public KoneTesti {
 protected:
  KotiTesti() {
    LuoKoulu();
    clsIVKone& kone = LisaaKone(Tila().sKey);
    kone.KoneenTunnus = "TK01";
    kone.IVPeriaateID = clsIVKone::TuloPoisto;
    kone.LtoHyotysuhde = 50;
    kone.TuloilmanLammitysSahkoPatterilla = true;
    kone.PuhaltimienSahkonKulutus.TuloSahkoTeho11 = 4;
    Kayta(kone, Toimistoajat());
    clsSahkonKulutusryhma& ryhma = rakennus->SahkonKulutusryhmat.Add("sKeyValot");
    ryhma.LiittyyTilaansKey = Tila().sKey;
    ryhma.EnergiaHyodynnetaanLammityksessa = true;
    ryhma.LaskentatapaEnergiapohjainen(true);
    ryhma.LaskentatapaEnergiapohjainenIndex = 0;
    ryhma.SyötettyKulutus = 40;
  }
  clsTila& Tila() { return rakennus->Tilat.Item(1); }
};

TEST_F(KotiTesti, ACopyIsCalculatedWithWhatItHoldsItself) {
  const std::vector<double> alku = Luvut(*rakennus);
  const auto kopio = rakennus->Kopioi();
  EXPECT_EQ(Luvut(*kopio), alku);
  kopio->IVKoneet.Tyhjenna();
  kopio->SahkonKulutusryhmat.Tyhjenna();
  kopio->Perustiedot.LammTarveLukuPaikkakuntaID(kKuopio);
  kopio->Saa.AsetaSaaPaikkakunta(kKuopio);
  const std::vector<double> kopion = Luvut(*kopio);
  EXPECT_NE(kopion, alku);
  EXPECT_EQ(Luvut(*rakennus), alku) << "and the other one with its own";
  AsetaGlobaaliRakennus(kopio.get());
  EXPECT_EQ(Luvut(*kopio), kopion) << "whichever the windows show";
  EXPECT_EQ(Luvut(*rakennus), alku);
  AsetaGlobaaliRakennus(nullptr);
  EXPECT_EQ(Luvut(*kopio), kopion) << "also when they show none";
}

TEST_F(KotiTesti, WhatIsCopiedIntoABuildingBelongsToIt) {
  const auto kopio = rakennus->Kopioi();
  kopio->IVKoneet.Tyhjenna();
  kopio->IVKoneet.VuotuinenIVjalkilammitysLampo();
  clsTila& uusi = LisaaTila(500);
  LisaaIkkuna(uusi, 20, kEtela);
  rakennus->Tilat.Kopioi(kopio->Tilat);
  clsTila& tullut = kopio->Tilat.Item(uusi.sKey);
  rakennus->IVKoneet.Item(1).LiittyyTilaansKey = uusi.sKey;
  EXPECT_NE(uusi.IVHaviotTilassa(0), uusi.Vuotoilma(0));
  EXPECT_EQ(tullut.IVHaviotTilassa(0), tullut.Vuotoilma(0)) << "there are no machines";
  const double aurinko = tullut.AurinkoKuorma(5);
  EXPECT_GT(aurinko, 0);
  kopio->Saa.AsetaSaaPaikkakunta(2);
  tullut.AurKuormatTilassaUpToDate(false);
  EXPECT_NE(tullut.AurinkoKuorma(5), aurinko) << "the weather of its building";
}

TEST_F(KotiTesti, ACopyThatStandsNowhereAsksTheBuildingOfItsSource) {
  const auto tila = Tila().Kopioi();
  const auto kone = rakennus->IVKoneet.Item(1).Kopioi();
  for (int m = 0; m < kKuukausia; ++m) {
    EXPECT_EQ(tila->LampoEnergianTarve(m), Tila().LampoEnergianTarve(m));
    EXPECT_EQ(kone->LtoEnergia(m), rakennus->IVKoneet.Item(1).LtoEnergia(m));
  }
  rakennus.reset();
  EXPECT_THROW(tila->LampoHaviot(0), Virhe) << "the building is gone";
  EXPECT_THROW(kone->LtoEnergia(0), Virhe);
}

TEST_F(KotiTesti, TwoBuildingsAreCalculatedSideBySide) {
  const auto toinen = rakennus->Kopioi();
  toinen->Perustiedot.LammTarveLukuPaikkakuntaID(kKuopio);
  toinen->Saa.AsetaSaaPaikkakunta(kKuopio);
  toinen->Tilat.Item(1).Sisalampotila = 15.5;  // has error 1015 told in each calculation
  const std::vector<double> ensimmaisen = Luvut(*rakennus), toisen = Luvut(*toinen);
  ASSERT_NE(ensimmaisen, toisen);
  const std::size_t viesteja = viestit.Naytetyt().size();
  const auto laske = [](clsRakennus& r, const std::vector<double>& odotetut, int paikkakunta) {
    int vaaria = 0;
    for (int i = 0; i < 10; ++i) {
      const auto kopio = r.Kopioi();
      kopio->Saa.AsetaSaaPaikkakunta(paikkakunta);  // has the solar tables read anew
      vaaria += Luvut(r) != odotetut;
      vaaria += Luvut(*kopio) != odotetut;
      const Tunniste uusi("sKey" + std::to_string(i));
      vaaria += kopio->Tilat.Etsi(uusi) != nullptr;
    }
    return vaaria;
  };
  int vaaria = -1;
  std::thread saie([&] { vaaria = laske(*toinen, toisen, kKuopio); });
  EXPECT_EQ(laske(*rakennus, ensimmaisen, kTampere), 0);
  saie.join();
  EXPECT_EQ(vaaria, 0);
  EXPECT_EQ(viestit.Naytetyt().size(), viesteja) << "a thread's messages stay with it";
}

}  // namespace
