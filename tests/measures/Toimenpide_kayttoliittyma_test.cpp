// SPDX-License-Identifier: GPL-3.0-or-later
#include <limits>
#include <set>

#include "kernel/Luvut.h"
#include "measures/Muutoskuvaus.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/measures/Koemuunnelma.h"

namespace {

class ToimenpideDialogi : public Muunneltava {
 protected:
  ToimenpideDialogi() {
    clsTila& tila = rakennus->Tilat.Item(2);
    tila.TilanNimi = "Sali";
    tila.SaatotapaStr = "Termostaattiventtiilit (80 %)";
    tila.TilanKayttoaikaStr = "Päiväkäyttö 2200 h/a";
    clsIVKone& kone = rakennus->IVKoneet.Item(1);
    kone.KoneenTunnus = "TK01";
    kone.IVPeriaateID = 3;
    kone.TuloIlmavirta11Teho = kone.PoistoIlmavirta11Teho = 2;
    rakennus->SahkonKulutusryhmat.Item(1).KulutusRyhma = "Valaistus";
    clsVedenKulutusryhma& vesi = rakennus->VedenKulutusryhmat.Item(1);
    vesi.KulutusRyhma = "Suihkut";
    vesi.LaskentaperusteNumber = vesi.Laskentayksikko = vesi.KayttokuvausDpA = 100;
    vesi.KayttokuvausKertaaD = 2;
    clsEnergianHankinta& lampo = rakennus->Perustiedot.LammonHankinta;
    while (lampo.Energiamuodot.Count() > 0) lampo.Energiamuodot.Remove(1);
    for (const auto& [nimi, osuus, tariffi] : {std::tuple{"Kaukolämpö", 100, 60}, std::tuple{"Maalämpö", 0, 25}}) {
      clsEnergiamuoto& muoto = lampo.LisaaMuoto();
      muoto.Nimi = nimi;
      muoto.OsuusNettotarpeesta = osuus;
      muoto.Hyotysuhde = 100;
      muoto.IlmastonLampeneminenCO2ekv(2.0 * tariffi);
      clsTariffi& hinta = rakennus->Tariffit.LisaaTariffi(clsTariffi::LampoTariffi);
      hinta.Maksu(1).Hinta = tariffi;
      hinta.Maksu(1).Kulutusosuus = 100;
      muoto.MyyntiTariffiSkey = hinta.sKey;
    }
    rakennus->SahkonKulutusryhmat.PaivitaKulutusRyhmatJaLaitteet();
    toimenpiteet.PaivitaHierarkiaLista();
    rakennus->PaivitaInstanssiIdLista();
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { kirjatut.emplace_back(nimi); };
  }

  /// A measure added and committed.
  clsSaastotoimenpide& Uusi(const Tunniste& solmu) {
    clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa(solmu);
    rakennus->OtaKirjatuksi();
    rakennus->Tallennettu = true;
    return toimenpide;
  }
  /// Opens the measure, acts and presses the button; what stays open after that is cancelled.
  bool Avaa(clsSaastotoimenpide& toimenpide, const char* nappi, const Ikkunattomat::Kasikirjoitus& toimi) {
    ikkunat.KunNaytetaan("frmSaastotoimenpide", [&](Ikkunaton& l) {
      toimi(l);
      l.KayttajaPainaa(nappi);
      if (l.Auki()) l.KayttajaPainaa("cmdPeruuta");
    });
    return toimenpide.NaytaKayttoliittyma();
  }
  /// The dialog of the object after: the person acts and presses OK.
  void KunJalkeen(const char* lomake, const Ikkunattomat::Kasikirjoitus& toimi, const char* nappi = "cmdOk") {
    ikkunat.KunNaytetaan(lomake, [=](Ikkunaton& l) {
      toimi(l);
      l.KayttajaPainaa(nappi);
      if (l.Auki()) l.KayttajaPainaa("cmdPeruuta");
    });
  }
  void KunSisalampotila(const char* teksti, const char* nappi = "cmdOk") {
    KunJalkeen(
        "frmTila", [=](Ikkunaton& l) { l.KayttajaKirjoittaa("txtSisalampotila", teksti); }, nappi);
  }
  static void Jalkeen(Ikkunaton& l) { l.KayttajaPainaa("cmdJalkeen"); }
  static const Taulukko& Muutokset(const Ikkunaton& l) { return l.Etsi("lvwMuutokset").Rivit(); }
  std::vector<std::string> Lauseet(clsSaastotoimenpide& toimenpide) const {
    std::vector<std::string> lauseet;
    for (const Muutosrivi& rivi : Muutoskuvaus(*rakennus).Rivit(toimenpide)) lauseet.push_back(rivi.Lause());
    return lauseet;
  }
  clsTila& Sali() const { return rakennus->Tilat.Item(2); }

