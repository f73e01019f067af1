// SPDX-License-Identifier: GPL-3.0-or-later
// Dialogs of life-cycle costs and environmental impact, without windows.
#include "lifecycle/Elinkaariehdotukset.h"
#include "lifecycle/Kustannuspuu.h"
#include "lifecycle/clsElinkaari.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tests/measures/Koemuunnelma.h"
#include "ui/Kenttatarkistus.h"

namespace {

class Elinkaariikkunat : public Muunneltava {
 protected:
  Elinkaariikkunat() {
    AsetaTarkistuksenKello(nullptr);
    Asetukset().dblCurrencyConvCoeff = 2;
    Asetukset().strDefaultCurrencyUnit = "kr";
    rakennus->Perustiedot.BruttoAla = 4000;
    rakennus->OtaKirjatuksi();
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { kirjatut.emplace_back(nimi); };
  }
  ~Elinkaariikkunat() override { Asetukset().HaeRekisteristä(); }
  /// Opens the dialog, lets the person act and closes it.
  void Avaa(const char* lomake, void (clsElinkaari::*avaa)(), const Ikkunattomat::Kasikirjoitus& toimi,
            const char* nappi = "cmdOk") {
    ikkunat.KunNaytetaan(lomake, [&](Ikkunaton& l) {
      toimi(l);
      l.KayttajaPainaa(nappi);
    });
    (elinkaari.*avaa)();
  }
  void AvaaKustannukset(const Ikkunattomat::Kasikirjoitus& toimi, const char* nappi = "cmdOk") {
    Avaa("frmKustannukset", &clsElinkaari::NaytaKustannukset, toimi, nappi);
  }
  static void Valitse(Ikkunaton& l, const char* puu, const char* avain) {
    Ohjain& lista = l.Etsi(puu);
    lista.KayttajaValitsee(lista.Lista().Etsi(avain));
  }
  void AnnaOletukset() {
    elinkaari.OletuksetAnnettu = true;
    elinkaari.Pitoaika = 25;
    elinkaari.Korkokanta = 3;
  }

