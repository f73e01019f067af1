// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs of structures and layers, driven as a person would, without a screen.
#include "kernel/Luvut.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"

namespace {

class RakenneDialogi : public RakennusTesti {
 protected:
  RakenneDialogi() : tila(LisaaTila(500, 200)) {
    AsetaTarkistuksenKello(nullptr);
    clsRakenne& seina = LisaaRakenne(tila, Rakennelaji::Ulkoseina, 120.123, 0.28);
    Rakenneratkaisu& ratkaisu = seina.RakenneRatkaisu.Luo();
    ratkaisu.Nimi = "Tiiliseinä";
    ratkaisu.Rakennetyyppi = "Ulkoseinä";
    LisaaKerros(ratkaisu, "Tiili", 130, 0.65f);
    LisaaKerros(ratkaisu, "Mineraalivilla", 150, 0.04f);
    LisaaIkkuna(tila, 12, 2).RakenneRatkaisu->Nimi = "Ikkuna";
    LisaaRakenne(tila, Rakennelaji::Ovi, 4, 1.4);
    rakennus->PaivitaInstanssiIdLista();
  }

  static void LisaaKerros(Rakenneratkaisu& ratkaisu, const char* nimi, float paksuus, float lambda) {
    clsRakennekerros& kerros = ratkaisu.Kerrokset.LisaaKerros();
    kerros.Materiaali.Nimi = nimi;
    kerros.Materiaali.Lambda = lambda;
    kerros.Paksuus = paksuus;
  }

  clsRakenne& Seina() const { return tila.Rakenteet.Item(1); }
  clsRakenne& Ikkuna() const { return tila.Rakenteet.Item(2); }
  Rakenneratkaisu& Ratkaisu() const { return *Seina().RakenneRatkaisu; }

  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmRakenteet", kasikirjoitus);
    return tila.Rakenteet.NaytaKayttoliityma("Sali", 18);
  }
  static const Taulukko& Rakenteet(const Ikkunaton& l) { return l.Etsi("lvwRakenteet").Rivit(); }
  static const Taulukko& Kerrokset(const Ikkunaton& l) { return l.Etsi("lvwKerrokset").Rivit(); }
  static void Ok(Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); }
  static void Peruuta(Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); }

  clsTila& tila;
};

TEST_F(RakenneDialogi, EachStructureShowsItsOwnDataAndKeepsWhatWasWritten) {
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Otsikko(), "Sali: Tilan rakenteet");
    EXPECT_EQ(Rakenteet(l)[0],
              (std::vector<std::string>{"Tiiliseinä", "Ulkoseinä", "120,12", "0,28", "Ulkoilma", "", "33,6", "55,3"}));
    EXPECT_EQ(Rakenteet(l)[2][0], "Ovi") << "without a solution the kind names it";
    EXPECT_EQ(l.Teksti("txtUarvo"), "0,28");
    EXPECT_EQ(l.Teksti("txtPaksuus"), "0") << "not summed before the layers are touched";
    EXPECT_FALSE(l.Etsi("tabRakenne").Osat()[2].kaytossa || l.Etsi("cmbSuuntaus").Nakyva()) << "of windows alone";
    l.KayttajaKirjoittaa("txtNimi", "Uusi seinä");
    l.KayttajaValitsee("cmbTyyppi", "Maa");
    l.KayttajaValitsee("lvwRakenteet", "Ikkuna");
    EXPECT_FALSE(l.Etsi("cmbTyyppi").Kaytossa());
    EXPECT_EQ(l.Teksti("txtNimi"), "Ikkuna") << "the field that was being edited follows";
    EXPECT_EQ(Rakenteet(l)[0][0], "Uusi seinä");
    EXPECT_EQ(Rakenteet(l)[1][5], "Etelä");
    l.KayttajaValitsee("cmbSuuntaus", "Länsi");
    l.KayttajaKirjoittaa("txtVerhokerroin", "60");
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    l.KayttajaKirjoittaa("txtUarvo", "1,25");
    Ok(l);
  }));
  EXPECT_EQ(Ratkaisu().Nimi, "Uusi seinä");
  EXPECT_EQ(Seina().TyyppiID, kMaa);
  EXPECT_EQ(Seina().TyyppiStr, "Maa");
  EXPECT_EQ(Seina().PintaAla, 120.123) << "an untouched field isn't rounded";
  EXPECT_EQ(Ikkuna().SuuntausID, 3);
  EXPECT_EQ(Ikkuna().RakenneRatkaisu->Verhokerroin, 60);
  EXPECT_EQ(tila.Rakenteet.Item(3).U_arvo(), 1.25);
  EXPECT_FALSE(tila.Rakenteet.Item(3).RakenneRatkaisu) << "no solution is made for its own sake";
}

