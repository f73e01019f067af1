// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tasehaarukka.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Vertailu.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "tests/building/Koerakennus.h"

namespace {

class clsRakennusTesti : public RakennusTesti {
 protected:
  /// Changes of the parts that a copy carries; the tariff comparison stays with the building.
  std::vector<Muutos> Muutokset(clsRakennus& uusi, clsRakennus& vanha) {
    Muutoslista lista;
    uusi.VertaileAttribuutit(vanha, lista);
    std::erase_if(lista.muutokset, [](const Muutos& m) { return m.clsTypeName == "clsSahkoTariffienVertailu"; });
    return lista.muutokset;
  }
  clsEnergiamuoto& LisaaMuoto(clsEnergianHankinta& hankinta, double osuus, double hyotysuhde) {
    clsEnergiamuoto& muoto = hankinta.Energiamuodot.Add(Tunniste::Uusi(clsEnergiamuoto::kLuokka.NimiSana()));
    muoto.OsuusNettotarpeesta = osuus;
    muoto.Hyotysuhde = hyotysuhde;
    return muoto;
  }
};

TEST_F(clsRakennusTesti, FiguresAreTheSameInsideAndOutsideTheBracket) {
  LuoKoulu();
  const double yksin = rakennus->VuotuinenBruttoLampoEnergia();
  const double tammikuu = rakennus->LampoEnergianTarveTilatKk(0);
  const Tasehaarukka haarukka(*rakennus);
  EXPECT_EQ(rakennus->VuotuinenBruttoLampoEnergia(), yksin);
  EXPECT_EQ(rakennus->LampoEnergianTarveTilatKk(0), tammikuu);
  EXPECT_EQ(rakennus->VuotuinenBruttoLampoEnergia(), yksin) << "read twice";
}

TEST_F(clsRakennusTesti, APatchedPropertyCountsInTheNextPull) {
  LuoKoulu();
  const double ennen = rakennus->VuotuinenLampoEnergianTarveTilat();
  rakennus->Tilat.Item(1).Rakenteet.Item(1).PintaAla += 100;
  EXPECT_GT(rakennus->VuotuinenLampoEnergianTarveTilat(), ennen);
  EXPECT_FALSE(rakennus->Tilat.VuotuinenLampoEnergianTarveUpToDate());
}

TEST_F(clsRakennusTesti, AFailureInTheBracketLeavesNoFlagOn) {
  LuoKoulu();
  rakennus->Tilat.Item(1).Kokonaistilavuus = std::numeric_limits<double>::infinity();
  try {
    rakennus->VuotuinenBruttoLampoEnergia();
    FAIL() << "an infinite volume was calculated with";
  } catch (const Virhe& virhe) {
    EXPECT_EQ(virhe.Numero(), 9999);
    EXPECT_EQ(virhe.Lahde(), "clsRakennus:VuotuinenBruttoLampoEnergia Method");
    EXPECT_EQ(virhe.Kuvaus(), Teksti(9999));
  }
  EXPECT_FALSE(rakennus->Tilat.VuotuinenLampoEnergianTarveUpToDate());
  EXPECT_FALSE(rakennus->Tilat.Item(1).JohtumishaviotUpToDate());
}

TEST_F(clsRakennusTesti, ConversionLossesFollowSharesAndEfficiencies) {
  LuoKoulu();
  const double verkko = rakennus->VuotuinenLampoEnergianTarveTilat();
  LisaaMuoto(rakennus->Perustiedot.LammonHankinta, 60, 80);
  LisaaMuoto(rakennus->Perustiedot.LammonHankinta, 30, 100);
  LisaaMuoto(rakennus->Perustiedot.LammonHankinta, 50, 0);
  // Shares that total 140 % are used as they stand; efficiencies 100 and 0 add nothing.
  EXPECT_NEAR(rakennus->VuotuisetLammonKonversiohaviot(), (1 / 0.8 - 1) * verkko * 0.6, 1e-9);
  rakennus->MuuLampo = 5;
  EXPECT_NEAR(rakennus->VuotuinenBruttoLampoEnergia(),
              verkko + 5 + rakennus->VuotuisetSaatohaviot() + rakennus->VuotuisetLammonKonversiohaviot(), 1e-9);
}

TEST_F(clsRakennusTesti, MeasuredHeatIsNormalisedWithoutItsConstantShare) {
  LuoKoulu();
  clsToteutunutKulutus& vuosi = rakennus->Perustiedot.ToteutuneetKulutukset.Item(1);
  vuosi.Lampo = 800;
  vuosi.LammTarveLuku = 4400;
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = 100;
  EXPECT_NEAR(rakennus->ToteutunutNormitettuLampo(), 700.0 * 4719 / 4400 + 100, 1e-9);
  EXPECT_TRUE(viestit.Naytetyt().empty());
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = 800;
  EXPECT_EQ(rakennus->ToteutunutNormitettuLampo(), 800);
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = 900;
  EXPECT_LT(rakennus->ToteutunutNormitettuLampo(), 900);
  ASSERT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_NE(viestit.Naytetyt()[0].teksti.find("800 "), std::string::npos);
  vuosi.KaytaVertailuVuotena = false;
  EXPECT_EQ(rakennus->ToteutunutNormitettuLampo(), 0) << "no comparison year: error 1050";
  EXPECT_EQ(viestit.Naytetyt().size(), 3u);
}

TEST_F(clsRakennusTesti, NoGrossAreaMeansNoGeneralLoad) {
  rakennus->Perustiedot.BruttoAla = 0;
  EXPECT_EQ(rakennus->LaskeYleisSahkoKuorma(), 0);
  EXPECT_EQ(viestit.Esiintymia("Kohteen bruttoala 0 tai pienempi."), 1);
}

TEST_F(clsRakennusTesti, TheHeatSummaryGivesMeasuresTheFiguresOfTheirOwnBase) {
  LuoKoulu();
  clsSahkonKulutusryhma& valot = rakennus->SahkonKulutusryhmat.Add("valot");
  valot.LaskentatapaEnergiapohjainen(true);
  valot.LaskentatapaEnergiapohjainenIndex = 0;
  valot.SyötettyKulutus = 50;
  clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("toimi");
  rakennus->NaytaLampoYhteenvetoDlg();
  EXPECT_EQ(toimenpide.LampoEnergiaEnnen(), rakennus->VuotuinenBruttoLampoEnergia());
  EXPECT_EQ(toimenpide.SahkoEnergiaEnnen(), rakennus->VuotuinenBruttoSahkoEnergia());
  EXPECT_EQ(toimenpide.VedenkulutusEnnen(), rakennus->VedenKulutusryhmat.VuotuinenVedenKulutus());
  EXPECT_GT(toimenpide.LampoEnergiaEnnen(), toimenpide.SahkoEnergiaEnnen());
}

TEST_F(clsRakennusTesti, ACopyComparesEmptyAndSharesNothing) {
  LuoKoulu();
  auto kopio = rakennus->Kopioi();
  for (const Muutos& m : Muutokset(*kopio, *rakennus))
    ADD_FAILURE() << m.clsTypeName << "." << m.attribuutinNimi << ": " << m.arvoEnnen << m.arvoEnnenStr << " -> "
                  << m.arvoJalkeen << m.arvoJalkeenStr;
  EXPECT_EQ(kopio->Saastotoimenpiteet.CountListaItems(), 0) << "measures stay with the building";

  Rakenneratkaisu& ratkaisu = *kopio->Tilat.Item(1).Rakenteet.Item(3).RakenneRatkaisu;
  ratkaisu.Nimi = "muutettu";
  EXPECT_TRUE(Muutokset(*kopio, *rakennus).empty()) << "solutions are outside the comparison";
  EXPECT_NE(rakennus->Tilat.Item(1).Rakenteet.Item(3).RakenneRatkaisu->Nimi, "muutettu");
  kopio->Delete();
  kopio->Delete();
}

TEST_F(clsRakennusTesti, AVariationReachesItsObjectInTheLiveModel) {
  LuoKoulu();
  auto muokattu = rakennus->Kopioi();
  clsRakenne& seina = muokattu->Tilat.Item(1).Rakenteet.Item(1);
  seina.PintaAla += 50;
  muokattu->Tilat.Item(1).TilanNimi = "Uusi nimi";
  muokattu->Tilat.Item(1).LammitettyTila = false;
  clsMuuttuneetAttribuutit muuttuneet;
  for (const Muutos& muutos : Muutokset(*muokattu, *rakennus)) muuttuneet.Lisaa(muutos);
  ASSERT_EQ(muuttuneet.Count(), 3);
  clsMuuttunutAttribuutti& kadonnut = muuttuneet.Add("kadonnut");
  kadonnut.clsTypeName = "clsTila";
  kadonnut.AttribuutinNimi = "TilanNimi";
  kadonnut.InstanssiId = "clsTila 00000000000000000000000000000001";
  kadonnut.TietoTyyppi = 8;
  rakennus->LiitaSaastoToimenpide(muuttuneet);
  EXPECT_TRUE(Muutokset(*muokattu, *rakennus).empty());
  EXPECT_EQ(rakennus->TyyppiTiedot.Nimet.Etsi(clsSaa::kLuokka)->Count(), 0) << "the weather isn't registered";
}

}  // namespace
