// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakennekirjasto.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "tests/library/Koekannat.h"

namespace fs = std::filesystem;

namespace {

using RakennekirjastoTesti = Koekannat;

constexpr const char* kAineet =
    "INSERT INTO Asetukset VALUES ('2.5');"
    "INSERT INTO Materiaali (Id, Nimi, Lambda, Tiheys, Ominaislampo) VALUES ('v', 'Villa', 0.04, 30, 1.03),"
    " ('p', 'Puu', 0.12, 500, 1.6);";

constexpr const char* kSeina =
    "INSERT INTO Rakenne (Id, Rakennetyyppi, Nimi, U_arvo, PintavastusSisa, PintavastusUlko, Pistemaiset, Rw)"
    " VALUES ('S1', 'Ulkoseinä', 'Rankaseinä', 0.23, 0.13, 0.04, 2, 45.5);"
    "INSERT INTO Kerros VALUES ('S1', 2, 'v', 200, -1, 0, 'p', 10, NULL), ('S1', 1, 'p', 12, 0, -1, NULL, 0, NULL),"
    " ('S1', 3, 'puuttuu', 22, -1, -1, NULL, 0, 0.18);";

constexpr const char* kIkkuna =
    "INSERT INTO Rakenne (Id, Rakennetyyppi, Nimi, U_arvo, U_arvoAnnettu, OnIkkuna, Aurinkoenergianlapaisy)"
    " VALUES ('I1', 'Ikkuna', 'Kolmilasinen', 1.4, -1, -1, 65);";

std::string VirheenLahde(const std::function<void()>& tee) {
  try {
    tee();
  } catch (const Virhe& virhe) {
    EXPECT_EQ(virhe.Numero(), 9999);
    return virhe.Lahde();
  }
  return "ei virhettä";
}

}  // namespace

TEST_F(RakennekirjastoTesti, SolutionIsReadWithItsLayersFromInsideOut) {
  Rakennetietokanta kanta(TeeKanta("vakio.mdb", std::string(kAineet) + kSeina));
  const auto seina = kanta.Hae("S1");
  ASSERT_TRUE(seina);
  EXPECT_EQ(seina->Pistemaiset, 2);
  EXPECT_EQ(seina->Rw, 45.5F);
  ASSERT_EQ(seina->Kerrokset.Count(), 3);
  const auto& sisin = seina->Kerrokset.Item(1);
  EXPECT_EQ(sisin.Materiaali, (Materiaali{0.12F, 500, 1.6F, "Puu"}));
  EXPECT_FALSE(sisin.UArvoon);
  const auto& ranka = seina->Kerrokset.Item(2);
  EXPECT_FALSE(ranka.Yhtenainen);
  EXPECT_EQ(ranka.Lisamateriaali.Nimi, "Puu");
  EXPECT_EQ(ranka.LisamateriaalinOsuus, 10);
  EXPECT_EQ(ranka.Lammonvastus, 0);
  const auto& rako = seina->Kerrokset.Item(3);  // its material isn't in the database
  EXPECT_EQ(rako.Materiaali, Materiaali{});
  EXPECT_EQ(rako.Lammonvastus, 0.18F);
}

TEST_F(RakennekirjastoTesti, UsersDatabaseComesFirst) {
  const auto omat = TeeKanta("oma.mdb",
                             "INSERT INTO Rakenne (Id, Rakennetyyppi, Nimi) VALUES ('S1', 'Ulkoseinä', 'Oma seinä');"
                             "INSERT INTO Asetukset VALUES ('1');");
  Rakennekirjasto kirjasto(omat, TeeKanta("vakio.mdb", std::string(kAineet) + kSeina + kIkkuna));
  EXPECT_EQ(kirjasto.Hae("S1").value().Nimi, "Oma seinä");
  EXPECT_EQ(kirjasto.Hae("I1").value().VoimassaolevaU_arvo(), double{1.4F});
  EXPECT_TRUE(kirjasto.Hae("I1").value().OnIkkuna);
  EXPECT_FALSE(kirjasto.Hae("' OR 1 --"));
  EXPECT_TRUE(kirjasto.Viat().empty());
}

TEST_F(RakennekirjastoTesti, LookUpsLeaveTheDatabaseFreeForWriting) {
  const auto polku = TeeKanta("oma.mdb", std::string(kAineet) + kSeina);
  Rakennetietokanta kanta(polku);
  ASSERT_TRUE(kanta.Hae("S1"));
  Tietokanta toinen(polku, Tietokanta::Tapa::Kirjoitus);
  toinen.Aja("UPDATE Rakenne SET Nimi = 'Uusi nimi'");
  EXPECT_EQ(kanta.Hae("S1").value().Nimi, "Uusi nimi");
}

