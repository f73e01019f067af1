// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVedenKulutusryhmat.h"

#include <gtest/gtest.h>

#include "kernel/Virhe.h"

namespace {

/// 10 units of 20 dm³ twice a day all year: 146 m³/a.
void TaytaSuihkut(clsVedenKulutusryhma& ryhma) {
  ryhma.LaskentaperusteNumber = 20;
  ryhma.Laskentayksikko = 10;
  ryhma.KayttokuvausKertaaD = 2;
  ryhma.KayttokuvausDpA = 365;
}

constexpr double kSuihkujenLampo = 146 * 4.19 * 50 / 3.6 / 1000;  // MWh/a from 5 to 55 °C

TEST(clsVedenKulutusryhma, TheFactorMakesAUnitCubicMetresAYear) {
  constexpr double kKuutiota[] = {36, 36, 36, 36, 129.6e3, 2160, 36};  // 1 unit × 10 × 10 × 360, by unit
  for (std::int16_t yksikko = 0; yksikko < 7; ++yksikko) {
    clsVedenKulutusryhma ryhma;
    ryhma.LaskentaperusteID = yksikko;
    ryhma.LaskentaperusteNumber = 10;
    ryhma.Laskentayksikko = 1;
    ryhma.KayttokuvausKertaaD = 10;
    ryhma.KayttokuvausDpA = 360;
    EXPECT_DOUBLE_EQ(ryhma.VedenKulutus(), kKuutiota[yksikko]) << yksikko;
  }
}

TEST(clsVedenKulutusryhma, HeatingFollowsTheUseTemperatureNotTheHotShare) {
  clsVedenKulutusryhma ryhma;
  TaytaSuihkut(ryhma);
  EXPECT_DOUBLE_EQ(ryhma.VedenKulutus(), 146);
  EXPECT_EQ(ryhma.VedenLammityksenEnergia(), 0);  // used cold at first
  ryhma.LampimanVedenOsuus = 60;
  EXPECT_DOUBLE_EQ(ryhma.LampimanVedenKulutus(), 87.6);
  EXPECT_EQ(ryhma.VedenLammityksenEnergia(), 0);
  ryhma.VedenKayttolampotila = 55;
  EXPECT_DOUBLE_EQ(ryhma.VedenLammityksenEnergia(), kSuihkujenLampo);
  ryhma.VedenTiedot.KylmanLampotila = 15;
  EXPECT_DOUBLE_EQ(ryhma.VedenLammityksenEnergia(), kSuihkujenLampo * 40 / 50) << "from the group's own cold water";
}

TEST(clsVedenKulutusryhma, ShareAndTemperatureTellTheSame) {
  clsVedenKulutusryhma ryhma;
  const struct {
    double kylma, lammin, kaytto, osuus;
  } kTapaukset[] = {{5, 55, 38, 66}, {5, 55, 5, 0},   {5, 55, 60, 110},
                    {5, 58, 38, 62}, {10, 10, 38, 0}, {20, 10, 38, 0}};
  for (const auto& t : kTapaukset) {
    ryhma.VedenTiedot.KylmanLampotila = t.kylma;
    ryhma.VedenTiedot.LamminLampotila = t.lammin;
    ryhma.VedenKayttolampotila = t.kaytto;
    ryhma.PaivitaLampimanVedenOsuus();
    EXPECT_EQ(ryhma.LampimanVedenOsuus, t.osuus) << t.kylma << " - " << t.lammin;
  }
  ryhma.VedenTiedot = clsVedenTiedot();
  EXPECT_DOUBLE_EQ(ryhma.VedenTiedot.Kayttolampotila(66), 38);
  EXPECT_DOUBLE_EQ(ryhma.VedenTiedot.Kayttolampotila(ryhma.VedenTiedot.LampimanOsuus(41.3)), 41.3);
}

TEST(clsVedenKulutusryhma, AnUnknownUnitIsAnError) {
  clsVedenKulutusryhma ryhma;
  TaytaSuihkut(ryhma);
  for (const std::int16_t yksikko : {-1, 7}) {
    ryhma.LaskentaperusteID = yksikko;
    EXPECT_THROW(ryhma.VedenKulutus(), Virhe);
    EXPECT_THROW(ryhma.VedenLammityksenEnergia(), Virhe);
  }
}

class VesiryhmatTesti : public testing::Test {
 protected:
  VesiryhmatTesti() {
    for (clsVedenKulutusryhma* ryhma : {&suihkut_, &pesuri_}) {
      TaytaSuihkut(*ryhma);
      ryhma->VedenKayttolampotila = 55;
      ryhma->LampimanVedenOsuus = 100;
    }
    pesuri_.LampimanVedenOsuus = 50;
  }

  clsVedenKulutusryhmat ryhmat_;
  clsVedenKulutusryhma& suihkut_ = ryhmat_.Add("a", clsVedenKulutusryhma::Kayttovesi);
  clsVedenKulutusryhma& pesuri_ = ryhmat_.Add("b", clsVedenKulutusryhma::Prosessivesi);
};

TEST_F(VesiryhmatTesti, ANewGroupGetsItsKindsTemperaturesButKeepsItsIdentity) {
  ryhmat_.LKVTiedot.KylmanLampotila = 7;
  const clsVedenKulutusryhma& uusi = ryhmat_.Add("c", clsVedenKulutusryhma::Kayttovesi);
  EXPECT_EQ(uusi.VedenTiedot.KylmanLampotila, 7);
  EXPECT_EQ(uusi.VedenKayttolampotila, 7);
  EXPECT_EQ(pesuri_.VedenTiedot.LamminLampotila, 70);
  EXPECT_FALSE(uusi.VedenTiedot.InstanssiId == ryhmat_.LKVTiedot.InstanssiId);
}

TEST_F(VesiryhmatTesti, TapAndProcessWaterAreComputedApart) {
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenVedenKulutus(), 292);
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenKvKulutus(), 146);
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenKylmanProsessivedenKulutus(), 146);
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenLkvKulutus(), 146);
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenLampimanProsessivedenKulutus(), 73);
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenProsessivedenLammityksenEnergia(), kSuihkujenLampo);
}

TEST_F(VesiryhmatTesti, TheLoopAddsToTapWaterAndElectricHeatingMovesHeatByKind) {
  ryhmat_.LKVKiertoVirtaama = 0.1;  // 5 K all year
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenLkvLammityksenEnergia(), kSuihkujenLampo + 18.3522);
  EXPECT_EQ(ryhmat_.VuotuinenLkvSahkoLammityksenEnergia(), 0);
  EXPECT_EQ(ryhmat_.VuotuinenProsessivedenSahkoLammityksenEnergia(), 0);
  ryhmat_.LKVTiedot.Sahkolammitys = true;
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenLkvSahkoLammityksenEnergia(), kSuihkujenLampo + 18.3522);
  EXPECT_EQ(ryhmat_.VuotuinenProsessivedenSahkoLammityksenEnergia(), 0);
  ryhmat_.ProsessiVedenTiedot.Sahkolammitys = true;
  EXPECT_DOUBLE_EQ(ryhmat_.VuotuinenProsessivedenSahkoLammityksenEnergia(), kSuihkujenLampo);
}

}  // namespace
