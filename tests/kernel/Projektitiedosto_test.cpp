// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Projektitiedosto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <set>

#include "kernel/Kirjoitussuoja.h"
#include "tests/tuki/Koepuu.h"

namespace fs = std::filesystem;
using koe::Arvot;
using koe::Erot;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class Projektitiedosto : public testing::Test {
 protected:
  Tallennusraportti Tallenna(Olio& puu, const Tallennustapa& tapa = {}) {
    return TallennaProjekti(puu, hakemisto.Projekti(), hakemisto.Malli(), tapa);
  }
  void Tallenna(int tiloja = 5) {
    koe::Tayta(puu, tiloja);
    Tallenna(puu);
  }
  /// Changes the saved file behind the program's back.
  void Muuta(const std::string& sql) { Tietokanta(hakemisto.Projekti(), Tietokanta::Tapa::Kirjoitus).Aja(sql); }
  int Hae() {
    HaeProjekti(luettu, hakemisto.Projekti(), raportti);
    return raportti.vaurioita;
  }
  std::vector<std::string> Erot() { return koe::Erot(luettu, puu, hakemisto.Malli()); }
  std::vector<std::string> Sarake(const std::string& taulu, const std::string& sarake) {
    return Arvot(hakemisto.Projekti(), taulu, sarake);
  }

  koe::Hakemisto hakemisto;
  koe::Rakennus puu, luettu;
  Latausraportti raportti;
};

Projektivirhe::Syy VirheenSyy(const std::function<void()>& tehtava) {
  try {
    tehtava();
  } catch (const Projektivirhe& virhe) {
    return virhe.OmaSyy();
  }
  throw std::logic_error("virhettä ei tullut");
}

}  // namespace

TEST_F(Projektitiedosto, ATreeReadIsTheOneSaved) {
  Tallenna(30);
  EXPECT_EQ(Hae(), 0) << testing::PrintToString(raportti.esimerkit);
  EXPECT_THAT(Erot(), IsEmpty());
  EXPECT_EQ(luettu.InstanssiId, puu.InstanssiId);
  EXPECT_EQ(luettu.LiittyyTilaansKey, puu.LiittyyTilaansKey);
  EXPECT_EQ(luettu.Aika, puu.Aika);
  ASSERT_EQ(luettu.TilatKokoelma.Count(), 30);
  for (int i = 1; i <= 30; ++i) {
    const koe::Tila &a = puu.TilatKokoelma.Item(i), &b = luettu.TilatKokoelma.Item(i);
    EXPECT_EQ(a.sKey, b.sKey);
    EXPECT_EQ(a.Seinat.Item(3).Kerrokset->Pinta.InstanssiId, b.Seinat.Item(3).Kerrokset->Pinta.InstanssiId);
    EXPECT_FALSE(b.Seinat.Item(1).Kerrokset);
  }
  EXPECT_EQ(luettu.Kuluttajat.Lista.Item("skeyVESI").Parent, "sKeyKaikki");
  EXPECT_EQ(luettu.Kuluttajat.Count(), 2);
}

TEST_F(Projektitiedosto, ANewSaveKeepsIdentitiesAndRenewsRowKeys) {
  Tallenna();
  const auto tunnisteet = Sarake("KoeTila", "InstanssiId"), avaimet = Sarake("KoeTila", "ObjID");
  Tallenna(puu);
  EXPECT_EQ(Sarake("KoeTila", "InstanssiId"), tunnisteet);
  EXPECT_THAT(Sarake("KoeTila", "ObjID"), Not(Contains(avaimet[0])));
  const auto uudet = Sarake("KoeTila", "ObjID");
  EXPECT_EQ(std::set(uudet.begin(), uudet.end()).size(), 5u);
}

