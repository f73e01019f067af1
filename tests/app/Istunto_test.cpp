// SPDX-License-Identifier: GPL-3.0-or-later
// The session as the auditor goes through it, without windows: answers and dialogs are scripted.
#include "app/Istunto.h"
#include "app/Viimeisimmat.h"
#include "tests/tuki/Lahdekoodi.h"

#include <chrono>
#include <ctime>
#include <fstream>

#include "building/Mallivaraus.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Kirjoitussuoja.h"
#include "kernel/Palautuskopio.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Tietokanta.h"
#include "settings/clsProjektiAsetukset.h"
#include "tests/app/Koekoti.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Ikkunaton.h"
#include "ui/Lomake.h"
#include "ui/Paaikkuna.h"

namespace fs = std::filesystem;

namespace {

class Otsikot : public Paaikkuna {
 public:
  Otsikot() { AsetaPaaikkuna(this); }
  ~Otsikot() override { AsetaPaaikkuna(nullptr); }
  void AsetaOtsikko(const std::string& teksti) override { otsikko = PaaikkunanOtsikko(teksti); }
  std::string otsikko;
};

void Kirjoita(const std::string& tiedosto, const std::string& sisalto) { std::ofstream(tiedosto) << sisalto; }

class IstuntoTesti : public testing::Test {
 protected:
  IstuntoTesti() {
    lomakkeet.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) { lomake.KayttajaPainaa("cmdOk"); });
  }
  ~IstuntoTesti() override {
    EXPECT_EQ(viestit.VastauksiaJaljella(), 0u) << "an answer that was never asked for";
    istunto.SuljeKohde();
  }

  void PeruutaPerustiedot() {
    lomakkeet.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) { lomake.KayttajaPainaa("cmdPeruuta"); });
  }
  void UusiKohde(const std::string& nimi) {
    lomakkeet.KunNaytetaan("frmPerustiedot", [nimi](Ikkunaton& lomake) {
      lomake.KayttajaKirjoittaa("txtKohteenNimi", nimi);
      lomake.KayttajaKirjoittaa("txtValmistumisVuosi", "1965");
      lomake.KayttajaKirjoittaa("txtKokonaistilavuus", "17 500");
      lomake.KayttajaKirjoittaa("txtBruttoAla", "4200");
      lomake.KayttajaKirjoittaa("txtKerrostenLukumaara", "3");
      lomake.KayttajaPainaa("cmdOk");
    });
    istunto.mnuFileNew_Click();
  }
  /// A new object under a name of its own, saved and open.
  std::string TallennettuKohde(const std::string& nimi) {
    UusiKohde(nimi);
    const std::string tiedosto = koti.Tiedosto(nimi + ".lvt");
    viestit.AsetaSeuraavaTiedosto(tiedosto);
    istunto.mnuFileSave_Click();
    EXPECT_TRUE(istunto.Rakennus()->Tallennettu);
    PeruutaPerustiedot();
    return tiedosto;
  }
  void Avaa(const std::string& tiedosto) {
    viestit.AsetaSeuraavaTiedosto(tiedosto);
    istunto.mnuFileOpen_Click();
  }
  /// A copy of the file with something changed in it.
  std::string Muunnos(const std::string& tiedosto, const std::string& sql) {
    const std::string muunnos = koti.Tiedosto("Muunnos.lvt");
    fs::copy_file(tiedosto, muunnos);
    PoistaKirjoitussuoja(muunnos);
    Tietokanta(muunnos, Tietokanta::Tapa::Kirjoitus).Aja(sql);
    return muunnos;
  }
  const std::string& KohteenNimi() const { return istunto.Rakennus()->Perustiedot.KohteenNimi; }
  const std::string& Tiedosto() const { return istunto.Rakennus()->ProjektiAsetukset.strCurrentProjectFile; }
  const std::string& ViimeTeksti() const { return viestit.Naytetyt().back().teksti; }

  Koekoti koti;
  Koeviestit viestit;
  Ikkunattomat lomakkeet{Lahdekoodi("ui/forms")};
  Otsikot paaikkuna;
  Istunto istunto;
};

