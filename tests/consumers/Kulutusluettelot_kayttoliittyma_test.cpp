// SPDX-License-Identifier: GPL-3.0-or-later
// The lists of electricity and of water consumers, driven as a person would, without a screen.
#include <map>

#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"

namespace {

constexpr const char* kLista = "lvwRyhmat";
using Rivi = std::vector<std::string>;

class Kulutusluettelot : public RakennusTesti {
 protected:
  Kulutusluettelot() {
    AsetaTarkistuksenKello(nullptr);
    LuoKoulu();
    rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Sahko = 100;
    rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Vesi = 50;
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { askeleet.emplace_back(nimi); };
    ikkunat.KunNaytetaan("frmJakaumaGraafi", [this](Ikkunaton& l) {
      kaavio = l.Etsi("chtReport").Kaavio();
      l.KayttajaPainaa("cmdSulje");
    });
    Talleta();
  }
  void Talleta() {
    rakennus->Tallennettu = true;
    askeleet.clear();
  }
  void LisaaToimenpide(const Tunniste& kohde) {
    clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("toimenpide");
    toimenpide.Nimi = "Uudet valaisimet";
    toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin = kohde;
  }
  static std::vector<Rivi> Rivit(Ikkunaton& luettelo) { return luettelo.Etsi(kLista).Rivit(); }
  /// Numbers of the row of that name.
  static std::string Luvut(Ikkunaton& luettelo, const std::string& nimi) {
    std::string luvut;
    for (const Rivi& rivi : Rivit(luettelo))
      if (rivi[0] == nimi)
        for (std::size_t i = 1; i < rivi.size(); ++i) luvut += (i > 1 ? " | " : "") + rivi[i];
    return luvut;
  }
  /// Names of the rows under that one.
  static Rivi Alla(Ikkunaton& luettelo, const std::string& nimi) {
    const Luettelo& lista = luettelo.Etsi(kLista).Lista();
    Rivi nimet;
    for (int i = 0; i < lista.Maara(); ++i)
      if (lista.Solut()[static_cast<std::size_t>(i)][0] == nimi)
        for (const int lapsi : lista.Alemmat(i)) nimet.push_back(lista.Solut()[static_cast<std::size_t>(lapsi)][0]);
    return nimet;
  }
  static std::string Valittu(Ikkunaton& luettelo) {
    const Ohjain& lista = luettelo.Etsi(kLista);
    return lista.Rivit().at(static_cast<std::size_t>(lista.Indeksi()))[0];
  }

  std::vector<std::string> askeleet;
  Kaaviotiedot kaavio;
};

class Sahkolaitteet : public Kulutusluettelot {
 protected:
  void Avaa() {
    puu.NaytaKayttoliittyma();
    Talleta();
  }
  Ikkunaton& L() const { return ikkunat.Ikkuna("frmSahkoLaitteet"); }
  /// What the person writes in the group's dialog: so many watts on one device around the clock.
  void KunRyhmaAvautuu(const char* nimi, const char* tehoW) {
    ikkunat.KunNaytetaan("frmTarkennettuLaiteLaskenta", [=](Ikkunaton& l) {
      l.KayttajaKirjoittaa("txtKulutusRyhmanNimi", nimi);
      for (const auto& [kentta, arvo] : {std::pair{"txtOminaissuureidenMaara", tehoW},
                                         {"txtLaskentaYksikoidenMaara", "1"},
                                         {"txtKayttomaaraTunnitVrk_ssa", "24"},
                                         {"txtKayttomaaraVrktVuodessa", "365"}})
        l.KayttajaKirjoittaa(kentta, arvo);
      l.KayttajaPainaa("cmdOk");
    });
  }
  void Lisaa(const char* kohde, const char* nimi, const char* tehoW = "1000") {
    KunRyhmaAvautuu(nimi, tehoW);
    L().KayttajaValitsee(kLista, kohde);
    L().KayttajaPainaa("cmdLisaaUusi");
  }
  void LisaaNimike(const char* nimi) {
    viestit.AsetaSeuraavaTeksti(nimi);
    L().KayttajaPainaa("cmdLisaaUusiNimike");
  }

