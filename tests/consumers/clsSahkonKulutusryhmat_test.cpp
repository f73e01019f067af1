// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkonKulutusryhmat.h"

#include <gtest/gtest.h>

#include <limits>

#include "kernel/Virhe.h"

namespace {

/// 100 W on one device around the clock: 0.876 MWh/a.
void TaytaSadanWatinLaite(clsSahkonKulutusryhma& ryhma) {
  ryhma.LaskentaperusteNumber = 100;
  ryhma.LaskentayksikkoNumber = 1;
  ryhma.KayttoaikaHpD = 24;
  ryhma.KayttoaikaDpA = 365;
}

std::vector<std::string> Rivit(const clsSahkonKulutusryhmat& ryhmat) {
  std::vector<std::string> nimet;
  for (int i = 1; i <= ryhmat.CountListaItems(); ++i) nimet.push_back(ryhmat.ListaItem(i).NimiTeksti);
  return nimet;
}

TEST(clsSahkonKulutusryhma, ConsumptionByPowerIsPowerTimesTimeInMegawattHours) {
  clsSahkonKulutusryhma ryhma;
  EXPECT_EQ(ryhma.Vuosikulutus(), 0);
  TaytaSadanWatinLaite(ryhma);
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 0.876);
  ryhma.Tasauskerroin = 0.5;
  ryhma.KulutusryhmienLukumaara = 4;
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 1.752);
}

TEST(clsSahkonKulutusryhma, ConsumptionByEnergyIsKilowattHoursOrTyped) {
  clsSahkonKulutusryhma ryhma;
  ryhma.LaskentatapaEnergiapohjainen(true);
  ryhma.LaskentaperusteNumber = 350;  // kWh per device
  ryhma.LaskentayksikkoNumber = 12;
  ryhma.KayttoaikaHpD = ryhma.KayttoaikaDpA = 1;
  ryhma.KulutusryhmienLukumaara = 3;
  ryhma.SyötettyKulutus = 2.5;
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 12.6);
  for (const std::int16_t syotetty : {0, 1}) {
    ryhma.LaskentatapaEnergiapohjainenIndex = syotetty;
    EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 7.5);
  }
  ryhma.LaskentatapaTehopohjainen(true);  // a power-based group doesn't look at the energy mode
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 350 * 12 * 3 / 1e6);
}

TEST(clsSahkonKulutusryhma, TheTwoModesAreOppositeAlsoWhenSetByName) {
  clsSahkonKulutusryhma ryhma;
  AsetaJasen(ryhma, "LaskentatapaEnergiapohjainen", true);
  EXPECT_FALSE(std::get<bool>(HaeJasen(ryhma, "LaskentatapaTehopohjainen")));
  AsetaJasen(ryhma, "LaskentatapaTehopohjainen", true);
  EXPECT_FALSE(std::get<bool>(HaeJasen(ryhma, "LaskentatapaEnergiapohjainen")));
}

TEST(clsSahkonKulutusryhma, AnInfiniteConsumptionIsAnErrorAndNoResult) {
  clsSahkonKulutusryhma ryhma;
  TaytaSadanWatinLaite(ryhma);
  ryhma.KulutusryhmienLukumaara = std::numeric_limits<double>::max();
  try {
    ryhma.Vuosikulutus();
    FAIL();
  } catch (const Virhe& virhe) {
    EXPECT_EQ(virhe.Lahde(), "clsSahkonKulutusryhma:Vuosikulutus Method");
  }
}

