// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Olio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "tests/tuki/Koepuu.h"

using testing::ElementsAre;
using testing::MatchesRegex;

TEST(Tunniste, IsTheClassNameAnd32HexDigits) {
  const std::string teksti = koe::Tila().InstanssiId.Teksti();
  EXPECT_THAT(teksti, MatchesRegex("KoeTila [0-9A-F]+"));
  EXPECT_EQ(teksti.size(), std::string("KoeTila ").size() + 32);
  EXPECT_EQ(Tunniste(teksti).Teksti(), teksti);
  std::set<std::string> eri;
  for (int i = 0; i < 2000; ++i) eri.insert(UusiInstanssiId("KoeTila"));
  EXPECT_EQ(eri.size(), 2000u);
}

TEST(Tunniste, LetterCaseDoesntTellApartNorChangesTheForm) {
  const Tunniste guid("clsTila 0A1B2C3D4E5F60718293A4B5C6D7E8F9");
  EXPECT_EQ(guid, Tunniste("CLSTILA 0a1b2c3d4e5f60718293a4b5c6d7e8f9"));
  EXPECT_NE(guid, Tunniste("clsTila 0A1B2C3D4E5F60718293A4B5C6D7E8F8"));
  EXPECT_EQ(Tunniste("sKeySähkö"), Tunniste("SKEYSÄHKÖ"));
  EXPECT_EQ(std::hash<Tunniste>{}("sKeySähkö"), std::hash<Tunniste>{}("SKEYSÄHKÖ"));
  for (const char* teksti : {"clsTila 00000000", "clsTila 0A1B2C3D4E5F60718293A4B5C6D7E8FG", " ", "x",
                             "clsTila 00000000000000000000000000000000"})
    EXPECT_EQ(Tunniste(teksti).Teksti(), teksti);
  EXPECT_TRUE(Tunniste("").Tyhja());
  EXPECT_EQ(Tunniste::Lue("clsTila 0A1B2C3D4E5F60718293A4B5C6D7E8F9", Sanaksi("muu")), guid);
}

TEST(Jasentaulu, AValueSetByNameIsConvertedToTheMembersKind) {
  koe::Rakennus r;
  AsetaJasen(r, "kaksin", std::string("21,5"));
  AsetaJasen(r, "Lyhyt", 2.5);
  AsetaJasen(r, "Tosi", std::int32_t{7});
  AsetaJasen(r, "Aika", std::string("23:59"));
  AsetaJasen(r, "KohteenNimi", 0.1);
  EXPECT_EQ(r.Kaksin, 21.5);
  EXPECT_EQ(r.Lyhyt, 2);  // a half goes to the even one
  EXPECT_TRUE(r.Tosi);
  EXPECT_EQ(r.Aika.minuutit, 1439);
  EXPECT_EQ(r.KohteenNimi, "0.1");
  EXPECT_EQ(std::get<std::int16_t>(HaeJasen(r, "lyhyt")), 2);
  EXPECT_EQ(std::get<Olio*>(HaeJasen(r, "Tilat")), &r.TilatKokoelma);
}

TEST(Jasentaulu, AnUnfitValueLeavesTheMemberAsItWas) {
  koe::Rakennus r;
  r.Lyhyt = 5;
  EXPECT_THROW(AsetaJasen(r, "Lyhyt", 40000.0), TuntematonJasen);
  EXPECT_THROW(AsetaJasen(r, "Lyhyt", std::string("viisi")), TuntematonJasen);
  EXPECT_THROW(AsetaJasen(r, "Tilat", 1.0), TuntematonJasen);
  EXPECT_THROW(AsetaJasen(r, "EiOle", 1.0), TuntematonJasen);
  EXPECT_THROW(HaeJasen(r, "EiOle"), TuntematonJasen);
  EXPECT_THROW(AsetaJasen(r, "InstanssiId", std::string("KoeRakennus 1")), TuntematonJasen);
  EXPECT_THROW(AsetaJasen(r.TilatKokoelma.Add("sKeyA"), "sKey", std::string("sKeyB")), TuntematonJasen);
  EXPECT_EQ(r.Lyhyt, 5);
}

TEST(Kopiointi, ACopyIsApartFromItsSourceAndKeepsIdentities) {
  koe::Hakemisto hakemisto;
  koe::Rakennus r;
  koe::Tayta(r);
  const auto kopio = r.Kopioi();
  EXPECT_THAT(koe::Erot(*kopio, r, hakemisto.Malli()), ElementsAre());
  EXPECT_EQ(kopio->TilatKokoelma.Item(2).sKey, r.TilatKokoelma.Item(2).sKey);
  EXPECT_EQ(kopio->TilatKokoelma.Item(2).InstanssiId, r.TilatKokoelma.Item(2).InstanssiId);
  kopio->TilatKokoelma.Item(1).Seinat.Item(3).Kerrokset->Kuvaus = "muu";
  EXPECT_THAT(koe::Erot(*kopio, r, hakemisto.Malli()), ElementsAre("KoeRatkaisu.Kuvaus"));
}

TEST(Kopiointi, ObjectsOfTheTargetAreReusedByKey) {
  koe::Rakennus r, kohde;
  koe::Tayta(r);
  r.Kopioi(kohde);
  koe::Tila* toinen = &kohde.TilatKokoelma.Item(2);
  const Tunniste avain = toinen->sKey;
  r.TilatKokoelma.Remove(1);
  r.TilatKokoelma.Add("sKeyUusi");
  r.TilatKokoelma.Item(avain).TilanNimi = "muutettu";
  r.Kopioi(kohde);
  EXPECT_EQ(&kohde.TilatKokoelma.Item(1), toinen);
  EXPECT_EQ(toinen->TilanNimi, "muutettu");
  EXPECT_EQ(kohde.TilatKokoelma.Item(5).sKey, "sKeyUusi");
  EXPECT_EQ(kohde.TilatKokoelma.Count(), 5);
}