TEST_F(IstuntoTesti, ANewObjectIsSavedAndOpensEqual) {
  UusiKohde("Koulu");
  EXPECT_EQ(paaikkuna.otsikko, "Lumivirta - Uusi - Koulu *");
  ASSERT_TRUE(istunto.KohdeValmis());
  EXPECT_EQ(GlobaaliRakennus(), istunto.Rakennus());
  EXPECT_FALSE(istunto.Rakennus()->Tallennettu) << "the generated model is in no file";
  const double lampo = istunto.Rakennus()->VuotuinenBruttoLampoEnergia();
  EXPECT_GT(lampo, 0);

  viestit.AsetaSeuraavaTiedosto(koti.Tiedosto("Koulu"));
  istunto.mnuFileSave_Click();
  const std::string tiedosto = koti.Tiedosto("Koulu.lvt");
  ASSERT_TRUE(fs::exists(tiedosto)) << "the name gets its extension";
  EXPECT_EQ(paaikkuna.otsikko, "Lumivirta - " + LyhennaPolku(tiedosto, 75) + " - Koulu");
  EXPECT_TRUE(OnKirjoitussuojattu(tiedosto));

  PeruutaPerustiedot();
  Avaa(tiedosto);
  EXPECT_TRUE(istunto.Rakennus()->Tallennettu);
  EXPECT_EQ(Tiedosto(), tiedosto);
  EXPECT_EQ(KohteenNimi(), "Koulu");
  EXPECT_EQ(istunto.Rakennus()->VuotuinenBruttoLampoEnergia(), lampo) << "to the last bit";
  EXPECT_EQ(viestit.Esiintymia("käytössä"), 0) << "one's own file isn't somebody else's";
}

TEST_F(IstuntoTesti, CancellingTheFirstDialogLeavesNoObject) {
  PeruutaPerustiedot();
  istunto.mnuFileNew_Click();
  EXPECT_EQ(istunto.Rakennus(), nullptr);
  EXPECT_EQ(GlobaaliRakennus(), nullptr);
  EXPECT_EQ(GlobaaliSaa(), nullptr);
  EXPECT_EQ(paaikkuna.otsikko, "Lumivirta");
  EXPECT_TRUE(istunto.QueryUnload(false)) << "nothing to save";
}

TEST_F(IstuntoTesti, AnUnsavedObjectIsAskedFor) {
  UusiKohde("Ensimmäinen");
  viestit.AsetaSeuraavaVastaus(Vastaus::Peruuta);
  istunto.mnuFileNew_Click();
  EXPECT_EQ(ViimeTeksti(), "Katselmuskohde: Ensimmäinen on tallentamatta. Haluatko tallentaa?");
  EXPECT_EQ(KohteenNimi(), "Ensimmäinen");

  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  viestit.AsetaSeuraavaTiedosto(std::nullopt);
  EXPECT_FALSE(istunto.QueryUnload(false)) << "no file was chosen";
  EXPECT_EQ(KohteenNimi(), "Ensimmäinen");

  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  viestit.AsetaSeuraavaTiedosto(koti.Tiedosto("1.lvt"));
  UusiKohde("Toinen");
  EXPECT_TRUE(fs::exists(koti.Tiedosto("1.lvt")));
  EXPECT_FALSE(OnKirjoitussuojattu(koti.Tiedosto("1.lvt"))) << "closed";
  EXPECT_EQ(KohteenNimi(), "Toinen");

  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  UusiKohde("Kolmas");
  EXPECT_EQ(KohteenNimi(), "Kolmas");
}

