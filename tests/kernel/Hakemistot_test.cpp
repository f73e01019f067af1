// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Hakemistot.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <system_error>

#include "kernel/Sha256.h"
#include "tests/kernel/Koehakemisto.h"

namespace fs = std::filesystem;

namespace {

TEST(Sha256, AgreesWithTheStandardsExamples) {
  EXPECT_EQ(Sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
  EXPECT_EQ(Sha256(std::string(1000000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

class AppPathTesti : public testing::Test {
 protected:
  AppPathTesti() { AsetaAppPath(""); }
  ~AppPathTesti() override { AsetaAppPath(""); }
  Koehakemisto koti_;
};

TEST_F(AppPathTesti, WithoutFilesOfItsOwnItIsTheUsersDataFolder) {
  const Ymparistomuuttuja koti("LUMIVIRTA_KOTI", std::nullopt);
  const Ymparistomuuttuja data("XDG_DATA_HOME", (koti_ / "data").string());
  EXPECT_EQ(AppPath(), (koti_ / "data/lumivirta/").string());
}

TEST_F(AppPathTesti, ARelativeXdgFolderWontDo) {
  const Ymparistomuuttuja koti("HOME", koti_.Polku().string());
  const Ymparistomuuttuja asetukset("XDG_CONFIG_HOME", "asetukset");
  EXPECT_EQ(AsetusHakemisto(), koti_ / ".config/lumivirta");
}

/// Installed files and their list, as a package puts them.
class SiemennysTesti : public testing::Test {
 protected:
  void Toimita(const std::map<std::string, std::string>& tiedostot) {
    fs::remove_all(lahde_);
    std::string luettelo;
    for (const auto& [nimi, sisalto] : tiedostot) {
      KirjoitaTiedosto(lahde_ / nimi, sisalto);
      luettelo += Sha256(sisalto) + "  " + nimi + "\n";
    }
    KirjoitaTiedosto(lahde_ / "tehdastiedot.txt", luettelo);
  }
  Siemennys Siemenna() const { return SiemennaTiedostot(lahde_, kohde_); }
  std::string Kayttajan(const std::string& nimi) const { return LueTiedosto(kohde_ / nimi); }

  Koehakemisto juuri_;
  fs::path lahde_ = juuri_ / "asennettu";
  fs::path kohde_ = juuri_ / "oma/lumivirta";
};

TEST_F(SiemennysTesti, AnUpdateReplacesOnlyUntouchedFiles) {
  Toimita({{"a.txt", "a1"},
           {"b.txt", "b1"},
           {"KayttajanPolttoainekanta.mdb", "k1"},
           {"Rakennekirjasto/Tietokanta.mdb", "r1"}});
  EXPECT_EQ(Siemenna().kopioituja, 4);
  const Siemennys toka = Siemenna();
  EXPECT_EQ(toka.kopioituja + toka.paivitettyja + toka.sailytettyja, 0);
  KirjoitaTiedosto(kohde_ / "b.txt", "minun b");
  Toimita({{"a.txt", "a2"},
           {"b.txt", "b2"},
           {"c.txt", "c2"},
           {"KayttajanPolttoainekanta.mdb", "k2"},
           {"Rakennekirjasto/Tietokanta.mdb", "r2"}});
  const Siemennys tulos = Siemenna();
  EXPECT_EQ(tulos.kopioituja, 1);
  EXPECT_EQ(tulos.paivitettyja, 1);
  EXPECT_EQ(tulos.sailytettyja, 1);
  EXPECT_EQ(Kayttajan("a.txt"), "a2");
  EXPECT_EQ(Kayttajan("b.txt"), "minun b");
  EXPECT_EQ(Kayttajan("c.txt"), "c2");
  EXPECT_EQ(Kayttajan("KayttajanPolttoainekanta.mdb"), "k1");
  EXPECT_EQ(Kayttajan("Rakennekirjasto/Tietokanta.mdb"), "r1");

  Toimita({{"a.txt", "a3"}, {"b.txt", "b3"}});  // the change of b is still known at the next upgrade
  Siemenna();
  EXPECT_EQ(Kayttajan("a.txt"), "a3");
  EXPECT_EQ(Kayttajan("b.txt"), "minun b");
}

TEST_F(SiemennysTesti, ARemovedFileComesBackWithoutAnUpdateToo) {
  Toimita({{"a.txt", "a1"}, {"b.txt", "b1"}});
  Siemenna();
  fs::remove(kohde_ / "b.txt");
  EXPECT_EQ(Siemenna().kopioituja, 1);
  EXPECT_EQ(Kayttajan("b.txt"), "b1");
}

TEST_F(SiemennysTesti, AnInterruptedUpdateGoesOnTheNextTime) {
  Toimita({{"a.txt", "a1"}, {"b.txt", "b1"}});
  Siemenna();
  Toimita({{"a.txt", "a2"}, {"b.txt", "b2"}});
  fs::remove(lahde_ / "b.txt");  // as if the disk failed after the first file
  EXPECT_NE(Siemenna().virhe.find("b.txt: tiedostoa tai kansiota ei ole"), std::string::npos);
  EXPECT_EQ(Kayttajan("b.txt"), "b1");
  KirjoitaTiedosto(lahde_ / "b.txt", "b2");
  EXPECT_EQ(Siemenna().virhe, "");
  EXPECT_EQ(Kayttajan("a.txt"), "a2");
  EXPECT_EQ(Kayttajan("b.txt"), "b2");
}

TEST_F(SiemennysTesti, APathOfTheListStaysInTheFolder) {
  Toimita({{"a.txt", "a1"}});
  KirjoitaTiedosto(lahde_ / "tehdastiedot.txt", "00  ../karannut.txt\n00  /tmp/karannut.txt\n");
  EXPECT_EQ(Siemenna().virhe, "");
  EXPECT_FALSE(fs::exists(kohde_.parent_path() / "karannut.txt"));
}

TEST(Lukitus, TheSecondWaitsAndGivesUp) {
  const Koehakemisto koti;
  const std::string tiedosto = koti / "lukko";
  {
    const Lukitus eka(tiedosto);
    EXPECT_THROW(Lukitus(tiedosto, std::chrono::milliseconds(20)), std::runtime_error);
  }
  EXPECT_NO_THROW(Lukitus(tiedosto, std::chrono::milliseconds(20)));
}

TEST(KirjoitaTiedosto, FailureLeavesTheFormerAndNoLitter) {
  const Koehakemisto koti;
  fs::create_directories(koti / "kansio/sisalla");
  EXPECT_THROW(KirjoitaTiedosto(koti / "kansio", "uusi"), std::system_error);
  EXPECT_TRUE(fs::exists(koti / "kansio/sisalla"));
  EXPECT_EQ(std::distance(fs::directory_iterator(koti.Polku()), {}), 1);
}

TEST(KirjoitaTiedosto, KeepsTheLinkAndTheMode) {
  const Koehakemisto koti;
  KirjoitaTiedosto(koti / "oikea/tiedosto.ini", "1");
  fs::permissions(koti / "oikea/tiedosto.ini", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("oikea/tiedosto.ini", koti / "linkki.ini");
  KirjoitaTiedosto(koti / "linkki.ini", "2");
  EXPECT_TRUE(fs::is_symlink(koti / "linkki.ini"));
  EXPECT_EQ(LueTiedosto(koti / "oikea/tiedosto.ini"), "2");
  EXPECT_EQ(fs::status(koti / "oikea/tiedosto.ini").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(LyhennaPolku, CountsCharactersAndCutsAtASlash) {
  EXPECT_EQ(LyhennaPolku("/koti/matti/kohteet/a.lvt", 19), "/ko.../a.lvt");
  EXPECT_EQ(LyhennaPolku("/koti/matti/kohteet/a.lvt", 20), "/ko.../kohteet/a.lvt");
  EXPECT_EQ(LyhennaPolku("/Työpöytä/Åäö.lvt", 17), "/Työpöytä/Åäö.lvt") << "17 characters in 23 bytes";
  EXPECT_EQ(LyhennaPolku("/Työpöytä/Åäö.lvt", 16), "/Ty.../Åäö.lvt");
  EXPECT_EQ(LyhennaPolku("ääkköset-ilman-erotinta.lvt", 14), "ääk...inta.lvt") << "no separator in the tail";
  EXPECT_EQ(LyhennaPolku("abcdefghij", 4), "abc...");
}

}  // namespace
