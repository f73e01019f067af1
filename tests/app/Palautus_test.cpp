// SPDX-License-Identifier: GPL-3.0-or-later
// What a run that died, or a save that broke off, has left: kept, offered, gone on with.
#include <chrono>
#include <ctime>

#include "kernel/Palautuskopio.h"
#include "kernel/Projektitiedosto.h"
#include "tests/app/Koeistunto.h"

namespace {

using PalautusTesti = IstuntoTesti;

/// The run's recovery copies.
std::vector<std::string> Talteenotetut() {
  std::vector<std::string> kopiot;
  for (const auto& tiedosto : fs::directory_iterator(AppPath()))
    if (tiedosto.path().filename().string().starts_with("~palautus")) kopiot.push_back(tiedosto.path().string());
  return kopiot;
}

/// What a killed run leaves: a copy that nobody holds.
void JataKopio(clsRakennus& rakennus, const std::string& nimi) {
  Palautuskopio kopio;
  kopio.Kirjoita(rakennus, rakennus.ProjektiAsetukset.strCurrentProjectFile, rakennus.LuettuTiedosto);
  fs::copy_file(kopio.Polku(), AppPath() + nimi);
  kopio.Poista();
}

TEST_F(PalautusTesti, ARescuedObjectGoesOnInItsOwnFile) {
  const std::string oma = TallennettuKohde("Koulu");
  istunto.Rakennus()->Perustiedot.KohteenNimi = "Kesken jäänyt";
  JataKopio(*istunto.Rakennus(), "~palautus 1.lvt");
  istunto.SuljeKohde();
  AsetaKirjoitussuoja(oma);  // the killed run's mark

  std::tm aika{.tm_min = 5, .tm_hour = 14, .tm_mday = 21, .tm_mon = 10, .tm_year = 126, .tm_isdst = -1};
  const auto hetki = std::chrono::system_clock::from_time_t(std::mktime(&aika));
  fs::last_write_time(AppPath() + "~palautus 1.lvt", std::chrono::file_clock::from_sys(hetki));
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  EXPECT_TRUE(istunto.TarjoaJaaneet());
  EXPECT_EQ(ViimeTeksti(), Teksti(9518) + "\n\nKohde: Kesken jäänyt\nOtettu talteen: 21.11.2026 klo 14.05");
  EXPECT_EQ(KohteenNimi(), "Kesken jäänyt");
  EXPECT_EQ(Tiedosto(), oma);
  EXPECT_FALSE(istunto.Rakennus()->Tallennettu);
  EXPECT_EQ(Talteenotetut().size(), 1u) << "until the object is in its file";
  const auto viesteja = viestit.Naytetyt().size();
  istunto.mnuFileSave_Click();
  EXPECT_EQ(viestit.Naytetyt().size(), viesteja) << "nothing to ask: the file is as it was";
  EXPECT_TRUE(istunto.Rakennus()->Tallennettu);
  EXPECT_TRUE(Talteenotetut().empty());
  EXPECT_EQ(HaeTiedostonTeksti(oma, "clsPerustiedot", "KohteenNimi"), "Kesken jäänyt");
}

TEST_F(PalautusTesti, ARescuedObjectThatIsNotWantedIsKeptAside) {
  TallennettuKohde("Koulu");
  JataKopio(*istunto.Rakennus(), "~palautus 1.lvt");
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  EXPECT_FALSE(istunto.TarjoaJaaneet());
  ASSERT_EQ(ViimeTeksti().find(Teksti(9503)), 0u);
  EXPECT_TRUE(fs::exists(ViimeTeksti().substr(Teksti(9503).size() + 1))) << "where the message says";
  EXPECT_FALSE(istunto.TarjoaJaaneet()) << "offered once";
  EXPECT_EQ(KohteenNimi(), "Koulu");
}

TEST_F(PalautusTesti, QuietMomentsKeepWhatDiffersFromTheFile) {
  TallennettuKohde("Koulu");
  clsRakennus& kohde = *istunto.Rakennus();
  istunto.HiljainenHetki();
  EXPECT_TRUE(Talteenotetut().empty()) << "nothing has changed";
  kohde.Tilat.Item(1).BruttoAla += 1;  // as a dialog does before its OK
  istunto.HiljainenHetki();
  ASSERT_EQ(Talteenotetut().size(), 1u);
  const auto aika = fs::last_write_time(Talteenotetut()[0]);
  istunto.HiljainenHetki();
  EXPECT_EQ(fs::last_write_time(Talteenotetut()[0]), aika) << "written once for a change";
  kohde.Tilat.Item(1).BruttoAla -= 1;
  istunto.HiljainenHetki();
  EXPECT_TRUE(Talteenotetut().empty()) << "cancelled: the file has it all";
  kohde.MuuLampo = 5;
  istunto.HiljainenHetki();
  EXPECT_EQ(Talteenotetut().size(), 1u);
  istunto.SuljeKohde();
  EXPECT_TRUE(Talteenotetut().empty());
}

TEST_F(PalautusTesti, ARescueThatFailsIsToldOnceAndTriedAgain) {
  TallennettuKohde("Koulu");
  istunto.Rakennus()->MuuLampo = 5;
  const std::string malli = AppPath() + "stemplate.tmp";
  fs::rename(malli, malli + ".pois");
  viestit.AsetaPaneeli("Valmis!");
  istunto.HiljainenHetki();
  EXPECT_EQ(viestit.Paneeli().find(Teksti(9569)), 0u);
  viestit.AsetaPaneeli("Valmis!");
  istunto.HiljainenHetki();
  EXPECT_EQ(viestit.Paneeli(), "Valmis!");
  fs::rename(malli + ".pois", malli);
  istunto.HiljainenHetki();
  EXPECT_EQ(Talteenotetut().size(), 1u);
}

TEST_F(PalautusTesti, ALeftOverBackupIsOfferedAtStartAndBeforeASave) {
  const std::string varakopio = AppPath() + "~backup1lvt.old";
  const std::string oma = TallennettuKohde("Koulu");
  fs::copy_file(oma, varakopio);
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  EXPECT_FALSE(istunto.TarjoaJaaneet());
  ASSERT_EQ(ViimeTeksti().find(Teksti(9503)), 0u);
  EXPECT_TRUE(fs::exists(ViimeTeksti().substr(Teksti(9503).size() + 1))) << "where the message says";
  EXPECT_FALSE(fs::exists(varakopio));

  Kirjoita(varakopio, "rikki");
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  EXPECT_FALSE(istunto.TarjoaJaaneet());
  EXPECT_EQ(viestit.Esiintymia(Teksti(9502) + "\n\n" + Teksti(9534)), 1) << "the name can't be read";

  fs::copy_file(oma, varakopio);
  istunto.Rakennus()->MuuLampo = 5;
  istunto.Rakennus()->Tallennettu = false;
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);  // open the backup
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);  // save the present object first
  istunto.mnuFileSave_Click();
  EXPECT_EQ(Tiedosto(), "");
  EXPECT_EQ(istunto.Rakennus()->MuuLampo, 0) << "the backup";
  istunto.Rakennus()->Tallennettu = true;
  Avaa(oma);
  EXPECT_EQ(istunto.Rakennus()->MuuLampo, 5) << "the saved object";
}

}  // namespace