  clsSaastotoimenpiteet& toimenpiteet = rakennus->Saastotoimenpiteet;
  std::vector<std::string> kirjatut;
};

TEST_F(ToimenpideDialogi, EachKindIsEditedThroughTheObjectAfterAndTheModelStays) {
  const auto kirjoita = [](const char* kentta, const char* teksti) {
    return [=](Ikkunaton& l) { l.KayttajaKirjoittaa(kentta, teksti); };
  };
  const struct {
    Tunniste solmu;
    const char* moduuli;
    const char* lomake;
    Ikkunattomat::Kasikirjoitus muuta;
    std::vector<std::string> rivi;
    const char* saasto;  // field that isn't 0
  } kTapaukset[] = {
      {Sali().sKey,
       "Johtumishäviöt",
       "frmTila",
       kirjoita("txtSisalampotila", "19"),
       {"Sali", "Sisälämpötila", "21,0 °C", "19,0 °C"},
       "txtLampoSaasto"},
      {rakennus->IVKoneet.Item(1).sKey,
       "Ilmanvaihto",
       "frmIlmanvaihtokone",
       kirjoita("txtLtoHyotysuhde", "75"),
       {"TK01", "LTO:n hyötysuhde", "40,0 %", "75,0 %"},
       "txtLampoSaasto"},
      {rakennus->SahkonKulutusryhmat.Item(1).sKey,
       "Sähkölaitteet",
       "frmTarkennettuLaiteLaskenta",
       kirjoita("txtTasauskerroin", "0,5"),
       {"Valaistus", "Tasauskerroin", "1", "0,5"},
       "txtSahkoSaasto"},
      {rakennus->VedenKulutusryhmat.Item(1).sKey,
       "Vedenkulutus",
       "frmTarkennettuVesiLaskenta",
       kirjoita("txtOminaissuureidenMaara", "60"),
       {"Suihkut", "Ominaiskulutus", "100,0", "60,0"},
       "txtVesiSaasto"},
      {"sKeyEnergianJaVedenHankintaLampo",
       "Energian ja vedenhankinta",
       "frmEnHankKoostEnergiamuodoista",
       [](Ikkunaton& l) {
         l.KayttajaMuokkaa("lvwEnergiamuodot", "Maalämpö", 1, "70");
         l.KayttajaMuokkaa("lvwEnergiamuodot", "Kaukolämpö", 1, "30");
       },
       {"Lämmön hankinta, Kaukolämpö", "Osuus nettotarpeesta", "100,0 %", "30,0 %"},
       "txtTariffisaasto"},
      {"sKeySahko",
       "Sähkölaitteet",
       "frmTarkennettuLaiteLaskenta",
       [](Ikkunaton& l) {
         EXPECT_FALSE(l.Etsi("chkHyodynnetaanLammityksessa").Kaytossa());
         EXPECT_FALSE(l.Etsi("cmbLiittyyTilaan").Kaytossa());
         for (const char* kentta : {"txtOminaissuureidenMaara", "txtLaskentaYksikoidenMaara",
                                    "txtKayttomaaraTunnitVrk_ssa", "txtKayttomaaraVrktVuodessa"})
           l.KayttajaKirjoittaa(kentta, "20");
       },
       {"", "Teho tai ominaiskulutus", "0,0", "20,0"},
       "txtSahkoSaasto"},
      {"sKeyVesi",
       "Vedenkulutus",
       "frmTarkennettuVesiLaskenta",
       [](Ikkunaton& l) {
         for (const char* kentta : {"txtOminaissuureidenMaara", "txtLaskentaYksikoidenMaara",
                                    "txtKayttomaaraTunnitVrk_ssa", "txtKayttomaaraVrktVuodessa"})
           l.KayttajaKirjoittaa(kentta, "20");
       },
       {"", "Ominaiskulutus", "0,0", "20,0"},
       "txtVesiSaasto"},
  };
  const std::string kuva = MallinKuva();
  for (const auto& tapaus : kTapaukset) {
    SCOPED_TRACE(tapaus.solmu.Teksti());
    clsSaastotoimenpide& toimenpide = Uusi(tapaus.solmu);
    const bool hankinta = std::string_view(tapaus.lomake) == "frmEnHankKoostEnergiamuodoista";
    Tunniste kuultu;
    toimenpide.OkKlikattu.arvo = [&](const Tunniste& avain) { kuultu = avain; };
    kirjatut.clear();
    const std::uint64_t vaihe = rakennus->Vaihe();
    KunJalkeen(tapaus.lomake, tapaus.muuta);
    EXPECT_TRUE(Avaa(toimenpide, "cmdOk", [&](Ikkunaton& l) {
      EXPECT_EQ(l.Teksti("lblModuuli"), tapaus.moduuli);
      EXPECT_FALSE(l.Etsi("imgModuuli").Kuva().empty());
      EXPECT_EQ(l.Etsi("cmdEnnen").Nakyva(), toimenpide.Kelluva());
      EXPECT_EQ(l.Etsi("txtTariffisaasto").Nakyva(), hankinta);
      EXPECT_FALSE(l.Etsi("cmdPoistaMuutos").Kaytossa());
      EXPECT_EQ(l.Teksti("txtTakaisinmaksuaika"), "---");
      EXPECT_EQ(l.Teksti(tapaus.saasto), "0,00");
      EXPECT_TRUE(l.Teksti("lblHuomautus").starts_with("Toimenpide ei vielä muuta mitään"));
      Jalkeen(l);
      ASSERT_FALSE(Muutokset(l).empty());
      auto rivi = Muutokset(l).front();
      if (toimenpide.Kelluva()) rivi.front().clear();
      EXPECT_EQ(rivi, tapaus.rivi);
      EXPECT_NE(l.Teksti(tapaus.saasto), "0,00");
      EXPECT_EQ(l.Teksti("lblHuomautus"), "");
    }));
    EXPECT_EQ(kuultu, toimenpide.sKey);
    EXPECT_EQ(kirjatut, std::vector<std::string>{"Säästötoimenpide"}) << "one step of undo";
    EXPECT_FALSE(rakennus->Tallennettu);
    EXPECT_TRUE(toimenpide.EnnenTiedotUpToDate && toimenpide.JalkeenTiedotUpToDate);
    EXPECT_EQ(rakennus->Vaihe(), vaihe) << "the model didn't change";
    EXPECT_EQ(MallinKuva(), kuva);
  }
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(ToimenpideDialogi, MoneyFollowsWhatIsWrittenAndTheAdviceOnVat) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  toimenpide.LampoEnergiaHinta = 50;
  KunSisalampotila("19");
  Asetukset().dblCurrencyConvCoeff = 1;
  Asetukset().KaytaKohtTulostuksissaALVHintoja = true;
  Asetukset().dblLampoALV = 25;
  Asetukset().YleinenALV = 20;
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", [&](Ikkunaton& l) {
    EXPECT_EQ(l.Etsi("fraToimenpiteenHinnat").Teksti(), "Hinnat. Maksut sisältävät ALV:n");
    EXPECT_EQ(l.Teksti("txtLampoEnergiaHinta"), "62,50");
    Jalkeen(l);
    l.KayttajaKirjoittaa("txtLampoEnergiaHinta", "125");
    l.KayttajaKirjoittaa("txtInvestointi", "12000");
    l.KayttajaKirjoittaa("txtSaastoLampoteho", "0");
    EXPECT_EQ(toimenpide.LampoEnergiaHinta, 100) << "the measure follows";
    EXPECT_EQ(toimenpide.Investointi, 10000);
    const double saasto = toimenpide.Saasto().lampo;
    EXPECT_EQ(l.Teksti("txtLampoKustannus"), Muotoile(125 * saasto, "### ##0.00"));
    const double muut = toimenpide.KustannusSaastoYhteensa(Asetukset().NaytettavatAlvt());
    EXPECT_EQ(l.Teksti("txtKustannusSaastoYhteensa"), Muotoile(muut, "### ##0.00"));
    EXPECT_EQ(l.Teksti("txtTakaisinmaksuaika"), Muotoile(12000 / muut, "0.0"));
    l.KayttajaKirjoittaa("txtLampoEnergiaHinta", "12x");
    EXPECT_EQ(toimenpide.LampoEnergiaHinta, 100) << "no number";
    l.KayttajaKirjoittaa("txtLampoEnergiaHinta", "125");
    EXPECT_FALSE(l.Etsi("txtToimenpiteenVaikutusAste").Kaytossa());
    l.KayttajaPainaa("chkToimenpiteenVaikutusAste");
    EXPECT_TRUE(l.Etsi("txtToimenpiteenVaikutusAste").Kaytossa());
    l.KayttajaKirjoittaa("txtToimenpiteenVaikutusAste", "50");
    EXPECT_EQ(l.Teksti("txtLampoKustannus"), Muotoile(125 * saasto, "### ##0.00"));
  }));
  Asetukset().HaeRekisteristä();
}

