// SPDX-License-Identifier: GPL-3.0-or-later
// The list of electricity consumers, driven as a person would, without a screen.
#include "tests/consumers/Kulutusluettelot.h"

namespace {

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

}  // namespace
