// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsEnergianHankinta.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/measures/Asetuskansio.h"

namespace {

using clsVesitariffiTesti = Asetuskansio;

TEST(clsTariffi, UudessaTariffissaOnKuusiNumeroituaMaksua) {
  const clsTariffi tariffi;
  ASSERT_EQ(tariffi.Energiamaksut.Count(), 6);
  EXPECT_EQ(tariffi.Energiamaksut.Item("EnergiaMaksu6").Nimi.substr(0, 2), "6 ");
  EXPECT_EQ(tariffi.EnergiaveroID, 1);
}

TEST_F(clsVesitariffiTesti, VesitariffiJaVertailuAlkavatAsetustenArvonlisaverolla) {
  Asetukset().dblVesiALV = 24;
  for (const bool alvHinnat : {false, true}) {
    Asetukset().KaytaKohtTulostuksissaALVHintoja = alvHinnat;
    const clsVesitariffi tariffi;
    EXPECT_EQ(tariffi.ALV, 24);
    EXPECT_EQ(tariffi.MaksutSisaltavatALVn, alvHinnat);
    EXPECT_EQ(tariffi.Energiamaksut.Item("Maksu1").Kulutusosuus, 100);
    EXPECT_EQ(tariffi.Energiamaksut.Item("Maksu2").Kulutusosuus, 0);
    EXPECT_EQ(clsSahkoTariffienVertailu().KaytaVertailussaALVHintoja, alvHinnat);
  }
}

TEST(clsEnergianHankinta, KopioEiJaaMuotojaEikaResursseja) {
  clsEnergianHankinta hankinta;
  clsEnergiamuoto& muoto = hankinta.Energiamuodot.Add("a");
  muoto.OsuusNettotarpeesta = 60;
  muoto.Resurssit.Add("r").Maara = 0.3;
  EXPECT_EQ(muoto.Resurssit.Maara, "1");
  EXPECT_EQ(muoto.Resurssit.Yksikko, "MJ");
  const auto kopio = hankinta.Kopioi();
  muoto.OsuusNettotarpeesta = 10;
  muoto.Resurssit.Item("r").Maara = 9;
  EXPECT_EQ(kopio->Energiamuodot.Item("a").OsuusNettotarpeesta, 60);
  EXPECT_EQ(kopio->Energiamuodot.Item("a").Resurssit.Item("r").Maara, 0.3);
  EXPECT_EQ(kopio->Energiamuodot.Item("a").InstanssiId, muoto.InstanssiId);
}

}  // namespace
