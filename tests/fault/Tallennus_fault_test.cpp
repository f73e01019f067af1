// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever interrupts a save, a whole project stands under the project's name; whatever a file holds, loading it ends
// in a clear error or in defaults that are counted, and leaves the file as it was.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "kernel/Projektitiedosto.h"
#include "tests/fault/Jarjestelmakutsut.h"
#include "tests/tuki/Arpa.h"
#include "tests/tuki/Koepuu.h"

namespace fs = std::filesystem;
using kutsut::Isku;
using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int kVanhassa = 3, kUudessa = 12;  // spaces

class Tallennusvirheet : public testing::Test {
 protected:
  Tallennusvirheet() {
    koe::Tayta(vanha, kVanhassa);
    koe::Tayta(uusi, kUudessa);
    Tallenna(vanha);
    ennen = LueTiedosto(hakemisto.Projekti());
  }

  void Tallenna(koe::Rakennus& puu) { TallennaProjekti(puu, hakemisto.Projekti(), hakemisto.Malli()); }

  void PalautaVanha() {
    KirjoitaTiedosto(hakemisto.Projekti(), ennen);
    fs::remove(hakemisto.Varakopio());
  }

  /// Number of spaces of a whole project file; -1 for one that is damaged.
  static int Tiloja(const std::string& tiedosto) {
    koe::Rakennus puu;
    Latausraportti raportti;
    HaeProjekti(puu, tiedosto, raportti);
    return raportti.vaurioita ? -1 : puu.TilatKokoelma.Count();
  }

  /// The project is the old or the new one, and the backup, if any, is the old one.
  void OdotaEhja() {
    EXPECT_THAT(Tiloja(hakemisto.Projekti()), AnyOf(kVanhassa, kUudessa));
    if (!fs::exists(hakemisto.Varakopio())) return;
    EXPECT_THAT(Tiloja(hakemisto.Varakopio()), AnyOf(kVanhassa, kUudessa));
  }

  /// Nothing is left of saves that didn't come to their end.
  void OdotaEiKeskenerisia() {
    for (const auto& tiedosto : fs::directory_iterator(fs::path(hakemisto.Projekti()).parent_path()))
      EXPECT_THAT(tiedosto.path().filename().string(), Not(HasSubstr(".uusi-")));
  }

  void OdotaVanha() { EXPECT_EQ(LueTiedosto(hakemisto.Projekti()), ennen); }

  /// A save after an interrupted one, with a template that has a table more: pages of the former would undo it.
  void OdotaTallennusOnnistuu() {
    const std::string malli = (hakemisto / "uudempi.tmp").string();
    koe::TeeMalli(malli, "DROP TABLE KoeRyhma; CREATE TABLE Lisa (a); CREATE TABLE KoeRyhma" +
                             koe::Sarakkeet(koe::Ryhma::kLuokka));
    TallennaProjekti(uusi, hakemisto.Projekti(), malli);
    EXPECT_EQ(Tiloja(hakemisto.Projekti()), kUudessa);
    EXPECT_THAT(koe::Arvot(hakemisto.Projekti(), "Lisa", "a"), testing::IsEmpty());
    OdotaEiKeskenerisia();
  }

  /// Saves in a process of its own, which may die.
  pid_t TallennaLapsessa(Isku isku, int monesko) {
    const pid_t lapsi = fork();
    if (lapsi) return lapsi;
    kutsut::Aseta(isku, monesko);
    for (int i = 0; monesko == 0 || i < 1; ++i) Tallenna(i % 2 ? vanha : uusi);
    _exit(0);
  }

  koe::Hakemisto hakemisto;
  koe::Rakennus vanha, uusi;
  std::string ennen;
};

bool KuoliIskuun(pid_t lapsi) {
  int tila = 0;
  waitpid(lapsi, &tila, 0);
  return WIFSIGNALED(tila);
}

/// The number of calls of one save: 40 or so at the least.
int KutsujaTallennuksessa(const std::function<void()>& tallenna) {
  kutsut::Aseta(Isku::Virhe, -1);
  tallenna();
  return kutsut::Lopeta();
}

}  // namespace

