// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs of tariffs, without windows: amounts by VAT and currency, bills by hand, shares, taxes, and the
// catalogue.
#include <bit>
#include <cmath>

#include "building/Muokkausistunto.h"
#include "kernel/Luvut.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Arpa.h"
#include "ui/Kenttatarkistus.h"
#include "ui/frmKatselmoijienTiedot.h"

namespace {

class TariffidialogiTesti : public RakennusTesti {
 protected:
  TariffidialogiTesti() {
    AsetaTarkistuksenKello(nullptr);
    Asetukset().dblLampoALV = Asetukset().dblSahkoALV = Asetukset().dblVesiALV = 22;
    Asetukset().KaytaKohtTulostuksissaALVHintoja = false;
    AsetaKerroin(1);
  }
  ~TariffidialogiTesti() override { Asetukset().HaeRekisteristä(); }

  static void AsetaKerroin(double kerroin) { Asetukset().dblCurrencyConvCoeff = kerroin; }
  clsTariffi& LisaaTariffi(clsTariffi::Laji laji, const std::string& nimi = "Oma", double hinta = 100) {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Nimi = nimi;
    tariffi.Maksu(1).Hinta = hinta;
    tariffi.Maksu(1).Kulutusosuus = 100;
    return tariffi;
  }
  using Kasikirjoitus = Ikkunattomat::Kasikirjoitus;
  std::optional<Tunniste> Avaa(clsTariffi::Laji laji, const Kasikirjoitus& kasikirjoitus, const Tunniste& avain = {},
                               double kulutus = 100, Tariffitapa tapa = Tariffitapa::Muokkaus) {
    ikkunat.KunNaytetaan("frmSahkotariffi", kasikirjoitus);
    return rakennus->Tariffit.NaytaKayttoliittyma(laji, avain, kulutus, tapa);
  }
  std::optional<Tunniste> AvaaVesi(const Kasikirjoitus& kasikirjoitus, double kulutus = 100) {
    ikkunat.KunNaytetaan("frmVesitariffi", kasikirjoitus);
    return rakennus->Vesitariffit.NaytaKayttoliittyma({}, kulutus);
  }
  static void Kirjoita(Ikkunaton& l, std::string_view kentta, const std::string& teksti) {
    l.KayttajaKirjoittaa(kentta, teksti);
    l.KayttajaPoistuu(kentta);
  }
  void Poista(Ikkunaton& l) {
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdPoista");
  }
  static void Ok(Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); }
  static void Peruuta(Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); }
  static std::vector<std::string> Nimet(const Ikkunaton& l, const char* lista = "lstSahkotariffit") {
    std::vector<std::string> nimet;
    for (const auto& rivi : l.Etsi(lista).Rivit()) nimet.push_back(rivi.front());
    return nimet;
  }
};

TEST_F(TariffidialogiTesti, VatAndCurrencyChangeWhatIsShownAndTypedAmountsAreStoredWithoutThem) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::SahkoMyyntiTariffi);
  Avaa(clsTariffi::SahkoMyyntiTariffi, [&](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtEnergiamaksuHinta1"), "100,00");
    l.KayttajaPainaa("chkALV");
    EXPECT_EQ(l.Teksti("txtEnergiamaksuHinta1"), "122,00");
    EXPECT_EQ(l.Teksti("txtKaikkiMaksutYhteensa"), "12 200,00");
    EXPECT_EQ(l.Etsi("chtLasku").Kaavio().otsikko, "Vuosilasku, ALV 22 %");
    l.KayttajaKirjoittaa("TxtPerusmaksu", "122");
    l.KayttajaPainaa("chkALV");  // by its key: the focus is still in the field
    EXPECT_EQ(l.Teksti("TxtPerusmaksu"), "100,00");
    EXPECT_EQ(l.Teksti("txtEnergiamaksuHinta1"), "100,00");
    l.KayttajaPainaa("chkALV");
    Kirjoita(l, "txtALV", "25,5");
    EXPECT_EQ(l.Teksti("txtALV"), "25,5");
    EXPECT_EQ(l.Teksti("TxtPerusmaksu"), "125,50");
    Ok(l);
  });
  EXPECT_DOUBLE_EQ(tariffi.Perusmaksu, 100);
  EXPECT_EQ(tariffi.Maksu(1).Hinta, 100);
  EXPECT_TRUE(tariffi.MaksutSisaltavatALVn);
  tariffi.MaksutSisaltavatALVn = false;
  AsetaKerroin(0.168);
  Avaa(clsTariffi::SahkoMyyntiTariffi, [](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtEnergiamaksuHinta1"), "16,80");
    Kirjoita(l, "TxtMuuMaksu", "1,68");
    Ok(l);
  });
  EXPECT_DOUBLE_EQ(tariffi.MuuMaksu, 10);
  EXPECT_EQ(tariffi.Maksu(1).Hinta, 100) << "the fields that weren't touched";
}

