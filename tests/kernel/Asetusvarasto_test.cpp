// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Asetusvarasto.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include "kernel/Hakemistot.h"
#include "kernel/Virhe.h"
#include "tests/kernel/Koehakemisto.h"

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace {

class Asetusvarasto : public testing::Test {
 protected:
  Asetusvarasto() {
    AsetaVioittumisilmoitus([this](const std::string& nimi) { siirretyt_.push_back(nimi); });
  }
  ~Asetusvarasto() override { AsetaVioittumisilmoitus(nullptr); }
  std::string Sisalto() const { return LueTiedosto(tiedosto_); }
  void Kirjoita(std::string_view sisalto) const { KirjoitaTiedosto(tiedosto_, sisalto); }

  Koehakemisto koti_;
  Ymparistomuuttuja asetukset_{"XDG_CONFIG_HOME", (koti_ / "config").string()};
  fs::path tiedosto_ = AsetusHakemisto() / "asetukset.ini";
  std::vector<std::string> siirretyt_;
};

TEST_F(Asetusvarasto, AValueStaysToTheLetter) {
  for (std::string_view arvo : {"", "22000000", "  alussa ja lopussa  ", "a=b=c", "[osio]", "; ei kommentti",
                                "Öljylämmitys Åbo €", "rivi 1\nrivi 2\r\n", "C:\\nimi\\", "\\\\n", "\"lainaus\""}) {
    TallennaAsetus("Osio", "Avain", arvo);
    EXPECT_EQ(HaeAsetus("Osio", "Avain", "oletus"), arvo);
  }
}

TEST_F(Asetusvarasto, SectionsAndKeysIgnoreLetterCase) {
  TallennaAsetus("Asetukset_kayttaja", "NäytaTervehdys", "1");
  TallennaAsetus("ASETUKSET_KAYTTAJA", "NÄYTATERVEHDYS", "0");
  EXPECT_EQ(HaeAsetus("asetukset_Kayttaja", "näytatervehdys", ""), "0");
  EXPECT_EQ(Sisalto(), "[Asetukset_kayttaja]\nNÄYTATERVEHDYS=0\n");
  EXPECT_EQ(HaeAsetus("Muu", "NäytaTervehdys", "ei"), "ei");
}

TEST_F(Asetusvarasto, AFileEditedByHandStaysAroundAChange) {
  Kirjoita("\uFEFF; oma muistiinpano\r\n\r\n[Settings]\r\nMainLeft = 15\r\nTuntematon=x\r\n\r\n[Toinen]\r\nA=1");
  EXPECT_EQ(HaeAsetus("Settings", "MainLeft", ""), " 15");
  EXPECT_EQ(HaeAsetus("Settings", "A", "ei"), "ei");
  TallennaAsetus("Settings", "MainTop", "20");
  TallennaAsetus("Toinen", "a", "2");
  EXPECT_EQ(Sisalto(), "; oma muistiinpano\n\n[Settings]\nMainLeft = 15\nTuntematon=x\nMainTop=20\n\n[Toinen]\na=2\n");
}

TEST_F(Asetusvarasto, ADamagedFileIsPutAsideAndTold) {
  const std::string vioittunut = "[Settings]\nMainLeft=1\n"s + "\0\0\0PK\x03"s;
  Kirjoita(vioittunut);
  EXPECT_EQ(HaeAsetus("Settings", "MainLeft", "1000"), "1000");
  ASSERT_EQ(siirretyt_.size(), 1u);
  EXPECT_EQ(LueTiedosto(siirretyt_[0]), vioittunut);

  Kirjoita("<html>\n");
  TallennaAsetus("Settings", "MainLeft", "2");
  ASSERT_EQ(siirretyt_.size(), 2u);
  EXPECT_NE(siirretyt_[0], siirretyt_[1]);
  EXPECT_EQ(HaeAsetus("Settings", "MainLeft", ""), "2");
}

TEST_F(Asetusvarasto, DamageIsToldLaterToo) {
  AsetaVioittumisilmoitus(nullptr);
  Kirjoita("roskaa\n");
  HaeAsetus("Settings", "MainLeft", "");
  AsetaVioittumisilmoitus([this](const std::string& nimi) { siirretyt_.push_back(nimi); });
  EXPECT_EQ(siirretyt_.size(), 1u);
}

TEST_F(Asetusvarasto, AnUnfitPlaceGivesDefaultsAndSavingRaises) {
  fs::create_directories(tiedosto_);  // a directory in the file's place
  EXPECT_EQ(HaeAsetus("Settings", "MainLeft", "1000"), "1000");
  EXPECT_THROW(TallennaAsetus("Settings", "MainLeft", "1"), Virhe);
  EXPECT_TRUE(fs::is_directory(tiedosto_));
}

TEST_F(Asetusvarasto, TwoProgramsDontUndoEachOthersChanges) {
  constexpr int kAvaimia = 40;
  const auto kirjoita = [](const std::string& etuliite) {
    for (int i = 0; i < kAvaimia; ++i) TallennaAsetus("Osio", etuliite + std::to_string(i), "x");
  };
  const pid_t lapsi = fork();
  if (lapsi == 0) {
    kirjoita("lapsi");
    _exit(0);
  }
  kirjoita("vanhempi");
  int tila = 1;
  waitpid(lapsi, &tila, 0);
  EXPECT_EQ(tila, 0);
  for (int i = 0; i < kAvaimia; ++i) {
    EXPECT_EQ(HaeAsetus("Osio", "lapsi" + std::to_string(i), ""), "x");
    EXPECT_EQ(HaeAsetus("Osio", "vanhempi" + std::to_string(i), ""), "x");
  }
}

}  // namespace
