// SPDX-License-Identifier: GPL-3.0-or-later
// The session as the auditor goes through it: new, open, save, close.
#include "app/Viimeisimmat.h"
#include "building/Mallivaraus.h"
#include "building/clsSaa.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Versio.h"
#include "tests/app/Koeistunto.h"

namespace {

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
  const std::string uudempi = Muunnos(oma, "UPDATE clsRakennus SET Minor = Minor + 1");
  const Tapaus tapaukset[] = {
      {koti.Tiedosto("Muistio.txt"), Teksti(1156)},
      {koti.Tiedosto("vt"), Teksti(1156)},
      {koti.Tiedosto("Vieras.LVT"), Teksti(9501)},
      {koti.Tiedosto("Puuttuva.lvt"), Teksti(9501)},
      {uudempi, "Kohdetiedoston ohjelmaversio " + std::to_string(kVersioMajor) + "." +
                    std::to_string(kVersioMinor + 1) + ".xx " + Teksti(9223)},
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

TEST_F(IstuntoTesti, TheCaptionShortensTheFile) {
  EXPECT_EQ(PaaikkunanOtsikko(""), "Lumivirta");
  TallennettuKohde("Koulu");
  istunto.Rakennus()->ProjektiAsetukset.strCurrentProjectFile =
      "/home/katselmoija/" + std::string(60, 'a') + "/Työpöytä/Kohde.lvt";
  EXPECT_EQ(PaaikkunanOtsikko(""), "Lumivirta - /ho.../Työpöytä/Kohde.lvt - Koulu");
  EXPECT_EQ(PaaikkunanOtsikko("Uusi"), "Lumivirta - Uusi - Koulu");
}

}  // namespace