TEST_F(IstuntoTesti, AReplacedObjectTakesItsFormsAlong) {
  TallennettuKohde("Koulu");
  istunto.Rakennus()->NaytaLampoYhteenvetoDlg();
  ASSERT_TRUE(AvoinLomake("frmLampoYhteenveto"));
  UusiKohde("Toinen");
  EXPECT_FALSE(AvoinLomake("frmLampoYhteenveto"));
}

TEST_F(IstuntoTesti, FilesThatCannotBeOpenedLeaveTheObject) {
  const std::string oma = TallennettuKohde("Koulu");
  struct Tapaus {
    std::string tiedosto;
    std::string viesti;
  };
  Kirjoita(koti.Tiedosto("Muistio.txt"), "x");
  Kirjoita(koti.Tiedosto("vt"), "x");
  Kirjoita(koti.Tiedosto("Vieras.LVT"), "Tämä ei ole kohde.");
  const std::string uudempi = Muunnos(oma, "UPDATE clsRakennus SET Major = 2, Minor = 1");
  const Tapaus tapaukset[] = {
      {koti.Tiedosto("Muistio.txt"), Teksti(1156)},
      {koti.Tiedosto("vt"), Teksti(1156)},
      {koti.Tiedosto("Vieras.LVT"), Teksti(9501)},
      {koti.Tiedosto("Puuttuva.lvt"), Teksti(9501)},
      {uudempi, "Kohdetiedoston ohjelmaversio 2.1.xx " + Teksti(9223)},
  };
  for (const Tapaus& tapaus : tapaukset) {
    Avaa(tapaus.tiedosto);
    EXPECT_EQ(ViimeTeksti().substr(0, tapaus.viesti.size()), tapaus.viesti) << tapaus.tiedosto;
    EXPECT_EQ(KohteenNimi(), "Koulu");
    EXPECT_FALSE(OnKirjoitussuojattu(tapaus.tiedosto));
  }
  EXPECT_EQ(Tiedosto(), oma);
  EXPECT_TRUE(OnKirjoitussuojattu(oma));
}

TEST_F(IstuntoTesti, AnOlderFileOpensWithANotice) {
  const std::string vanha = Muunnos(TallennettuKohde("Koulu"), "UPDATE clsRakennus SET Major = 1, Minor = 0");
  Avaa(vanha);
  EXPECT_EQ(viestit.Esiintymia("1.0.xx " + Teksti(9224)), 1);
  EXPECT_EQ(Tiedosto(), vanha);
}

TEST_F(IstuntoTesti, AFileInUseIsOpenedOnlyWithConsent) {
  const std::string toisen = Muunnos(TallennettuKohde("Koulu"), "UPDATE clsPerustiedot SET KohteenNimi = 'Toisen'");
  AsetaKirjoitussuoja(toisen);
  Avaa(toisen);  // the default answer is No
  EXPECT_EQ(viestit.Naytetyt().back().oletus, Vastaus::Ei);
  EXPECT_EQ(ViimeTeksti().substr(0, 9), "Tiedosto ");
  EXPECT_EQ(KohteenNimi(), "Koulu");
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  Avaa(toisen);
  EXPECT_EQ(KohteenNimi(), "Toisen");
}

TEST_F(IstuntoTesti, AnIncompleteFileIsDropped) {
  const std::string vajaa = Muunnos(TallennettuKohde("Koulu"), "DELETE FROM clsToteutunutKulutus");
  Avaa(vajaa);
  EXPECT_EQ(istunto.Rakennus(), nullptr);
  EXPECT_FALSE(OnKirjoitussuojattu(vajaa));
  EXPECT_EQ(viestit.Esiintymia(Teksti(9500)), 1);
}