  clsSahkonKulutusryhmat& puu = rakennus->SahkonKulutusryhmat;
};

TEST_F(Sahkolaitteet, ANewDeviceComesUnderTheChosenTitleAndTheFiguresFollow) {
  Avaa();
  EXPECT_EQ(Valittu(L()), "Yhteensä");
  Lisaa("Valaistus", "Luokat");
  EXPECT_EQ(Luvut(L(), "Luokat"), "8,76");
  EXPECT_EQ(Luvut(L(), "Yhteensä"), "8,76");
  EXPECT_EQ(L().Teksti("txtLaskettu"), "9");
  EXPECT_EQ(L().Teksti("txtErotus"), "91") << "of the shown numbers";
  EXPECT_EQ(Valittu(L()), "Luokat");
  EXPECT_EQ(askeleet.size(), 1u) << "one step of undo";
  Lisaa("Luokat", "Käytävät");
  EXPECT_EQ(Alla(L(), "Valaistus"), (Rivi{"Käytävät", "Luokat"})) << "beside the device, the newest first";
  KunRyhmaAvautuu("Kopion nimi", "500");
  L().KayttajaPainaa("cmdKopioi");
  EXPECT_EQ(Luvut(L(), "Kopion nimi"), "4,38");
  EXPECT_EQ(puu.Count(), 3);
}

TEST_F(Sahkolaitteet, WhatThePersonGivesUpLeavesNothing) {
  Avaa();
  Lisaa("Valaistus", "Luokat");
  Talleta();
  const auto ennen = rakennus->Sormenjalki();
  ikkunat.KunNaytetaan("frmTarkennettuLaiteLaskenta", [](Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); });
  L().KayttajaPainaa("cmdLisaaUusi");
  L().KayttajaPainaa("cmdKopioi");
  ikkunat.KunNaytetaan("frmKulutusluettelo", [](Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); });
  L().KayttajaPainaa("cmdLisaaLuettelosta");
  LisaaNimike("  ");
  viestit.AsetaSeuraavaTeksti(std::nullopt);
  L().KayttajaPainaa("cmdLisaaUusiNimike");
  EXPECT_EQ(rakennus->Sormenjalki(), ennen);
  EXPECT_TRUE(askeleet.empty());
  EXPECT_TRUE(rakennus->Tallennettu);
}

TEST_F(Sahkolaitteet, WhatCanBeDoneHangsOnTheRow) {
  clsTila& tila = rakennus->Tilat.Item(1);
  tila.Sahkolammitys = true;
  tila.TilanNimi = "Koulu";
  Avaa();
  LisaaNimike("Ruokala");
  Lisaa("Ruokala", "Uuni");
  constexpr const char* kNapit[] = {"cmdLisaaUusi", "cmdLisaaUusiNimike", "cmdKopioi",
                                    "cmdMuokkaa",   "cmdPoista",          "cmdJakauma"};
  const std::pair<const char*, const char*> kRivit[] = {
      {"Yhteensä", "010001"}, {"Valaistus", "110001"}, {"LVI-sähkö", "110001"}, {"Muu sähkö", "110001"},
      {"Ruokala", "110111"},  {"Koulu", "110000"},     {"Uuni", "111110"}};
  for (const auto& [rivi, odotettu] : kRivit) {
    L().KayttajaValitsee(kLista, rivi);
    std::string saatu;
    for (const char* nappi : kNapit) saatu += L().Etsi(nappi).Kaytossa() ? '1' : '0';
    EXPECT_EQ(saatu, odotettu) << rivi;
  }
  const Luettelo& lista = L().Etsi(kLista).Lista();
  for (int i = 0; i < lista.Maara(); ++i) {
    const std::string& nimi = lista.Solut()[static_cast<std::size_t>(i)][0];
    EXPECT_EQ(lista.Piirteet(i).lihava, nimi != "Uuni" && nimi != "Koulu") << nimi;
  }
}