TEST_F(Tallennusvirheet, AnErrorInAnyCallLeavesAWholeFile) {
  const int kutsuja = KutsujaTallennuksessa([&] { Tallenna(uusi); });
  ASSERT_GT(kutsuja, 20);
  for (const Isku isku : {Isku::Virhe, Isku::PysyvaVirhe})
    for (int n = 1; n <= kutsuja; ++n) {
      SCOPED_TRACE(n);
      PalautaVanha();
      bool virhe = false;
      kutsut::Aseta(isku, n, n % 2 ? EIO : ENOSPC);
      try {
        Tallenna(uusi);
      } catch (const Projektivirhe& e) {
        virhe = true;
        kutsut::Lopeta();
        if (e.OmaSyy() == Projektivirhe::Syy::Varmuuskopio) OdotaVanha();
      }
      kutsut::Lopeta();
      OdotaEhja();
      EXPECT_TRUE(virhe || Tiloja(hakemisto.Projekti()) == kUudessa);
    }
  OdotaTallennusOnnistuu();
}

TEST_F(Tallennusvirheet, AKillInAnyCallLeavesAWholeFile) {
  const int kutsuja = KutsujaTallennuksessa([&] { Tallenna(uusi); });
  int kuoli = 0;
  for (int n = 1; n <= kutsuja; ++n) {
    SCOPED_TRACE(n);
    PalautaVanha();
    kuoli += KuoliIskuun(TallennaLapsessa(Isku::Tappo, n));
    OdotaEhja();
    OdotaTallennusOnnistuu();
  }
  EXPECT_GT(kuoli, kutsuja * 3 / 4);  // the order of the two threads' calls varies a little
  OdotaTallennusOnnistuu();
}

TEST_F(Tallennusvirheet, AKillAtAnyMomentLeavesAWholeFile) {
  Arpa satunnainen;
  for (int i = 0; i < 200; ++i) {
    SCOPED_TRACE(i);
    const pid_t lapsi = TallennaLapsessa(Isku::Ei, 0);
    usleep(satunnainen() % 20000);
    kill(lapsi, SIGKILL);
    EXPECT_TRUE(KuoliIskuun(lapsi));
    OdotaEhja();
  }
  OdotaTallennusOnnistuu();
}

TEST_F(Tallennusvirheet, AFullDiskIsToldAndTheFormerStays) {
  signal(SIGXFSZ, SIG_IGN);
  rlimit raja{}, ahdas{};
  getrlimit(RLIMIT_FSIZE, &raja);
  ahdas = {ennen.size(), raja.rlim_max};
  koe::Rakennus suuri;
  koe::Tayta(suuri, 400);
  setrlimit(RLIMIT_FSIZE, &ahdas);
  EXPECT_THROW(Tallenna(suuri), Projektivirhe);
  setrlimit(RLIMIT_FSIZE, &raja);
  OdotaVanha();
  EXPECT_EQ(LueTiedosto(hakemisto.Varakopio()), ennen);
  OdotaEiKeskenerisia();
}

namespace {

/// An ordinary user for one scope, if the test runs as root, whom permissions don't stop.
class Tavallinen {
 public:
  explicit Tavallinen(std::initializer_list<fs::path> polut) {
    if (geteuid() != 0) return;
    for (const fs::path& polku : polut)
      if (chown(polku.c_str(), kTunnus, kTunnus) != 0) throw std::runtime_error("chown " + polku.string());
    if (seteuid(kTunnus) != 0) throw std::runtime_error("seteuid");
  }
  ~Tavallinen() {
    if (getuid() == 0 && seteuid(0) != 0) abort();
  }
  Tavallinen(const Tavallinen&) = delete;
  Tavallinen& operator=(const Tavallinen&) = delete;

 private:
  static constexpr uid_t kTunnus = 65534;
};

}  // namespace

TEST_F(Tallennusvirheet, AReadOnlyFolderIsToldAndNothingChanges) {
  const fs::path kansio = fs::path(hakemisto.Projekti()).parent_path();
  std::string kuvaus;
  {
    const Tavallinen kayttaja{kansio.parent_path().parent_path(), kansio.parent_path(), kansio, AppPath(),
                              AppPath() + ".lumivirta.lukko",     hakemisto.Projekti()};
    fs::permissions(kansio, fs::perms(0555));
    try {
      Tallenna(uusi);
    } catch (const Projektivirhe& virhe) {
      kuvaus = virhe.what();
    }
    EXPECT_EQ(Tiloja(hakemisto.Projekti()), kVanhassa);
    fs::permissions(kansio, fs::perms(0755));
  }
  EXPECT_THAT(kuvaus, HasSubstr("käyttöoikeutta ei ole"));
  EXPECT_FALSE(fs::exists(hakemisto.Varakopio()));
}