TEST_F(IstuntoTesti, SaveAsMovesNameCaptionAndMark) {
  const std::string eka = TallennettuKohde("Koulu");
  const std::string toka = koti.Tiedosto("Koulu 2.lvt");
  viestit.AsetaSeuraavaTiedosto(toka);
  istunto.mnuFileSaveAs_Click();
  EXPECT_EQ(Tiedosto(), toka);
  EXPECT_EQ(paaikkuna.otsikko, "Lumivirta - " + LyhennaPolku(toka, 75) + " - Koulu");
  EXPECT_FALSE(OnKirjoitussuojattu(eka));
  EXPECT_TRUE(OnKirjoitussuojattu(toka));
  EXPECT_TRUE(istunto.QueryUnload(false));
  EXPECT_FALSE(OnKirjoitussuojattu(toka)) << "the program ends";
}

TEST_F(IstuntoTesti, SaveAsOverAnotherFileAsksAndNeverReplacesOneInUse) {
  const std::string oma = TallennettuKohde("Koulu");
  const std::string muu = koti.Tiedosto("Muu.lvt");
  Kirjoita(muu, "sisältö");
  for (const Vastaus vastaus : {Vastaus::Ei, Vastaus::Peruuta}) {
    viestit.AsetaSeuraavaTiedosto(muu);
    viestit.AsetaSeuraavaVastaus(vastaus);
    istunto.mnuFileSaveAs_Click();
    EXPECT_EQ(Tiedosto(), oma);
  }
  EXPECT_EQ(viestit.Naytetyt().back().otsikko, "Tiedosto on jo olemassa");
  AsetaKirjoitussuoja(muu);
  for (const std::string& merkitty : {muu, oma}) {
    viestit.AsetaSeuraavaTiedosto(merkitty);
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    istunto.mnuFileSaveAs_Click();
    EXPECT_EQ(ViimeTeksti(), Teksti(1153) + " " + merkitty + " " + Teksti(1154));
  }
  EXPECT_EQ(LueTiedosto(muu), "sisältö");
  EXPECT_EQ(Tiedosto(), oma);
}

TEST_F(IstuntoTesti, AFailedSaveAsPutsTheFormerFileBack) {
  const std::string oma = TallennettuKohde("Koulu");
  istunto.Rakennus()->MuuLampo = 12;
  istunto.Rakennus()->Tallennettu = false;
  viestit.AsetaSeuraavaTiedosto(koti.Tiedosto("ei/ole/Koulu.lvt"));
  istunto.mnuFileSaveAs_Click();
  EXPECT_EQ(Tiedosto(), oma);
  EXPECT_EQ(paaikkuna.otsikko, "Lumivirta - " + LyhennaPolku(oma, 75) + " - Koulu *");
  EXPECT_TRUE(OnKirjoitussuojattu(oma));
  EXPECT_FALSE(istunto.Rakennus()->Tallennettu);
  EXPECT_EQ(viestit.Esiintymia(Teksti(9516)), 1);
}

TEST_F(IstuntoTesti, AFailedSaveRefusesClosing) {
  const std::string oma = TallennettuKohde("Koulu");
  const std::string ennen = LueTiedosto(oma);
  istunto.Rakennus()->Tallennettu = false;
  fs::remove(AppPath() + "stemplate.tmp");
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  EXPECT_FALSE(istunto.QueryUnload(true)) << "the session's end, too";
  EXPECT_EQ(viestit.Esiintymia(Teksti(9516)), 1);
  EXPECT_EQ(LueTiedosto(oma), ennen);
  EXPECT_TRUE(OnKirjoitussuojattu(oma));
}

TEST_F(IstuntoTesti, AReservedModelRefusesEveryCommand) {
  TallennettuKohde("Koulu");
  const clsRakennus* kohde = istunto.Rakennus();
  const Mallivaraus varaus;
  istunto.mnuFileNew_Click();
  istunto.mnuFileOpen_Click();
  istunto.mnuFileSave_Click();
  istunto.mnuFileSaveAs_Click();
  EXPECT_FALSE(istunto.QueryUnload(false));
  EXPECT_EQ(viestit.Esiintymia(Teksti(9515)), 5);
  EXPECT_EQ(istunto.Rakennus(), kohde);
}

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