// W/K: wall 120,123 × 0,28, window 12 × 1,8, door 4 × 1,4.
TEST_F(RakenneDialogi, ListTellsConductanceAndShareAndMarksAStructureWithoutUvalue) {
  Muokkaa([](Ikkunaton& l) {
    const Ohjain& lista = l.Etsi("lvwRakenteet");
    const auto haviot = [&](std::size_t rivi) {
      return Rakenteet(l).at(rivi).at(6) + " " + Rakenteet(l).at(rivi).at(7);
    };
    EXPECT_EQ(haviot(1), "21,6 35,5");
    EXPECT_EQ(haviot(2), "5,6 9,2");
    EXPECT_EQ(lista.Summarivi().at(6) + " " + lista.Summarivi().at(7), "60,8 100,0");
    l.KayttajaValitsee("cmbTyyppi", "Huonelämpöinen tila");
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    EXPECT_EQ(haviot(0), "0,0 0,0") << "between warm spaces nothing is conducted";
    EXPECT_EQ(haviot(2), "5,6 20,6") << "the share of each follows";
    EXPECT_EQ(lista.Indeksi(), 2) << "and the choice stays";
    l.KayttajaValitsee("cmbRakennetyyppi", "Ovi");
    EXPECT_EQ(lista.Summarivi().at(7), "20,6") << "the sum is of the rows shown";
    l.KayttajaPainaa("cmdLisaaRakenne");
    EXPECT_EQ(lista.Lista().Piirteet(0).merkitys, Merkitys::Tavallinen);
    EXPECT_EQ(lista.Lista().Piirteet(1).merkitys, Merkitys::Huomio) << "the new one has no U-value yet";
    EXPECT_FALSE(lista.Lista().Piirteet(1).selite.empty());
    l.KayttajaKirjoittaa("txtUarvo", "1,1");
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    EXPECT_EQ(lista.Lista().Piirteet(1).merkitys, Merkitys::Tavallinen);
    Ok(l);
  });
}

TEST_F(RakenneDialogi, ANewStructureWithoutUvalueIsAskedOf) {
  tila.Rakenteet.Item(3).U_arvo(0);  // an old one isn't asked of again
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    l.Etsi("lvwRakenteet").KayttajaLiittaa("Nimi\tRakennetyyppi\nUlko-ovi\tOvi\nLattia\tAlapohja\nSeinä\tUlkoseinä\n");
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    Ok(l);
    ASSERT_TRUE(l.Auki());
    EXPECT_EQ(viestit.Esiintymia("\nUlko-ovi\nSeinä"), 1) << "what is on the ground needs none";
    EXPECT_EQ(l.Teksti("txtNimi") + " " + l.Kohdistettu(), "Ulko-ovi txtUarvo");
    l.KayttajaKirjoittaa("txtUarvo", "1");
    viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
    Ok(l);
    EXPECT_EQ(viestit.Naytetyt().back().teksti.find("Ulko-ovi"), std::string::npos);
  }));
  EXPECT_EQ(tila.Rakenteet.Count(), 6);
}