TEST_F(Projektitiedosto, RowsHangOnTheirParents) {
  Tallenna(2);
  EXPECT_THAT(Sarake("KoeRakennus", "ParentID || '/' || MyRealNameInParentObj || '/' || OrderID"),
              ElementsAre("Root/Laskentakohde/1"));
  EXPECT_THAT(Sarake("KoeRakennus", "Tilat || Tosi || Aika"), ElementsAre("IsObjectGet-10.260416666666667"));
  const std::string kokoelma = Sarake("KoeTilat", "ObjID").at(0);
  EXPECT_THAT(Sarake("KoeTila", "ParentID"), ElementsAre(kokoelma, kokoelma));
  EXPECT_THAT(Sarake("KoeTila", "MyRealNameInParentObj || OrderID"), ElementsAre("Tilat1", "Tilat2"));
  EXPECT_THAT(Sarake("KoeVarjo", "MyRealNameInParentObj"), ElementsAre("Sivu", "Pinta", "Yla", "Sivu", "Pinta", "Yla"));
  EXPECT_THAT(Sarake("KoeRakenne", "Kerrokset"), Contains("Empty").Times(4));
}

TEST_F(Projektitiedosto, AnEmptyCollectionIsOneRowAndAnEmptyTextTheWordEmpty) {
  Tallenna(puu);
  EXPECT_EQ(Sarake("KoeTilat", "ObjID").size(), 1u);
  EXPECT_THAT(Sarake("KoeTila", "ObjID"), IsEmpty());
  EXPECT_THAT(Sarake("KoeRakennus", "KohteenNimi"), ElementsAre("Empty"));
  luettu.KohteenNimi = "ennen";
  EXPECT_EQ(Hae(), 0);
  EXPECT_EQ(luettu.KohteenNimi, "");
}

TEST_F(Projektitiedosto, AUsersTextIsNoMark) {
  for (const char* teksti : {"Empty", "IsObjectGet", "IsObjectMethod", "IsObjectGetReference"}) {
    puu.KohteenNimi = teksti;
    Tallenna(puu);
    EXPECT_EQ(Hae(), 0);
    EXPECT_EQ(luettu.KohteenNimi, std::string(teksti) + " ");
  }
}

TEST_F(Projektitiedosto, AReferenceStaysOutOfTheFileAndAnOwnedOneIsSaved) {
  Tallenna(1);
  EXPECT_THAT(Sarake("KoeToimenpide", "Ennen"), ElementsAre("IsObjectGetReference"));
  EXPECT_EQ(Hae(), 0);
  EXPECT_FALSE(luettu.Saasto.Oma);
  puu.Saasto.Oma.Luo().TilanNimi = "kelluva";
  puu.Saasto.Oma->sKey = "sKeyKelluva";
  Tallenna(puu);
  EXPECT_THAT(Sarake("KoeToimenpide", "Ennen"), ElementsAre("IsObjectGet"));
  EXPECT_EQ(Hae(), 0);
  ASSERT_TRUE(luettu.Saasto.Oma);
  EXPECT_EQ(luettu.Saasto.Oma->TilanNimi, "kelluva");
  EXPECT_EQ(luettu.Saasto.Oma->sKey, "sKeyKelluva");
}

TEST_F(Projektitiedosto, LongTextAndEncodingStay) {
  puu.KohteenNimi.assign(1'000'000, 'x');
  puu.KohteenNimi += "ÅÄÖ€😀\t\n'\";--";
  Tallenna(puu);
  EXPECT_EQ(Hae(), 0);
  EXPECT_EQ(luettu.KohteenNimi, puu.KohteenNimi);
}

TEST_F(Projektitiedosto, OneWithoutIdentityGetsTextAndIsTold) {
  puu.TilatKokoelma.InstanssiId = {};
  EXPECT_THAT(Tallenna(puu).ilmanTunnistetta, ElementsAre("KoeTilat"));
  EXPECT_THAT(Sarake("KoeTilat", "InstanssiId"), ElementsAre("InstanssiId puuttuu!!"));
  EXPECT_EQ(puu.TilatKokoelma.InstanssiId, "InstanssiId puuttuu!!");
}

TEST_F(Projektitiedosto, ANumberInATextColumnIsTheShortestDecimal) {
  koe::TeeMalli(hakemisto.Malli(), "ALTER TABLE KoeRyhma RENAME COLUMN Teho TO T; ALTER TABLE KoeRyhma ADD Teho TEXT");
  koe::Tayta(puu);
  puu.Kuluttajat.Item(1).Teho = 0.1;
  Tallenna(puu);
  EXPECT_THAT(Sarake("KoeRyhma", "Teho"), ElementsAre("0.1", "2.5"));
  EXPECT_EQ(Hae(), 0);
  EXPECT_EQ(luettu.Kuluttajat.Item(1).Teho, 0.1);
}

