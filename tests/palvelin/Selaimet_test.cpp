// SPDX-License-Identifier: GPL-3.0-or-later
// The library's windows, without a screen, on copies of the shipped databases.
#include <gtest/gtest.h>

#include <fstream>

#include "library/Kirjastoluettelo.h"
#include "library/server/Materiaaliselain.h"
#include "library/server/Rakenneselain.h"
#include "tests/palvelin/Koekirjasto.h"
#include "tests/tuki/Koeviestit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ui/Ikkunaton.h"

namespace fs = std::filesystem;

namespace {

class Selaimet : public testing::Test {
 protected:
  void AvaaRakenteet(bool valinta = false, const std::string& alku = {}, int vuosi = 0) {
    selain_ = std::make_unique<Rakenneselain>(
        Selaimenavaus{{koe_.Oma(), koe_.Vakio()}, valinta, alku, [this] { ++sulkemisia_; }, vuosi},
        [this](const Rakenneratkaisu& r) { valitut_.push_back(r.Nimi); });
    selain_->Nayta();
  }
  void AvaaMateriaalit() {
    selain_ = std::make_unique<Materiaaliselain>(
        Selaimenavaus{{koe_.Oma(), koe_.Vakio()}, false, {}, [this] { ++sulkemisia_; }},
        [this](const Materiaali& m) { valitut_.push_back(m.Nimi); });
    selain_->Nayta();
  }
  Ikkunaton& Ikkuna(const char* nimi = "frmRakennekirjasto") { return ikkunattomat_.Ikkuna(nimi); }
  Ikkunaton& Muokkain() { return ikkunattomat_.Ikkuna("frmKirjastorakenne"); }
  std::size_t Riveja() { return Ikkuna().Etsi("lvwRakenteet").Rivit().size(); }
  std::vector<Kirjastorakenne> Omat() { return LueRakenteet(koe_.Oma(), Kirjasto::Oma); }
  /// An own copy of a standard wall of two layers or more, open for editing.
  void MuokkaaKopiota() {
    AvaaRakenteet();
    Ikkuna().KayttajaKirjoittaa("txtHaku", "betonisandwich");
    Ikkuna().KayttajaPainaa("cmdKopioi");
    Ikkuna().KayttajaValitsee("cmbKirjasto", "Oma kirjasto");
    Ikkuna().KayttajaKirjoittaa("txtHaku", "");
    Ikkuna().KayttajaPainaa("cmdMuokkaa");
  }