TEST_F(RakenneDialogi, AColdSpaceOnTheGroundOpensInSilence) {
  LisaaRakenne(tila, Rakennelaji::Alapohja, 100, 0.3).TyyppiID = kMaa;
  ikkunat.KunNaytetaan("frmRakenteet", [](Ikkunaton& l) {
    EXPECT_EQ(Rakenteet(l).at(3).at(7), "---");
    Ok(l);
  });
  tila.Rakenteet.NaytaKayttoliityma("Sali", 2);
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(RakenneDialogi, TypeOfShadingSuggestsAnAngleThatCanBeChanged) {
  Muokkaa([](Ikkunaton& l) {
    l.KayttajaValitsee("lvwRakenteet", "Ikkuna");
    l.KayttajaValitsee("cmbHorisVarjTyyppi", "Tiivis kaupunki");
    EXPECT_EQ(l.Teksti("txtYmparistonVarjostuskulma"), "45");
    l.KayttajaValitsee("cmbSivulipanTyyppi", "Sivulippa");
    EXPECT_EQ(l.Teksti("txtSivulipanVarjostuskulma"), "30");
    l.KayttajaValitsee("cmbSivulipanTyyppi", "Muu");
    EXPECT_EQ(l.Teksti("txtSivulipanVarjostuskulma"), "30") << "other suggests nothing";
    l.KayttajaValitsee("cmbYlalipanTyyppi", "Parveke tai lippa");
    l.KayttajaKirjoittaa("txtYlalipanVarjostuskulma", "52,5");
    Ok(l);
  });
  EXPECT_EQ(Ikkuna().HorisVarjostus.Varjostuskulma, 45);
  EXPECT_EQ(Ikkuna().HorisVarjostus.TyyppiStr, "Tiivis kaupunki");
  EXPECT_EQ(Ikkuna().SivuLippa.TyyppiID, 2);
  EXPECT_EQ(Ikkuna().SivuLippa.Varjostuskulma, 30);
  EXPECT_EQ(Ikkuna().YlaLippa.Varjostuskulma, 52.5);
}

TEST_F(RakenneDialogi, UvalueComesFromTheLayersOrFromTheField) {
  clsRakenne& ovi = tila.Rakenteet.Item(3);
  ovi.U_arvo(1.23456);
  // R = 0,13 + 0,13/0,65 + 0,15/0,04 + 0,04 = 4,12 m²K/W
  Muokkaa([this](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKerrostenUarvo"), "0,243");
    l.KayttajaPainaa("chkLaskeUarvoMateriaaleista");
    EXPECT_EQ(l.Teksti("txtUarvo"), "0,243");
    EXPECT_FALSE(l.Etsi("txtUarvo").Kaytossa());
    EXPECT_TRUE(Seina().LaskeU_arvoMateriaaleista);
    l.KayttajaKirjoittaa("txtPintavastusSisa", "0,5");
    l.KayttajaKirjoittaa("txtPintavastusUlko", "0,5");
    EXPECT_EQ(l.Teksti("txtUarvo"), "0,202") << "1 / 4,95, while it is written";
    l.KayttajaPainaa("chkLaskeUarvoMateriaaleista");
    EXPECT_EQ(Seina().U_arvo(), 0.202) << "what the field shows is the value now";
    l.KayttajaKirjoittaa("txtUarvo", "0,31");
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    l.KayttajaPainaa("chkLaskeUarvoMateriaaleista");
    EXPECT_EQ(l.Teksti("txtKerrostenUarvo"), "---") << "no layers";
    Ok(l);
  });
  EXPECT_FALSE(Seina().LaskeU_arvoMateriaaleista);
  EXPECT_EQ(Seina().U_arvo(), 0.31);
  EXPECT_EQ(ovi.U_arvo(), 1.23456) << "ticking without layers keeps the stored value whole";
}

TEST_F(RakenneDialogi, LayersAreEditedAndTheSumsFollow) {
  ikkunat.KunNaytetaan("frmRakennekerroksenMuokkaaminen", [](Ikkunaton& k) {
    k.KayttajaKirjoittaa("txtPaamateriaalinNimi", "Puukuitulevy");
    k.KayttajaKirjoittaa("txtPaksuus", "25");
    k.KayttajaKirjoittaa("txtPaamateriaalinLambda", "0,05");
    EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "0,50");
    EXPECT_EQ(k.Teksti("txtRakenteenUarvo"), "0,216") << "of the structure with the new layer";
    k.KayttajaPainaa("cmdOk");
  });
  Muokkaa([](Ikkunaton& l) {
    l.KayttajaPainaa("chkLaskeUarvoMateriaaleista");
    EXPECT_EQ(Kerrokset(l)[1], (std::vector<std::string>{"2", "Mineraalivilla", "150", "Kyllä", "2", "Kyllä", "3,75"}));
    EXPECT_FALSE(l.Etsi("cmdRakKerMuokkaa").Kaytossa()) << "no layer is chosen";
    l.KayttajaPainaa("cmdRakKerLisaa");
    ASSERT_EQ(Kerrokset(l).size(), 3u);
    EXPECT_EQ(l.Teksti("txtUarvo"), "0,216") << "1 / (4,12 + 0,5)";
    EXPECT_EQ(l.Teksti("txtPaksuus"), "305");
    EXPECT_FALSE(l.Etsi("txtPaksuus").Kaytossa());
    l.KayttajaPainaa("cmdRakKerSiirraSisaanPain");
    EXPECT_EQ(Kerrokset(l)[1][1], "Puukuitulevy");
    EXPECT_EQ(l.Etsi("lvwKerrokset").Indeksi(), 1) << "the layer stays chosen";
    l.KayttajaPainaa("cmdRakKerKopioi");
    EXPECT_EQ(Kerrokset(l)[2][1], "Puukuitulevy");
    EXPECT_EQ(l.Teksti("txtUarvo"), "0,195");
    Ok(l);
  });
  EXPECT_EQ(Ratkaisu().Kerrokset.Count(), 4);
  EXPECT_EQ(Ratkaisu().Paksuus, 330);
  EXPECT_FALSE(Ratkaisu().Kerrokset.Item(2).sKey == Ratkaisu().Kerrokset.Item(3).sKey);
}