TEST_F(TariffidialogiTesti, AWrongAmountStaysToBeMendedAndReachesNothing) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::LampoTariffi);
  tariffi.Perusmaksu = 7;
  LisaaTariffi(clsTariffi::LampoTariffi, "Toinen");
  Avaa(clsTariffi::LampoTariffi, [&](Ikkunaton& l) {
    Kirjoita(l, "TxtPerusmaksu", "satanen");
    Kirjoita(l, "TxtMuuMaksu", "3");
    l.KayttajaPainaa("chkALV");
    EXPECT_EQ(l.Teksti("TxtPerusmaksu"), "satanen");
    l.KayttajaValitsee("lstSahkotariffit", "Toinen");
    EXPECT_EQ(l.Teksti("TxtNimi"), "Oma") << "the row stays";
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(tariffi.Perusmaksu, 7);
    Kirjoita(l, "TxtPerusmaksu", "12,20");
    l.KayttajaValitsee("lstSahkotariffit", "Toinen");
    EXPECT_EQ(l.Teksti("TxtPerusmaksu"), "0,00");
    Ok(l);
  });
  EXPECT_EQ(viestit.Esiintymia("Perusmaksu"), 1) << "told once in a second";
  EXPECT_DOUBLE_EQ(tariffi.Perusmaksu, 10);
  EXPECT_DOUBLE_EQ(tariffi.MuuMaksu, 3);
}

TEST_F(TariffidialogiTesti, StoredAmountsSurviveTheDialogTheCurrencyAndTheFileBitForBitAndShowAsTyped) {
  Arpa arpa;
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi);
  tariffi.EnergiaveroID = clsTariffi::MuuVero;
  const char* kentat[] = {"txtEnergiamaksuHinta1", "TxtTehomaksu", "TxtLoistehomaksu",
                          "TxtPerusmaksu",         "TxtMuuMaksu",  "txtVeroHinta"};
  std::map<std::string, std::string> kirjoitettu;
  const double kerroin = arpa.Luku(0.1, 6);
  tariffi.ALV = arpa.Kokonaisluku(0, 300) / 10.0;
  AsetaKerroin(kerroin);
  const auto kaikki = [&](Ikkunaton& l) {
    for (const auto& [kentta, teksti] : kirjoitettu) EXPECT_EQ(l.Teksti(kentta), teksti) << kentta;
  };
  Avaa(clsTariffi::SahkoSiirtoTariffi, [&](Ikkunaton& l) {
    l.KayttajaPainaa("chkALV");
    for (const char* kentta : kentat) {
      kirjoitettu[kentta] = Muotoile(arpa.Kokonaisluku(0, 9999999) / 100.0, "0.00");
      l.KayttajaKirjoittaa(kentta, kirjoitettu[kentta]);
      l.KayttajaPoistuu(kentta);
    }
    kaikki(l);
    Ok(l);
  });
  const auto luvut = [](const clsTariffi& t) {
    std::vector<std::uint64_t> bitit;
    for (const double luku : {t.Maksu(1).Hinta, t.Tehomaksu, t.Loistehomaksu, t.Perusmaksu, t.MuuMaksu, t.Energiavero})
      bitit.push_back(std::bit_cast<std::uint64_t>(luku));
    return bitit;
  };
  const auto ennen = luvut(tariffi);
  for (const double muu : {1.0, 5.94573, kerroin}) {
    AsetaKerroin(muu);
    Avaa(clsTariffi::SahkoSiirtoTariffi, [&](Ikkunaton& l) {
      if (muu == kerroin) kaikki(l);
      l.KayttajaPainaa("chkALV");
      l.KayttajaPainaa("chkALV");
      Ok(l);
    });
    EXPECT_EQ(luvut(tariffi), ennen);
  }
  const Koehakemisto kansio;
  const std::string tiedosto = (kansio / "a.lvt").string();
  AlustaToteutuneetKulutukset(rakennus->Perustiedot.ToteutuneetKulutukset);
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  clsRakennus luettu;
  luettu.Hae(tiedosto);
  EXPECT_EQ(luvut(luettu.Tariffit.Item(1)), ennen);
}

