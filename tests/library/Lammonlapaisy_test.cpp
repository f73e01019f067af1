// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Lammonlapaisy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "tests/tuki/Arpa.h"

namespace {

Kerros Yhtenainen(double paksuus_m, double lambda) { return {.paksuus_m = paksuus_m, .lambda = lambda}; }

Kerros Vastus(double vastus) { return {.vastus = vastus}; }

Kerros Jaettu(double paksuus_m, double lambda, double lambda2, double osuus2) {
  return {.paksuus_m = paksuus_m, .lambda = lambda, .yhtenainen = false, .lambda2 = lambda2, .osuus2 = osuus2};
}

// The Scottish building standards' worked example of the combined method (annex 6.B.2): brick 102 mm, ventilated
// cavity 0.09, plywood 19 mm, mineral wool 140 mm with 9.5 % of timber, plasterboard 25 mm.
// Published: section resistances 3.971 and 1.715.  R' = 1 / (0.905 / 3.971 + 0.095 / 1.715) = 3.530;
// bridged layer 1 / (0.905 / 3.333 + 0.095 / 1.077) = 2.780, R'' = 0.638 + 2.780 = 3.418;  R = 3.474, U = 0.288.
TEST(Lammonlapaisy, ATimberWallAgreesWithThePublishedExample) {
  const Kerros seina[] = {Yhtenainen(0.025, 0.25), Jaettu(0.140, 0.042, 0.13, 0.095), Yhtenainen(0.019, 0.13),
                          Vastus(0.09), Yhtenainen(0.102, 0.77)};
  const auto tulos = LaskeLammonlapaisy(seina, 0.13, 0.04, 21, -26);
  ASSERT_TRUE(tulos.onArvo);
  EXPECT_NEAR(tulos.R_yla, 3.530, 1e-3);
  EXPECT_NEAR(tulos.R_ala, 3.418, 1e-3);
  EXPECT_NEAR(tulos.R, 3.474, 1e-3);
  EXPECT_NEAR(tulos.U, 0.288, 5e-4);
  EXPECT_NEAR(tulos.kerrosvastukset[1], 2.780, 1e-3);
  EXPECT_EQ(LammonlapaisyU(seina, 0.13, 0.04), tulos.U);
}

// Brick 270 mm, lambda 0.60, plaster 10 and 20 mm, lambda 1.0:
// R = 0.13 + 0.01 + 0.45 + 0.02 + 0.04 = 0.65, U = 1.538.
TEST(Lammonlapaisy, AMasonryWallIsTheSumOfResistances) {
  const Kerros seina[] = {Yhtenainen(0.010, 1.0), Yhtenainen(0.270, 0.60), Yhtenainen(0.020, 1.0)};
  const auto tulos = LaskeLammonlapaisy(seina, 0.13, 0.04, 20, -6);
  EXPECT_NEAR(tulos.R, 0.65, 1e-12);
  EXPECT_NEAR(tulos.U, 1.538, 5e-4);
  EXPECT_EQ(tulos.R_yla, tulos.R);
  EXPECT_EQ(tulos.R_ala, tulos.R);

  // 26 degrees over 0.65: 40 degrees for each m²K/W.
  const double odotettu[] = {20 - 5.2, 20 - 5.6, 20 - 23.6, -6 + 1.6};
  ASSERT_EQ(tulos.lampotilat.size(), std::size(odotettu));
  for (std::size_t i = 0; i < std::size(odotettu); ++i) EXPECT_NEAR(tulos.lampotilat[i], odotettu[i], 1e-9) << i;
}

// Two inhomogeneous layers, four sections.  Layer 1: R 4 and 1, 10 % of the latter; layer 2: R 2 and 0.5, 20 %.
// Surfaces 0.2.  R' = 1 / (0.72 / 6.2 + 0.18 / 4.7 + 0.08 / 3.2 + 0.02 / 1.7)
//                   = 1 / (0.116129 + 0.038298 + 0.025 + 0.011765) = 5.2303;
// R'' = 0.2 + 1 / (0.9 / 4 + 0.1 / 1) + 1 / (0.8 / 2 + 0.2 / 0.5) = 0.2 + 3.076923 + 1.25 = 4.526923.
TEST(Lammonlapaisy, TwoInhomogeneousLayersAreFourSections) {
  const Kerros katto[] = {Jaettu(0.2, 0.05, 0.2, 0.1), Jaettu(0.1, 0.05, 0.2, 0.2)};
  const auto tulos = LaskeLammonlapaisy(katto, 0.16, 0.04, 20, 0);
  EXPECT_NEAR(tulos.R_yla, 5.2303, 1e-4);
  EXPECT_NEAR(tulos.R_ala, 4.526923, 1e-6);
  EXPECT_NEAR(tulos.R, (5.2303 + 4.526923) / 2, 1e-4);
  EXPECT_NEAR(tulos.lampotilat.back(), 20 * 0.04 / 4.526923, 1e-6);  // ends at the outer film
}

TEST(Lammonlapaisy, ALayerLeftOutHasNoEffect) {
  const Kerros eriste = Yhtenainen(0.1, 0.04);
  Kerros verhous = Jaettu(0.02, 0.1, 0.2, 0.5);
  verhous.mukana = false;
  const Kerros seina[] = {eriste, verhous, Yhtenainen(0.1, 0), Yhtenainen(-0.1, 1), Vastus(-1)};
  const auto tulos = LaskeLammonlapaisy(seina, 0.13, 0.04, 20, 0);
  EXPECT_NEAR(tulos.R, 2.67, 1e-12);
  EXPECT_EQ(tulos.R_yla, tulos.R);  // the inhomogeneous layer isn't counted
  EXPECT_EQ(tulos.kerrosvastukset, (std::vector<double>{2.5, 0, 0, 0, 0}));
}

TEST(Lammonlapaisy, WithoutResistanceThereIsNoValue) {
  const Kerros mitaton[] = {Yhtenainen(0, 0.04), Jaettu(0.1, 0.04, 0, 0.1)};  // the second one is bridged
  EXPECT_EQ(LammonlapaisyU(mitaton, 0, 0), std::nullopt);
  EXPECT_EQ(LammonlapaisyU({}, -0.13, 0), std::nullopt);
  const auto tulos = LaskeLammonlapaisy(mitaton, 0, 0, 20, 0);
  EXPECT_FALSE(tulos.onArvo);
  EXPECT_EQ(tulos.U, 0);
  EXPECT_TRUE(tulos.lampotilat.empty());
  EXPECT_NEAR(*LammonlapaisyU({}, 0.13, 0.04), 1 / 0.17, 1e-12);  // the surfaces alone are a resistance
}

TEST(Lammonlapaisy, SharesOfZeroAndAHundredAreHomogeneous) {
  for (const auto& [osuus, R] : {std::pair{0.0, 4.0}, {-1.0, 4.0}, {1.0, 1.0}, {7.0, 1.0}}) {
    const Kerros kerros[] = {Jaettu(0.2, 0.05, 0.2, osuus)};
    EXPECT_NEAR(*LammonlapaisyU(kerros, 0.13, 0.04), 1 / (0.17 + R), 1e-12) << osuus;
  }
}

TEST(Lammonlapaisy, AnAirGapBetweenStudsHasFixedResistanceForAirOnly) {
  Kerros vali = Jaettu(0.022, 0, 0.11, 0.25);  // battens 0.2, air 0.18
  vali.vastus = 0.18;
  const Kerros rakenne[] = {vali};
  EXPECT_NEAR(LaskeLammonlapaisy(rakenne, 0, 0, 0, 0).R_ala, 1 / (0.75 / 0.18 + 0.25 / 0.2), 1e-12);
}

/// Random structures of many inhomogeneous layers, more than the sections are spread out for.
TEST(Lammonlapaisy, ResistanceLiesBetweenTheLowerAndUpperLimits) {
  Arpa arpa;
  std::uniform_real_distribution<double> luku(0.01, 1.0);
  for (int kierros = 0; kierros < 60; ++kierros) {
    std::vector<Kerros> rakenne;
    for (int i = 0; i <= kierros % 20; ++i) rakenne.push_back(Jaettu(luku(arpa), luku(arpa), luku(arpa), luku(arpa)));
    const auto tulos = LaskeLammonlapaisy(rakenne, 0.13, 0.04, 20, -20);
    EXPECT_LE(tulos.R_ala, tulos.R) << kierros;
    EXPECT_LE(tulos.R, tulos.R_yla) << kierros;
    EXPECT_GT(tulos.R_yla - tulos.R_ala, 0) << kierros;
    EXPECT_TRUE(std::is_sorted(tulos.lampotilat.rbegin(), tulos.lampotilat.rend())) << kierros;

    rakenne.front().lambda *= 1.1;  // a better conductor
    rakenne.front().lambda2 *= 1.1;
    EXPECT_GT(*LammonlapaisyU(rakenne, 0.13, 0.04), tulos.U) << kierros;
  }
}

}  // namespace
