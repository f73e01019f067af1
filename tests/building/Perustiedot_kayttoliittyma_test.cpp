// SPDX-License-Identifier: GPL-3.0-or-later
// The basic-data dialog and the heat summary, driven as a person would, without a screen.
#include "kernel/Luvut.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"
#include "ui/frmLampoYhteenveto.h"

namespace {

class DialogiTesti : public RakennusTesti {
 protected:
  DialogiTesti() {
    AsetaTarkistuksenKello(nullptr);
    AlustaPerustiedot(rakennus->Perustiedot);
    AlustaToteutuneetKulutukset(rakennus->Perustiedot.ToteutuneetKulutukset);
  }

  static void TaytaOmakotitalo(Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtKohteenNimi", "Mäkelä");
    lomake.KayttajaKirjoittaa("txtValmistumisVuosi", "1985");
    lomake.KayttajaKirjoittaa("txtKokonaistilavuus", "430,5");
    lomake.KayttajaKirjoittaa("txtBruttoAla", "160");
    lomake.KayttajaValitsee("cmbPaikkakunta", "Kuopio");
    lomake.KayttajaKirjoittaa("txtLammTarveLuku1", "4 789");
    lomake.KayttajaKirjoittaa("txtLampo1", "20,4");
  }
};

TEST_F(DialogiTesti, TheFirstOkMakesTheModel) {
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    EXPECT_EQ(lomake.Otsikko(), "Perustiedot");
    EXPECT_EQ(lomake.Teksti("txtNormVuodenLammTarveLuku"), "4 366") << "of the locality shown at first";
    TaytaOmakotitalo(lomake);
    EXPECT_EQ(lomake.Teksti("txtNormVuodenLammTarveLuku"), "5 068");
    EXPECT_EQ(lomake.Teksti("txtLampoNelioille"), "127,5") << "20 400 kWh over 160 m²";
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  const clsPerustiedot& tiedot = rakennus->Perustiedot;
  EXPECT_EQ(tiedot.KohteenNimi, "Mäkelä");
  EXPECT_EQ(tiedot.Kokonaistilavuus, 430.5);
  EXPECT_EQ(tiedot.LammTarveLukuPaikkakunta, "Kuopio");
  EXPECT_EQ(tiedot.NormVuodenLammTarveLuku, 5068);
  EXPECT_EQ(tiedot.ToteutuneetKulutukset.Item(1).Lampo, 20.4);
  EXPECT_EQ(rakennus->Saa.SaaFileNimi, "SaaVyohyke3.txt");
  ASSERT_EQ(rakennus->Tilat.Count(), 1);
  EXPECT_EQ(rakennus->Tilat.Item(1).Rakenteet.Count(), 7);
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(DialogiTesti, TheFirstModelIsMadeOnlyFromDataThatMakesSense) {
  ikkunat.KunNaytetaan("frmPerustiedot", [this](Ikkunaton& lomake) {
    const auto hylataan = [&](const char* kentta, const char* arvo, const char* hyva) {
      viestit.Tyhjenna();
      lomake.KayttajaKirjoittaa(kentta, arvo);
      lomake.KayttajaPainaa("cmdOk");
      EXPECT_TRUE(lomake.Auki()) << kentta;
      EXPECT_EQ(lomake.Kohdistettu(), kentta);
      EXPECT_EQ(viestit.Naytetyt().size(), 1u) << kentta;
      lomake.KayttajaKirjoittaa(kentta, hyva);
    };
    TaytaOmakotitalo(lomake);
    hylataan("txtValmistumisVuosi", "75", "1985");
    hylataan("txtKokonaistilavuus", "0", "430");
    hylataan("txtBruttoAla", "0", "160");
    hylataan("txtKerrostenLukumaara", "0", "1");
    EXPECT_EQ(viestit.Esiintymia("Kerrosten lukumäärä puuttuu."), 1);
    hylataan("txtPvm", "abc", "1.2.2026");
    EXPECT_EQ(rakennus->Tilat.Count(), 0);
    lomake.KayttajaPainaa("cmdOk");
    EXPECT_FALSE(lomake.Auki());
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  EXPECT_EQ(rakennus->Tilat.Count(), 1);
}

TEST_F(DialogiTesti, AnUneditedModelCanBeMadeAnewAndAnEditedOneCant) {
  LuoKoulu();
  rakennus->ProjektiAsetukset.strCurrentProjectFile = "koulu.lvt";
  const double ala = rakennus->Tilat.Item(1).BruttoAla;
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtBruttoAla", "2100");
    lomake.KayttajaPainaa("cmdLuoMalli");
    EXPECT_FALSE(lomake.Auki());
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  ASSERT_EQ(rakennus->Tilat.Count(), 1);
  EXPECT_EQ(rakennus->Tilat.Item(1).BruttoAla, ala / 2);
  EXPECT_EQ(rakennus->ProjektiAsetukset.strCurrentProjectFile, "koulu.lvt");

  rakennus->SahkoTariffienVertailu.TotHuippuTeho = 55;
  rakennus->ToimenpiteidenJarjestelija.TaulukonNakymaStr = "oma";
  const std::uint64_t ennen = rakennus->Sormenjalki();
  rakennus->MuutosVahvistettu = [](std::string_view) { throw std::runtime_error("levy täynnä"); };
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtBruttoAla", "1000");
    ASSERT_TRUE(lomake.Etsi("cmdLuoMalli").Kaytossa());
    lomake.KayttajaPainaa("cmdLuoMalli");
    EXPECT_TRUE(lomake.Auki());
    lomake.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  EXPECT_EQ(rakennus->Sormenjalki(), ennen) << "the former model is in its place, with all that hangs on it";
  rakennus->MuutosVahvistettu = nullptr;

  rakennus->Tilat.Item(1).Rakenteet.Item(1).PintaAla += 1;
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    EXPECT_FALSE(lomake.Etsi("cmdLuoMalli").Kaytossa());
    lomake.KayttajaPainaa("cmdPeruuta");
  });
  rakennus->Perustiedot.NaytaKayttoliityma();
}

TEST_F(DialogiTesti, YearsOfMeasuredConsumptionFollowTheLastOne) {
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    TaytaOmakotitalo(lomake);
    lomake.KayttajaKirjoittaa("txtKulutusTietojenViimVuosi", "20");
    lomake.KayttajaKirjoittaa("txtKulutusTietojenViimVuosi", "2019");
    EXPECT_EQ(lomake.Teksti("lblVuosi1") + lomake.Teksti("lblVuosi3"), "20192017");
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  EXPECT_EQ(rakennus->Perustiedot.ToteutuneetKulutukset.KulutusTietojenViimVuosi, 2019);
  EXPECT_EQ(rakennus->Perustiedot.ToteutuneetKulutukset.Vuosi(1)->Lampo, 20.4);
}

TEST_F(DialogiTesti, CancelRestoresExactlyAndDropsANewObject) {
  const std::string pvm = rakennus->Perustiedot.Pvm;
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    TaytaOmakotitalo(lomake);
    lomake.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_FALSE(rakennus->Perustiedot.NaytaKayttoliityma()) << "the object never took shape";
  EXPECT_EQ(rakennus->Perustiedot.Kokonaistilavuus, 0) << "stored while typing, restored by Cancel";
  EXPECT_EQ(rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Lampo, 0);
  EXPECT_EQ(rakennus->Perustiedot.Pvm, pvm);
  EXPECT_EQ(rakennus->Tilat.Count(), 0);
}

TEST_F(DialogiTesti, ALaterOkKeepsTheModel) {
  rakennus->Perustiedot.Kokonaistilavuus = 430;
  rakennus->Perustiedot.ValmistumisVuosi = 1985;
  rakennus->Perustiedot.OtaKayttoon(kHelsinki);
  rakennus->Tilat.Item(1).TilanNimi = "Oma";
  rakennus->Tallennettu = true;
  ikkunat.KunNaytetaan("frmPerustiedot", [](Ikkunaton& lomake) {
    lomake.KayttajaValitsee("cmbPaikkakunta", "Tampere");
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  EXPECT_EQ(rakennus->Tilat.Item(1).TilanNimi, "Oma");
  EXPECT_EQ(rakennus->Saa.SaaFileNimi, "SaaVyohyke2.txt");
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(DialogiTesti, AConstantShareAboveTheMeasuredHeatIsRefused) {
  rakennus->Perustiedot.OletusarvotLaskettu = true;
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = 30;
  ikkunat.KunNaytetaan("frmPerustiedot", [this](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtLampo1", "20");
    lomake.KayttajaPainaa("cmdOk");
    EXPECT_TRUE(lomake.Auki());
    EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "error 1041";
    lomake.KayttajaPainaa("cmdPeruuta");
  });
  rakennus->Perustiedot.NaytaKayttoliityma();
  EXPECT_EQ(rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Lampo, 0);
}

TEST_F(DialogiTesti, HeatSummaryShowsTheModelBesideTheMeasuredHeat) {
  LuoKoulu();
  rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Lampo = 800;
  rakennus->NaytaLampoYhteenvetoDlg();
  Ikkunaton& lomake = ikkunat.Ikkuna("frmLampoYhteenveto");
  const double tilat = rakennus->VuotuinenLampoEnergianTarveTilat();
  EXPECT_NEAR(LueLuku(lomake.Teksti("txtTilojenLammitys")).value(), tilat, 0.005);
  EXPECT_NEAR(LueLuku(lomake.Teksti("txtTilojenLammitysNelioille")).value(), tilat / 4200 * 1000, 0.01);
  EXPECT_NEAR(LueLuku(lomake.Teksti("txtHaviot")).value(), rakennus->ToteutunutNormitettuLampo() - tilat, 0.011);
  lomake.KayttajaKirjoittaa("txtMuuLampo", "10");
  lomake.KayttajaPoistuu("txtMuuLampo");
  EXPECT_EQ(rakennus->MuuLampo, 10);
  EXPECT_NEAR(LueLuku(lomake.Teksti("txtYhteensa")).value(), tilat + 10, 0.005);
  EXPECT_FALSE(rakennus->Tilat.VuotuinenLampoEnergianTarveUpToDate());
  lomake.KayttajaPainaa("cmdOk");
  EXPECT_FALSE(lomake.Auki());
}

TEST_F(DialogiTesti, HeatSummaryWarnsOfPoorGroundStructures) {
  LuoKoulu();
  clsRakenne& lattia = rakennus->Tilat.Item(1).Rakenteet.Item(6);
  lattia.LaskeU_arvoMateriaaleista = false;
  lattia.U_arvo(1.2);
  rakennus->NaytaLampoYhteenvetoDlg();
  ASSERT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_EQ(viestit.Naytetyt()[0].kohde,
            Teksti(9220) + " " + lattia.NaytettavaNimi() + " (" + rakennus->Tilat.Item(1).TilanNimi + ")");
}

TEST_F(DialogiTesti, DegreeDaysComeFromTheTableWithTheirSources) {
  rakennus->Perustiedot.ToteutuneetKulutukset.KulutusTietojenViimVuosi = 2021;
  ikkunat.KunNaytetaan("frmPerustiedot", [this](Ikkunaton& lomake) {
    lomake.KayttajaValitsee("cmbPaikkakunta", "Tampere");
    lomake.KayttajaPainaa("cmdHaeTarveluvut");
    EXPECT_EQ(viestit.Esiintymia("Tampere-Pirkkalan lentoasema"), 1);
    EXPECT_EQ(viestit.Esiintymia("2019: ei ole taulukossa"), 1);
    EXPECT_EQ(lomake.Teksti("txtLammTarveLuku2"), "3 501");
    EXPECT_EQ(lomake.Teksti("txtLammTarveLuku3"), "4 444") << "what the table doesn't know stays";
    TaytaOmakotitalo(lomake);
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  EXPECT_EQ(rakennus->Perustiedot.ToteutuneetKulutukset.Item(2).LammTarveLuku, 3501);
}

TEST_F(DialogiTesti, PrefilledDegreeDaysDontGetIntoTheNormalisationInSilence) {
  ikkunat.KunNaytetaan("frmPerustiedot", [this](Ikkunaton& lomake) {
    TaytaOmakotitalo(lomake);
    lomake.KayttajaKirjoittaa("txtLammTarveLuku1", "4444");
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    lomake.KayttajaPainaa("cmdOk");
    EXPECT_EQ(viestit.VastauksiaJaljella(), 0u) << "asked, and back in the form";
    viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(rakennus->Perustiedot.NaytaKayttoliityma());
  EXPECT_EQ(viestit.Esiintymia("on ohjelman esitäyttämä"), 2);
}

}  // namespace