TEST_F(RakennekirjastoTesti, MaterialsAreBroughtUpToDateByName) {
  Rakennetietokanta kanta(TeeKanta("vakio.mdb", std::string(kAineet) + kSeina));
  auto seina = kanta.Hae("S1").value();
  EXPECT_FALSE(kanta.PaivitaMateriaalit(seina));
  seina.Kerrokset.Item(2).Materiaali.Lambda = 0.05F;
  seina.Kerrokset.Item(2).Lisamateriaali.Tiheys = 1;
  seina.Kerrokset.Item(3).Materiaali = {0.5F, 100, 1, "Oma aine"};
  EXPECT_TRUE(kanta.PaivitaMateriaalit(seina));
  EXPECT_EQ(seina.Kerrokset.Item(2).Materiaali.Lambda, 0.04F);
  EXPECT_EQ(seina.Kerrokset.Item(3).Materiaali.Lambda, 0.5F);
  EXPECT_FLOAT_EQ(seina.KerrostenMassaYht, 0.012F * 500 + 0.2F * (0.9F * 30 + 0.1F * 500) + 0.022F * 100);
}

TEST_F(RakennekirjastoTesti, FilesThatAreNoStructureDatabaseAreRefused) {
  std::ofstream(Polku("rikki.mdb")) << std::string(5000, 'x');
  std::ofstream(Polku("tyhja.mdb"));
  for (const char* nimi : {"puuttuu.mdb", "rikki.mdb", "tyhja.mdb"})
    EXPECT_EQ(VirheenLahde([&] { Rakennetietokanta kanta(Polku(nimi)); }), "Rakennetietokanta:Rakennetietokanta Method")
        << nimi;
  EXPECT_FALSE(fs::exists(Polku("puuttuu.mdb")));
}

TEST_F(RakennekirjastoTesti, OneDatabaseServesAloneWhenTheOtherCantBeRead) {
  const auto kunnossa = TeeKanta("kunnossa.mdb", std::string(kAineet) + kSeina);
  Rakennekirjasto ilmanOmaa(Polku("puuttuu.mdb"), kunnossa);
  EXPECT_TRUE(ilmanOmaa.Hae("S1"));
  ASSERT_EQ(ilmanOmaa.Viat().size(), 1u);
  EXPECT_EQ(ilmanOmaa.Viat()[0].kirjasto, Kirjasto::Oma);
  EXPECT_TRUE(ilmanOmaa.Viat()[0].kuvaus.starts_with(Polku("puuttuu.mdb")));

  // One that opens but holds a value that can't be read shows its fault at the look-up.
  const auto rikki = TeeKanta("keskelta.mdb", std::string(kAineet) + kSeina + "UPDATE Kerros SET Paksuus = 'x'");
  Rakennekirjasto keskelta(rikki, kunnossa);
  EXPECT_TRUE(keskelta.Viat().empty());
  EXPECT_EQ(keskelta.Hae("S1").value().Kerrokset.Item(1).Paksuus, 12);
  EXPECT_EQ(keskelta.Viat().size(), 1u);
  EXPECT_FALSE(Rakennekirjasto(kunnossa, rikki).Hae("EIOLE"));
}

TEST_F(RakennekirjastoTesti, ValueThatIsNoNumberIsAnErrorAndNotZero) {
  Rakennetietokanta kanta(
      TeeKanta("vakio.mdb", std::string(kAineet) + kSeina + "UPDATE Materiaali SET Lambda = 'hyvä' WHERE Id = 'v'"));
  EXPECT_EQ(VirheenLahde([&] { kanta.Hae("S1"); }), "Rakennetietokanta:Hae Method");
}

/// Every solution that is shipped: the stated figures follow from its layers.
TEST(Vakiokanta, LayersYieldTheStatedFigures) {
  const char* koti = std::getenv("LUMIVIRTA_KOTI");
  const fs::path polku = fs::path(koti ? koti : "") / "Rakennekirjasto/Tietokanta_perus.mdb";
  if (!fs::exists(polku)) GTEST_SKIP() << "no built databases: " << polku;
  const Tietokanta luettelo(polku.string());
  Kysely tunnukset(luettelo, "SELECT Id, Nimi FROM Rakenne");
  Rakennetietokanta kanta(polku.string());
  EXPECT_FALSE(kanta.Versio().empty());
  int kerroksellisia = 0;
  while (tunnukset.Seuraava()) {
    const std::string id(tunnukset.Teksti(0));
    SCOPED_TRACE(id);
    auto ratkaisu = kanta.Hae(id).value();
    EXPECT_TRUE(RakennetyyppiSanasta(ratkaisu.Rakennetyyppi));
    EXPECT_NEAR(ratkaisu.VoimassaolevaU_arvo().value(), ratkaisu.U_arvo, 0.005);
    EXPECT_EQ(ratkaisu.OnIkkuna, ratkaisu.Aurinkoenergianlapaisy > 0);
    EXPECT_FALSE(kanta.PaivitaMateriaalit(ratkaisu));
    if (ratkaisu.U_arvoAnnettu) continue;
    ++kerroksellisia;
    EXPECT_TRUE(ratkaisu.LaskeU_arvo());
    auto laskettu = ratkaisu;
    laskettu.PaivitaKerrossummat();
    EXPECT_NEAR(laskettu.Paksuus, ratkaisu.Paksuus, 0.05);
    EXPECT_NEAR(laskettu.KerrostenMassaYht, ratkaisu.KerrostenMassaYht, 0.1);
  }
  EXPECT_GT(kerroksellisia, 30);
}
