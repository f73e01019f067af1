// SPDX-License-Identifier: GPL-3.0-or-later
// The comparison of electricity tariffs, without windows.
#include "kernel/Paivamaara.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Lomakekaannos.h"

namespace {

using Rivit = Taulukko;

class TariffivertailunIkkuna : public RakennusTesti {
 protected:
  TariffivertailunIkkuna() {
    AsetaTarkistuksenKello(nullptr);
    Asetukset().dblCurrencyConvCoeff = 2;
    Asetukset().dblSahkoALV = 25;
    vertailu.KaytaVertailussaALVHintoja = false;
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { kirjatut.emplace_back(nimi); };
  }
  ~TariffivertailunIkkuna() override { Asetukset().HaeRekisteristä(); }

  /// Two sales tariffs and one of transfer. Of 250 MWh, 50 kW and 25 kVAr they make 20 120, 25 000 and 3 100 €.
  void LisaaTariffit() {
    LisaaTariffi(clsTariffi::SahkoMyyntiTariffi, "Halpa", 80).Perusmaksu = 120;
    LisaaTariffi(clsTariffi::SahkoMyyntiTariffi, "Kallis", 100);
    clsTariffi& siirto = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi, "Verkko", 8);
    siirto.Tehomaksu = 20;
    siirto.Loistehomaksu = 4;
    siirto.Energiavero = 0;
    LisaaTariffi(clsTariffi::LampoTariffi, "Kaukolämpö", 60);
    rakennus->OtaKirjatuksi();
  }
  clsTariffi& LisaaTariffi(clsTariffi::Laji laji, const std::string& nimi, double hinta) {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Nimi = nimi;
    tariffi.Maksu(1).Hinta = hinta;
    tariffi.Maksu(1).Kulutusosuus = 100;
    return tariffi;
  }
  Ikkunaton& Avaa() {
    vertailu.NaytaKayttoliittyma();
    return ikkunat.Ikkuna("frmSahkotariffiVertailu");
  }
  void Talleta(Ikkunaton& l, const std::string& myynti, const std::string& nimi) {
    l.KayttajaValitsee("cmbMyyntiTariffit", myynti);
    ikkunat.KunNaytetaan("frmVertailunKuvausDialogi", [nimi](Ikkunaton& kuvaus) {
      kuvaus.KayttajaKirjoittaa("txtNimi", nimi);
      kuvaus.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdTalletaYhdistelma");
  }
  static const Rivit& Yhdistelmat(const Ikkunaton& l) { return l.Etsi("lvwYhdistelmat").Rivit(); }
  static std::string Kustannukset(const Ikkunaton& l) {
    const auto& summa = l.Etsi("lvwKustannukset").Summarivi();
    return summa[1] + " + " + summa[2] + " = " + summa[3];
  }

  clsSahkoTariffienVertailu& vertailu = rakennus->SahkoTariffienVertailu;
  std::vector<std::string> kirjatut;
};

TEST_F(TariffivertailunIkkuna, WithoutTariffsItTellsWhatToDo) {
  Ikkunaton& l = Avaa();
  EXPECT_NE(l.Teksti("lblOhje").find("Lisää niitä"), std::string::npos);
  EXPECT_EQ(l.Etsi("cmbMyyntiTariffit").Rivit(), (Rivit{{"Ei tariffia"}}));
  EXPECT_FALSE(l.Etsi("cmdTalletaYhdistelma").Kaytossa());
  EXPECT_FALSE(l.Etsi("cmdTalletaYhdistelma").Vihje().empty());
  EXPECT_FALSE(l.Etsi("cmdOtaVertailuun").Kaytossa());
  EXPECT_EQ(Kustannukset(l), "0 + 0 = 0");
  l.KayttajaPainaa("cmdVieTaulukko2een");
  EXPECT_EQ(viestit.Esiintymia("Yhdistelmää ei ole valittu"), 1);
  EXPECT_TRUE(kirjatut.empty());

  ikkunat.KunNaytetaan("frmSahkotariffi", [](Ikkunaton& tariffit) {
    tariffit.KayttajaPainaa("cmdLisaa");
    tariffit.KayttajaKirjoittaa("TxtNimi", "Uusi myynti");
    tariffit.KayttajaKirjoittaa("txtEnergiamaksuHinta1", "100");
    tariffit.KayttajaKirjoittaa("txtKulutusosuus1", "100");
    tariffit.KayttajaPainaa("cmdOk");
  });
  l.KayttajaPainaa("cmdMyyntiTariffit");
  EXPECT_EQ(l.Etsi("cmbMyyntiTariffit").Indeksi(), 1) << "the tariff that was chosen there";
  EXPECT_FALSE(l.Etsi("lblOhje").Nakyva());
  EXPECT_TRUE(l.Etsi("cmdTalletaYhdistelma").Kaytossa());
}

TEST_F(TariffivertailunIkkuna, CostsFollowTheTypingAndAFieldIsCommittedWhenItIsLeft) {
  LisaaTariffit();
  clsEnergiamuoto& sahko = rakennus->Perustiedot.SahkonHankinta.LisaaMuoto();
  for (const clsTariffi& tariffi : rakennus->Tariffit)
    if (tariffi.Nimi == "Kallis") sahko.MyyntiTariffiSkey = tariffi.sKey;
  Ikkunaton& l = Avaa();
  EXPECT_EQ(l.Etsi("cmbMyyntiTariffit").Rivit(), (Rivit{{"Ei tariffia"}, {"Halpa"}, {"Kallis"}}));
  EXPECT_EQ(l.Etsi("cmbMyyntiTariffit").Indeksi(), 2) << "the one by which the building buys";
  EXPECT_EQ(l.Etsi("cmbSiirtoTariffit").Indeksi(), 1);
  EXPECT_EQ(Kustannukset(l), "50 000 + 6 200 = 56 200");
  EXPECT_EQ(l.Teksti("txtOmSahkoEnergia") + ", " + l.Teksti("txtOmSahkoTeho"), "250,00, 50,00");
  EXPECT_EQ(l.Etsi("lvwKustannukset").Rivit(), (Rivit{{"Perusmaksu:", "0", "0", "0"},
                                                      {"Tehomaksu:", "0", "2 000", "2 000"},
                                                      {"Loistehomaksu:", "0", "200", "200"},
                                                      {"Energiamaksut:", "50 000", "4 000", "54 000"},
                                                      {"Sähkövero:", "0", "0", "0"},
                                                      {"Muut maksut:", "0", "0", "0"}}));
  l.KayttajaKirjoittaa("txtTotHuippuTeho", "");
  l.KayttajaKirjoittaa("txtTotHuippuTeho", "100");
  EXPECT_EQ(Kustannukset(l), "50 000 + 8 200 = 58 200");
  EXPECT_EQ(l.Teksti("txtOmSahkoTeho"), "100,00");
  EXPECT_EQ(vertailu.TotHuippuTeho, 50);
  l.KayttajaPoistuu("txtTotHuippuTeho");
  EXPECT_EQ(vertailu.TotHuippuTeho, 100);
  EXPECT_EQ(vertailu.BruttoAla, 1000);
  l.KayttajaPainaa("chkALV");
  EXPECT_EQ(Kustannukset(l), "62 500 + 10 250 = 72 750");
  l.KayttajaValitsee("cmbMyyntiTariffit", "Ei tariffia");
  EXPECT_EQ(Kustannukset(l), "0 + 10 250 = 10 250");
  EXPECT_EQ(kirjatut, std::vector<std::string>(2, "Tariffivertailun lähtötiedot"));

  // A field that isn't good stays, and keeps the window open.
  l.KayttajaKirjoittaa("txtTotEnergia", "-1");
  l.KayttajaPainaa("cmdSulje");
  EXPECT_TRUE(l.Auki());
  EXPECT_EQ(vertailu.TotEnergia, 250);
  l.KayttajaKirjoittaa("txtTotEnergia", "300");
  l.KayttajaPainaa("cmdSulje");
  EXPECT_FALSE(l.Auki());
  EXPECT_EQ(vertailu.TotEnergia, 300);

  rakennus->Tariffit.Tyhjenna();
  Asetukset().dblCurrencyConvCoeff = 1;
  Avaa();
  EXPECT_EQ(Kustannukset(l), "0 + 0 = 0");
}

TEST_F(TariffivertailunIkkuna, ACombinationIsSavedEditedAndRemoved) {
  LisaaTariffit();
  vertailu.KaytaVertailussaALVHintoja = true;
  rakennus->OtaKirjatuksi();
  Ikkunaton& l = Avaa();
  ikkunat.KunNaytetaan("frmVertailunKuvausDialogi", [](Ikkunaton& kuvaus) {
    EXPECT_EQ(kuvaus.Teksti("txtNimi"), "Halpa. Verkko. ALV 25 %");
    kuvaus.KayttajaPainaa("cmdPeruuta");
  });
  l.KayttajaPainaa("cmdTalletaYhdistelma");
  EXPECT_EQ(vertailu.Tapaukset.Count(), 0);
  ikkunat.KunNaytetaan("frmVertailunKuvausDialogi", [this](Ikkunaton& kuvaus) {
    kuvaus.KayttajaKirjoittaa("txtNimi", " ");
    kuvaus.KayttajaPainaa("cmdOk");
    EXPECT_EQ(viestit.Esiintymia("Kirjoita yhdistelmälle nimi"), 1);
    kuvaus.KayttajaKirjoittaa("txtNimi", "Kilpailutettu");
    kuvaus.KayttajaKirjoittaa("txtInvestointi", "1000");
    kuvaus.KayttajaPainaa("cmdOk");
  });
  l.KayttajaPainaa("cmdTalletaYhdistelma");
  ASSERT_EQ(vertailu.Tapaukset.Count(), 1);
  clsTariffiVertailuTapaus& tapaus = vertailu.Tapaukset.Item(1);
  EXPECT_EQ(tapaus.Investointi, 1000 / 2.5) << "without the currency and the VAT";
  EXPECT_EQ(tapaus.TotHuippuTeho, 50);
  EXPECT_EQ(tapaus.ToimenpiteenPaivays, TamaPaiva());
  EXPECT_EQ(Yhdistelmat(l),
            (Rivit{{"Kilpailutettu", "Halpa", "50 300", "Verkko", "7 750", "58 050", "1 000", "250,0", ""}}));

  ikkunat.KunNaytetaan("frmVertailunKuvausDialogi", [](Ikkunaton& kuvaus) {
    EXPECT_EQ(kuvaus.Teksti("txtInvestointi"), "1 000");
    kuvaus.KayttajaKirjoittaa("txtKuvaus", "tarjous");
    kuvaus.KayttajaPainaa("cmdOk");
  });
  l.KayttajaPainaa("cmdMuokkaa");
  EXPECT_EQ(Yhdistelmat(l)[0].back(), "tarjous");
  ikkunat.KunNaytetaan("frmVertailunKuvausDialogi", [](Ikkunaton& kuvaus) { kuvaus.KayttajaPainaa("cmdOk"); });
  l.KayttajaPainaa("cmdMuokkaa");
  EXPECT_EQ(kirjatut, (std::vector<std::string>{"Tariffiyhdistelmän tallennus", "Tariffiyhdistelmän tiedot"}))
      << "an OK that changes nothing is no step";

  // The case's own figures come back to the fields.
  l.KayttajaValitsee("cmbMyyntiTariffit", "Kallis");
  l.KayttajaKirjoittaa("txtTotEnergia", "10");
  l.KayttajaPoistuu("txtTotEnergia");
  EXPECT_EQ(tapaus.TotEnergia, 250);
  l.KayttajaPainaa("cmdOtaVertailuun");
  EXPECT_EQ(l.Teksti("txtTotEnergia"), "250");
  EXPECT_EQ(vertailu.TotEnergia, 250);
  EXPECT_EQ(Kustannukset(l), "50 300 + 7 750 = 58 050");

  rakennus->MuutosVahvistettu = [](std::string_view) { throw std::runtime_error("levy täynnä"); };
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  l.KayttajaPainaa("cmdPoista");
  EXPECT_EQ(Yhdistelmat(l).size(), 1u) << "what couldn't be committed is as it was";
  rakennus->MuutosVahvistettu = nullptr;
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  l.KayttajaPainaa("cmdPoista");
  EXPECT_TRUE(Yhdistelmat(l).empty());
}

TEST_F(TariffivertailunIkkuna, TheCheapestAndTheDearestAreMarkedAndARemovedTariffIsTold) {
  LisaaTariffit();
  Ikkunaton& l = Avaa();
  const auto piirteet = [&](int rivi) { return l.Etsi("lvwYhdistelmat").Lista().Piirteet(rivi); };
  Talleta(l, "Kallis", "Kallis");
  EXPECT_EQ(piirteet(0), Rivipiirteet()) << "alone it is neither";
  Talleta(l, "Halpa", "Halpa");
  EXPECT_EQ(piirteet(0).merkitys, Merkitys::Huomio);
  EXPECT_TRUE(piirteet(1).lihava);
  EXPECT_NE(l.Teksti("lblHalvinJaKallein").find("Ero 9 760"), std::string::npos) << l.Teksti("lblHalvinJaKallein");
  EXPECT_FALSE(l.Etsi("lblOhje").Nakyva());
  l.KayttajaKirjoittaa("txtTotEnergia", "1");
  l.KayttajaPoistuu("txtTotEnergia");
  Talleta(l, "Halpa", "Pieni");
  EXPECT_NE(l.Teksti("lblOhje").find("vertailukelpoisia"), std::string::npos);

  rakennus->Tariffit.Remove(vertailu.Tapaukset.Item(2).MyyntiTariffiSkey);
  rakennus->Muuttui("Tariffit");
  EXPECT_EQ(Yhdistelmat(l)[1][1], "Tariffia ei löydy");
  EXPECT_EQ(Yhdistelmat(l)[1][5], "---");
  EXPECT_EQ(Yhdistelmat(l)[0][5], "56 200");
  EXPECT_EQ(l.Teksti("lblHalvinJaKallein"), "");
  EXPECT_EQ(l.Etsi("cmbMyyntiTariffit").Indeksi(), 0) << "the chosen tariff is gone";
}

TEST_F(TariffivertailunIkkuna, ACaseGoesToTheArrangerAgainstAnother) {
  LisaaTariffit();
  Ikkunaton& l = Avaa();
  Talleta(l, "Kallis", "Nykyinen");
  Talleta(l, "Halpa", "Uusi");
  vertailu.Tapaukset.Item(2).Investointi = 2440;
  kirjatut.clear();
  const auto vie = [&](const char* kohta) {
    ikkunat.KunNaytetaan("frmTariffiToimPitPeruste", [=, this](Ikkunaton& peruste) {
      EXPECT_EQ(peruste.Etsi("lstTehdytTariffivertailut").Rivit(), (Rivit{{"Nykyinen", "56 200"}, {"Uusi", "46 440"}}));
      EXPECT_EQ(peruste.Etsi("lstTehdytTariffivertailut").Indeksi(), 0) << "the dearest is proposed";
      EXPECT_NE(peruste.Teksti("lblSaasto").find("9 760"), std::string::npos);
      EXPECT_NE(peruste.Teksti("lblSaasto").find("0,5 a"), std::string::npos);
      peruste.KayttajaValitsee("lstTehdytTariffivertailut", kohta);
      peruste.KayttajaPainaa("cmdOk");
      if (peruste.Auki()) peruste.KayttajaPainaa("cmdPeruuta");
    });
    l.KayttajaValitsee("lvwYhdistelmat", "Uusi");
    l.KayttajaPainaa("cmdVieTaulukko2een");
  };
  const clsValitutToimenpiteet& rivit = rakennus->ToimenpiteidenJarjestelija.ValitutToimenpiteet;
  vie("Uusi");
  EXPECT_EQ(viestit.Esiintymia("säästöä ei ole"), 1);
  EXPECT_EQ(rivit.Count(), 0);
  vie("Nykyinen");
  ASSERT_EQ(rivit.Count(), 1);
  EXPECT_EQ(rivit.Item(1).Nimi, "Sähkötariffin vaihto: Uusi");
  EXPECT_EQ(rivit.Item(1).KustannusSaastoSahkoPatoTeho, 4880);
  EXPECT_EQ(rivit.Item(1).Takaisinmaksuaika, 0.5);
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  vie("Nykyinen");
  EXPECT_EQ(rivit.Count(), 1) << "in place of the former row";
  EXPECT_EQ(kirjatut, std::vector<std::string>(2, "Tariffin vaihto järjestelijään"));
}

}  // namespace