TEST_F(TariffidialogiTesti, TheBillFollowsTheTyping) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi);
  tariffi.EnergiaveroID = clsTariffi::MuuVero;
  Avaa(
      clsTariffi::SahkoSiirtoTariffi,
      [](Ikkunaton& l) {
        const std::pair<const char*, const char*> kirjoitettavat[] = {{"txtEnergiamaksuHinta1", "40"},
                                                                      {"txtKulutusosuus1", "60"},
                                                                      {"txtEnergiamaksuHinta2", "20"},
                                                                      {"txtKulutusosuus2", "40"},
                                                                      {"TxtTehomaksu", "50"},
                                                                      {"txtTehomaksunPeruste", "10"},
                                                                      {"TxtLoistehomaksu", "10"},
                                                                      {"txtLoistehomaksunPeruste", "5"},
                                                                      {"TxtPerusmaksu", "1000"},
                                                                      {"TxtMuuMaksu", "12,34"},
                                                                      {"txtVeroHinta", "7"}};
        for (const auto& [kentta, teksti] : kirjoitettavat) l.KayttajaKirjoittaa(kentta, teksti);
        const std::pair<const char*, const char*> odotetut[] = {
            {"txtEnergiaYhteensa1", "4 800,00"},    {"txtEnergiaYhteensa2", "1 600,00"},
            {"txtEnergiaYhteensa3", "0,00"},        {"txtTehomaksuYhteensa", "500"},
            {"txtLoistehomaksuYhteensa", "50"},     {"txtPerusmaksuYhteensa", "1 000"},
            {"txtMuuMaksuYhteensa", "12,34"},       {"txtSahkoVeroYhtensa", "1 400,00"},
            {"txtKaikkiMaksutYhteensa", "9 362,34"}};
        for (const auto& [kentta, teksti] : odotetut) EXPECT_EQ(l.Teksti(kentta), teksti) << kentta;
        const Kaaviotiedot& kuva = l.Etsi("chtLasku").Kaavio();
        EXPECT_EQ(kuva.nimet,
                  (std::vector<std::string>{"Energia", "Teho", "Loisteho", "Perusmaksu", "Muu maksu", "Vero"}));
        EXPECT_EQ(kuva.arvot, (std::vector<double>{6400, 500, 50, 1000, 12.34, 1400}));
        EXPECT_EQ(kuva.otsikko, "Vuosilasku ilman ALV:a");
        Kirjoita(l, "txtKulutus", "0");
        EXPECT_EQ(l.Teksti("txtKaikkiMaksutYhteensa"), "1 562,34");
        Ok(l);
      },
      {}, 200);
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 39);
  EXPECT_DOUBLE_EQ(tariffi.VuosimaksutYht(), 1562.34);
}