TEST_F(Projektitiedosto, AValueThatCantBeReadBackIsNotSaved) {
  Tallenna();
  puu.TilatKokoelma.Item(3).Lampotila = NAN;
  EXPECT_EQ(VirheenSyy([&] { Tallenna(puu); }), Projektivirhe::Syy::Arvo);
  try {
    Tallenna(puu);
  } catch (const Projektivirhe& virhe) {
    EXPECT_THAT(virhe.what(), HasSubstr("KoeTila.Lampotila"));
  }
  EXPECT_EQ(Hae(), 0);
  EXPECT_EQ(luettu.TilatKokoelma.Count(), 5);
}

TEST_F(Projektitiedosto, OrderOfRowsAndColumnsDoesntMatter) {
  Tallenna(20);
  for (const Luokka* luokka : koe::kLuokat) {
    const std::string nimi(luokka->Nimi());
    std::string sarakkeet;
    for (const Jasen& jasen : luokka->Jasenet()) sarakkeet = std::string(jasen.nimi) + ", " + sarakkeet;
    Muuta("CREATE TABLE uusi AS SELECT OrderID, " + sarakkeet + "MyRealNameInParentObj, lower(ParentID) AS ParentID, " +
          "upper(ObjID) AS ObjID FROM " + nimi + " ORDER BY random(); DROP TABLE " + nimi + "; CREATE TABLE " + nimi +
          koe::Sarakkeet(*luokka) + "; INSERT INTO " + nimi + "(OrderID, " + sarakkeet +
          "MyRealNameInParentObj, ParentID, ObjID) SELECT * FROM uusi; DROP TABLE uusi");
  }
  EXPECT_EQ(Hae(), 0) << testing::PrintToString(raportti.esimerkit);
  EXPECT_THAT(Erot(), IsEmpty());
  ASSERT_EQ(luettu.TilatKokoelma.Count(), 20);
  for (int i = 1; i <= 20; ++i) EXPECT_EQ(luettu.TilatKokoelma.Item(i).sKey, puu.TilatKokoelma.Item(i).sKey);
}

TEST_F(Projektitiedosto, AnOlderAndANewerFileLoadSilently) {
  Tallenna();
  Muuta(
      "ALTER TABLE KoeTila DROP COLUMN Lampotila; ALTER TABLE KoeTila ADD Tuleva TEXT; DROP TABLE KoeListarivi;"
      "ALTER TABLE KoeRakennus ADD Tulevat TEXT; UPDATE KoeRakennus SET Tulevat='IsObjectGet';"
      "INSERT INTO KoeVarjo SELECT ObjID||'x', 'tuntematon', 'Tulevat', 1, InstanssiId, 5 FROM KoeVarjo LIMIT 1");
  EXPECT_EQ(Hae(), 0) << testing::PrintToString(raportti.esimerkit);
  EXPECT_EQ(luettu.TilatKokoelma.Item(5).Lampotila, 21);
  EXPECT_EQ(luettu.TilatKokoelma.Item(5).TilanNimi, "Tila 4");
  EXPECT_EQ(luettu.Kuluttajat.Lista.Count(), 0);
  EXPECT_THAT(raportti.tuntemattomat, testing::UnorderedElementsAre("KoeTila.Tuleva", "KoeRakennus.Tulevat"));
}

TEST_F(Projektitiedosto, ATemplateWithoutAMemberLosesNothing) {
  Tallenna();
  koe::TeeMalli(hakemisto.Malli(), "ALTER TABLE KoeTila DROP COLUMN Lampotila");
  try {
    Tallenna(puu);
    ADD_FAILURE() << "Lampotila was lost";
  } catch (const Projektivirhe& virhe) {
    EXPECT_EQ(virhe.OmaSyy(), Projektivirhe::Syy::Malli);
    EXPECT_THAT(virhe.what(), HasSubstr("KoeTila.Lampotila"));
  }
  koe::TeeMalli(hakemisto.Malli(), "DROP TABLE KoeVarjo");
  EXPECT_EQ(VirheenSyy([&] { Tallenna(puu); }), Projektivirhe::Syy::Malli);
  KirjoitaTiedosto(hakemisto.Malli(), std::string(5000, 'x'));
  EXPECT_EQ(VirheenSyy([&] { Tallenna(puu); }), Projektivirhe::Syy::Malli);
  EXPECT_EQ(Hae(), 0);
  EXPECT_EQ(luettu.TilatKokoelma.Count(), 5);
}

