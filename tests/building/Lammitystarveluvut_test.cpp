// SPDX-License-Identifier: GPL-3.0-or-later
// Degree days of measured years beside the normal year's.
#include "building/Lammitystarveluvut.h"

#include "tests/building/Koerakennus.h"

namespace {

constexpr int kHanko = 0, kLahti = 7;

using TarvelukuTesti = RakennusTesti;

TEST_F(TarvelukuTesti, AYearStandsAtTheLevelOfTheNormalYear) {
  const auto lahti = HaeLammitystarveluku(kLahti, 2021);
  ASSERT_TRUE(lahti);
  EXPECT_NE(lahti->lahde.find("Lahden lämmitystarveluvut"), std::string::npos);
  // Kaisaniemi had 2904 in 2020; Helsinki's normal year is Vantaa's, 6 % above the station's own.
  const auto helsinki = HaeLammitystarveluku(kHelsinki, 2020);
  ASSERT_TRUE(helsinki);
  EXPECT_NEAR(helsinki->luku, 2904 * 4366.0 / 4105, 1);
  EXPECT_NE(helsinki->lahde.find("muunnettu normaalivuoden tasolle"), std::string::npos);
  EXPECT_TRUE(HaeLammitystarveluku(kHanko, 2020));
  EXPECT_FALSE(HaeLammitystarveluku(kHelsinki, 1990));
  EXPECT_FALSE(HaeLammitystarveluku(16, 2020));
}

}  // namespace