TEST_F(TariffidialogiTesti, SharesPassAtTheirBordersAndTellWhatIsMissing) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::LampoTariffi);
  Avaa(clsTariffi::LampoTariffi, [&](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("LblSataProsenttia"), "100 %");
    for (const auto& [osuus, summa] :
         std::vector<std::pair<std::string, std::string>>{{"80,5", "80,5 %, puuttuu 19,5 %"},
                                                          {"100,3", "100,3 %, liikaa 0,3 %"},
                                                          {"99,7", "99,7 %, puuttuu 0,3 %"}}) {
      Kirjoita(l, "txtKulutusosuus1", osuus);
      EXPECT_EQ(l.Teksti("LblSataProsenttia"), summa);
      EXPECT_EQ(l.Etsi("lstSahkotariffit").Lista().Piirteet(0).merkitys, Merkitys::Huomio);
      Ok(l);
      ASSERT_TRUE(l.Auki()) << osuus;
      EXPECT_EQ(l.Kohdistettu(), "txtKulutusosuus1");
    }
    Kirjoita(l, "txtKulutusosuus1", "100,2");
    EXPECT_EQ(l.Teksti("LblSataProsenttia"), "100,2 %");
    Ok(l);
  });
  EXPECT_EQ(viestit.Esiintymia("kulutusosuuksien summan on oltava 100 %"), 3);
  EXPECT_EQ(tariffi.Maksu(1).Kulutusosuus, 100.2);
  tariffi.Maksu(1).Kulutusosuus = 50;
  EXPECT_EQ(Avaa(clsTariffi::LampoTariffi,
                 [&](Ikkunaton& l) {
                   Poista(l);
                   EXPECT_FALSE(l.Etsi("TxtNimi").Kaytossa());
                   EXPECT_EQ(l.Teksti("txtKaikkiMaksutYhteensa") + l.Teksti("LblSataProsenttia"), "");
                   Ok(l);
                 }),
            Tunniste())
      << "without tariffs there are no shares to check";
  EXPECT_EQ(rakennus->Tariffit.Count(), 0);
}

TEST_F(TariffidialogiTesti, TheTaxFollowsItsClassAndTheOldOneStaysUntilTheListIsUsed) {
  Asetukset().dblSahkoVeroluokka1 = 22.53;
  Asetukset().dblSahkoVeroluokka2 = 0.63;
  clsTariffi& vanha = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi, "Vanha");
  vanha.Energiavero = 8.83;
  vanha.MaksutSisaltavatALVn = true;
  Avaa(clsTariffi::SahkoSiirtoTariffi, [](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtVeroHinta"), "10,77") << "8.83 with VAT, whatever the settings say now";
    EXPECT_FALSE(l.Etsi("txtVeroHinta").Kaytossa());
    l.KayttajaValitsee("cmbSahkoVeroTyyppi", "Veroluokka 2");
    EXPECT_EQ(l.Teksti("txtVeroHinta"), "0,77");
    l.KayttajaValitsee("cmbSahkoVeroTyyppi", "Muu");
    EXPECT_EQ(l.Teksti("txtVeroHinta"), "0,77") << "the amount stays";
    Kirjoita(l, "txtVeroHinta", "12,20");
    l.KayttajaPainaa("cmdLisaa");
    EXPECT_EQ(l.Teksti("txtVeroHinta"), "22,53") << "a new tariff has the tax of its class";
    Kirjoita(l, "txtKulutusosuus1", "100");
    Ok(l);
  });
  EXPECT_DOUBLE_EQ(vanha.Energiavero, 10);
  EXPECT_EQ(vanha.EnergiaveroID, clsTariffi::MuuVero);
  EXPECT_EQ(vanha.EnergiaveroStr, "Muu");
  EXPECT_EQ(rakennus->Tariffit.Item(2).Energiavero, 22.53);
}

TEST_F(TariffidialogiTesti, KindsAreApartAndHeatShowsAPowerFeeOnlyWhenItHasOne) {
  LisaaTariffi(clsTariffi::SahkoMyyntiTariffi, "Myynti");
  LisaaTariffi(clsTariffi::LampoTariffi, "Ilman tehoa");
  clsTariffi& kaukolampo = LisaaTariffi(clsTariffi::LampoTariffi, "Kaukolämpö");
  kaukolampo.Tehomaksu = 30;
  kaukolampo.TehomaksunMaaraytymisperuste = 20;
  Avaa(clsTariffi::LampoTariffi, [](Ikkunaton& l) {
    EXPECT_EQ(l.Otsikko(), "Lämpötariffin valinta");
    EXPECT_EQ(l.Teksti("lblVeroHinta"), "Lämpövero:");
    EXPECT_EQ(Nimet(l), (std::vector<std::string>{"Ilman tehoa", "Kaukolämpö"}));
    EXPECT_FALSE(l.Etsi("TxtTehomaksu").Nakyva() || l.Etsi("TxtLoistehomaksu").Nakyva());
    EXPECT_EQ(l.Etsi("chtLasku").Kaavio().nimet.size(), 4u);
    l.KayttajaValitsee("lstSahkotariffit", "Kaukolämpö");
    EXPECT_TRUE(l.Etsi("TxtTehomaksu").Nakyva());
    EXPECT_FALSE(l.Etsi("TxtLoistehomaksu").Nakyva());
    EXPECT_EQ(l.Teksti("txtTehomaksuYhteensa"), "600");
    Peruuta(l);
  });
}