TEST_F(RakenneDialogi, ALayerIsRemovedOnlyAfterAYesAndTheInnermostMovesNoFurther) {
  Muokkaa([this](Ikkunaton& l) {
    l.Etsi("lvwKerrokset").KayttajaValitsee(0);
    EXPECT_FALSE(l.Etsi("cmdRakKerSiirraSisaanPain").Kaytossa());
    l.KayttajaPainaa("cmdRakKerPoista");
    EXPECT_EQ(Kerrokset(l).size(), 2u);
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdRakKerPoista");
    ASSERT_EQ(Kerrokset(l).size(), 1u);
    EXPECT_EQ(Kerrokset(l)[0][1], "Mineraalivilla");
    Peruuta(l);
  });
  EXPECT_EQ(Ratkaisu().Kerrokset.Count(), 2) << "Cancel brings the layer back";
}

TEST_F(RakenneDialogi, ALayerOfTwoMaterialsAndAnAirLayer) {
  ikkunat.KunNaytetaan("frmRakennekerroksenMuokkaaminen", [](Ikkunaton& k) {
    EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "3,75");  // 0,15 / 0,04
    EXPECT_FALSE(k.Etsi("txtLisamateriaalinOsuus").Kaytossa());
    k.KayttajaPainaa("chkHomogeeninen");
    k.KayttajaKirjoittaa("txtLisamateriaalinNimi", "Runko");
    k.KayttajaKirjoittaa("txtLisamateriaalinLambda", "0,12");
    k.KayttajaKirjoittaa("txtLisamateriaalinOsuus", "10");
    EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "3,125");  // 0,15 / (0,9 × 0,04 + 0,1 × 0,12), both limits alike
    k.KayttajaKirjoittaa("txtLisamateriaalinOsuus", "110");
    k.KayttajaPainaa("cmdOk");
    EXPECT_TRUE(k.Auki());
    k.KayttajaKirjoittaa("txtLisamateriaalinOsuus", "10");
    k.KayttajaPainaa("cmdOk");
  });
  Muokkaa([this](Ikkunaton& l) {
    l.Etsi("lvwKerrokset").KayttajaValitsee(1);
    l.KayttajaPainaa("lvwKerrokset");
    EXPECT_EQ(Kerrokset(l)[1][5], "Ei");
    ikkunat.KunNaytetaan("frmRakennekerroksenMuokkaaminen", [](Ikkunaton& k) {
      k.KayttajaKirjoittaa("txtLammonvastus", "0,18");
      EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "0,18");
      k.KayttajaPainaa("chkUArvoon");
      EXPECT_EQ(k.Teksti("txtKerroksenVastus"), "---");
      k.KayttajaPainaa("cmdPeruuta");
    });
    l.Etsi("lvwKerrokset").KayttajaValitsee(0);
    l.KayttajaPainaa("cmdRakKerMuokkaa");
    EXPECT_EQ(Kerrokset(l)[0][3], "Kyllä");
    Ok(l);
  });
  EXPECT_EQ(Ratkaisu().Kerrokset.Item(2).Lisamateriaali.Nimi, "Runko");
  EXPECT_EQ(Ratkaisu().Kerrokset.Item(1).Lammonvastus, 0);
}