  Koekirjasto koe_;
  Koeviestit viestit_;
  Ikkunattomat ikkunattomat_{Lahdekoodi("ui/forms")};
  std::vector<std::string> valitut_;
  int sulkemisia_ = 0;
  std::unique_ptr<Selain> selain_;
};

TEST_F(Selaimet, ConditionsNarrowTheListAndTheChosenOneShowsItsSourceAndFigures) {
  AvaaRakenteet();
  const std::size_t kaikki = Riveja();
  EXPECT_GT(kaikki, 50U);
  Ikkuna().KayttajaValitsee("cmbRakennetyyppi", "Ulkoseinä");
  Ikkuna().KayttajaKirjoittaa("txtUenintaan", "0,3");
  const std::size_t seinia = Riveja();
  EXPECT_LT(seinia, kaikki);
  ASSERT_GT(seinia, 0U);
  for (const auto& rivi : Ikkuna().Etsi("lvwRakenteet").Rivit()) EXPECT_EQ(rivi[3], "Ulkoseinä");
  EXPECT_NE(Ikkuna().Teksti("lblLahde").find("Lähde: "), std::string::npos);
  EXPECT_GT(Ikkuna().Teksti("lblLahde").size(), std::string("Lähde: ").size());
  EXPECT_EQ(Ikkuna().Etsi("chtLampotilat").Kaavio().otsikko.find("U-arvo 0,"), 0U);
  Ikkuna().KayttajaKirjoittaa("txtUenintaan", "0,0");
  EXPECT_EQ(Riveja(), 0U);
  EXPECT_FALSE(Ikkuna().Etsi("cmdKopioi").Kaytossa());
}

TEST_F(Selaimet, OpensAtTheStructuresOfTheBuildingsYear) {
  AvaaRakenteet(true, "Ulkoseinä", 1983);
  EXPECT_EQ(Ikkuna().Etsi("lvwRakenteet").Rivit()[static_cast<std::size_t>(Ikkuna().Etsi("lvwRakenteet").Indeksi())][2],
            "1979–1984");
  AvaaRakenteet(true, "KantavaValiseinä", 1983);
  EXPECT_EQ(Ikkuna().Etsi("lvwRakenteet").Indeksi(), 0) << "one of all times, where there is no other";
  AvaaRakenteet(true, "Ulkoseinä", 2020);
  EXPECT_EQ(Ikkuna().Etsi("lvwRakenteet").Rivit()[static_cast<std::size_t>(Ikkuna().Etsi("lvwRakenteet").Indeksi())][2],
            "2013–");
}

TEST_F(Selaimet, StandardEntriesArePickedAndCopiedButNeverEdited) {
  AvaaRakenteet(true, "Ovi");
  EXPECT_FALSE(Ikkuna().Etsi("cmdMuokkaa").Kaytossa());
  EXPECT_FALSE(Ikkuna().Etsi("cmdPoista").Kaytossa());
  const std::string ovi = Ikkuna().Teksti("lblNimi");
  Ikkuna().KayttajaHyvaksyy();
  EXPECT_EQ(valitut_, std::vector<std::string>{ovi});
  EXPECT_EQ(sulkemisia_, 1);
}

TEST_F(Selaimet, EachEditIsStoredAtOnceAndTheListFollows) {
  MuokkaaKopiota();
  const double ennen = *Omat().front().Ratkaisu.LaskeU_arvo();
  Muokkain().KayttajaKirjoittaa("txtNimi", "Oma sandwich");
  EXPECT_EQ(Omat().front().Ratkaisu.Nimi, "Oma sandwich");
  EXPECT_EQ(Muokkain().Teksti("lblTila"), "Tallennettu");
  Muokkain().KayttajaValitsee("lvwKerrokset", "2");
  Muokkain().KayttajaKirjoittaa("txtKerroksenPaksuus", "200");
  EXPECT_LT(*Omat().front().Ratkaisu.LaskeU_arvo(), ennen);
  Muokkain().KayttajaPainaa("cmdSisaanpain");
  EXPECT_EQ(Omat().front().Ratkaisu.Kerrokset.Item(1).Paksuus, 200);
  Muokkain().KayttajaPainaa("cmdKopioiKerros");
  EXPECT_EQ(Omat().front().Ratkaisu.Kerrokset.Count(), 4);
  EXPECT_EQ(Muokkain().Teksti("txtPaksuus"), "610");  // 150 + 200 + 60 + 200
  EXPECT_EQ(Ikkuna().Etsi("lvwRakenteet").Rivit().front()[0], "Oma sandwich");
}

TEST_F(Selaimet, FieldThatHoldsNoNumberLeavesTheStoredFigure) {
  MuokkaaKopiota();
  const float ennen = Omat().front().Ratkaisu.PintavastusSisa;
  Muokkain().KayttajaKirjoittaa("txtPintavastusSisa", "-1");
  EXPECT_EQ(Omat().front().Ratkaisu.PintavastusSisa, ennen);
  Muokkain().KayttajaKirjoittaa("txtPintavastusSisa", "x");
  Muokkain().KayttajaPoistuu("txtPintavastusSisa");
  EXPECT_EQ(viestit_.Naytetyt().size(), 1U);
  EXPECT_EQ(Omat().front().Ratkaisu.PintavastusSisa, ennen);
  Muokkain().KayttajaKirjoittaa("txtNimi", "");
  EXPECT_FALSE(Omat().front().Ratkaisu.Nimi.empty());
}

TEST_F(Selaimet, LockedDatabaseKeepsTheEditUntilItIsFree) {
  MuokkaaKopiota();
  {
    Tietokanta toinen(koe_.Oma(), Tietokanta::Tapa::Kirjoitus);
    const Transaktio varaus(toinen);
    Muokkain().KayttajaKirjoittaa("txtNimi", "Odottava");
    EXPECT_NE(Muokkain().Teksti("lblTila").find("toinen ohjelma varaa tiedostoa"), std::string::npos);
    EXPECT_FALSE(selain_->Yrita());
    viestit_.AsetaSeuraavaVastaus(Vastaus::Ei);  // not to be thrown away
    Muokkain().KayttajaPainaa("cmdSulje");
    EXPECT_TRUE(Muokkain().Auki());
    viestit_.AsetaSeuraavaVastaus(Vastaus::Ei);
    Ikkuna().KayttajaPainaa("cmdPeruuta");
    EXPECT_EQ(sulkemisia_, 0);
  }
  EXPECT_TRUE(selain_->Yrita());
  EXPECT_EQ(Omat().front().Ratkaisu.Nimi, "Odottava");
}

TEST_F(Selaimet, EntryRemovedElsewhereIsOfferedToBeStoredAnew) {
  MuokkaaKopiota();
  Kayttajankirjasto(koe_.Oma(), koe_.Vakio()).PoistaRakenne(Omat().front().Id);
  viestit_.AsetaSeuraavaVastaus(Vastaus::Kylla);
  Muokkain().KayttajaKirjoittaa("txtNimi", "Palautettu");
  ASSERT_EQ(Omat().size(), 1U);
  EXPECT_EQ(Omat().front().Ratkaisu.Nimi, "Palautettu");

  Kayttajankirjasto(koe_.Oma(), koe_.Vakio()).PoistaRakenne(Omat().front().Id);
  viestit_.AsetaSeuraavaVastaus(Vastaus::Ei);
  Muokkain().KayttajaKirjoittaa("txtKuvaus", "x");
  EXPECT_FALSE(Muokkain().Auki());
  EXPECT_TRUE(Omat().empty());

  Ikkuna().KayttajaPainaa("cmdMuokkaa");  // the list still shows it
  EXPECT_EQ(viestit_.Esiintymia("on jo poistettu kirjastosta"), 1);
  EXPECT_EQ(Riveja(), 0U);
}

TEST_F(Selaimet, EditedMaterialReachesTheStructureThatIsOpen) {
  MuokkaaKopiota();
  const double ennen = *Omat().front().Ratkaisu.LaskeU_arvo();
  const auto rakenteet = std::move(selain_);
  AvaaMateriaalit();
  Ikkuna("frmMateriaalikirjasto").KayttajaValitsee("cmbKirjasto", "Oma kirjasto");
  Ikkuna("frmMateriaalikirjasto").KayttajaKirjoittaa("txtHaku", "mineraalivilla");
  Ikkuna("frmMateriaalikirjasto").KayttajaPainaa("cmdMuokkaa");
  ikkunattomat_.Ikkuna("frmKirjastomateriaali").KayttajaKirjoittaa("txtLambda", "0,020");
  EXPECT_LT(*Omat().front().Ratkaisu.LaskeU_arvo(), ennen);
  Muokkain().KayttajaKirjoittaa("txtNimi", "Sama rakenne");  // mustn't bring the old figures back
  EXPECT_LT(*Omat().front().Ratkaisu.LaskeU_arvo(), ennen);
  Ikkuna("frmMateriaalikirjasto").KayttajaPainaa("cmdPoista");
  EXPECT_EQ(viestit_.Esiintymia("Sama rakenne"), 1) << "a material in use stays";
}

TEST_F(Selaimet, OwnDatabaseThatCannotBeReadLeavesTheStandardOne) {
  for (const bool puuttuu : {true, false}) {
    fs::remove(koe_.Oma());
    if (!puuttuu) std::ofstream(koe_.Oma()) << "tämä ei ole tietokanta vaan jotain aivan muuta tekstiä";
    viestit_.Tyhjenna();
    AvaaRakenteet(true);
    EXPECT_EQ(viestit_.Esiintymia("Omaa rakennekirjastoa ei voi lukea"), 1);
    EXPECT_GT(Riveja(), 50U);
    EXPECT_FALSE(Ikkuna().Etsi("cmdUusi").Kaytossa());
    EXPECT_FALSE(Ikkuna().Etsi("cmdKopioi").Kaytossa());
    Ikkuna().KayttajaPainaa("cmdOk");
  }
  EXPECT_EQ(valitut_.size(), 2U);
}

TEST_F(Selaimet, OwnLibraryGoesToAFileAndComesBack) {
  MuokkaaKopiota();
  viestit_.AsetaSeuraavaTiedosto(koe_.Tiedosto("vienti.mdb"));
  Ikkuna().KayttajaPainaa("cmdVie");
  viestit_.AsetaSeuraavaVastaus(Vastaus::Kylla);
  Ikkuna().Etsi("lvwRakenteet").KayttajaPoistaa();
  EXPECT_TRUE(Omat().empty()) << "Delete is the button";
  viestit_.AsetaSeuraavaTiedosto(koe_.Tiedosto("vienti.mdb"));
  Ikkuna().KayttajaPainaa("cmdTuo");
  EXPECT_EQ(Omat().size(), 1U);
  viestit_.AsetaSeuraavaTiedosto(koe_.Tiedosto("StrVarasto.mdb"));
  Ikkuna().KayttajaPainaa("cmdTuo");
  EXPECT_EQ(viestit_.Esiintymia("tuonti epäonnistui"), 1);
  EXPECT_EQ(Omat().size(), 1U);
}

}  // namespace
