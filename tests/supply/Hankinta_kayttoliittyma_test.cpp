// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of a supply, without windows.
#include "measures/clsSaastotoimenpiteet.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/building/Koerakennus.h"
#include "ui/Lomakekaannos.h"

namespace {

using Hankinta = clsEnergianHankinta;

class HankintadialogiTesti : public RakennusTesti {
 protected:
  HankintadialogiTesti() {
    Asetukset().KaytaKohtTulostuksissaALVHintoja = false;
    Asetukset().dblCurrencyConvCoeff = 1;
    AlustaPerustiedot(tiedot);
    AlustaToteutuneetKulutukset(tiedot.ToteutuneetKulutukset);
    clsToteutunutKulutus& vuosi = *tiedot.ToteutuneetKulutukset.Vuosi(1);
    vuosi.KaytaVertailuVuotena = true;
    vuosi.Lampo = 800;
    vuosi.Sahko = 200;
    vuosi.Vesi = 1500;
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { kirjatut.emplace_back(nimi); };
  }
  ~HankintadialogiTesti() override { Asetukset().HaeRekisteristä(); }

  static clsEnergiamuoto& LisaaMuoto(Hankinta& hankinta, const std::string& nimi, double osuus) {
    clsEnergiamuoto& muoto = hankinta.LisaaMuoto();
    muoto.Nimi = nimi;
    muoto.OsuusNettotarpeesta = osuus;
    return muoto;
  }
  clsTariffi& LisaaTariffi(clsTariffi::Laji laji, const std::string& nimi, double hinta) {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Nimi = nimi;
    tariffi.Maksu(1).Hinta = hinta;
    tariffi.Maksu(1).Kulutusosuus = 100;
    return tariffi;
  }
  /// Opens, acts and presses the button; what stays open after that is cancelled.
  bool Avaa(Hankinta& hankinta, const char* nappi, const Ikkunattomat::Kasikirjoitus& toimi) {
    ikkunat.KunNaytetaan("frmEnHankKoostEnergiamuodoista", [=](Ikkunaton& l) {
      toimi(l);
      l.KayttajaPainaa(nappi);
      if (l.Auki()) l.KayttajaPainaa("cmdPeruuta");
    });
    return hankinta.NaytaKayttoliittyma();
  }
  void KunMuotoAvautuu(const char* nappi, const std::string& nimi, const std::string& osuus) {
    ikkunat.KunNaytetaan("frmEnergiamuoto", [=](Ikkunaton& l) {
      l.KayttajaKirjoittaa("txtNimi", nimi);
      l.KayttajaKirjoittaa("txtOsuusNettotarpeesta", osuus);
      l.KayttajaPainaa(nappi);
    });
  }
  static Taulukko Rivit(const Ikkunaton& l) { return l.Etsi(kLista).Rivit(); }
  static std::string Puuttuu(const Ikkunaton& l) { return l.Etsi(kLista).Summarivi().back(); }