TEST_F(ToimenpideDialogi, CancelTakesBackTheFieldsAndKeepsTheChanges) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  const std::string nimi = toimenpide.Nimi;
  EXPECT_FALSE(Avaa(toimenpide, "cmdPeruuta", [](Ikkunaton& l) { l.KayttajaKirjoittaa("txtNimi", "Muu"); }));
  EXPECT_EQ(toimenpide.Nimi, nimi);
  EXPECT_TRUE(rakennus->Tallennettu);
  EXPECT_TRUE(kirjatut.empty());

  KunSisalampotila("19");
  bool kuultu = false;
  toimenpide.OkKlikattu.arvo = [&](const Tunniste&) { kuultu = true; };
  EXPECT_FALSE(Avaa(toimenpide, "cmdPeruuta", [](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtNimi", "Muu");
    Jalkeen(l);
    EXPECT_EQ(l.Teksti("txtNimi"), "Muu") << "the refresh loses nothing";
  }));
  EXPECT_EQ(toimenpide.Nimi, nimi);
  EXPECT_EQ(Lauseet(toimenpide), std::vector<std::string>{"Sali: Sisälämpötila 21,0 °C → 19,0 °C"});
  EXPECT_GT(toimenpide.Saasto().lampo, 0);
  EXPECT_FALSE(rakennus->Tallennettu);
  EXPECT_FALSE(kuultu);
  EXPECT_EQ(kirjatut.size(), 1u) << "what stays can be undone";
}