TEST_F(IstuntoTesti, ARescuedObjectGoesOnInItsOwnFile) {
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

TEST_F(IstuntoTesti, ARescuedObjectThatIsNotWantedIsKeptAside) {
  TallennettuKohde("Koulu");
  JataKopio(*istunto.Rakennus(), "~palautus 1.lvt");
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  EXPECT_FALSE(istunto.TarjoaJaaneet());
  ASSERT_EQ(ViimeTeksti().find(Teksti(9503)), 0u);
  EXPECT_TRUE(fs::exists(ViimeTeksti().substr(Teksti(9503).size() + 1))) << "where the message says";
  EXPECT_FALSE(istunto.TarjoaJaaneet()) << "offered once";
  EXPECT_EQ(KohteenNimi(), "Koulu");
}

TEST_F(IstuntoTesti, QuietMomentsKeepWhatDiffersFromTheFile) {
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

TEST_F(IstuntoTesti, ARescueThatFailsIsToldOnceAndTriedAgain) {
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

TEST_F(IstuntoTesti, AFileThatAnotherHandHasChangedIsReplacedOnlyWithConsent) {
  const std::string oma = TallennettuKohde("Koulu");
  PoistaKirjoitussuoja(oma);
  fs::remove(oma + ".2");
  fs::copy_file(oma, oma + ".2");
  Tietokanta(oma + ".2", Tietokanta::Tapa::Kirjoitus).Aja("UPDATE clsPerustiedot SET KohteenNimi = 'Toisen'");
  fs::rename(oma + ".2", oma);
  istunto.Rakennus()->Muuttui("Koe");
  istunto.mnuFileSave_Click();  // the default answer is No
  EXPECT_EQ(ViimeTeksti().find(Teksti(9568)), 0u);
  EXPECT_FALSE(istunto.Rakennus()->Tallennettu);
  EXPECT_EQ(HaeTiedostonTeksti(oma, "clsPerustiedot", "KohteenNimi"), "Toisen");
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  istunto.mnuFileSave_Click();
  EXPECT_TRUE(istunto.Rakennus()->Tallennettu);
  EXPECT_EQ(HaeTiedostonTeksti(oma, "clsPerustiedot", "KohteenNimi"), "Koulu");
}

TEST_F(IstuntoTesti, TheLatestFilesStandFirstInTheList) {
  const std::string eka = TallennettuKohde("Eka");
  const std::string toka = TallennettuKohde("Toka");
  ASSERT_GE(ViimeisimmatTiedostot().size(), 2u);
  EXPECT_EQ(ViimeisimmatTiedostot()[0], toka);
  istunto.AvaaViimeisin(eka);
  EXPECT_EQ(ViimeisimmatTiedostot()[0], eka);
  EXPECT_EQ(std::ranges::count(ViimeisimmatTiedostot(), eka), 1);
  EXPECT_EQ(Tiedosto(), eka);
}

TEST_F(IstuntoTesti, UndoAndRedoWalkNamedSteps) {
  TallennettuKohde("Koulu");
  const Kumous& askeleet = istunto.Askeleet();
  EXPECT_FALSE(askeleet.VoiKumota()) << "the first model of an object is no step";
  clsRakennus& kohde = *istunto.Rakennus();
  const double ala = kohde.Tilat.Item(1).BruttoAla;
  const double lampo = kohde.VuotuinenBruttoLampoEnergia();
  kohde.Tilat.Item(1).BruttoAla = ala + 100;
  kohde.Perustiedot.LammTarveLukuPaikkakuntaID(12);
  kohde.Saa.AsetaSaaPaikkakunta(12);
  kohde.Muuttui("Tilan tiedot");
  kohde.Tilat.Add("uusi tila");
  kohde.Muuttui("Tilan lisäys");
  kohde.MuuLampo = 500;
  kohde.Muuttui("Muu lämpö");
  EXPECT_EQ(askeleet.Kumottava(), "Muu lämpö");

  istunto.mnuEditUndo_Click();
  EXPECT_EQ(kohde.MuuLampo, 0);
  EXPECT_EQ(askeleet.Uudelleentehtava(), "Muu lämpö");
  istunto.mnuEditUndo_Click();
  EXPECT_EQ(kohde.Tilat.Count(), 1);
  EXPECT_FALSE(kohde.Tallennettu);
  istunto.mnuEditUndo_Click();
  EXPECT_EQ(kohde.Tilat.Item(1).BruttoAla, ala);
  EXPECT_EQ(kohde.VuotuinenBruttoLampoEnergia(), lampo) << "the weather came back too";
  EXPECT_TRUE(kohde.Tallennettu) << "as it is in the file";
  EXPECT_FALSE(askeleet.VoiKumota());

  istunto.mnuEditRedo_Click();
  istunto.mnuEditRedo_Click();
  istunto.mnuEditRedo_Click();
  EXPECT_EQ(kohde.MuuLampo, 500);
  EXPECT_EQ(kohde.Tilat.Count(), 2);
  EXPECT_FALSE(askeleet.VoiTehdaUudelleen());
  istunto.mnuEditUndo_Click();
  kohde.Muuttui("Muu muutos");
  EXPECT_EQ(askeleet.Uudelleentehtava(), "") << "another way was taken";
}

TEST_F(IstuntoTesti, ASpaceAddedInTheListIsOneStep) {
  TallennettuKohde("Koulu");
  clsRakennus& kohde = *istunto.Rakennus();
  kohde.Tilat.NaytaKayttoliittyma();
  Ikkunaton& luettelo = lomakkeet.Ikkuna("frmTilaYhteenveto");
  const auto lisaa = [&](const std::string& nappi) {
    lomakkeet.KunNaytetaan("frmTila", [&, nappi](Ikkunaton& tila) {
      tila.KayttajaKirjoittaa("txtTilanNimi", "Aula");
      lomakkeet.KunNaytetaan("frmRakenteet", [](Ikkunaton& rakenteet) { rakenteet.KayttajaPainaa("cmdOk"); });
      tila.KayttajaPainaa("cmdRakenteet");
      EXPECT_FALSE(istunto.Askeleet().VoiKumota()) << "a dialog inside another commits nothing";
      tila.KayttajaPainaa(nappi);
    });
    luettelo.KayttajaPainaa("cmdLisaaTila");
  };
  lisaa("cmdPeruuta");
  EXPECT_FALSE(istunto.Askeleet().VoiKumota());
  EXPECT_TRUE(kohde.Tallennettu);
  lisaa("cmdOk");
  ASSERT_EQ(kohde.Tilat.Count(), 2);
  istunto.mnuEditUndo_Click();
  EXPECT_EQ(kohde.Tilat.Count(), 1);
  EXPECT_EQ(luettelo.Etsi("lvwTilat").Rivit().size(), 1u);
  EXPECT_FALSE(istunto.Askeleet().VoiKumota());
  EXPECT_TRUE(kohde.Tallennettu);
  istunto.mnuEditRedo_Click();
  ASSERT_EQ(kohde.Tilat.Count(), 2);
  EXPECT_EQ(kohde.Tilat.Item(2).TilanNimi, "Aula");
  EXPECT_FALSE(istunto.Askeleet().VoiTehdaUudelleen());
}

TEST_F(IstuntoTesti, UndoLeavesTheFileOfTheObject) {
  const std::string eka = TallennettuKohde("Koulu");
  const std::string toka = koti.Tiedosto("Koulu 2.lvt");
  clsRakennus& kohde = *istunto.Rakennus();
  kohde.MuuLampo = 5;
  kohde.Muuttui("Muu lämpö");
  viestit.AsetaSeuraavaTiedosto(toka);
  istunto.mnuFileSaveAs_Click();
  const std::string ekaEnnen = LueTiedosto(eka);
  istunto.mnuEditUndo_Click();
  EXPECT_EQ(Tiedosto(), toka);
  EXPECT_FALSE(kohde.Tallennettu);
  istunto.mnuFileSave_Click();
  EXPECT_TRUE(kohde.Tallennettu);
  EXPECT_EQ(LueTiedosto(eka), ekaEnnen);
  istunto.mnuEditRedo_Click();
  EXPECT_FALSE(kohde.Tallennettu) << "the file has the undone state now";
}

TEST_F(IstuntoTesti, TheEarliestStepsGiveWayWhenMemoryIsFull) {
  TallennettuKohde("Koulu");
  clsRakennus& kohde = *istunto.Rakennus();
  Kumous kumous(1);
  kumous.Aloita(&kohde);
  for (const double arvo : {1.0, 2.0, 3.0}) {
    kohde.MuuLampo = arvo;
    kumous.Kirjaa("Muu lämpö");
  }
  kumous.Kumoa();
  EXPECT_EQ(kohde.MuuLampo, 2) << "the last step can always be undone";
  EXPECT_FALSE(kumous.VoiKumota());
  EXPECT_TRUE(kumous.VoiTehdaUudelleen());
}

TEST_F(IstuntoTesti, AnOpenWindowStaysAndFollowsUndo) {
  TallennettuKohde("Koulu");
  istunto.Rakennus()->NaytaLampoYhteenvetoDlg();
  Ikkunaton& lomake = lomakkeet.Ikkuna("frmLampoYhteenveto");
  const std::string ennen = lomake.Teksti("txtYhteensa");
  lomake.KayttajaKirjoittaa("txtMuuLampo", "100");
  lomake.KayttajaPoistuu("txtMuuLampo");
  EXPECT_NE(lomake.Teksti("txtYhteensa"), ennen);
  istunto.mnuEditUndo_Click();
  EXPECT_TRUE(lomake.Auki());
  EXPECT_EQ(lomake.Teksti("txtYhteensa"), ennen);
  EXPECT_EQ(istunto.Rakennus()->MuuLampo, 0);
}

TEST_F(IstuntoTesti, TheObjectIsClosedAfterAnOfferToSave) {
  const std::string oma = TallennettuKohde("Koulu");
  istunto.Rakennus()->Muuttui("Koe");
  viestit.AsetaSeuraavaVastaus(Vastaus::Peruuta);
  istunto.mnuSuljeKohde_Click();
  ASSERT_TRUE(istunto.Rakennus());
  EXPECT_EQ(viestit.Naytetyt().back().napit, Napit::TallennaHylkaaPeruuta);
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  istunto.mnuSuljeKohde_Click();
  EXPECT_FALSE(istunto.Rakennus());
  EXPECT_FALSE(OnKirjoitussuojattu(oma));
  EXPECT_EQ(paaikkuna.otsikko, "Lumivirta");
}

TEST_F(IstuntoTesti, ALeftOverBackupIsOfferedAtStartAndBeforeASave) {
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

TEST_F(IstuntoTesti, TheCaptionShortensTheFile) {
  EXPECT_EQ(PaaikkunanOtsikko(""), "Lumivirta");
  TallennettuKohde("Koulu");
  istunto.Rakennus()->ProjektiAsetukset.strCurrentProjectFile =
      "/home/katselmoija/" + std::string(60, 'a') + "/Työpöytä/Kohde.lvt";
  EXPECT_EQ(PaaikkunanOtsikko(""), "Lumivirta - /ho.../Työpöytä/Kohde.lvt - Koulu");
  EXPECT_EQ(PaaikkunanOtsikko("Uusi"), "Lumivirta - Uusi - Koulu");
}

}  // namespace
