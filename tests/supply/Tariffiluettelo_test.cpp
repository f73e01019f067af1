// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/Tariffiluettelo.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "ui/Tekstivarasto.h"

namespace {

class TariffiluetteloTesti : public testing::Test {
 protected:
  TariffiluetteloTesti() {
    AlustaTekstit();
    Asetukset().HaeRekisteristä();
  }
  ~TariffiluetteloTesti() override { Asetukset().HaeRekisteristä(); }
  static Tariffirivi Rivi(clsTariffi::Laji laji, const std::string& nimi) {
    const auto rivit = LueTariffit(laji);
    const auto kohta = std::ranges::find(rivit, nimi, &Tariffirivi::Nimi);
    EXPECT_NE(kohta, rivit.end()) << nimi;
    return *kohta;
  }
  static clsTariffi Taytetty(const Tariffirivi& rivi, const std::string& paiva = "2025-06-01") {
    clsTariffit tariffit;
    clsTariffi& tariffi = tariffit.LisaaTariffi(rivi.Laji);
    tariffi.MuuMaksu = tariffi.Maksu(6).Hinta = 99;
    TaytaTariffi(rivi, tariffi, paiva);
    return tariffi;
  }
};

TEST_F(TariffiluetteloTesti, EveryRowBecomesATariffThatPassesTheDialog) {
  int rivit = 0;
  for (const auto laji : {clsTariffi::LampoTariffi, clsTariffi::SahkoSiirtoTariffi, clsTariffi::SahkoMyyntiTariffi})
    for (const Tariffirivi& rivi : LueTariffit(laji)) {
      const clsTariffi tariffi = Taytetty(rivi);
      EXPECT_TRUE(clsEnergiamaksut::OnTaysi(tariffi.Energiamaksut.OsuuksienSumma())) << rivi.Nimi;
      EXPECT_EQ(tariffi.Tariffityyppi, laji);
      const double vero = laji == clsTariffi::SahkoSiirtoTariffi ? tariffi.Energiavero : 0;
      EXPECT_NEAR(tariffi.Keskihinta(), rivi.Keskihinta() + vero, 1e-9) << rivi.Nimi;
      ++rivit;
    }
  EXPECT_EQ(rivit, 52);
}

TEST_F(TariffiluetteloTesti, ThePowerTariffKeepsItsFeesBasesAndTax) {
  Asetukset().dblSahkoVeroluokka1 = 22.5299;
  Asetukset().dblSahkoALV = 25.5;
  const Tariffirivi rivi = Rivi(clsTariffi::SahkoSiirtoTariffi, "Pienjännitetehosiirto, Kymenlaakso");
  const clsTariffi tariffi = Taytetty(rivi);
  EXPECT_EQ(tariffi.ALV, 25.5);
  EXPECT_EQ(tariffi.Energiavero, 22.53);
  EXPECT_EQ(tariffi.EnergiaveroID, clsTariffi::Luokka1);
  EXPECT_EQ(tariffi.EnergiaveroStr, "Veroluokka 1");
  EXPECT_NEAR(tariffi.Keskihinta(), 18.6 * 0.35 + 8.9 * 0.65 + 22.53, 1e-9);
  EXPECT_NEAR(tariffi.VuosimaksutYht(), 60 * 100 + 91.68 * 10 + 1900.92, 1e-9);
  EXPECT_EQ(tariffi.Maksu(1).Nimi, "Talviarkipäivä");
  EXPECT_EQ(tariffi.Maksu(6).Nimi, "6 energiamaksu");
  EXPECT_EQ(tariffi.Maksu(6).Hinta, 0) << "nothing is left of what was there";
  // The settings have another figure: the tax is right, the class isn't named.
  Asetukset().dblSahkoVeroluokka1 = 7.02;
  EXPECT_EQ(Taytetty(rivi).Energiavero, 22.53);
  EXPECT_EQ(Taytetty(rivi).EnergiaveroID, clsTariffi::MuuVero);
  EXPECT_EQ(Taytetty(rivi, "2007-01-01").Energiavero, 7.43);
}

TEST_F(TariffiluetteloTesti, TaxesChangeOnTheirDays) {
  EXPECT_EQ(VeroPaivana("sahkovero2", "2020-12-31"), 7.03);
  EXPECT_EQ(VeroPaivana("sahkovero2", "2021-01-01"), 0.63);
  EXPECT_EQ(VeroPaivana("alv", "2024-08-31"), 24);
  EXPECT_EQ(VeroPaivana("alv", "2024-09-01"), 25.5);
  EXPECT_EQ(VeroPaivana("alv_myynti", "2023-04-30"), 10);
  EXPECT_TRUE(VeroPaivana("alv", TamaPaivaLajiteltavana()));
  EXPECT_FALSE(VeroPaivana("sahkovero1", "1999-12-31"));
}

TEST_F(TariffiluetteloTesti, AWaterRowBillsAllWaterAsWasteWater) {
  const auto rivit = LueVesitariffit();
  ASSERT_EQ(rivit.size(), 15u);
  clsVesitariffi tariffi;
  TaytaTariffi(rivit.front(), tariffi);
  EXPECT_EQ(tariffi.Nimi, rivit.front().Nimi);
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 1.47 + 1.79);
  EXPECT_EQ(tariffi.VuosimaksutYht(), 286.36);
}

}  // namespace
