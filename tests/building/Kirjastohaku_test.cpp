// SPDX-License-Identifier: GPL-3.0-or-later
// Structures and materials picked from the library into the dialogs; a stand-in answers in the server's place.
#include "measures/clsSaastotoimenpiteet.h"
#include "tests/building/Koerakennus.h"
#include "tests/tuki/Koerakennekirjasto.h"

namespace {

Rakenneratkaisu Kirjastoseina() {
  Rakenneratkaisu ratkaisu;
  ratkaisu.Nimi = "Kirjaston seinä";
  ratkaisu.Rakennetyyppi = "Ulkoseinä";
  clsRakennekerros& kerros = ratkaisu.Kerrokset.LisaaKerros();
  kerros.Materiaali = {0.04f, 20, 0.8f, "Eriste"};
  kerros.Paksuus = 200;
  ratkaisu.PintavastusSisa = 0.13f;
  ratkaisu.PintavastusUlko = 0.04f;
  return ratkaisu;
}

Rakenneratkaisu Kirjastoikkuna() {
  Rakenneratkaisu ratkaisu;
  ratkaisu.Nimi = "Kirjaston ikkuna";
  ratkaisu.Rakennetyyppi = "Ikkuna";
  ratkaisu.OnIkkuna = true;
  ratkaisu.U_arvoAnnettu = true;
  ratkaisu.U_arvo = 1.25f;
  ratkaisu.Aurinkoenergianlapaisy = 55;
  return ratkaisu;
}

class Kirjastohaku : public RakennusTesti {
 protected:
  Kirjastohaku() : tila(LisaaTila(500, 200)) {
    LisaaRakenne(tila, Rakennelaji::Ulkoseina, 120, 0.28);
    LisaaRakenne(tila, Rakennelaji::Ovi, 4, 1.4);
    rakennus->PaivitaInstanssiIdLista();
  }
  clsRakenne& Seina() const { return tila.Rakenteet.Item(1); }
  clsRakenne& Ovi() const { return tila.Rakenteet.Item(2); }

  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmRakenteet", kasikirjoitus);
    return tila.Rakenteet.NaytaKayttoliityma();
  }
  /// The layer dialog over a new layer; `kasikirjoitus` ends with OK.
  clsRakennekerros UusiKerros(const Ikkunattomat::Kasikirjoitus& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmRakennekerroksenMuokkaaminen", [&](Ikkunaton& k) {
      kasikirjoitus(k);
      k.KayttajaPainaa("cmdOk");
    });
    Muokkaa([](Ikkunaton& l) {
      l.KayttajaPainaa("cmdRakKerLisaa");
      l.KayttajaPainaa("cmdOk");
    });
    const colMateriaalit& kerrokset = Seina().RakenneRatkaisu->Kerrokset;
    return kerrokset.Item(kerrokset.Count());
  }

  clsTila& tila;
  Koerakennekirjasto kirjasto;
};

TEST_F(Kirjastohaku, PickedSolutionTakesThePlaceOfTheStructuresOwn) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    l.KayttajaValitsee("cmbRakennetyyppi", "Ulkoseinä");
    l.KayttajaKirjoittaa("txtRakenneala", "150");
    l.KayttajaPainaa("cmdHaeKirjastosta");
    EXPECT_EQ(kirjasto.Alku(), "Ulkoseinä");
    EXPECT_NE(l.Teksti("lblHaku").find("Ulkoseinä"), std::string::npos);
    kirjasto.Valitse(Kirjastoseina());
    EXPECT_EQ(l.Teksti("txtNimi"), "Kirjaston seinä");
    EXPECT_EQ(l.Teksti("txtUarvo"), "0,193") << "1 / (0,17 + 5)";
    EXPECT_EQ(l.Teksti("lblHaku"), "");
    l.KayttajaPainaa("cmdHaeKirjastosta");
    kirjasto.Valitse(Kirjastoikkuna());
    const Taulukko& rivit = l.Etsi("lvwRakenteet").Rivit();
    ASSERT_EQ(rivit.size(), 1u) << "stays though only walls are shown";
    EXPECT_EQ(rivit[0], (std::vector<std::string>{"Kirjaston ikkuna", "Ikkuna", "150,00", "1,25", "", "Pohjoinen",
                                                  "187,5", "97,1"}));  // beside the door of 5,6 W/K
    EXPECT_TRUE(l.Etsi("cmbSuuntaus").Nakyva());
    EXPECT_EQ(l.Teksti("txtAurinkoenergianlapaisy"), "55");
    l.KayttajaPainaa("cmdKopioiRakenne");
    EXPECT_EQ(l.Teksti("txtNimi"), "Kopio: Kirjaston ikkuna") << "also the copy is shown";
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(Seina().Rakennetyyppi, Rakennelaji::Ikkuna);
  EXPECT_FALSE(Seina().LaskeU_arvoMateriaaleista);
  EXPECT_EQ(Seina().U_arvo(), 1.25);
  EXPECT_EQ(Seina().PintaAla, 150) << "what had been written is kept";
}