// Outdoor design temperature of Helsinki -26 °C; R = 4,12, of which inner surface 0,13.
TEST_F(RakenneDialogi, SectionFollowsLayersSurfacesAndWhatIsBehind) {
  Muokkaa([](Ikkunaton& l) {
    const auto T = [&] { return l.Etsi("chtLampotilat").Kaavio().sarjat.at(2).arvot; };
    ASSERT_EQ(T().size(), 5u);
    EXPECT_EQ(T().front(), 18) << "of the space";
    EXPECT_NEAR(T()[1], 18 - 44 * 0.13 / 4.12, 1e-6);
    EXPECT_EQ(T().back(), -26);
    EXPECT_EQ(l.Etsi("chtLampotilat").Kaavio().otsikko, "Tilan sisälämpötila 18 °C, mitoittava ulkolämpötila -26 °C");
    l.KayttajaKirjoittaa("txtPintavastusSisa", "0,5");
    l.KayttajaKirjoittaa("txtPintavastusUlko", "0,04");
    EXPECT_NEAR(T()[1], 18 - 44 * 0.5 / 4.49, 1e-6) << "while it is written";
    l.KayttajaValitsee("cmbTyyppi", "Huonelämpöinen tila");
    EXPECT_EQ(T().back(), 18);
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    EXPECT_TRUE(T().empty()) << "no layers";
    Ok(l);
  });
}

TEST_F(RakenneDialogi, FilterChoosesTheKindThatIsAdded) {
  Muokkaa([this](Ikkunaton& l) {
    EXPECT_FALSE(l.Etsi("cmdLisaaRakenne").Kaytossa()) << "all kinds are shown";
    l.KayttajaValitsee("cmbRakennetyyppi", "Ikkuna");
    ASSERT_EQ(Rakenteet(l).size(), 1u);
    EXPECT_EQ(l.Teksti("txtNimi"), "Ikkuna");
    EXPECT_EQ(l.Etsi("tabRakenne").Indeksi(), 2) << "shading is what a window has of its own";
    l.KayttajaPainaa("cmdLisaaRakenne");
    EXPECT_EQ(Rakenteet(l).size(), 2u);
    EXPECT_EQ(l.Kohdistettu(), "txtNimi");
    l.KayttajaKirjoittaa("txtRakenneala", "3");
    l.KayttajaPainaa("cmdKopioiRakenne");
    EXPECT_EQ(l.Teksti("txtNimi"), "Kopio: Uusi rakenne");
    l.KayttajaValitsee("cmbRakennetyyppi", "Välipohja");
    EXPECT_EQ(l.Teksti("txtNimi"), "") << "there is none";
    EXPECT_FALSE(l.Etsi("txtNimi").Kaytossa());
    EXPECT_FALSE(l.Etsi("cmdPoistaRakenne").Kaytossa());
    l.KayttajaValitsee("cmbRakennetyyppi", "Ovi");
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdPoistaRakenne");
    viestit.AsetaSeuraavaVastaus(Vastaus::Ei);  // no U-value for the new ones now
    Ok(l);
  });
  ASSERT_EQ(tila.Rakenteet.Count(), 4);
  const clsRakenne& kopio = tila.Rakenteet.Item(4);
  EXPECT_EQ(kopio.Rakennetyyppi, Rakennelaji::Ikkuna);
  EXPECT_EQ(kopio.PintaAla, 3) << "copied with what had just been written";
  EXPECT_TRUE(kopio.RakenneRatkaisu->OnIkkuna);
  EXPECT_EQ(kopio.RakenneRatkaisu->Aurinkoenergianlapaisy, 70);
  EXPECT_EQ(kopio.HorisVarjostus.Varjostuskulma, 15);
  EXPECT_FALSE(kopio.InstanssiId == tila.Rakenteet.Item(3).InstanssiId);
}