TEST_F(Sahkolaitteet, OwnTitlesAreNamedAndGoWhenTheyAreEmpty) {
  Avaa();
  LisaaNimike(" Ruokala ");
  EXPECT_EQ(Valittu(L()), "Ruokala");
  viestit.AsetaSeuraavaTeksti("");
  L().KayttajaPainaa("cmdMuokkaa");
  viestit.AsetaSeuraavaTeksti("Keittiö");
  L().Etsi(kLista).KayttajaPainaa();
  EXPECT_EQ(Alla(L(), "Yhteensä"), (Rivi{"Keittiö", "Muu sähkö", "LVI-sähkö", "Valaistus"}));
  Lisaa("Keittiö", "Uuni");
  L().KayttajaValitsee(kLista, "Keittiö");
  L().KayttajaPainaa("cmdPoista");
  EXPECT_EQ(viestit.Esiintymia("Nimikkeen alla on rivejä"), 1);
  for (const char* poistettava : {"Uuni", "Keittiö"}) {
    L().KayttajaValitsee(kLista, poistettava);
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    L().KayttajaPainaa("cmdPoista");
  }
  EXPECT_EQ(Rivit(L()).size(), 4u);
  EXPECT_EQ(puu.Count(), 0);
}

TEST_F(Sahkolaitteet, AMeasureHoldsItsGroupAndLocksTheRestButDraggingStays) {
  Avaa();
  Lisaa("Valaistus", "Luokat");
  LisaaToimenpide(puu.Item(1).InstanssiId);
  rakennus->Muuttui("Toimenpide");
  for (const char* nappi : {"cmdLisaaUusi", "cmdLisaaUusiNimike", "cmdLisaaLuettelosta", "cmdKopioi", "cmdPoista"})
    EXPECT_FALSE(L().Etsi(nappi).Kaytossa()) << nappi;
  EXPECT_TRUE(L().Etsi("cmdMuokkaa").Kaytossa());
  L().Etsi(kLista).KayttajaPoistaa();  // the key
  EXPECT_EQ(viestit.Esiintymia("Säästötoimenpide viittaa kulutusryhmään, joten sitä ei voi poistaa. Poista ensin "
                               "toimenpide. Uudet valaisimet"),
            1);
  L().Etsi(kLista).KayttajaLiittaa("Nimike\tMäärä\tTeho tai ominaiskulutus\nA\t1\t1\n");
  EXPECT_EQ(viestit.Esiintymia("Kohteen osia ei voi lisätä"), 1);
  EXPECT_EQ(puu.Count(), 1);
  L().KayttajaSiirtaa(kLista, "Luokat", "Muu sähkö");
  EXPECT_EQ(Alla(L(), "Muu sähkö"), Rivi{"Luokat"});
}

TEST_F(Sahkolaitteet, ADraggedDeviceComesLastUnderItsNewTitleWhichOpens) {
  Avaa();
  Lisaa("Valaistus", "Luokat");
  Lisaa("Muu sähkö", "Hissi");
  L().KayttajaAvaa(kLista, "Muu sähkö", false);
  EXPECT_TRUE(puu.ListaItem("sKeyMuuSahko").Collapsed);
  Talleta();
  L().KayttajaSiirtaa(kLista, "Luokat", "Muu sähkö");
  EXPECT_EQ(Alla(L(), "Muu sähkö"), (Rivi{"Hissi", "Luokat"}));
  EXPECT_EQ(Luvut(L(), "Muu sähkö"), "17,52");
  EXPECT_FALSE(L().Etsi(kLista).Lista().Suljettu(1)) << "what was moved is seen";
  EXPECT_EQ(askeleet, Rivi{"Kulutusryhmän siirto"});
  const Ohjain& lista = L().Etsi(kLista);
  EXPECT_FALSE(lista.VoiSiirtaa(lista.Indeksi(), 0)) << "not under the total";
}