TEST_F(Kirjastohaku, PickGoesToTheStructureForWhichItWasAsked) {
  rakennus->Saastotoimenpiteet.Add("t");  // measures lock coming and going, not this
  Muokkaa([this](Ikkunaton& l) {
    l.KayttajaPainaa("cmdHaeKirjastosta");
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    l.KayttajaKirjoittaa("txtRakenneala", "5");
    kirjasto.Valitse(Kirjastoseina());
    EXPECT_EQ(l.Teksti("txtRakenneala"), "5") << "the person is left in peace";
    EXPECT_EQ(l.Etsi("lvwRakenteet").Rivit()[0][0], "Kirjaston seinä");
    EXPECT_EQ(l.Etsi("lvwRakenteet").Indeksi(), 1);
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(Seina().RakenneRatkaisu->Kerrokset.Count(), 1);
  EXPECT_FALSE(Ovi().RakenneRatkaisu);
  EXPECT_EQ(Ovi().PintaAla, 5);
}

TEST_F(Kirjastohaku, AStructureOfAnotherKindBordersOnWhatItsKindDoes) {
  Muokkaa([this](Ikkunaton& l) {
    Rakenneratkaisu ratkaisu = Kirjastoseina();
    const auto valitse = [&](const char* rajoittuu, const char* laji) {
      l.KayttajaValitsee("cmbTyyppi", rajoittuu);
      l.KayttajaPainaa("cmdHaeKirjastosta");
      ratkaisu.Rakennetyyppi = laji;
      kirjasto.Valitse(ratkaisu);
      return l.Etsi("cmbTyyppi").Indeksi();
    };
    EXPECT_EQ(valitse("Puskuritila", "Ulkoseinä"), kPuskuritila) << "of the same kind: what the person chose stays";
    EXPECT_EQ(valitse("Ulkoilma", "Alapohja"), kMaa);
    EXPECT_EQ(valitse("Maa", "Yläpohja"), kUlkoilma);
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(Seina().TyyppiID, kUlkoilma);
  EXPECT_EQ(Seina().TyyppiStr, "Ulkoilma");
}

TEST_F(Kirjastohaku, WordThatIsNotKnownKeepsTheKindAndUnknownUTheValue) {
  Rakenneratkaisu outo;
  outo.Rakennetyyppi = "Holvi";
  outo.U_arvoAnnettu = true;
  Seina().OtaRatkaisu(outo);
  EXPECT_EQ(Seina().Rakennetyyppi, Rakennelaji::Ulkoseina);
  EXPECT_EQ(Seina().U_arvo(), 0.28);
}

TEST_F(Kirjastohaku, LibraryClosesWithItsStructureItsLayersAndTheDialogAndCancelRestores) {
  const auto ennen = tila.Kopioi();
  Muokkaa([this](Ikkunaton& l) {
    const auto hae = [&] {
      l.KayttajaPainaa("cmdHaeKirjastosta");
      EXPECT_TRUE(kirjasto.Auki());
    };
    hae();
    kirjasto.EiVastaa();
    EXPECT_EQ(l.Teksti("lblHaku"), "");
    hae();
    ikkunat.KunNaytetaan("frmRakennekerroksenMuokkaaminen", [](Ikkunaton& k) { k.KayttajaPainaa("cmdPeruuta"); });
    l.KayttajaPainaa("cmdRakKerLisaa");
    EXPECT_FALSE(kirjasto.Auki()) << "a pick would replace the layer under one's hands";
    hae();
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdPoistaRakenne");
    EXPECT_FALSE(kirjasto.Auki());
    hae();
    kirjasto.Valitse(Kirjastoikkuna());
    hae();
    l.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_FALSE(kirjasto.Auki());
  EXPECT_EQ(Muutoksia(tila, *ennen), 0);
  EXPECT_EQ(tila.Rakenteet.Count(), 2);
  EXPECT_FALSE(Seina().RakenneRatkaisu || Ovi().RakenneRatkaisu) << "solutions are outside the comparison";
}

TEST_F(Kirjastohaku, MaterialsOfALayerArePickedExactly) {
  const clsRakennekerros kerros = UusiKerros([this](Ikkunaton& k) {
    k.KayttajaKirjoittaa("txtPaksuus", "150");
    k.KayttajaKirjoittaa("txtPaamateriaalinNimi", "Vil");
    k.KayttajaPainaa("cmdHaePaamateriaali");
    EXPECT_EQ(kirjasto.Alku(), "Vil") << "begins where the person is";
    kirjasto.Valitse(Materiaali{0.0333333f, 30, 0.8f, "Villa"});
    EXPECT_EQ(k.Teksti("txtPaamateriaalinNimi"), "Villa");
    EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "4,50");
    EXPECT_FALSE(k.Etsi("cmdHaeLisamateriaali").Kaytossa());
    k.KayttajaPainaa("chkHomogeeninen");
    k.KayttajaKirjoittaa("txtLisamateriaalinOsuus", "10");
    k.KayttajaPainaa("cmdHaeLisamateriaali");
    kirjasto.Valitse(Materiaali{0.12f, 450, 1.6f, "Puu"});
    EXPECT_NE(k.Teksti("txtKerroksenVastus"), "4,50");
  });
  EXPECT_EQ(kerros.Materiaali, (Materiaali{0.0333333f, 30, 0.8f, "Villa"})) << "not rounded to what is shown";
  EXPECT_EQ(kerros.Lisamateriaali.Nimi, "Puu");
}

// Table of air layers: 10 mm 0,15, 20 mm level 0,17, 50 mm level 0,18.
TEST_F(Kirjastohaku, PickedAirResistsAsAnAirLayerOfItsThickness) {
  const clsRakennekerros kerros = UusiKerros([this](Ikkunaton& k) {
    k.KayttajaPainaa("cmdHaePaamateriaali");
    kirjasto.Valitse(Materiaali{0.025f, 1.23f, 1.008f, "Ilma, liikkumaton"});
    k.KayttajaKirjoittaa("txtPaksuus", "35");
    EXPECT_EQ(k.Teksti("txtLammonvastus"), "0,175");
    k.KayttajaKirjoittaa("txtPaksuus", "200");
    EXPECT_EQ(k.Teksti("txtLammonvastus"), "0,18");
    k.KayttajaKirjoittaa("txtLammonvastus", "0,2");
    k.KayttajaKirjoittaa("txtPaksuus", "15");
    EXPECT_EQ(k.Teksti("txtLammonvastus"), "0,2") << "what the person writes stands";
  });
  EXPECT_EQ(kerros.Lammonvastus, 0.2f);
  const clsRakennekerros eriste = UusiKerros([this](Ikkunaton& k) {
    for (const char* nimi : {"Ilma, liikkumaton", "Villa"}) {
      k.KayttajaPainaa("cmdHaePaamateriaali");
      k.KayttajaKirjoittaa("txtPaksuus", "100");
      kirjasto.Valitse(Materiaali{0.04f, 30, 0.8f, nimi});
    }
    EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "2,50");
  });
  EXPECT_EQ(eriste.Lammonvastus, 0) << "no air any more";
}

}  // namespace