TEST(clsSahkonKulutusryhmat, HeatGainComesOnlyFromUsedElectricityAndTheOwnSpace) {
  clsSahkonKulutusryhmat ryhmat;
  struct {
    const char* tila;
    bool hyodynnetaan;
  } constexpr kRyhmat[] = {{"Tila A", true}, {"tila a", true}, {"Tila A", false}, {"Tila B", true}, {"", true}};
  for (const auto& [tila, hyodynnetaan] : kRyhmat) {
    clsSahkonKulutusryhma& ryhma = ryhmat.Add();
    TaytaSadanWatinLaite(ryhma);
    ryhma.LiittyyTilaansKey = tila;
    ryhma.EnergiaHyodynnetaanLammityksessa = hyodynnetaan;
  }
  EXPECT_DOUBLE_EQ(ryhmat.TilanSahkoKuorma("Tila A"), 146);  // two devices: 2 × 876 kWh / 12; keys ignore case
  EXPECT_DOUBLE_EQ(ryhmat.TilanSahkoKuorma("Tila B"), 73);
  EXPECT_EQ(ryhmat.TilanSahkoKuorma("Tila C"), 0);
  EXPECT_DOUBLE_EQ(ryhmat.TiloihinLiittymatonSahkoKuorma(), 73);
  EXPECT_DOUBLE_EQ(ryhmat.SahkoLaitteidenVuosikulutus(), 5 * 0.876);
}

TEST(clsSahkonKulutusryhmat, TheNewestRowComesBehindItsHeadingAMadeOneLast) {
  clsSahkonKulutusryhmat ryhmat;
  ryhmat.AddListaItem("sKeySahkoYhteensa", "", 1, "Yhteensä");
  ryhmat.AddListaItem("sKeyLVISahko", "sKeySahkoYhteensa", 1, "LVI", 0, true);
  ryhmat.AddListaItem("sKeyValaistus", "sKeySahkoYhteensa", 1, "Valaistus", 0, true);
  ryhmat.AddListaItem("a", "sKeyLVISahko", 0, "Pumppu");
  ryhmat.AddListaItem("b", "sKeyLVISahko", 0, "Sulatus");
  ryhmat.AddListaItem("c", "sKeyLVISahko", 0, "Perässä", 0, true);
  ryhmat.AddListaItem("", "sKeyLVISahko", 0, "Avaimeton");
  ryhmat.AddListaItem("d", "sKeyPoistettu", 0, "Orpo");
  EXPECT_EQ(Rivit(ryhmat), (std::vector<std::string>{"Yhteensä", "LVI", "Sulatus", "Pumppu", "Valaistus", "Perässä",
                                                     "Avaimeton", "Orpo"}));
  EXPECT_EQ(ryhmat.ListaItem("B").Parent, Tunniste("sKeyLVISahko"));
  ryhmat.RemoveListaItem("b");
  EXPECT_EQ(ryhmat.CountListaItems(), 7);
  EXPECT_THROW(ryhmat.AddListaItem("a", "sKeyLVISahko", 0, "Sama avain"), Virhe);
  EXPECT_EQ(ryhmat.CountListaItems(), 7);
}

TEST(clsSahkonKulutusryhmat, ACopyRestoresGroupsAndRowsIntoTheSameObjects) {
  clsSahkonKulutusryhmat ryhmat;
  clsSahkonKulutusryhma& ryhma = ryhmat.Add("a");
  clsSahkoListaItem& rivi = ryhmat.AddListaItem("a", "", 0, "Pumppu");
  TaytaSadanWatinLaite(ryhma);
  const auto varalla = ryhmat.Kopioi();
  ryhma.KayttoaikaHpD = 1;
  rivi.NimiTeksti = "Muutettu";
  ryhmat.Add("b");
  ryhmat.AddListaItem("b", "", 0, "Lisätty");
  varalla->Kopioi(ryhmat);
  EXPECT_EQ(&ryhmat.Item("a"), &ryhma);
  EXPECT_EQ(&ryhmat.ListaItem("a"), &rivi);
  EXPECT_EQ(ryhma.KayttoaikaHpD, 24);
  EXPECT_EQ(rivi.NimiTeksti, "Pumppu");
  EXPECT_EQ(ryhmat.Count(), 1);
  EXPECT_EQ(ryhmat.CountListaItems(), 1);
}

}  // namespace