TEST_F(TariffidialogiTesti, TariffsComeAreNamedCopiedAndGoAndCancelTakesAllBack) {
  LisaaTariffi(clsTariffi::SahkoMyyntiTariffi, "Eka", 10);
  LisaaTariffi(clsTariffi::SahkoMyyntiTariffi, "Toka", 20);
  const Kasikirjoitus muokkaa = [&](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("TxtNimi"), "Toka");
    l.KayttajaPainaa("cmdKopioi");
    EXPECT_EQ(Nimet(l), (std::vector<std::string>{"Eka", "Toka", "Kopio: Toka"}));
    l.KayttajaKirjoittaa("TxtNimi", "Kolmas");
    EXPECT_EQ(Nimet(l).back(), "Kolmas");
    Kirjoita(l, "txtEnergiamaksuHinta1", "33");
    l.KayttajaValitsee("lstSahkotariffit", "Eka");
    EXPECT_EQ(l.Teksti("txtEnergiamaksuHinta1"), "10,00");
    Poista(l);
    l.KayttajaPainaa("cmdLisaa");
    EXPECT_EQ(l.Kohdistettu(), "TxtNimi");
    EXPECT_EQ(Nimet(l), (std::vector<std::string>{"Toka", "Kolmas", "Uusi tariffi"}));
    EXPECT_EQ(l.Teksti("txtALV"), "22");
    l.KayttajaValitsee("lstSahkotariffit", "Kolmas");
  };
  const Tunniste toka = rakennus->Tariffit.Item(2).sKey;
  EXPECT_FALSE(Avaa(
      clsTariffi::SahkoMyyntiTariffi, [&](Ikkunaton& l) { muokkaa(l), Peruuta(l); }, toka));
  EXPECT_EQ(rakennus->Tariffit.Count(), 2);
  EXPECT_EQ(rakennus->Tariffit.Item(1).Nimi, "Eka");
  int muutoksia = 0;
  rakennus->MuutosVahvistettu = [&](std::string_view nimi) { muutoksia += nimi == "Sähkön myyntitariffin valinta"; };
  const auto valittu = Avaa(
      clsTariffi::SahkoMyyntiTariffi, [&](Ikkunaton& l) { muokkaa(l), Ok(l); }, toka);
  ASSERT_TRUE(valittu);
  EXPECT_EQ(rakennus->Tariffit.Item(*valittu).Nimi, "Kolmas");
  EXPECT_EQ(rakennus->Tariffit.Item(*valittu).Maksu(1).Hinta, 33);
  EXPECT_EQ(rakennus->Tariffit.Item(toka).Maksu(1).Hinta, 20);
  EXPECT_EQ(muutoksia, 1);
}

TEST_F(TariffidialogiTesti, ATariffInUseIsKeptAndTheRefusalNamesItsUsers) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi);
  clsEnergiamuoto& muoto = rakennus->Perustiedot.SahkonHankinta.Energiamuodot.Add("m");
  muoto.Nimi = "Verkkosähkö";
  muoto.SiirtoTariffiSkey = tariffi.sKey;
  Avaa(clsTariffi::SahkoSiirtoTariffi, [](Ikkunaton& l) {
    l.KayttajaPainaa("cmdPoista");
    EXPECT_EQ(Nimet(l).size(), 1u);
    Peruuta(l);
  });
  EXPECT_EQ(viestit.Esiintymia("Tariffi on käytössä"), 1);
  EXPECT_EQ(viestit.Esiintymia("Tariffia käyttää: Verkkosähkö."), 1);
}