TEST_F(Sahkolaitteet, OpeningAndClosingBranchesIsNoChange) {
  Avaa();
  Lisaa("Valaistus", "Luokat");
  Talleta();
  const auto ennen = rakennus->Sormenjalki();
  L().KayttajaAvaa(kLista, "Valaistus", false);
  EXPECT_TRUE(puu.ListaItem("sKeyValaistus").Collapsed);
  EXPECT_FALSE(puu.ListaItem(puu.Item(1).sKey).Visible);
  EXPECT_TRUE(rakennus->Tallennettu);
  EXPECT_EQ(rakennus->Sormenjalki(), ennen);
  EXPECT_TRUE(askeleet.empty());
}

TEST_F(Sahkolaitteet, CancelTakesBackWhatTheListDid) {
  Avaa();
  Lisaa("Valaistus", "Luokat");
  Lisaa("Valaistus", "Käytävät");
  L().KayttajaPainaa("cmdOk");
  EXPECT_FALSE(L().Auki());
  EXPECT_FALSE(rakennus->Tallennettu);
  Avaa();
  const auto ennen = rakennus->Sormenjalki();
  KunRyhmaAvautuu("Muutettu", "5");
  L().KayttajaValitsee(kLista, "Luokat");
  L().KayttajaPainaa("cmdMuokkaa");
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  L().KayttajaValitsee(kLista, "Käytävät");
  L().KayttajaPainaa("cmdPoista");
  LisaaNimike("Ruokala");
  Lisaa("Ruokala", "Uuni");
  L().KayttajaSiirtaa(kLista, "Muutettu", "Ruokala");
  askeleet.clear();
  L().KayttajaPainaa("cmdPeruuta");
  EXPECT_FALSE(L().Auki());
  EXPECT_EQ(askeleet, Rivi{"Sähkölaitteet: peruutus"}) << "a step that can be undone itself";
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(rakennus->Sormenjalki(), ennen);
  for (const char* nappi : {"cmdOk", "cmdPeruuta"}) {
    Avaa();
    L().KayttajaPainaa(nappi);
    EXPECT_TRUE(askeleet.empty()) << "nothing was done";
    EXPECT_TRUE(rakennus->Tallennettu);
  }
}

TEST_F(Sahkolaitteet, CancelLeavesWhatOthersHaveCommittedAndAsksWhereBothHave) {
  Avaa();
  Lisaa("Valaistus", "Luokat");
  Lisaa("Valaistus", "Käytävät");
  L().KayttajaPainaa("cmdOk");
  Avaa();
  Lisaa("Muu sähkö", "Hissi");
  KunRyhmaAvautuu("Luokkahuoneet", "5");
  L().KayttajaValitsee(kLista, "Luokat");
  L().KayttajaPainaa("cmdMuokkaa");
  // Elsewhere: one that the list hasn't touched, and one new.
  const auto ryhma = [this](const std::string& nimi) {
    return std::find_if(puu.begin(), puu.end(), [&](const auto& r) { return r.KulutusRyhma == nimi; });
  };
  ryhma("Käytävät")->KulutusRyhma = "Aulat";
  puu.LisaaRyhma("sKeyLVISahko").KulutusRyhma = "Pumppu";
  rakennus->Muuttui("Muualla");
  EXPECT_EQ(Alla(L(), "Valaistus"), (Rivi{"Aulat", "Luokkahuoneet"})) << "the list follows";
  ryhma("Luokkahuoneet")->Tasauskerroin = 0.5;
  rakennus->Muuttui("Muualla");
  L().KayttajaPainaa("cmdPeruuta");  // No is the default
  EXPECT_TRUE(L().Auki());
  EXPECT_EQ(viestit.Esiintymia("muutettu muuallakin:\nLuokkahuoneet\n\nPeruutus palauttaa nekin"), 1);
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  L().KayttajaPainaa("cmdPeruuta");
  EXPECT_FALSE(L().Auki());
  Avaa();
  EXPECT_EQ(Alla(L(), "Valaistus"), (Rivi{"Aulat", "Luokat"}));
  EXPECT_EQ(Alla(L(), "LVI-sähkö"), Rivi{"Pumppu"});
  EXPECT_TRUE(Alla(L(), "Muu sähkö").empty());
}