TEST_F(Projektitiedosto, LoadingReplacesTheItemsOfCollections) {
  Tallenna();
  koe::Tayta(luettu, 9);
  EXPECT_EQ(Hae(), 0);
  EXPECT_EQ(luettu.TilatKokoelma.Count(), 5);
  EXPECT_THAT(Erot(), IsEmpty());
}

struct Vaurio {
  const char* nimi;
  const char* sql;
  int maara;
  int tiloja;
};
class VaurioitunutProjekti : public Projektitiedosto, public testing::WithParamInterface<Vaurio> {};

TEST_P(VaurioitunutProjekti, CountsDamageAndReadsTheRest) {
  Tallenna(5);
  Muuta(GetParam().sql);
  EXPECT_EQ(Hae(), GetParam().maara) << testing::PrintToString(raportti.esimerkit);
  EXPECT_EQ(luettu.TilatKokoelma.Count(), GetParam().tiloja);
  EXPECT_EQ(luettu.Kuluttajat.Count(), 2);
}

INSTANTIATE_TEST_SUITE_P(
    Kaikki, VaurioitunutProjekti,
    testing::Values(
        Vaurio{"TekstiLuvussa", "UPDATE KoeTila SET Lampotila='lämmin' WHERE OrderID=2", 1, 5},
        Vaurio{"LiianSuuri", "UPDATE KoeRakennus SET Lyhyt=70000, Pitka=1e300, Aika=7.5", 3, 5},
        Vaurio{"Tavuja", "UPDATE KoeTila SET Lampotila=x'00FF'", 5, 5},
        Vaurio{"ArvoPuuttuu", "UPDATE KoeTila SET Lampotila=NULL, TilanNimi=NULL WHERE OrderID<3", 4, 5},
        Vaurio{"VaaraMerkki", "UPDATE KoeToimenpide SET Ennen='IsObjectGte'", 1, 5},
        Vaurio{"LapsiriviPuuttuu", "DELETE FROM KoeVarjo WHERE rowid=1", 1, 5},
        // the row of the collection, and the five spaces with all below them that hang on it
        Vaurio{"KokoelmanRiviPuuttuu", "DELETE FROM KoeTilat", 1 + 5 + 10 + 5 + 5 + 15 + 5, 0},
        // its place in the order, and what hung on it: two shades, the walls, three walls, the layers and their shade
        Vaurio{"AlkioPuuttuu", "DELETE FROM KoeTila WHERE OrderID=2", 1 + 2 + 1 + 3 + 1 + 1, 4},
        Vaurio{"RiviKahdesti", "INSERT INTO KoeTilat SELECT * FROM KoeTilat", 1, 5},
        Vaurio{"AvainKahdesti", "UPDATE KoeTila SET sKey='sKeySama'", 4, 5},
        Vaurio{"AvainPuuttuu", "UPDATE KoeTila SET sKey='Empty' WHERE OrderID=1", 1, 5},
        Vaurio{"OmaVanhempansa", "UPDATE KoeRakenteet SET ParentID=ObjID", 5 + 5 + 15 + 5 + 5, 5}),
    [](const auto& tapaus) { return tapaus.param.nimi; });

TEST_F(Projektitiedosto, TheVersionIsReadWithoutOpeningMore) {
  Tietokanta(hakemisto.Projekti(), Tietokanta::Tapa::Uusi)
      .Aja(
          "CREATE TABLE clsRakennus (Major INTEGER, Minor INTEGER, Revision INTEGER);"
          "INSERT INTO clsRakennus VALUES (2, 0, 1)");
  const Tiedostoversio versio = HaeTiedostonVersio(hakemisto.Projekti());
  EXPECT_EQ(versio.Major, 2);
  EXPECT_EQ(versio.Revision, 1);
  Muuta("UPDATE clsRakennus SET Minor='uusi'");
  EXPECT_EQ(VirheenSyy([&] { HaeTiedostonVersio(hakemisto.Projekti()); }), Projektivirhe::Syy::EiProjekti);
  Muuta("DELETE FROM clsRakennus");
  EXPECT_EQ(VirheenSyy([&] { HaeTiedostonVersio(hakemisto.Projekti()); }), Projektivirhe::Syy::EiProjekti);
}