TEST_F(RakenneDialogi, AFaultyFieldHoldsTheChosenStructure) {
  Muokkaa([this](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtRakenneala", "sata");
    l.KayttajaValitsee("lvwRakenteet", "Ovi");
    EXPECT_EQ(l.Etsi("lvwRakenteet").Indeksi(), 0);
    EXPECT_EQ(l.Kohdistettu(), "txtRakenneala");
    l.KayttajaValitsee("cmbRakennetyyppi", "Ovi");
    EXPECT_EQ(l.Etsi("cmbRakennetyyppi").Indeksi(), 0);
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_FALSE(viestit.Naytetyt().empty());
    Peruuta(l);
  });
  EXPECT_EQ(Seina().PintaAla, 120.123);
}

TEST_F(RakenneDialogi, MeasuresLockStructuresButNotLayers) {
  Muokkaa([this](Ikkunaton& l) {
    clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("t");
    toimenpide.Nimi = "Lisäeristys";
    toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin = Seina().InstanssiId;
    l.KayttajaPainaa("cmdPoistaRakenne");
    EXPECT_EQ(viestit.Esiintymia("Lisäeristys"), 1) << "the measure is on the structure";
    l.KayttajaValitsee("cmbRakennetyyppi", "Ulkoseinä");
    for (const char* nappi : {"cmdLisaaRakenne", "cmdKopioiRakenne", "cmdPoistaRakenne"})
      EXPECT_FALSE(l.Etsi(nappi).Kaytossa()) << nappi;
    EXPECT_TRUE(l.Etsi("cmdRakKerLisaa").Kaytossa()) << "a measure may add insulation";
    l.Etsi("lvwRakenteet").KayttajaLiittaa("Nimi\tPinta-ala\nSeinä\t5\n");
    EXPECT_EQ(viestit.Naytetyt().size(), 2u);
    EXPECT_EQ(Rakenteet(l).size(), 1u);
    Ok(l);
  });
  EXPECT_EQ(tila.Rakenteet.Count(), 3);
}

TEST_F(RakenneDialogi, RowsOfASpreadsheetBecomeStructures) {
  Muokkaa([](Ikkunaton& l) {
    l.Etsi("lvwRakenteet")
        .KayttajaLiittaa(
            "Suuntaus\tNimi\tRakennetyyppi\tPinta-ala (m²)\tU-arvo (W/m²K)\tHuom\r\n"
            "etelä\tIso ikkuna\tIkkuna\t12,5\t1.4\tx\r\n"
            "\tLattia\tAlapohja\t1 200\t0,36\t\r\n"
            "\tSeinä\tKantavaValiseinä\t\t\t\r\n");
    ASSERT_EQ(Rakenteet(l).size(), 6u);
    EXPECT_EQ(l.Teksti("txtNimi"), "Seinä") << "the last one is chosen";
    Ok(l);
  });
  ASSERT_EQ(tila.Rakenteet.Count(), 6);
  const clsRakenne &ikkuna = tila.Rakenteet.Item(4), &lattia = tila.Rakenteet.Item(5);
  EXPECT_EQ(ikkuna.SuuntausID, 2);
  EXPECT_EQ(ikkuna.PintaAla, 12.5);
  EXPECT_EQ(ikkuna.U_arvo(), 1.4);
  EXPECT_TRUE(ikkuna.RakenneRatkaisu->OnIkkuna);
  EXPECT_EQ(lattia.PintaAla, 1200);
  EXPECT_EQ(lattia.TyyppiID, kMaa) << "a floor borders on the ground unless told otherwise";
  EXPECT_EQ(tila.Rakenteet.Item(6).Rakennetyyppi, Rakennelaji::KantavaValiseina);
}