TEST_F(Sahkolaitteet, UndoWhileTheListIsOpenIsNoConflict) {
  Avaa();
  const auto kuva = rakennus->Tilannekuva();
  Lisaa("Valaistus", "Luokat");
  rakennus->PalautaTilannekuva(*kuva);
  EXPECT_EQ(Rivit(L()).size(), 4u);
  L().KayttajaPainaa("cmdPeruuta");
  EXPECT_FALSE(L().Auki());
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(Sahkolaitteet, RowsOfASheetBecomeDevicesAllOrNone) {
  Avaa();
  Ohjain& lista = L().Etsi(kLista);
  const std::string otsikot =
      "Nimike\tMäärä\tTeho tai ominaiskulutus\tYksikkö\tKäyttö vuorokaudessa\tKäyttö vuodessa\n";
  lista.KayttajaLiittaa(otsikot + "A\t1\t1\t\t\t\n");
  EXPECT_EQ(viestit.Esiintymia("Valitse ensin nimike"), 1) << "not under the total";
  L().KayttajaValitsee(kLista, "Valaistus");
  lista.KayttajaLiittaa(otsikot + "Luokat\t10\t100\tW/laite\t25\t200\n" + "\t10\t100\tW/hehtaari\t8\t200\n" +
                        "Kylmiö\t2\t700\tkWh/laite,a\t24\t\n" + "Hissi\t1\t500\t\t8\t200\n");
  EXPECT_EQ(viestit.Esiintymia("\nRivi 2, Käyttö vuorokaudessa: 25 – "), 1);
  EXPECT_EQ(viestit.Esiintymia("\nRivi 3, Nimike: arvo puuttuu\nRivi 3, Yksikkö: W/hehtaari – "), 1);
  EXPECT_EQ(viestit.Esiintymia("\nRivi 4, Käyttö vuorokaudessa: 24 – yksikössä ei ole tätä"), 1);
  EXPECT_EQ(puu.Count(), 0) << "nothing half-pasted";
  EXPECT_EQ(puu.CountListaItems(), 4);
  EXPECT_TRUE(rakennus->Tallennettu);
  lista.KayttajaLiittaa(otsikot +
                        "Luokat\t10\t100\tw/m²\t8\t200\nKylmiö\t2\t700\tkWh/laite,a\t\t\nHissi\t1\t500\t\t8\t200\n");
  EXPECT_EQ(Alla(L(), "Valaistus"), (Rivi{"Luokat", "Kylmiö", "Hissi"})) << "in the order of the sheet";
  EXPECT_EQ(Luvut(L(), "Luokat"), "1,60");
  EXPECT_EQ(Luvut(L(), "Kylmiö"), "1,40");
  EXPECT_EQ(Luvut(L(), "Hissi"), "0,80") << "watts a device when no unit is told";
  EXPECT_EQ(puu.Item(1).Laskentayksikko, "m²");
  EXPECT_EQ(askeleet, Rivi{"Kulutusryhmien liittäminen"});
  EXPECT_EQ(Valittu(L()), "Hissi");
}

TEST_F(Sahkolaitteet, TheDistributionIsThatOfTheRowsUnderATitle) {
  Avaa();
  Lisaa("Valaistus", "Luokat", "3000");
  Lisaa("Valaistus", "Käytävät", "1000");
  L().KayttajaValitsee(kLista, "Valaistus");
  L().KayttajaPainaa("cmdJakauma");
  EXPECT_EQ(kaavio.otsikko, "Valaistus, Koulu");
  EXPECT_EQ(kaavio.nimet, (Rivi{"Käytävät  (25 %) ", "Luokat  (75 %) "}));
  EXPECT_EQ(kaavio.yksikko, "MWh/a");
  kaavio = {};
  L().KayttajaValitsee(kLista, "Muu sähkö");
  L().KayttajaPainaa("cmdJakauma");
  EXPECT_TRUE(kaavio.nimet.empty()) << "no rows, no chart";
}

TEST_F(Sahkolaitteet, AFigureThatCantBeComputedIsToldAndTheListOpensAllTheSame) {
  rakennus->Tilat.Item(1).Sahkolammitys = true;
  rakennus->Tilat.Item(1).Sisalampotila = std::numeric_limits<double>::infinity();
  puu.NaytaKayttoliittyma();
  EXPECT_FALSE(viestit.Naytetyt().empty());
  EXPECT_EQ(Luvut(L(), "Valaistus"), "---");
  EXPECT_EQ(L().Teksti("txtLaskettu"), "---");
  EXPECT_EQ(L().Teksti("txtErotus"), "---");
}

class Vedenkulutus : public Kulutusluettelot {
 protected:
  Vedenkulutus() {
    for (clsVedenKulutusryhma& ryhma : puu) {  // 36,5 m³/a at 55 °C each
      ryhma.LaskentaperusteNumber = 10;
      ryhma.Laskentayksikko = 10;
      ryhma.KayttokuvausKertaaD = 1;
      ryhma.KayttokuvausDpA = 365;
      ryhma.VedenKayttolampotila = 55;
      ryhma.LampimanVedenOsuus = 100;
    }
  }
  void Avaa() {
    puu.NaytaKayttoliittyma();
    Talleta();
  }
  Ikkunaton& L() const { return ikkunat.Ikkuna("frmVedenKulutus"); }
  void Kirjoita(const char* kentta, const char* arvo) {
    L().KayttajaKirjoittaa(kentta, arvo);
    L().KayttajaPoistuu(kentta);
  }

  clsVedenKulutusryhmat& puu = rakennus->VedenKulutusryhmat;
};

TEST_F(Vedenkulutus, ShowsWaterHotWaterAndHeatBesideTheMeasured) {
  Avaa();
  EXPECT_EQ(Luvut(L(), "Keittiö"), "36,50 | 36,50 | 2,12");
  EXPECT_EQ(Luvut(L(), "Yhteensä"), "109,50 | 109,50 | 6,37");
  EXPECT_EQ(L().Teksti("txtLaskettu"), "109,50");
  EXPECT_EQ(L().Teksti("txtErotus"), "-59,50");
  EXPECT_TRUE(L().Etsi("txtErotus").Korostettu());
  rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Vesi = 200;
  rakennus->Muuttui("Mitattu vesi");
  EXPECT_EQ(L().Teksti("txtErotus"), "90,50");
  EXPECT_FALSE(L().Etsi("txtErotus").Korostettu());
}

TEST_F(Vedenkulutus, WhatCanBeDoneHangsOnTheRow) {
  Avaa();
  viestit.AsetaSeuraavaTeksti("Autopesu");
  L().KayttajaPainaa("cmdLisaaUusiNimike");
  const std::pair<const char*, const char*> kRivit[] = {{"Yhteensä", "01000"},     {"Käyttövesi", "11000"},
                                                        {"Prosessivesi", "11000"}, {"LKV-kierto", "01000"},
                                                        {"Autopesu", "11011"},     {"Keittiö", "11111"}};
  for (const auto& [rivi, odotettu] : kRivit) {
    L().KayttajaValitsee(kLista, rivi);
    std::string saatu;
    for (const char* nappi : {"cmdLisaaUusi", "cmdLisaaUusiNimike", "cmdKopioi", "cmdMuokkaa", "cmdPoista"})
      saatu += L().Etsi(nappi).Kaytossa() ? '1' : '0';
    EXPECT_EQ(saatu, odotettu) << rivi;
  }
}

TEST_F(Vedenkulutus, ANewGroupIsOfTheKindOfItsTitle) {
  Avaa();
  ikkunat.KunNaytetaan("frmTarkennettuVesiLaskenta", [](Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); });
  viestit.AsetaSeuraavaTeksti("Autopesu");
  L().KayttajaPainaa("cmdLisaaUusiNimike");
  L().KayttajaPainaa("cmdLisaaUusi");
  EXPECT_TRUE(puu.Item(4).OnProsessivesi());
  EXPECT_EQ(puu.Item(4).VedenTiedot.LamminLampotila, 70);
  EXPECT_EQ(puu.Item(4).VedenKayttolampotila, 5);
  L().KayttajaSiirtaa(kLista, "Keittiö", "Autopesu");
  EXPECT_TRUE(puu.Item(2).OnProsessivesi());
  EXPECT_EQ(Alla(L(), "Autopesu"), (Rivi{"Uusi kulutusryhmä", "Keittiö"}));
}

