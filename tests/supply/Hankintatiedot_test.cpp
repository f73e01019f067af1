// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsVesitariffit.h"
#include "tests/measures/Asetuskansio.h"

namespace {

using clsVesitariffiTesti = Asetuskansio;

TEST_F(clsVesitariffiTesti, WaterTariffAndComparisonBeginWithTheSettingsTax) {
  Asetukset().dblVesiALV = 24;
  for (const bool alvHinnat : {false, true}) {
    Asetukset().KaytaKohtTulostuksissaALVHintoja = alvHinnat;
    const clsVesitariffi tariffi;
    EXPECT_EQ(tariffi.ALV, 24);
    EXPECT_EQ(tariffi.MaksutSisaltavatALVn, alvHinnat);
    EXPECT_EQ(clsSahkoTariffienVertailu().KaytaVertailussaALVHintoja, alvHinnat);
  }
}

}  // namespace