TEST_F(Projektitiedosto, AForeignFileIsNoProject) {
  for (const std::string_view sisalto : {"", "Tämä on tekstiä eikä tietokanta. ", "SQLite format 3"}) {
    KirjoitaTiedosto(hakemisto.Projekti(), sisalto);
    EXPECT_EQ(VirheenSyy([&] { HaeTiedostonVersio(hakemisto.Projekti()); }), Projektivirhe::Syy::EiProjekti);
    EXPECT_EQ(VirheenSyy([&] { Hae(); }), Projektivirhe::Syy::EiProjekti);
    EXPECT_EQ(LueTiedosto(hakemisto.Projekti()), sisalto);
  }
  EXPECT_EQ(VirheenSyy([&] { HaeTiedostonVersio("/ei/ole.lvt"); }), Projektivirhe::Syy::EiProjekti);
}

/// Tables that compute their rows, without end or beyond all memory, and what isn't a file at all.
TEST_F(Projektitiedosto, ComputingTablesAndPipesAreRefusedAtOnce) {
  Tallenna();
  const std::string ehja = LueTiedosto(hakemisto.Projekti());
  for (const char* sql :
       {"ALTER TABLE KoeRakennus RENAME TO x; CREATE VIEW KoeRakennus AS WITH RECURSIVE r(ObjID) AS (SELECT 1 UNION "
        "ALL "
        "SELECT ObjID + 1 FROM r) SELECT ObjID, 'Root' AS ParentID, 1 AS MyRealNameInParentObj, 1 AS OrderID FROM r",
        "CREATE TRIGGER t AFTER UPDATE ON KoeTila BEGIN DELETE FROM KoeTila; END",
        "ALTER TABLE KoeTila ADD Suuri AS (zeroblob(400000000))", "CREATE VIRTUAL TABLE Muu USING fts5(a)"}) {
    KirjoitaTiedosto(hakemisto.Projekti(), ehja);
    Muuta(sql);
    EXPECT_EQ(VirheenSyy([&] { Hae(); }), Projektivirhe::Syy::EiProjekti) << sql;
    EXPECT_EQ(VirheenSyy([&] { HaeTiedostonVersio(hakemisto.Projekti()); }), Projektivirhe::Syy::EiProjekti) << sql;
  }
  fs::remove(hakemisto.Projekti());
  ASSERT_EQ(mkfifo(hakemisto.Projekti().c_str(), 0600), 0);
  EXPECT_EQ(VirheenSyy([&] { Hae(); }), Projektivirhe::Syy::EiProjekti);
  EXPECT_EQ(VirheenSyy([&] { Tallenna(puu); }), Projektivirhe::Syy::Kirjoitus);
}

TEST_F(Projektitiedosto, ADamagedFormerFileIsKeptWhenAsked) {
  Tallenna();
  const std::string vanha = LueTiedosto(hakemisto.Projekti());
  Tallenna(puu, {.sailytaEnnen = true});
  EXPECT_EQ(LueTiedosto(hakemisto.Projekti() + ".ennen"), vanha);
}

TEST_F(Projektitiedosto, AMissingTemplateIsToldAndNothingChanges) {
  Tallenna();
  const std::string vanha = LueTiedosto(hakemisto.Projekti());
  fs::remove(hakemisto.Malli());
  EXPECT_EQ(VirheenSyy([&] { Tallenna(puu); }), Projektivirhe::Syy::MalliPuuttuu);
  EXPECT_EQ(LueTiedosto(hakemisto.Projekti()), vanha);
  EXPECT_FALSE(fs::exists(hakemisto.Varakopio()));
}