TEST_F(Vedenkulutus, NewTemperaturesReachTheGroupsAndTellWhatIsOutsideItsLimits) {
  Avaa();
  Kirjoita("txtLampimanVedenLampotila0", "60");
  EXPECT_EQ(puu.Item(1).LampimanVedenOsuus, 91);
  EXPECT_EQ(Luvut(L(), "Keittiö"), "36,50 | 33,22 | 2,12");
  EXPECT_EQ(askeleet, Rivi{"Veden lämpötilat ja kierto"});
  EXPECT_TRUE(viestit.Naytetyt().empty());
  Kirjoita("txtLampimanVedenLampotila0", "60,0");
  EXPECT_EQ(askeleet.size(), 1u) << "the same temperature is no change";
  Kirjoita("txtLampimanVedenLampotila0", "50");
  EXPECT_EQ(viestit.Esiintymia("Kulutusryhmän 'Keittiö' lämpimän veden osuus ei ole välillä"), 1);
  EXPECT_EQ(viestit.Naytetyt().size(), 3u) << "each group is told of";
  Kirjoita("txtLampimanVedenLampotila0", "kuuma");
  EXPECT_EQ(L().Kohdistettu(), "txtLampimanVedenLampotila0");
  EXPECT_EQ(L().Teksti("txtLampimanVedenLampotila0"), "kuuma");
  EXPECT_EQ(puu.LKVTiedot.LamminLampotila, 50) << "a bad number loses nothing";
}