TEST_F(TariffidialogiTesti, WhereTariffsCanOnlyBeChosenNothingElseCanBeDone) {
  LisaaTariffi(clsTariffi::LampoTariffi, "Vajaa").Maksu(1).Kulutusosuus = 50;
  const clsTariffi& toinen = LisaaTariffi(clsTariffi::LampoTariffi, "Toinen");
  const auto valittu = Avaa(
      clsTariffi::LampoTariffi,
      [](Ikkunaton& l) {
        for (const auto& ohjain : l.Ohjaimet())
          EXPECT_FALSE(ohjain->Tyyppi() == Ohjaintyyppi::TextBox && ohjain->Kaytossa() &&
                       ohjain->Nimi() != "txtKulutus")
              << ohjain->Nimi();
        for (const char* nappi : {"cmdLisaa", "cmdLisaaLuettelosta", "cmdKopioi", "cmdPoista", "chkALV"})
          EXPECT_FALSE(l.Etsi(nappi).Kaytossa()) << nappi;
        l.KayttajaValitsee("lstSahkotariffit", "Toinen");
        EXPECT_EQ(l.Teksti("txtEnergiaYhteensa1"), "10 000,00");
        Ok(l);
      },
      {}, 100, Tariffitapa::Valinta);
  EXPECT_EQ(valittu, toinen.sKey);
}

TEST_F(TariffidialogiTesti, AnOuterDialogTakesItsTariffsBack) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::LampoTariffi);
  clsVesitariffit& vesi = rakennus->Vesitariffit;
  int muutoksia = 0;
  rakennus->MuutosVahvistettu = [&](std::string_view) { ++muutoksia; };
  const auto ulompi = [&](const char* nappi) {
    ikkunat.KunNaytetaan("frmKatselmoijienTiedot", [&](Ikkunaton& l) {
      EXPECT_TRUE(Avaa(clsTariffi::LampoTariffi, [](Ikkunaton& sisempi) {
        Kirjoita(sisempi, "TxtNimi", "Muutettu");
        Ok(sisempi);
      }));
      vesi.LisaaTariffi();
      l.KayttajaPainaa(nappi);
    });
    frmKatselmoijienTiedot lomake;
    Muokkausistunto(std::tie(vesi, rakennus->Tariffit), lomake, {}).Nayta();
  };
  ulompi("cmdPeruuta");
  EXPECT_EQ(tariffi.Nimi + std::to_string(vesi.Count()) + std::to_string(muutoksia), "Oma00");
  ulompi("cmdOk");
  EXPECT_EQ(tariffi.Nimi + std::to_string(vesi.Count()) + std::to_string(muutoksia), "Muutettu11");
}

