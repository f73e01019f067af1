// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Palautuskopio.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "kernel/Projektitiedosto.h"
#include "tests/tuki/Koepuu.h"

namespace fs = std::filesystem;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Palautus : public testing::Test {
 protected:
  Palautus() {
    koe::Tayta(puu, 2);
    raportti = TallennaProjekti(puu, hakemisto.Projekti());
  }

  /// Another program writes its copy and dies.
  void KuoleKopioineen() {
    const pid_t lapsi = fork();
    if (lapsi == 0) {
      Palautuskopio kopio;
      kopio.Kirjoita(puu, hakemisto.Projekti(), raportti.tunnus);
      _exit(0);
    }
    waitpid(lapsi, nullptr, 0);
  }

  koe::Hakemisto hakemisto;
  koe::Rakennus puu;
  Tallennusraportti raportti;
};

std::vector<fs::path> Kopiot() {
  std::vector<fs::path> kopiot;
  for (const auto& tiedosto : fs::directory_iterator(AppPath()))
    if (tiedosto.path().filename().string().starts_with("~palautus")) kopiot.push_back(tiedosto.path());
  return kopiot;
}

}  // namespace

TEST_F(Palautus, ALiveProgramsCopyIsNotOfferedNorOthersRemoved) {
  Palautuskopio oma, toinen;
  oma.Kirjoita(puu, {}, {});
  toinen.Kirjoita(puu, {}, {});
  EXPECT_NE(oma.Polku(), toinen.Polku());
  EXPECT_THAT(Palautuskopio::OtaJaaneet(), IsEmpty());
  oma.Kirjoita(puu, {}, {});  // the lock passes to the new file
  EXPECT_THAT(Palautuskopio::OtaJaaneet(), IsEmpty());
  oma.Poista();
  EXPECT_THAT(Kopiot(), SizeIs(1));
  EXPECT_TRUE(fs::exists(toinen.Polku()));
}

TEST_F(Palautus, ADeadProgramsCopyKnowsItsFileAndIsOfferedToOne) {
  KuoleKopioineen();
  const auto jaaneet = Palautuskopio::OtaJaaneet();
  ASSERT_THAT(jaaneet, SizeIs(1));
  EXPECT_EQ(jaaneet[0].Projekti(), hakemisto.Projekti());
  EXPECT_TRUE(jaaneet[0].ProjektinTunnus().OnYha(hakemisto.Projekti()));
  EXPECT_THAT(Palautuskopio::OtaJaaneet(), IsEmpty()) << "it is held";
  koe::Rakennus luettu;
  Latausraportti lataus;
  HaeProjekti(luettu, jaaneet[0].Polku(), lataus);
  EXPECT_EQ(lataus.vaurioita, 0);
  EXPECT_THAT(koe::Erot(luettu, puu, hakemisto.Malli()), IsEmpty());
}

TEST_F(Palautus, ATakenCopyIsOnesOwnAndAKeptOneNoCopyAnyMore) {
  KuoleKopioineen();
  {
    Palautuskopio oma = std::move(Palautuskopio::OtaJaaneet().at(0));
    oma.Kirjoita(puu, {}, {});
    EXPECT_THAT(Kopiot(), SizeIs(1));
  }
  auto jaaneet = Palautuskopio::OtaJaaneet();
  ASSERT_THAT(jaaneet, SizeIs(1));
  const std::string talteen = jaaneet[0].Sailyta();
  EXPECT_THAT(Kopiot(), testing::ElementsAre(fs::path(talteen)));
  EXPECT_THAT(Palautuskopio::OtaJaaneet(), IsEmpty());
}

TEST_F(Palautus, ACopyIsPrivateAndLeavesTheBackupAlone) {
  KirjoitaTiedosto(hakemisto.Varakopio(), "projektin varmuuskopio");
  Palautuskopio kopio;
  kopio.Kirjoita(puu, hakemisto.Projekti(), {});
  EXPECT_EQ(fs::status(kopio.Polku()).permissions(), fs::perms(0600));
  puu.Kaksin = HUGE_VAL;
  for (int i = 0; i < 8; ++i) EXPECT_THROW(kopio.Kirjoita(puu, {}, {}), Projektivirhe);
  EXPECT_EQ(LueTiedosto(hakemisto.Varakopio()), "projektin varmuuskopio");
  koe::Rakennus luettu;
  Latausraportti lataus;
  HaeProjekti(luettu, kopio.Polku(), lataus);
  EXPECT_EQ(luettu.TilatKokoelma.Count(), 2) << "the former copy stays whole";
  fs::remove(hakemisto.Malli());
  EXPECT_THROW(Palautuskopio().Kirjoita(puu, {}, {}), Projektivirhe);
}

TEST_F(Palautus, AnEmptyNameAndHalfMadeFilesAreSwept) {
  KirjoitaTiedosto(AppPath() + "~palautus 1-2.lvt", "");
  KirjoitaTiedosto(AppPath() + "~palautus 1.lvt.uusi-abcdef", "kesken");
  KirjoitaTiedosto(AppPath() + "~palautus 1.lvt.uusi-abcdef-journal", "kesken");
  EXPECT_THAT(Palautuskopio::OtaJaaneet(), IsEmpty());
  EXPECT_THAT(Kopiot(), IsEmpty());
}

TEST_F(Palautus, TheMarkSeesAnothersChangeButNoMove) {
  const std::string tiedosto = hakemisto.Projekti();
  const Tiedostotunnus tunnus = Tiedostotunnus::Lue(raportti.tunnus.Teksti());
  EXPECT_FALSE(tunnus.Tyhja());
  EXPECT_TRUE(tunnus.OnYha(tiedosto));
  Latausraportti lataus;
  koe::Rakennus luettu;
  HaeProjekti(luettu, tiedosto, lataus);
  EXPECT_EQ(lataus.tunnus.Teksti(), tunnus.Teksti());
  const std::string sisalto = LueTiedosto(tiedosto);
  fs::remove(tiedosto);
  EXPECT_TRUE(tunnus.OnYha(tiedosto)) << "nothing to lose";
  KirjoitaTiedosto(tiedosto, sisalto);
  EXPECT_TRUE(tunnus.OnYha(tiedosto)) << "the same content in another file";
  Tietokanta(tiedosto, Tietokanta::Tapa::Kirjoitus).Aja("UPDATE KoeTila SET Lampotila = 5");
  EXPECT_FALSE(tunnus.OnYha(tiedosto));
  KirjoitaTiedosto(tiedosto, sisalto);
  TallennaProjekti(luettu, tiedosto);
  EXPECT_FALSE(tunnus.OnYha(tiedosto)) << "another save of the same";
  Tallennustapa tapa;
  tapa.odotettu = &tunnus;
  try {
    TallennaProjekti(puu, tiedosto, {}, tapa);
    ADD_FAILURE() << "the other save was replaced unseen";
  } catch (const Projektivirhe& virhe) {
    EXPECT_EQ(virhe.OmaSyy(), Projektivirhe::Syy::Vaihtunut);
  }
  EXPECT_TRUE(Tiedostotunnus().OnYha(tiedosto));
}