TEST_F(ToimenpideDialogi, ACancelledObjectAfterChangesNothing) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  KunSisalampotila("19", "cmdPeruuta");
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", Jalkeen));
  EXPECT_EQ(toimenpide.MuuttuneetAttribuutit.Count(), 0);
  EXPECT_TRUE(kirjatut.empty());
  EXPECT_TRUE(rakennus->Tallennettu);
}

TEST_F(ToimenpideDialogi, AnErrorInTheMiddleLeavesModelAndMeasureAsTheyWere) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  KunSisalampotila("19");
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", Jalkeen));
  const auto lauseet = Lauseet(toimenpide);
  const Hyodykkeet saasto = toimenpide.Saasto();
  rakennus->OtaKirjatuksi();
  const std::string kuva = MallinKuva();

  double& kulutus = rakennus->SahkonKulutusryhmat.Item(1).LaskentaperusteNumber;
  const double entinen = kulutus;
  KunJalkeen("frmTila", [&](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtSisalampotila", "17");
    kulutus = std::numeric_limits<double>::infinity();
    rakennus->RekisteriVanheni();
  });
  EXPECT_FALSE(Avaa(toimenpide, "cmdPeruuta", [&](Ikkunaton& l) {
    Jalkeen(l);
    EXPECT_FALSE(viestit.Naytetyt().empty());
    kulutus = entinen;
    rakennus->RekisteriVanheni();
    EXPECT_TRUE(l.Etsi("cmdJalkeen").Kaytossa());
  }));
  EXPECT_EQ(Lauseet(toimenpide), lauseet);
  EXPECT_EQ(toimenpide.Saasto(), saasto);
  EXPECT_EQ(MallinKuva(), kuva);
  EXPECT_EQ(kirjatut.size(), 1u);

  rakennus->MuutosVahvistettu = [](std::string_view) { throw std::runtime_error("levy täynnä"); };
  Avaa(toimenpide, "cmdOk", [](Ikkunaton& l) { l.KayttajaKirjoittaa("txtNimi", "Muu"); });
  EXPECT_NE(toimenpide.Nimi, "Muu");
  rakennus->MuutosVahvistettu = nullptr;
}