TEST_F(Vedenkulutus, TheLoopAndElectricHeatingReachTheListsAtOnce) {
  rakennus->SahkonKulutusryhmat.NaytaKayttoliittyma();
  Avaa();
  Kirjoita("txtLKVKiertovirtaama", "0,1");
  EXPECT_EQ(L().Teksti("txtLKVKiertojohdonHaviot"), "18,35");
  EXPECT_EQ(Luvut(L(), "LKV-kierto"), "0,00 | 0,00 | 18,35");
  L().KayttajaPainaa("chkSahkoLampoNormaaliLKV");
  Ikkunaton& sahko = ikkunat.Ikkuna("frmSahkoLaitteet");
  EXPECT_EQ(Luvut(sahko, "Lämpimän käyttöveden sähkölämmitys"), "24,72") << "water and loop";
  EXPECT_EQ(sahko.Teksti("txtLaskettu"), "25");
  L().KayttajaPainaa("cmdPeruuta");
  EXPECT_EQ(Luvut(sahko, "Lämpimän käyttöveden sähkölämmitys"), "") << "Cancel takes back the water data too";
  EXPECT_EQ(puu.LKVKiertoVirtaama, 0);
  EXPECT_FALSE(puu.LKVTiedot.Sahkolammitys);
}

TEST_F(Vedenkulutus, AWrittenFieldIsTakenByOkAndLeftByCancel) {
  Avaa();
  L().KayttajaKirjoittaa("txtLKVJaahtyma", "6");
  L().KayttajaPainaa("cmdOk");
  EXPECT_EQ(puu.LKVKiertoJaahtyma, 6);
  Avaa();
  L().KayttajaKirjoittaa("txtLKVJaahtyma", "7");
  L().KayttajaPainaa("cmdPeruuta");
  EXPECT_EQ(puu.LKVKiertoJaahtyma, 6);
  Avaa();
  EXPECT_EQ(L().Teksti("txtLKVJaahtyma"), "6,0");
}