  static constexpr const char* kLista = "lvwEnergiamuodot";
  clsPerustiedot& tiedot = rakennus->Perustiedot;
  std::vector<std::string> kirjatut;
};

TEST_F(HankintadialogiTesti, OkWantsSharesOfAHundred) {
  const struct {
    std::vector<double> osuudet;
    const char* puuttuu;
    const char* viesti;
  } kTapaukset[] = {
      {{}, "puuttuu 100,0 %", "alle 100 %. Suurenna osuuksia tai lisää energiamuoto. Puuttuu: 100,0 %"},
      {{60, 39.999999}, "puuttuu 0,000001 %", "Puuttuu: 0,000001 %"},
      {{60, 40.2}, "liikaa 0,2 %", "yli 100 %. Pienennä osuuksia. Ylitys: 0,2 %"},
      {{33.3, 33.3, 33.4}, "", ""},
  };
  for (const auto& tapaus : kTapaukset) {
    viestit.Tyhjenna();
    tiedot.LammonHankinta.Energiamuodot.Tyhjenna();
    for (const double osuus : tapaus.osuudet) LisaaMuoto(tiedot.LammonHankinta, "Muoto", osuus);
    const bool taysi = std::string_view(tapaus.puuttuu).empty();
    EXPECT_EQ(Avaa(tiedot.LammonHankinta, "cmdOk", [&](Ikkunaton& l) { EXPECT_EQ(Puuttuu(l), tapaus.puuttuu); }),
              taysi);
    EXPECT_EQ(viestit.Esiintymia(tapaus.viesti), taysi ? 0 : 1) << tapaus.viesti;
  }
  LisaaMuoto(tiedot.VedenHankinta, "Kaivo", 90);
  EXPECT_FALSE(Avaa(tiedot.VedenHankinta, "cmdOk", [](Ikkunaton&) {}));
  EXPECT_EQ(viestit.Esiintymia("lisää hankintatapa. Puuttuu: 10,0 %"), 1);
}

TEST_F(HankintadialogiTesti, FormsAreAddedCopiedAndRemovedAsOneChange) {
  const auto muokkaus = [this](Ikkunaton& l) {
    KunMuotoAvautuu("cmdPeruuta", "Harha", "1");
    l.KayttajaPainaa("cmdLisaa");
    EXPECT_TRUE(Rivit(l).empty()) << "the person gave up";
    KunMuotoAvautuu("cmdOk", "Öljy", "60");
    l.KayttajaPainaa("cmdLisaa");
    KunMuotoAvautuu("cmdPeruuta", "Harha", "1");
    l.KayttajaPainaa("cmdKopioi");
    EXPECT_EQ(Rivit(l).size(), 1u);
    ikkunat.KunNaytetaan("frmEnergiamuoto", [](Ikkunaton& kopio) {
      EXPECT_EQ(kopio.Teksti("txtNimi"), "Kopio: Öljy");
      kopio.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdKopioi");
    EXPECT_EQ(Puuttuu(l), "liikaa 20,0 %");
    l.KayttajaMuokkaa(kLista, "Kopio: Öljy", 1, "kaikki");
    EXPECT_EQ(viestit.Esiintymia("välillä 0–100 %"), 1);
    l.KayttajaMuokkaa(kLista, "Kopio: Öljy", 1, "33,3");
    EXPECT_EQ(Puuttuu(l), "puuttuu 6,7 %");
    l.KayttajaMuokkaa(kLista, "Kopio: Öljy", 1, "40");
    EXPECT_EQ(Puuttuu(l), "");
    KunMuotoAvautuu("cmdOk", "Liika", "50");
    l.KayttajaPainaa("cmdLisaa");
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdPoista");
    EXPECT_EQ(Rivit(l).size(), 2u);
  };
  EXPECT_FALSE(Avaa(tiedot.LammonHankinta, "cmdPeruuta", muokkaus));
  EXPECT_EQ(tiedot.LammonHankinta.Energiamuodot.Count(), 0);
  viestit.Tyhjenna();
  EXPECT_TRUE(Avaa(tiedot.LammonHankinta, "cmdOk", muokkaus));
  ASSERT_EQ(tiedot.LammonHankinta.Energiamuodot.Count(), 2);
  EXPECT_EQ(tiedot.LammonHankinta.Energiamuodot.Item(1).OsuusNettotarpeesta, 60);
  EXPECT_EQ(tiedot.LammonHankinta.Energiamuodot.Item(2).OsuusNettotarpeesta, 40);
  EXPECT_EQ(kirjatut, std::vector<std::string>{"Lämmön hankinta"});
}

TEST_F(HankintadialogiTesti, AShareThatIsShownRoundedIsKept) {
  LisaaMuoto(tiedot.LammonHankinta, "Öljy", 100 - 100 / 3.0);
  LisaaMuoto(tiedot.LammonHankinta, "Hake", 100 / 3.0);
  EXPECT_TRUE(Avaa(tiedot.LammonHankinta, "cmdOk",
                   [](Ikkunaton& l) { l.KayttajaMuokkaa(kLista, "Hake", 1, l.Etsi(kLista).Rivit()[1][1]); }));
  EXPECT_EQ(tiedot.LammonHankinta.Energiamuodot.Item(2).OsuusNettotarpeesta, 100 / 3.0);
}

TEST_F(HankintadialogiTesti, PriceFeesEmissionAndPictureFollowTheForms) {
  clsEnergiamuoto& oljy = LisaaMuoto(tiedot.LammonHankinta, "Öljy", 60);
  clsEnergiamuoto& hake = LisaaMuoto(tiedot.LammonHankinta, "Hake", 40);
  clsTariffi& kallis = LisaaTariffi(clsTariffi::LampoTariffi, "Kallis", 200);
  kallis.Perusmaksu = 1000;
  oljy.MyyntiTariffiSkey = LisaaTariffi(clsTariffi::LampoTariffi, "Halpa", 100).sKey;
  hake.MyyntiTariffiSkey = kallis.sKey;
  oljy.Hyotysuhde = 80;
  oljy.IlmastonLampeneminenCO2ekv(263);
  hake.IlmastonLampeneminenCO2ekv(50);  // of efficiency 0: adds nothing
  Avaa(tiedot.LammonHankinta, "cmdPeruuta", [&](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKeskihinta"), "140,00");
    EXPECT_EQ(l.Teksti("txtVuosimaksut"), "1 000,00");
    EXPECT_EQ(l.Teksti("txtPaastokerroin"), "197,25");  // 263 · 60 / 80
    const Kaaviotiedot kaavio = l.Etsi("chtOsuudet").Kaavio();
    EXPECT_EQ(kaavio.arvot, (std::vector<double>{60, 40}));
    EXPECT_EQ(kaavio.nimet.front(), "Öljy, 263 kg CO₂/MWh:");
    l.KayttajaMuokkaa(kLista, "Hake", 1, "30");
    EXPECT_EQ(l.Teksti("txtKeskihinta"), "120,00");
    EXPECT_EQ(l.Etsi("chtOsuudet").Kaavio().arvot.back(), 30);
    EXPECT_EQ(Rivit(l).back(), (std::vector<std::string>{"Hake", "30,0", "0,00", "Kallis"}));
    l.KayttajaPainaa("cmdIrrotaTariffit");
    EXPECT_EQ(Rivit(l).front().back(), "Ei tariffia");
    EXPECT_FALSE(l.Etsi("cmdIrrotaTariffit").Kaytossa());
  });
  hake.MyyntiTariffiSkey = "kadonnut";
  Avaa(tiedot.LammonHankinta, "cmdPeruuta", [](Ikkunaton& l) {
    EXPECT_EQ(Rivit(l).back().back(), "Tariffia ei löydy");
    EXPECT_EQ(l.Teksti("txtKeskihinta"), "---");
  });
}

TEST_F(HankintadialogiTesti, EachFormChoosesItsTariffs) {
  LisaaMuoto(tiedot.SahkonHankinta, "Sähkö", 75);
  LisaaTariffi(clsTariffi::SahkoMyyntiTariffi, "Myynti A", 40);
  LisaaTariffi(clsTariffi::SahkoSiirtoTariffi, "Siirto A", 20);
  const auto valinta = [this](Ikkunaton& l) {
    const std::pair<const char*, const char*> kNapit[] = {{"cmdMyyntiTariffi", "Myynti A"},
                                                          {"cmdSiirtoTariffi", "Siirto A"}};
    for (const auto& [nappi, nimi] : kNapit) {
      ikkunat.KunNaytetaan("frmSahkotariffi", [nimi = nimi](Ikkunaton& tariffit) {
        EXPECT_EQ(tariffit.Teksti("txtKulutus"), "150");  // 75 % of the 200 MWh measured
        EXPECT_EQ(tariffit.Teksti("TxtNimi"), nimi);
        tariffit.KayttajaKirjoittaa("TxtPerusmaksu", "12");
        tariffit.KayttajaPainaa("cmdOk");
      });
      l.KayttajaPainaa(nappi);
    }
    EXPECT_EQ(Rivit(l).front(), (std::vector<std::string>{"Sähkö", "75,0", "0,00", "Myynti A", "Siirto A"}));
    l.KayttajaMuokkaa(kLista, "Sähkö", 1, "100");
  };
  // Cancel takes back the tariffs too, also that of the dialog around.
  ikkunat.KunNaytetaan("frmPerustiedot", [&](Ikkunaton& l) {
    ikkunat.KunNaytetaan("frmEnHankKoostEnergiamuodoista", [&](Ikkunaton& hankinta) {
      valinta(hankinta);
      hankinta.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdSahkonHankinta");
    EXPECT_EQ(rakennus->Tariffit.Item(1).Perusmaksu, 12);
    l.KayttajaPainaa("cmdPeruuta");
  });
  tiedot.OletusarvotLaskettu = true;
  tiedot.NaytaKayttoliityma();
  EXPECT_EQ(rakennus->Tariffit.Item(1).Perusmaksu, 0);
  EXPECT_TRUE(tiedot.SahkonHankinta.Energiamuodot.Item(1).MyyntiTariffiSkey.Tyhja());
  EXPECT_FALSE(Avaa(tiedot.SahkonHankinta, "cmdPeruuta", valinta));
  EXPECT_EQ(rakennus->Tariffit.Item(1).Perusmaksu, 0);
  EXPECT_TRUE(kirjatut.empty());
  EXPECT_TRUE(Avaa(tiedot.SahkonHankinta, "cmdOk", valinta));
  EXPECT_EQ(rakennus->Tariffit.Item(1).Perusmaksu, 12);
  EXPECT_EQ(tiedot.SahkonHankinta.Energiamuodot.Item(1).SiirtoTariffiSkey, rakennus->Tariffit.Item(2).sKey);
  EXPECT_EQ(kirjatut.size(), 1u);
}

TEST_F(HankintadialogiTesti, WaterHasItsOwnLayoutAndTariffs) {
  LisaaMuoto(tiedot.VedenHankinta, "Vesilaitos", 100);
  rakennus->Vesitariffit.LisaaTariffi().Nimi = "Vesi A";
  EXPECT_TRUE(Avaa(tiedot.VedenHankinta, "cmdOk", [this](Ikkunaton& l) {
    EXPECT_EQ(l.Otsikko(), "Veden hankinta");
    EXPECT_EQ(l.Teksti("fraMuodot"), "Veden hankinnan koostuminen");
    const auto& sarakkeet = l.Etsi(kLista).Osat();
    ASSERT_EQ(sarakkeet.size(), 4u);
    EXPECT_EQ(sarakkeet.front().otsikko, "Hankintatapa");
    EXPECT_EQ(sarakkeet.back().otsikko, "Tariffi");
    EXPECT_FALSE(l.Etsi("cmdSiirtoTariffi").Nakyva());
    EXPECT_EQ(l.Etsi("chtOsuudet").Kaavio().nimet.front(), "Vesilaitos");
    ikkunat.KunNaytetaan("frmVesitariffi", [](Ikkunaton& tariffit) {
      EXPECT_EQ(tariffit.Teksti("txtVedenkulutusM3a"), "1 500");
      tariffit.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdMyyntiTariffi");
    EXPECT_EQ(Rivit(l).front().back(), "Vesi A");
  }));
}

TEST_F(HankintadialogiTesti, AnotherCurrencyReachesTheOpenDialogAndNoStoredAmount) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::LampoTariffi, "Öljy", 100);
  tariffi.Perusmaksu = 1000;
  LisaaMuoto(tiedot.LammonHankinta, "Öljy", 100).MyyntiTariffiSkey = tariffi.sKey;
  EXPECT_TRUE(Avaa(tiedot.LammonHankinta, "cmdOk", [](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKeskihinta"), "100,00");
    Asetukset().dblCurrencyConvCoeff = 2;
    AsetaRahayksikko("mk");
    PaivitaRahat();
    EXPECT_EQ(l.Teksti("txtKeskihinta") + " " + l.Teksti("lblYksKeskihinta"), "200,00 mk/MWh");
    EXPECT_EQ(l.Teksti("txtVuosimaksut") + " " + l.Teksti("lblYksVuosimaksut"), "2 000,00 mk/a");
  }));
  AsetaRahayksikko("€");
  EXPECT_EQ(tariffi.Maksu(1).Hinta, 100);
  EXPECT_EQ(tariffi.Perusmaksu, 1000);
}

TEST_F(HankintadialogiTesti, ASupplyOfAMeasureIsLockedAndChoosesTariffsOnly) {
  const clsEnergiamuoto& muoto = LisaaMuoto(tiedot.LammonHankinta, "Kaukolämpö", 100);
  LisaaTariffi(clsTariffi::LampoTariffi, "Oma", 30);
  clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("toimenpide");
  toimenpide.Nimi = "Maalämpö";
  toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin = muoto.InstanssiId;
  const auto jalkeen = tiedot.LammonHankinta.Kopioi();
  bool kuultu = false;
  jalkeen->OKPainettu.arvo = [&] { kuultu = true; };
  EXPECT_TRUE(Avaa(*jalkeen, "cmdOk", [this](Ikkunaton& l) {
    for (const char* nappi : {"cmdLisaa", "cmdKopioi", "cmdPoista"}) EXPECT_FALSE(l.Etsi(nappi).Kaytossa()) << nappi;
    l.Etsi(kLista).KayttajaPoistaa();
    EXPECT_EQ(viestit.Esiintymia("Energiamuoto: Kaukolämpö. Toimenpiteet: Maalämpö"), 1);
    ikkunat.KunNaytetaan("frmSahkotariffi", [](Ikkunaton& tariffit) {
      EXPECT_FALSE(tariffit.Etsi("TxtPerusmaksu").Kaytossa());
      tariffit.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdMyyntiTariffi");
  }));
  EXPECT_TRUE(kuultu);
  EXPECT_EQ(jalkeen->Energiamuodot.Item(1).MyyntiTariffiSkey, rakennus->Tariffit.Item(1).sKey);
  EXPECT_TRUE(muoto.MyyntiTariffiSkey.Tyhja());
  EXPECT_TRUE(kirjatut.empty()) << "the building didn't change";
}

}  // namespace