  clsElinkaari& elinkaari = rakennus->Elinkaari;
  std::vector<std::string> kirjatut;
};

TEST_F(Elinkaariikkunat, ACostIsSummedUpAndCommittedByOkAndTakenBackByCancel) {
  const auto syota = [](Ikkunaton& l) {
    Valitse(l, "TreeView1", "L1");
    EXPECT_EQ(l.Teksti("txtYksikoidenMaaraPerustamiskustannukset"), "") << "nothing is invented";
    l.KayttajaKirjoittaa("txtYksikoidenMaaraPerustamiskustannukset", "10");
    l.KayttajaKirjoittaa("txtLaskentayksikkoPerustamiskustannukset", "jm");
    l.KayttajaKirjoittaa("txtYksikkokustannusPerustamiskustannukset", "120,50");
    EXPECT_EQ(l.Teksti("txtKokonaiskustannusPerustamiskustannukset"), "1 205");
    EXPECT_EQ(l.Teksti("txtBruttoalaaPerustamiskustannukset"), "0,30");
    EXPECT_EQ(l.Teksti("txtPerustamisetYht"), "1 205");
    EXPECT_EQ(l.Teksti("lblYksYksikkokustannusPerustamiskustannukset"), "kr/jm");
    EXPECT_EQ(l.Teksti("txtHoidonNykyarvo"), "") << "no defaults are given";
    Valitse(l, "TreeView1", "EV");
    EXPECT_EQ(l.Teksti("txtKokonaiskustannusPerustamiskustannukset"), "1 205");
    EXPECT_EQ(l.Etsi("cmbTyyppiPerustamiskustannukset").Rivit().size(), 2u);
    EXPECT_FALSE(l.Etsi("txtYksikkokustannusPerustamiskustannukset").Kaytossa());
  };
  AvaaKustannukset(syota, "cmdPeruuta");
  EXPECT_EQ(elinkaari.Perustaminen.Count(), 0);
  EXPECT_TRUE(kirjatut.empty());
  AvaaKustannukset(syota);
  EXPECT_EQ(kirjatut, std::vector<std::string>{"Kohteen perustamis- ja hoitokustannukset"});
  EXPECT_DOUBLE_EQ(elinkaari.Perustaminen.Item("L1").Yksikkokustannus, 60.25) << "in euros";
  AvaaKustannukset([](Ikkunaton& l) {
    Valitse(l, "TreeView1", "L1");
    for (const char* kentta : {"txtYksikoidenMaara", "txtLaskentayksikko", "txtYksikkokustannus"})
      l.KayttajaKirjoittaa(std::string(kentta) + "Perustamiskustannukset", "");
  });
  EXPECT_EQ(elinkaari.Perustaminen.Count(), 0) << "an emptied node has no entry";
}

TEST_F(Elinkaariikkunat, AnOverriddenFeeIsMarkedAndTheModelsComesBack) {
  AnnaOletukset();
  AvaaKustannukset([](Ikkunaton& l) {
    l.KayttajaValitsee("cmbJasentelynValinta", "Vuotuiset hoitokustannukset");
    EXPECT_FALSE(l.Etsi("TreeView1").Nakyva());
    EXPECT_TRUE(l.Etsi("fraHoitokustannukset").Nakyva());
    Valitse(l, "TreeView2", "Kulsan");
    const std::string mallin = l.Teksti("txtKokonaiskustannusHoitokustannukset");
    const std::string nykyarvo = l.Teksti("txtHoidonNykyarvo");
    EXPECT_NE(nykyarvo, "");
    l.KayttajaValitsee("cmbTyyppiHoitokustannukset", "Oma arvo");
    l.KayttajaKirjoittaa("txtYksikoidenMaaraHoitokustannukset", "1");
    l.KayttajaKirjoittaa("txtYksikkokustannusHoitokustannukset", "700");
    EXPECT_EQ(l.Teksti("txtKokonaiskustannusHoitokustannukset"), "700");
    const Luettelo& puu = l.Etsi("TreeView2").Lista();
    EXPECT_EQ(puu.Piirteet(puu.Etsi("Kulsan")).merkitys, Merkitys::Huomio);
    EXPECT_NE(l.Teksti("lblMalliHoitokustannukset").find("ohittaa"), std::string::npos);
    EXPECT_NE(l.Teksti("txtHoidonNykyarvo"), nykyarvo);
    l.KayttajaValitsee("cmbTyyppiHoitokustannukset", "Mallista");
    EXPECT_EQ(l.Teksti("txtKokonaiskustannusHoitokustannukset"), mallin);
    EXPECT_EQ(l.Teksti("txtHoidonNykyarvo"), nykyarvo);
  });
}

TEST_F(Elinkaariikkunat, AStructuresAmountFollowsTheModelAndAProposalIsTakenWithItsUnit) {
  const Kustannuspuu puu(*rakennus, Kustannuspuu::Laji::Perustaminen);
  const Kustannuspuu::Solmu& seina = puu.Solmut()[static_cast<std::size_t>(puu.Etsi("US1")->lapset[0])];
  const Elinkaariehdotus ehdotus = LueEhdotukset(Ehdotuslaji::Yksikkohinta).front();
  ikkunat.KunNaytetaan("frmElinkaariehdotukset", [&](Ikkunaton& l) {
    EXPECT_NE(l.Teksti("lblSelite").find("Lähde"), std::string::npos);
    l.KayttajaValitsee("lvwRivit", ehdotus.Nimi);
    l.KayttajaPainaa("cmdOk");
  });
  AvaaKustannukset([&](Ikkunaton& l) {
    Valitse(l, "TreeView1", seina.avain.Teksti().c_str());
    EXPECT_TRUE(l.Etsi("chkMaaraMallistaPerustamiskustannukset").Valittu());
    EXPECT_FALSE(l.Etsi("txtYksikoidenMaaraPerustamiskustannukset").Kaytossa());
    l.KayttajaPainaa("cmdEhdotuksetPerustamiskustannukset");
    EXPECT_EQ("€/" + l.Teksti("txtLaskentayksikkoPerustamiskustannukset"), ehdotus.Yksikko);
  });
  const clsElinkaarisolmu& syote = elinkaari.Perustaminen.Item(seina.avain);
  EXPECT_TRUE(syote.MaaraMallista);
  EXPECT_DOUBLE_EQ(syote.Yksikkokustannus, ehdotus.Arvo);
}

TEST_F(Elinkaariikkunat, DefaultsAreGivenAllOrNone) {
  const auto avaa = [this](const Ikkunattomat::Kasikirjoitus& toimi) {
    Avaa("frmKustannusLaskennanOletusarvot", &clsElinkaari::NaytaOletusarvot, toimi);
  };
  avaa([](Ikkunaton& l) { EXPECT_EQ(l.Teksti("Text1"), "") << "nothing is filled in silently"; });
  EXPECT_FALSE(elinkaari.OletuksetAnnettu);
  ikkunat.KunNaytetaan("frmElinkaariehdotukset", [](Ikkunaton& l) {
    l.KayttajaValitsee("lvwRivit", "Laskentakorko, yritys, tyypillinen");
    l.KayttajaPainaa("cmdOk");
  });
  avaa([this](Ikkunaton& l) {
    l.KayttajaKirjoittaa("Text1", "30");
    l.KayttajaPainaa("cmdEhdotukset");
    EXPECT_EQ(l.Teksti("Text2"), "6,0");
    l.KayttajaKirjoittaa("Text3", "2");
    l.KayttajaKirjoittaa("Text4", "2,5");
    l.KayttajaPainaa("cmdOk");
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(viestit.Esiintymia("Täytä kaikki kentät"), 1);
    l.KayttajaKirjoittaa("Text5", "1x");
    l.KayttajaPainaa("cmdOk");
    EXPECT_TRUE(l.Auki()) << "not a number";
    l.KayttajaKirjoittaa("Text5", "1");
  });
  EXPECT_TRUE(elinkaari.OletuksetAnnettu);
  EXPECT_EQ(elinkaari.Pitoaika, 30);
  EXPECT_DOUBLE_EQ(elinkaari.SahkonHinnannousu, 2.5);
  EXPECT_EQ(kirjatut, std::vector<std::string>{"Elinkaarilaskennnan oletusarvot"});
}

TEST_F(Elinkaariikkunat, ImpactShowsWhatIsKnownAndSampleRowsOnlyUnderTheirHeading) {
  const auto avaa = [this](const Ikkunattomat::Kasikirjoitus& toimi) {
    Avaa("frmElinkaarenYmparistoVaikutukset", &clsElinkaari::NaytaYmparistovaikutukset, toimi);
  };
  AnnaOletukset();
  avaa([](Ikkunaton& l) {
    Valitse(l, "TreeView1", "J");
    EXPECT_EQ(l.Teksti("lblGmatkg1"), "g/kg");
    EXPECT_NE(l.Teksti("txtYhteensaIlmastonLampeneminenCO2ekv"), "");
    EXPECT_FALSE(l.Etsi("lblEsimerkki").Nakyva());
    EXPECT_FALSE(l.Etsi("lvwRaakaaineet").Rivit().empty());
    Valitse(l, "TreeView1", "sah");
    EXPECT_EQ(l.Teksti("lblMJkg1"), "MJ/MWh");
    Valitse(l, "TreeView1", "Vesi");
    EXPECT_EQ(l.Teksti("txtIlmastonLampeneminenCO2ekv"), "");
  });
  elinkaari.OletuksetAnnettu = false;
  rakennus->IVKoneet.Tyhjenna();
  rakennus->Tilat.Tyhjenna();
  avaa([](Ikkunaton& l) {
    EXPECT_TRUE(l.Etsi("lblEsimerkki").Nakyva());
    EXPECT_EQ(l.Etsi("lvwRaakaaineet").Rivit().front()[0], "Puu");
    EXPECT_EQ(l.Etsi("lvwRaakaaineet").Summarivi()[1], "22,8");
  });
  EXPECT_TRUE(kirjatut.empty());
}

TEST_F(Elinkaariikkunat, TheProfileStandsBesideWhatThePersonTypes) {
  const auto sarjoja = [](Ikkunaton& l) { return l.Etsi("Picture2").Kaavio().sarjat.size(); };
  const auto avaa = [this](const Ikkunattomat::Kasikirjoitus& toimi) {
    Avaa("frmEkoprofiili", &clsElinkaari::NaytaEkoprofiili, toimi);
  };
  avaa([&](Ikkunaton& l) {
    EXPECT_EQ(sarjoja(l), 0u) << "no period, no benchmark";
    EXPECT_NE(l.Teksti("lblTiedot"), "");
  });
  AnnaOletukset();
  rakennus->OtaKirjatuksi();
  avaa([&](Ikkunaton& l) {
    EXPECT_EQ(sarjoja(l), 1u);
    l.KayttajaKirjoittaa("txtVertailunNimi", "Raja-arvo");
    l.KayttajaKirjoittaa("txtVertailuEnergia", "12");
    ASSERT_EQ(sarjoja(l), 2u);
    EXPECT_EQ(l.Etsi("Picture2").Kaavio().sarjat[1].arvot, (std::vector<double>{0, 12, 12}));
  });
  EXPECT_DOUBLE_EQ(elinkaari.VertailuEnergia, 12);
  EXPECT_EQ(elinkaari.VertailunNimi, "Raja-arvo");
  EXPECT_EQ(kirjatut, std::vector<std::string>{"Ekoprofiili"});
}

}  // namespace
