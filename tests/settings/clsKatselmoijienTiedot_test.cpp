// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsKatselmoijienTiedot.h"

#include <gtest/gtest.h>

#include "tests/kernel/Koehakemisto.h"

TEST(clsKatselmoijienTiedot, UusiKohdeSaaKayttajanOmatYhteystiedot) {
  const Koehakemisto koti;
  const Ymparistomuuttuja config("XDG_CONFIG_HOME", (koti / "config").string());
  TallennaAsetus(Avain::LVI0, "LVI-insinööri");
  TallennaAsetus(Avain::LVI5, "lvi@esimerkki.fi");
  TallennaAsetus(Avain::Sah1, "Aino Åberg");
  clsKatselmoijienTiedot tiedot;
  tiedot.SahkoKatselmoija.Faksi = "vanha";
  tiedot.HaeOletukset();
  EXPECT_EQ(tiedot.LVIKatselmoija.Tehtavanimike, "LVI-insinööri");
  EXPECT_EQ(tiedot.LVIKatselmoija.Sahkoposti, "lvi@esimerkki.fi");
  EXPECT_EQ(tiedot.SahkoKatselmoija.Nimi, "Aino Åberg");
  EXPECT_EQ(tiedot.SahkoKatselmoija.Faksi, "");
}