TEST_F(ToimenpideDialogi, ALineIsTakenBackWithWhatBelongsToIt) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  KunJalkeen("frmTila", [this](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtSisalampotila", "19");
    l.KayttajaValitsee("cmbSaatotapa", "Ei säätöä (20 %)");
    ikkunat.KunNaytetaan("frmRakenteet", [](Ikkunaton& r) {
      r.KayttajaKirjoittaa("txtUarvo", "0,17");
      r.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdRakenteet");
  });
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", [&](Ikkunaton& l) {
    Jalkeen(l);
    EXPECT_EQ(Muutokset(l),
              (Taulukko{{"Sali", "Sisälämpötila", "21,0 °C", "19,0 °C"},
                        {"Sali", "Lämmönjaon säätötapa", "Termostaattiventtiilit (80 %)", "Ei säätöä (20 %)"},
                        {"Sali", "Lämmönjaon säädön hyötysuhde", "80,0 %", "20,0 %"},
                        {"Sali, Ulkoseinä", "U-arvo", "0,40 W/m²K", "0,17 W/m²K"}}));
    const std::string saasto = l.Teksti("txtLampoSaasto");
    l.KayttajaValitsee("lvwMuutokset", "Sali, Ulkoseinä");
    l.KayttajaPainaa("cmdPoistaMuutos");
    EXPECT_EQ(Muutokset(l).size(), 3u);
    EXPECT_NE(l.Teksti("txtLampoSaasto"), saasto);
    l.Etsi("lvwMuutokset").Indeksi(1);
    l.Etsi("lvwMuutokset").KayttajaPoistaa();
  }));
  EXPECT_EQ(Lauseet(toimenpide), (std::vector<std::string>{"Sali: Sisälämpötila 21,0 °C → 19,0 °C",
                                                           "Sali: Lämmönjaon säädön hyötysuhde 80,0 % → 20,0 %"}));
  for (const clsMuuttunutAttribuutti& muutos : toimenpide.MuuttuneetAttribuutit)
    EXPECT_FALSE(muutos.AttribuutinNimi.starts_with("Saatotapa")) << muutos.AttribuutinNimi;
}