TEST_F(Vedenkulutus, EveryFieldIsKeptByOkAndTakenBackByCancelAndByAFailedCommit) {
  const auto vaihda = [this](const std::string& kentta) {
    if (kentta.starts_with("chk"))
      L().KayttajaPainaa(kentta);
    else
      Kirjoita(kentta.c_str(), L().Teksti(kentta) == "7,0" || L().Teksti(kentta) == "7,00" ? "8" : "7");
  };
  const auto tila = [this](const std::string& kentta) {
    return kentta.starts_with("chk") ? std::to_string(L().Etsi(kentta).Valittu()) : L().Teksti(kentta);
  };
  for (const char* kentta : {"txtKylmanVedenLampotila0", "txtKylmanVedenLampotila1", "txtLampimanVedenLampotila0",
                             "txtLampimanVedenLampotila1", "chkSahkoLampoNormaaliLKV", "chkSahkoLampoProsessi",
                             "txtLKVKiertovirtaama", "txtLKVJaahtyma"}) {
    Avaa();
    const std::string ennen = tila(kentta);
    vaihda(kentta);
    const std::string vaihdettu = tila(kentta);
    EXPECT_NE(vaihdettu, ennen) << kentta;
    L().KayttajaPainaa("cmdPeruuta");
    Avaa();
    EXPECT_EQ(tila(kentta), ennen) << kentta << " after Cancel";
    rakennus->MuutosVahvistettu = [](std::string_view) { throw std::runtime_error("levy täynnä"); };
    vaihda(kentta);
    EXPECT_EQ(tila(kentta), ennen) << kentta << " after a commit that failed";
    rakennus->MuutosVahvistettu = nullptr;
    vaihda(kentta);
    L().KayttajaPainaa("cmdOk");
    Avaa();
    EXPECT_EQ(tila(kentta), vaihdettu) << kentta << " after OK";
    L().KayttajaPainaa("cmdOk");
  }
}

TEST_F(Vedenkulutus, AHeadingOpensTheDistributionOfItsColumn) {
  puu.LKVKiertoVirtaama = 0.1;
  Avaa();
  L().Etsi(kLista).KayttajaLajittelee(3);
  EXPECT_EQ(kaavio.otsikko, "Lämpöenergia (MWh/a), Koulu");
  EXPECT_EQ(kaavio.nimet, (Rivi{"Käyttövesi  (26 %) ", "LKV-kierto  (74 %) "})) << "zeros are left out";
  L().KayttajaValitsee(kLista, "Käyttövesi");
  L().Etsi(kLista).KayttajaLajittelee(1);
  EXPECT_EQ(kaavio.nimet.size(), 3u);
  EXPECT_EQ(kaavio.yksikko, "m³/a");
  kaavio = {};
  L().Etsi(kLista).KayttajaLajittelee(0);
  L().KayttajaValitsee(kLista, "Keittiö");
  L().Etsi(kLista).KayttajaLajittelee(1);
  EXPECT_TRUE(kaavio.nimet.empty()) << "neither the names nor a group have one";
}

TEST_F(Vedenkulutus, RowsOfASheetBecomeUsesOfWater) {
  Avaa();
  Ohjain& lista = L().Etsi(kLista);
  L().KayttajaValitsee(kLista, "Käyttövesi");
  lista.KayttajaLiittaa(
      "Kulutuskohde\tMäärä\tOminaiskulutus\tYksikkö\tKäyttö vuorokaudessa\tKäyttö vuodessa\tKäyttölämpötila\n"
      "Suihkut\t10\t40\t\t2\t200\t38\nRuoka\t300\t5\tdm³/annos\t\t200\t\n");
  ASSERT_EQ(puu.Count(), 5);
  EXPECT_EQ(Luvut(L(), "Suihkut"), "160,00 | 105,60 | 6,15") << "66 % of it hot";
  EXPECT_EQ(Luvut(L(), "Ruoka"), "300,00 | 0,00 | 0,00") << "cold, and once a day";
  lista.KayttajaLiittaa("Kulutuskohde\tMäärä\tOminaiskulutus\tYksikkö\tKäyttö vuorokaudessa\nA\t1\t1\tdm³/kpl\t3\n");
  EXPECT_EQ(viestit.Esiintymia("\nRivi 2, Käyttö vuorokaudessa: 3 – yksikössä ei ole tätä"), 1);
  EXPECT_EQ(puu.Count(), 5);
}

}  // namespace
