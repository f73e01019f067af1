// SPDX-License-Identifier: GPL-3.0-or-later
// Investments over a life, by the tables and worked cases of textbooks of investment calculation.
#include "lifecycle/Investointilaskelma.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>

#include "kernel/Luvut.h"
#include "tests/tuki/Lahdekoodi.h"

namespace {

TEST(Nykyarvokerroin, AgreesWithThePrintedTables) {
  EXPECT_NEAR(Nykyarvokerroin(20, 0.05), 12.4622, 5e-5);
  EXPECT_NEAR(Nykyarvokerroin(30, 0.03), 19.6004, 5e-5);
  EXPECT_NEAR(Nykyarvokerroin(25, 0.06, 0.02), (1 - std::pow(1.02 / 1.06, 25)) / (0.06 - 0.02) * 1.02, 1e-10)
      << "growing annuity in closed form";
  EXPECT_DOUBLE_EQ(Nykyarvokerroin(25, 0.04, 0.04), 25) << "a rise that eats the interest";
  EXPECT_EQ(Nykyarvokerroin(30, 0), 30);
  EXPECT_EQ(Nykyarvokerroin(0, 0.05), 0);
}

class Investoinnit : public testing::Test {
 protected:
  Investointilaskelma Laskelma() const { return {investointi, oletukset}; }

  Investointi investointi{.hankinnat = {{10000, 0}}, .saasto = {1500, 0, 0}, .energia = 20};
  Elinkaarioletukset oletukset{.pitoaika = 20, .korko = 0.05};
};

TEST_F(Investoinnit, OnePurchaseThatLastsThePeriod) {
  EXPECT_NEAR(Laskelma().Nettonykyarvo(), 1500 * 12.4622 - 10000, 0.5);
  // 8 years of savings are worth 9,694.82, the ninth 966.91.
  EXPECT_NEAR(*Laskelma().DiskontattuTakaisinmaksuaika(), 8 + (10000 - 9694.82) / 966.91, 1e-4);
  EXPECT_NEAR(*Laskelma().SisainenKorko(), 0.1389, 5e-5) << "factor 6.6667 over 20 years";
  EXPECT_NEAR(*Laskelma().SaastetynEnergianHinta(), 10000 * 0.0802426 / 20, 1e-3) << "annuity 8.02426 %";
  oletukset.korko = 0;
  EXPECT_NEAR(*Laskelma().DiskontattuTakaisinmaksuaika(), 10000.0 / 1500, 1e-12) << "the simple payback";
}

TEST_F(Investoinnit, EachCarrierRisesByItsOwn) {
  investointi.saasto = {1000, 400, 100};
  oletukset.nousu = {0.02, 0.05, 0};
  EXPECT_NEAR(Laskelma().Nettonykyarvo(),
              1000 * Nykyarvokerroin(20, 0.05, 0.02) + 400 * 20 + 100 * Nykyarvokerroin(20, 0.05) - 10000, 1e-9);
}

TEST_F(Investoinnit, AShorterLifeIsBoughtAgainAndLeavesAResidualValue) {
  oletukset.pitoaika = 30;
  investointi.hankinnat = {{10000, 20}};
  const double uusinta = 10000 / std::pow(1.05, 20), jaannos = 10000 * 0.5 / std::pow(1.05, 30);
  EXPECT_NEAR(Laskelma().Nettonykyarvo(), 1500 * Nykyarvokerroin(30, 0.05) - 10000 - uusinta + jaannos, 1e-9);
  investointi.hankinnat = {{10000, 15}};
  EXPECT_NEAR(Laskelma().Nettonykyarvo(), 1500 * Nykyarvokerroin(30, 0.05) - 10000 - 10000 / std::pow(1.05, 15), 1e-9)
      << "a life that ends with the period isn't bought again, and leaves nothing";
  investointi.hankinnat = {{10000, 40}};
  EXPECT_NEAR(Laskelma().Nettonykyarvo(), 1500 * Nykyarvokerroin(30, 0.05) - 10000 + 10000 * 0.25 / std::pow(1.05, 30),
              1e-9);
  oletukset.korko = 0;
  investointi.hankinnat = {{10000, 5}};
  investointi.saasto = {2100, 0, 0};
  EXPECT_NEAR(*Laskelma().DiskontattuTakaisinmaksuaika(), 10000.0 / 2100, 1e-12) << "before the first replacement";
}

TEST_F(Investoinnit, WhatDoesntPayBackHasNoPayback) {
  investointi.saasto = {100, 0, 0};
  EXPECT_FALSE(Laskelma().DiskontattuTakaisinmaksuaika());
  investointi.saasto = {-100, 0, 0};
  EXPECT_FALSE(Laskelma().DiskontattuTakaisinmaksuaika());
  EXPECT_FALSE(Laskelma().SisainenKorko());
  investointi.energia = -1;
  EXPECT_FALSE(Laskelma().SaastetynEnergianHinta());
  investointi.hankinnat.clear();
  investointi.saasto = {100, 0, 0};
  EXPECT_EQ(Laskelma().DiskontattuTakaisinmaksuaika(), 0) << "nothing to pay back";
  investointi.saasto = {-100, 0, 0};
  EXPECT_FALSE(Laskelma().DiskontattuTakaisinmaksuaika()) << "nothing is paid, and yet it costs";
  oletukset.pitoaika = 0;
  EXPECT_EQ(Laskelma().Nettonykyarvo(), 0);
  EXPECT_FALSE(Laskelma().SaastetynEnergianHinta());
}

TEST_F(Investoinnit, TheGuidesExampleIsWhatIsComputed) {
  std::ifstream tiedosto(Lahdekoodi("docs/opas/elinkaari.md"));
  const std::string opas{std::istreambuf_iterator<char>(tiedosto), {}};
  const auto kerrotaan = [&](double luku, const char* kuvio, const char* ennen, const char* jalkeen) {
    const std::string teksti = ennen + Muotoile(luku, kuvio) + jalkeen;
    EXPECT_NE(opas.find(teksti), std::string::npos) << teksti;
  };
  kerrotaan(Nykyarvokerroin(20, 0.05), "0.00", "Nykyarvokerroin on ", ", joten");
  kerrotaan(Laskelma().Nettonykyarvo(), "### ##0", "= ", " €");
  kerrotaan(*Laskelma().DiskontattuTakaisinmaksuaika(), "0.0", "takaisinmaksuaika on ", " vuotta");
  kerrotaan(*Laskelma().SisainenKorko() * 100, "0.0", "sisäinen korko on ", " %");
  kerrotaan(*Laskelma().SaastetynEnergianHinta(), "0.00", "= ", " €/MWh");
}

}  // namespace