TEST_F(RakenneDialogi, AFaultInPastedRowsIsToldAndNothingIsAdded) {
  Muokkaa([this](Ikkunaton& l) {
    const auto liita = [&](const char* rivit) { l.Etsi("lvwRakenteet").KayttajaLiittaa(rivit); };
    liita("Nimi\tRakennetyyppi\tPinta-ala\nA\tOvi\t1\nB\tHolvi\tkaksi\nC\t\t-1\n");
    const std::string& kerrottu = viestit.Naytetyt().at(0).teksti;
    for (const char* solu : {"\nRivi 3, Rakennetyyppi: Holvi – ei ole mikään näistä: Ulkoseinä, ",
                             "\nRivi 3, Pinta-ala: kaksi – ei ole luku", "\nRivi 4, Rakennetyyppi: valitse",
                             "\nRivi 4, Pinta-ala: -1 – vähintään 0 m²"})
      EXPECT_NE(kerrottu.find(solu), std::string::npos) << kerrottu;
    liita("Tiiliseinä\tUlkoseinä\t12\n");
    EXPECT_EQ(viestit.Esiintymia("otsikot: Rakennetyyppi, Nimi, Pinta-ala (m²)"), 1);
    EXPECT_EQ(viestit.Naytetyt().size(), 2u);
    EXPECT_EQ(Rakenteet(l).size(), 3u);
    l.KayttajaValitsee("cmbRakennetyyppi", "Ovi");
    liita("Nimi\nUlko-ovi\n");
    EXPECT_EQ(Rakenteet(l).size(), 2u) << "the kind shown is the kind of a row that tells none";
    Peruuta(l);
  });
}

TEST_F(RakenneDialogi, CancelRestoresExactly) {
  const auto ennen = tila.Kopioi();
  EXPECT_FALSE(Muokkaa([this](Ikkunaton& l) {
    l.KayttajaValitsee("cmbRakennetyyppi", "Ikkuna");
    l.KayttajaValitsee("cmbHorisVarjTyyppi", "Tiivis kaupunki");
    l.KayttajaPainaa("cmdKopioiRakenne");
    l.KayttajaValitsee("cmbRakennetyyppi", "Ulkoseinä");
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdPoistaRakenne");
    Peruuta(l);
  }));
  ASSERT_EQ(tila.Rakenteet.Count(), 3);
  EXPECT_EQ(Muutoksia(tila, *ennen), 0);
  EXPECT_EQ(Ratkaisu().Kerrokset.Count(), 2);
}

TEST_F(RakenneDialogi, DialogOfAnEmptySpaceAndOfOneKind) {
  tila.Rakenteet.Tyhjenna();
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtUarvo"), "");
    EXPECT_FALSE(l.Etsi("txtUarvo").Kaytossa());
    Ok(l);
  }));
  ikkunat.KunNaytetaan("frmRakenteet", [](Ikkunaton& l) {
    l.KayttajaPainaa("cmdLisaaRakenne");
    l.KayttajaKirjoittaa("txtUarvo", "0,15");
    Ok(l);
  });
  EXPECT_TRUE(tila.Rakenteet.NaytaRakenteetKayttoliittyma(Rakennelaji::Ylapohja));
  EXPECT_EQ(tila.Rakenteet.Item(1).Rakennetyyppi, Rakennelaji::Ylapohja);
}

}  // namespace
