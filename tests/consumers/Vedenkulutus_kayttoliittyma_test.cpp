// SPDX-License-Identifier: GPL-3.0-or-later
// The list of water consumers, driven as a person would, without a screen.
#include "tests/consumers/Kulutusluettelot.h"

namespace {

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