TEST_F(Projektitiedosto, ALeftBackupIsKeptNamedByItsTime) {
  KirjoitaTiedosto(hakemisto.Varakopio(), "ainoa ehjä kopio");
  EXPECT_EQ(JaanytVarakopio(), hakemisto.Varakopio());
  for (int i = 1; i <= 7; ++i) {
    KirjoitaTiedosto(hakemisto.Varakopio(), "kopio " + std::to_string(i));
    fs::last_write_time(hakemisto.Varakopio(), fs::file_time_type::clock::now() - std::chrono::hours(100 - i));
    Tallenna(puu);
    EXPECT_EQ(JaanytVarakopio(), "");
  }
  std::set<std::string> sailytetyt;
  for (const auto& tiedosto : fs::directory_iterator(AppPath()))
    if (tiedosto.path().extension() == ".old") sailytetyt.insert(LueTiedosto(tiedosto));
  EXPECT_THAT(sailytetyt, ElementsAre("kopio 3", "kopio 4", "kopio 5", "kopio 6", "kopio 7"));
}

/// The clock has been set back, and two are put aside in one second.
TEST_F(Projektitiedosto, TheOneJustPutAsideIsNeverRemoved) {
  const auto aika = fs::file_time_type::clock::now();
  for (int i = 1; i <= 8; ++i) {
    KirjoitaTiedosto(hakemisto.Varakopio(), std::to_string(i));
    fs::last_write_time(hakemisto.Varakopio(), aika - std::chrono::hours(i / 2));
    const std::string talteen = SailytaAjalla(hakemisto.Varakopio());
    EXPECT_EQ(LueTiedosto(talteen), std::to_string(i));
  }
}

TEST_F(Projektitiedosto, VarmuuskopioOnYhtaYksityinenKuinProjekti) {
  Tallenna();
  chmod(hakemisto.Projekti().c_str(), 0600);
  puu.Kaksin = NAN;
  EXPECT_THROW(Tallenna(puu, {.sailytaEnnen = true}), Projektivirhe);
  for (const std::string& tiedosto : {hakemisto.Projekti(), hakemisto.Varakopio(), hakemisto.Projekti() + ".ennen"})
    EXPECT_EQ(fs::status(tiedosto).permissions(), fs::perms(0600)) << tiedosto;
}

TEST_F(Projektitiedosto, TheNewFileGetsTheOldModeAndALinkStaysALink) {
  Tallenna();
  const fs::path linkki = hakemisto / "linkki.lvt";
  fs::create_symlink(hakemisto.Projekti(), linkki);
  chmod(hakemisto.Projekti().c_str(), 0440);
  puu.KohteenNimi = "muutettu";
  TallennaProjekti(puu, linkki.string(), hakemisto.Malli());
  EXPECT_TRUE(fs::is_symlink(linkki));
  EXPECT_EQ(fs::status(hakemisto.Projekti()).permissions(), fs::perms(0640));
  EXPECT_THAT(Sarake("KoeRakennus", "KohteenNimi"), ElementsAre("muutettu"));
}

TEST_F(Projektitiedosto, WriteProtectionRestoresTheMode) {
  Tallenna();
  chmod(hakemisto.Projekti().c_str(), 0664);
  AsetaKirjoitussuoja(hakemisto.Projekti());
  EXPECT_TRUE(OnKirjoitussuojattu(hakemisto.Projekti()));
  EXPECT_EQ(fs::status(hakemisto.Projekti()).permissions(), fs::perms(0444));
  EXPECT_EQ(Hae(), 0);
  PoistaKirjoitussuoja(hakemisto.Projekti());
  EXPECT_EQ(fs::status(hakemisto.Projekti()).permissions(), fs::perms(0664));
  chmod(hakemisto.Projekti().c_str(), 0444);  // by another hand
  PoistaKirjoitussuoja(hakemisto.Projekti());
  EXPECT_EQ(fs::status(hakemisto.Projekti()).permissions(), fs::perms(0644));
  chmod(hakemisto.Projekti().c_str(), 0664);
  if (const pid_t lapsi = fork(); lapsi == 0) {
    AsetaKirjoitussuoja(hakemisto.Projekti());  // a run that dies
    _exit(0);
  } else {
    waitpid(lapsi, nullptr, 0);
  }
  EXPECT_TRUE(OnKirjoitussuojattu(hakemisto.Projekti()));
  PoistaKirjoitussuoja(hakemisto.Projekti());
  EXPECT_EQ(fs::status(hakemisto.Projekti()).permissions(), fs::perms(0664)) << "needs notes of files (user.*)";
  AsetaKirjoitussuoja("/ei/ole.lvt");
  EXPECT_FALSE(OnKirjoitussuojattu("/ei/ole.lvt"));
}