TEST_F(ToimenpideDialogi, PartsOfAMachineAreEditedInTheirOwnDialogs) {
  clsSaastotoimenpide& toimenpide = Uusi(rakennus->IVKoneet.Item(1).sKey);
  KunJalkeen("frmIlmanvaihtokone", [this](Ikkunaton& l) {
    ikkunat.KunNaytetaan("frmIlmanvaihtokoneenKayntiajat", [](Ikkunaton& k) {
      k.KayttajaKirjoittaa("txtPaattyy1", "16:00");
      k.KayttajaPoistuu("txtPaattyy1");
      k.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdKayntiajat");
    ikkunat.KunNaytetaan("frmIVKoneenPuhaltimienSahkonKaytto", [](Ikkunaton& p) {
      p.KayttajaKirjoittaa("txtSahkoTeho11Tulo", "2");
      p.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdPuhaltimet");
  });
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", Jalkeen));
  const auto lauseet = Lauseet(toimenpide);
  const auto on = [&](const char* lause) { return std::ranges::find(lauseet, lause) != lauseet.end(); };
  EXPECT_TRUE(on("TK01, Käyntiajat, Tammi-joulukuu vakiokäyttö (1): Päättyy 17:45 → 16:00"))
      << testing::PrintToString(lauseet);
  EXPECT_TRUE(on("TK01, Puhaltimet: Tulopuhaltimen sähköteho täydellä ilmavirralla 3 kW → 2 kW"))
      << testing::PrintToString(lauseet);
  EXPECT_EQ(rakennus->IVKoneet.Item(1).PuhaltimienSahkonKulutus.TuloSahkoTeho11, 3);
}

TEST_F(ToimenpideDialogi, AFloatingMeasuresBaseIsEditedAndTheSideAfterWaits) {
  clsSaastotoimenpide& toimenpide = Uusi("sKeyVesi");
  const auto yksikoita = [](const char* teksti) {
    return [=](Ikkunaton& l) { l.KayttajaKirjoittaa("txtLaskentaYksikoidenMaara", teksti); };
  };
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", [&](Ikkunaton& l) {
    KunJalkeen("frmTarkennettuVesiLaskenta", yksikoita("10"));
    l.KayttajaPainaa("cmdEnnen");
    EXPECT_TRUE(l.Teksti("lblHuomautus").starts_with("Lähtötilannetta on muutettu"));
    KunJalkeen("frmTarkennettuVesiLaskenta", yksikoita("4"));
    Jalkeen(l);
    EXPECT_EQ(l.Teksti("lblHuomautus"), "");
    EXPECT_EQ(Muutokset(l).back()[2] + ">" + Muutokset(l).back()[3], "10>4");
  }));
}

TEST_F(ToimenpideDialogi, ATargetThatIsGoneIsTold) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  KunSisalampotila("19");
  EXPECT_TRUE(Avaa(toimenpide, "cmdOk", Jalkeen));
  rakennus->Tilat.Remove(2);
  rakennus->RekisteriVanheni();
  Avaa(toimenpide, "cmdPeruuta", [](Ikkunaton& l) {
    EXPECT_FALSE(l.Etsi("cmdJalkeen").Kaytossa());
    EXPECT_EQ(Muutokset(l), (Taulukko{{"Kohdetta ei enää ole", "Sisälämpötila", "21,0 °C", "19,0 °C"}}));
    EXPECT_TRUE(l.Teksti("lblHuomautus").starts_with("Toimenpiteen kohdetta ei enää ole"));
  });
}

