// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsToteutuneetKulutukset.h"

#include <gtest/gtest.h>

namespace {

class ToteutuneetTesti : public testing::Test {
 protected:
  ToteutuneetTesti() {
    kulutukset_.KulutusTietojenViimVuosi = 2025;
    for (int i = 1; i <= 3; ++i) kulutukset_.Add("Tot " + std::to_string(i)).Lampo = 100 * i;
  }
  clsToteutuneetKulutukset kulutukset_;
};

TEST_F(ToteutuneetTesti, VertailuvuosiOnEnsimmainenMerkittyTaiTyhja) {
  EXPECT_EQ(kulutukset_.VertailuVuodenTiedot().Lampo, 0);
  kulutukset_.Item(3).KaytaVertailuVuotena = true;
  EXPECT_EQ(kulutukset_.VertailuVuodenTiedot().Lampo, 300);
  kulutukset_.Item(2).KaytaVertailuVuotena = true;
  EXPECT_EQ(kulutukset_.VertailuVuodenTiedot().Lampo, 200);
}

TEST_F(ToteutuneetTesti, AYearIsFoundByOrderOrByYear) {
  EXPECT_EQ(kulutukset_.Vuosi(2)->Lampo, 200);
  EXPECT_EQ(kulutukset_.Vuosi(4), nullptr);
  kulutukset_.Item(2).sKey = "Tot 2024";
  ASSERT_NE(kulutukset_.Vuosi(2), nullptr);
  EXPECT_EQ(kulutukset_.Vuosi(2)->Lampo, 200);
}

}  // namespace
