// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo in a session.
#include "building/clsSaa.h"
#include "tests/app/Koeistunto.h"

namespace {

using KumousTesti = IstuntoTesti;

TEST_F(KumousTesti, UndoAndRedoWalkNamedSteps) {
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

TEST_F(KumousTesti, ASpaceAddedInTheListIsOneStep) {
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

TEST_F(KumousTesti, UndoLeavesTheFileOfTheObject) {
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

TEST_F(KumousTesti, TheEarliestStepsGiveWayWhenMemoryIsFull) {
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

TEST_F(KumousTesti, AnOpenWindowStaysAndFollowsUndo) {
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

}  // namespace