TEST_F(Tallennusvirheet, ADiskWithoutModesDoesNotStopASave) {
  for (const int virhe : {ENOTSUP, EPERM, ENOSYS}) {
    kutsut::EstaOikeudet(virhe);
    for (koe::Rakennus* puu : {&uusi, &vanha}) {
      Tallenna(*puu);
      EXPECT_EQ(Tiloja(hakemisto.Projekti()), puu == &uusi ? kUudessa : kVanhassa);
    }
    kutsut::EstaOikeudet(0);
  }
}

/// Two users, each with an AppPath, save one project again and again while a third reads it.
TEST_F(Tallennusvirheet, TwoSaversSpareEachOthersWork) {
  const std::string malli = hakemisto.Malli();
  std::vector<pid_t> lapset;
  for (int k = 0; k < 2; ++k) {
    const std::string koti = (hakemisto / ("koti" + std::to_string(k))).string();
    fs::create_directory(koti);
    lapset.push_back(fork());
    if (lapset.back()) continue;
    AsetaAppPath(koti);
    int virheita = 0;
    for (int i = 0; i < 60; ++i) try {
        TallennaProjekti(k ? vanha : uusi, hakemisto.Projekti(), malli);
      } catch (const Projektivirhe&) {
        ++virheita;
      }
    _exit(virheita ? 1 : 0);
  }
  for (const pid_t lapsi : lapset) {
    int tila = -1;
    while (waitpid(lapsi, &tila, WNOHANG) == 0) OdotaEhja();
    EXPECT_EQ(tila, 0) << "a save failed";
  }
  OdotaEhja();
  OdotaEiKeskenerisia();
}

TEST_F(Tallennusvirheet, TheBackupMayLieOnAnotherDisk) {
  std::string nimi = "/dev/shm/lumivirta-koe-XXXXXX";
  if (!mkdtemp(nimi.data())) GTEST_SKIP() << "no /dev/shm";
  const std::string malli = hakemisto.Malli(), ohjelma = AppPath();
  AsetaAppPath(nimi);
  TallennaProjekti(uusi, hakemisto.Projekti(), malli);
  EXPECT_EQ(Tiloja(hakemisto.Projekti()), kUudessa);
  koe::Rakennus huono;
  huono.Kaksin = HUGE_VAL;
  EXPECT_THROW(TallennaProjekti(huono, hakemisto.Projekti(), malli), Projektivirhe);
  EXPECT_EQ(Tiloja(hakemisto.Varakopio()), kUudessa);
  AsetaAppPath(ohjelma);
  fs::remove_all(nimi);
}

namespace {

class VaurioitunutTiedosto : public Tallennusvirheet {
 protected:
  /// Loads `sisalto` as a project file. True when that succeeded, with or without damaged values.
  bool Avaa(std::string_view sisalto) {
    std::ofstream(hakemisto.Projekti(), std::ios::binary) << sisalto;
    const auto aika = fs::last_write_time(hakemisto.Projekti());
    bool luettiin = true;
    try {
      koe::Rakennus puu;
      Latausraportti raportti;
      HaeProjekti(puu, hakemisto.Projekti(), raportti);
    } catch (const Projektivirhe&) {
      luettiin = false;
    }
    EXPECT_EQ(fs::last_write_time(hakemisto.Projekti()), aika);
    EXPECT_EQ(LueTiedosto(hakemisto.Projekti()), sisalto);
    EXPECT_FALSE(fs::exists(hakemisto.Projekti() + "-journal"));
    return luettiin;
  }
};

}  // namespace

TEST_F(VaurioitunutTiedosto, ACutFileNeitherCrashesNorChanges) {
  for (std::size_t n = 0; n < ennen.size(); n += n < 200 ? 20 : 700) EXPECT_FALSE(Avaa(ennen.substr(0, n))) << n;
}

TEST_F(VaurioitunutTiedosto, ChangedBytesNeitherCrashNorChangeTheFile) {
  Arpa satunnainen;
  int luettiin = 0;
  for (int i = 0; i < 600; ++i) {
    std::string sisalto = ennen;
    for (unsigned k = 0; k <= satunnainen() % 8; ++k)
      sisalto[satunnainen() % sisalto.size()] = static_cast<char>(satunnainen());
    luettiin += Avaa(sisalto);
  }
  EXPECT_GT(luettiin, 0);
}