TEST_F(TariffidialogiTesti, WaterIsBilledCleanInFullAndWasteByItsShare) {
  AvaaVesi([](Ikkunaton& l) {
    EXPECT_FALSE(l.Etsi("TxtPerusmaksu").Kaytossa());
    l.KayttajaPainaa("cmdLisaa");
    l.KayttajaPainaa("chkALV");
    Kirjoita(l, "txtEnergiamaksuHinta1", "2,44");
    Kirjoita(l, "txtEnergiamaksuHinta2", "3,66");
    Kirjoita(l, "TxtPerusmaksu", "61");
    EXPECT_EQ(l.Teksti("txtEnergiaYhteensa2"), "0,00") << "no waste water yet";
    EXPECT_FALSE(l.Etsi("txtVesivero").Nakyva());
    Kirjoita(l, "txtLaskutettavaJateVesiOsuus", "80");
    const std::pair<const char*, const char*> odotetut[] = {{"txtEnergiaYhteensa1", "244,00"},
                                                            {"txtEnergiaYhteensa2", "292,80"},
                                                            {"txtVesiYhteensa", "536,80"},
                                                            {"txtPerusmaksuYhteensa", "61,00"},
                                                            {"txtYhteensa", "597,80"}};
    for (const auto& [kentta, teksti] : odotetut) EXPECT_EQ(l.Teksti(kentta), teksti) << kentta;
    EXPECT_EQ(l.Etsi("chtLasku").Kaavio().nimet,
              (std::vector<std::string>{"Puhdas vesi", "Jätevesi", "Perusmaksu", "Muu maksu"}));
    Kirjoita(l, "txtVedenkulutusM3a", "1000");
    EXPECT_EQ(l.Teksti("txtVesiYhteensa"), "5 368,00");
    Ok(l);
  });
  clsVesitariffi& tariffi = rakennus->Vesitariffit.Item(1);
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 4.4);
  EXPECT_DOUBLE_EQ(tariffi.VuosimaksutYht(), 50);
  tariffi.PuhdasVesi().Kulutusosuus = 40;  // from another program
  tariffi.VesiVero = 2;
  AvaaVesi([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtVesivero"), "2,00");
    EXPECT_TRUE(l.Etsi("txtVesivero").Lukittu());
    EXPECT_EQ(l.Teksti("txtYhteensa"), "597,80") << "it costs nothing";
    Ok(l);
  });
  EXPECT_EQ(tariffi.PuhdasVesi().Kulutusosuus, 100);
  EXPECT_EQ(tariffi.VesiVero, 2);
  rakennus->Perustiedot.VedenHankinta.Energiamuodot.Add("v").MyyntiTariffiSkey = tariffi.sKey;
  AvaaVesi([](Ikkunaton& l) {
    l.KayttajaPainaa("cmdPoista");
    EXPECT_EQ(Nimet(l, "lstVesitariffit").size(), 1u);
    Peruuta(l);
  });
  EXPECT_EQ(viestit.Esiintymia("Tariffi on käytössä"), 1);
}

TEST_F(TariffidialogiTesti, ATariffIsPickedFromTheCatalogueAsAnOrdinaryOne) {
  const auto poimi = [&](const char* haku, const char* nappi) {
    ikkunat.KunNaytetaan("frmTariffiluettelo", [=](Ikkunaton& l) {
      l.KayttajaKirjoittaa("txtHaku", haku);
      l.KayttajaPainaa(nappi);
    });
  };
  Avaa(clsTariffi::LampoTariffi, [&](Ikkunaton& l) {
    poimi("lahti", "cmdPeruuta");
    l.KayttajaPainaa("cmdLisaaLuettelosta");
    EXPECT_EQ(Nimet(l).size(), 0u);
    ikkunat.KunNaytetaan("frmTariffiluettelo", [](Ikkunaton& poiminta) {
      poiminta.KayttajaKirjoittaa("txtHaku", "loviisa");
      EXPECT_EQ(Nimet(poiminta, "lvwRivit").front(), "Hinnat ilman arvonlisäveroa");
      EXPECT_NE(poiminta.Teksti("lblSelite").find("Energiamaksu 66,69"), std::string::npos);
      EXPECT_NE(poiminta.Teksti("lblSelite").find("tehomaksun oletettu peruste 15 kW"), std::string::npos);
      poiminta.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdLisaaLuettelosta");
    EXPECT_EQ(l.Teksti("TxtNimi"), "Kaukolämpö, Loviisa, pieni (15 kW)");
    EXPECT_EQ(l.Teksti("txtTehomaksuYhteensa"), "503") << "15 kW at 33.53";
    EXPECT_EQ(l.Teksti("LblSataProsenttia"), "100 %");
    Ok(l);
  });
  EXPECT_EQ(rakennus->Tariffit.Item(1).Tariffityyppi, clsTariffi::LampoTariffi);
  AvaaVesi([&](Ikkunaton& l) {
    poimi("riihimäki", "cmdOk");
    l.KayttajaPainaa("cmdLisaaLuettelosta");
    EXPECT_EQ(l.Teksti("txtEnergiamaksuHinta1"), "1,47");
    Ok(l);
  });
  EXPECT_DOUBLE_EQ(rakennus->Vesitariffit.Item(1).Keskihinta(), 1.47 + 1.79);
}

}  // namespace