TEST_F(ToimenpideDialogi, ChangesAreTold) {
  clsSaastotoimenpide& toimenpide = Uusi(Sali().sKey);
  clsMuuttuneetAttribuutit& lista = toimenpide.MuuttuneetAttribuutit;
  clsTila& sali = Sali();
  clsRakenne& toinen = LisaaRakenne(sali, Rakennelaji::Ulkoseina, 30, 0.1732);
  rakennus->RekisteriVanheni();
  Lisaa(lista, sali, "LammitettyTila", Laji::Totuus, 0);
  Lisaa(lista, sali, "TilanKayttoaikaStr", Laji::Teksti, 0, "vain teksti");
  Lisaa(lista, sali, "Kuvausteksti", Laji::Teksti, 0, "uusi");
  Lisaa(lista, toinen, "U_arvo", Laji::Kaksinkertainen, 0.17323);
  Lisaa(lista, toinen.SivuLippa, "Varjostuskulma", Laji::Kaksinkertainen, 30);
  Lisaa(lista, sali, "EiOle", Laji::Kaksinkertainen, 1);
  EXPECT_EQ(
      Lauseet(toimenpide),
      (std::vector<std::string>{"Sali: Lämmitetty tila Kyllä → Ei", "Sali: Kuvaus --- → uusi",
                                "Sali, Ulkoseinä (2): U-arvo 0,1732 W/m²K → 0,17323 W/m²K",
                                "Sali, Ulkoseinä (2), Sivulippa: Varjostuskulma 0 ° → 30 °", "Sali: EiOle 0 → 1"}));

  clsSaastotoimenpide& kone = Uusi(rakennus->IVKoneet.Item(1).sKey);
  Lisaa(kone.MuuttuneetAttribuutit, rakennus->IVKoneet.Item(1), "LiittyyTilaansKey", Laji::Teksti, 0,
        sali.sKey.Teksti());
  EXPECT_TRUE(Lauseet(kone).front().ends_with("→ Sali")) << Lauseet(kone).front();
  clsSaastotoimenpide& ryhma = Uusi(rakennus->SahkonKulutusryhmat.Item(1).sKey);
  for (const auto& [nimi, arvo] : {std::pair{"LaskentatapaTehopohjainen", 0}, {"LaskentatapaEnergiapohjainen", -1}})
    Lisaa(ryhma.MuuttuneetAttribuutit, rakennus->SahkonKulutusryhmat.Item(1), nimi, Laji::Totuus, arvo);
  EXPECT_EQ(Lauseet(ryhma), std::vector<std::string>{"Valaistus: Laskentatapa Tehopohjainen → Energiapohjainen"});
}

/// Names of the members that a variation can hold, and no others.
TEST_F(ToimenpideDialogi, EveryMemberThatAMeasureCanChangeHasAName) {
  const auto nimet = Ominaisuustekstit();
  std::set<std::string> kaydyt;
  const auto tarkista = [&](Olio& olio) {
    const clsTyyppiTieto* tieto = rakennus->TyyppiTiedot.Etsi(olio.LuokanTiedot());
    if (!tieto || olio.LuokanTiedot().Osallistuminen() == Luokka::Osallistuu::EiKumpaankaan) return;
    for (const Jasen* jasen : tieto->Jasenet()) {
      if (jasen->OnOlio() || jasen->kopio || !jasen->aseta) continue;
      const std::string nimi = std::string(olio.LuokanNimi()) + "." + std::string(jasen->nimi);
      kaydyt.insert(nimi);
      if (nimet.contains(nimi)) continue;
      clsMuuttunutAttribuutti tama, muu;
      tama.AttribuutinNimi = jasen->nimi;
      EXPECT_TRUE(std::ranges::any_of(tieto->Jasenet(), [&](const Jasen* pari) {
        muu.AttribuutinNimi = pari->nimi;
        return pari != jasen && clsMuuttuneetAttribuutit::OvatPari(tama, muu) &&
               nimet.contains(std::string(olio.LuokanNimi()) + "." + std::string(pari->nimi));
      })) << nimi;
    }
  };
  LisaaIkkuna(Sali(), 10, 2);
  rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).LisaaPolttoaine({});
  Kierra(Sali(), tarkista);
  Kierra(rakennus->IVKoneet.Item(1), tarkista);
  Kierra(rakennus->SahkonKulutusryhmat.Item(1), tarkista);
  Kierra(rakennus->VedenKulutusryhmat.Item(1), tarkista);
  Kierra(rakennus->Perustiedot.LammonHankinta, tarkista);
  for (const auto& [nimi, teksti] : nimet) {
    const auto piste = nimi.find('.');
    const Luokka* luokka = Luokka::Nimella(nimi.substr(0, piste));
    ASSERT_TRUE(luokka) << nimi;
    const Jasen* jasen = luokka->Etsi(nimi.substr(piste + 1));
    EXPECT_TRUE(jasen && (jasen->OnOlio() || kaydyt.contains(nimi) || jasen->kopio)) << nimi;
  }
}

}  // namespace
