// SPDX-License-Identifier: GPL-3.0-or-later
// A list as a sheet, and the workbook that a spreadsheet program opens.
#include "results/Laskentataulukko.h"

#include <gtest/gtest.h>

#include "kernel/Luvut.h"
#include "results/Lomakesivu.h"
#include "settings/Sivuasetukset.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Koetaulukko.h"
#include "ui/frmIVKoneYhteenveto.h"

namespace {

class LaskentataulukkoTesti : public RakennusTesti {
 protected:
  LaskentataulukkoTesti() {
    Luettelosisalto sisalto{{{{"TK02", "kone", "=Sali"}, "b"}, {{"TK01", "kone", "Aula"}, "a"}},
                            {"Yhteensä", "", "", "3,5"}};
    sisalto.rivit[0].LisaaLuku(2345.0041, "### ##0.0");
    sisalto.rivit[0].piirteet.lihava = true;
    sisalto.rivit[1].LisaaLuku(1.4996, "### ##0.0");
    lomake.lvwKoneet.Tayta(std::move(sisalto));
    lomake.lvwKoneet.Kohde().KayttajaLajittelee(0);
    lomake.Nayta();
  }
  Koetaulukko Kirja(const std::vector<Taulukkosivu>& sivut) const {
    TallennaKirja(sivut, tiedosto);
    return Koetaulukko(tiedosto);
  }

  const Koehakemisto kansio;
  const Ymparistomuuttuja asetukset{"XDG_CONFIG_HOME", (kansio / "asetukset").string()};
  const std::string tiedosto = (kansio / "taulukko.xlsx").string();
  frmIVKoneYhteenveto lomake;
};

TEST_F(LaskentataulukkoTesti, AListGoesToASheetInTheOrderOfTheScreenWithItsFullNumbers) {
  const Koetaulukko kirja = Kirja({Luettelosivu(lomake.lvwKoneet, true, 1, 1)});
  const Koesivu& sivu = kirja.Sivu();
  EXPECT_EQ(sivu.Nimi(), ValilehdenNimi(lomake.Otsikko(), {}));
  const std::vector<Osa>& sarakkeet = lomake.lvwKoneet.Kohde().Osat();
  for (std::size_t s = 0; s < sarakkeet.size(); ++s) {
    EXPECT_EQ(sivu.Teksti(1, static_cast<int>(s) + 1), sarakkeet[s].otsikko);
    EXPECT_TRUE(sivu.Solu(1, static_cast<int>(s) + 1).lihava);
  }
  EXPECT_EQ(sivu.Teksti(2, 1), "TK01");
  EXPECT_EQ(sivu.Luku(2, 4), 1.4996);
  EXPECT_EQ(sivu.Solu(3, 4).muoto, "#,##0.0");
  EXPECT_TRUE(sivu.Solu(3, 4).lihava) << "as in the list";
  EXPECT_FALSE(sivu.Solu(2, 4).lihava);
  EXPECT_EQ(sivu.Teksti(3, 3), "=Sali") << "no formula";
  EXPECT_EQ(sivu.Solu(3, 3).kaava, "");
  EXPECT_EQ(sivu.Luku(4, 4), 3.5) << "the sum that is shown";
  EXPECT_TRUE(sivu.Solu(4, 1).lihava);
  EXPECT_EQ(sivu.Riveja(), 4);
}

TEST_F(LaskentataulukkoTesti, ASheetIsSetForTheScreenAndForPaper) {
  TallennaSivuasetukset({.paperi = "A3", .vaaka = false, .vasen = 25.4, .yla = 12.7, .oikea = 10, .ala = 15});
  Laskentataulukko taulukko{"Kuukausitase & tase", {"Tase", "Vuosi"}};
  taulukko.rivit = {{"Johtuminen", Taulukkoluku{1234567.891, "### ##0.00"}}};
  taulukko.summat = {"Lämmöntarve", Taulukkoluku{1234567, "### ##0"}};
  taulukko.huomautukset = {"Pitkä huomautus, joka ei levennä mitään saraketta, sillä se on rivillään yksin."};
  TallennaLaskentataulukko(taulukko, "Tase", tiedosto);
  const Koetaulukko kirja(tiedosto);
  const pugi::xml_node sivu = kirja.Sivu().Xml(), paperi = sivu.child("pageSetup"), reunat = sivu.child("pageMargins");
  EXPECT_STREQ(paperi.attribute("orientation").value(), "portrait");
  EXPECT_EQ(paperi.attribute("paperSize").as_int(), 8);
  EXPECT_EQ(paperi.attribute("fitToHeight").as_int(-1), 0) << "as many pages down as it takes, one across";
  EXPECT_EQ(reunat.attribute("left").as_double(), 1);
  EXPECT_EQ(reunat.attribute("top").as_double(), 0.5);
  EXPECT_STREQ(sivu.child("headerFooter").child_value("oddHeader"), "&LKuukausitase && tase");
  EXPECT_STREQ(sivu.child("sheetViews").child("sheetView").child("pane").attribute("topLeftCell").value(), "B4");
  EXPECT_EQ(kirja.Nimet().at("_xlnm.Print_Titles"), "Tase!$1:$3");
  EXPECT_EQ(Sarakeleveydet(Sivuksi(taulukko, "Tase")), (std::vector<double>{13, 14})) << "1 234 567,89 and air";
  EXPECT_EQ(kirja.Sivu().Solu(4, 2).muoto, "#,##0.00");
  EXPECT_EQ(kirja.Sivu().Luku(4, 2), 1234567.891);
}

TEST_F(LaskentataulukkoTesti, AnyNameGivesASheetANameOfItsOwn) {
  const std::string pitka(300, 'x'), oot = "Öljysäiliö: [A/B] \\ \"vanha\"?*";
  std::vector<Taulukkosivu> sivut;
  for (const std::string& nimi : {pitka, pitka, oot, std::string("'Koulu'"), std::string(), std::string("\x01[]"),
                                  std::string("koulu"), std::string(20, 'a') + "äöäöäöäöäöäöäö"})
    sivut.push_back({.nimi = nimi, .otsikko = pitka, .solut = {{{1, 1}, {nimi}}}});
  const Koetaulukko kirja = Kirja(sivut);
  std::vector<std::string> nimet;
  for (const Koesivu& sivu : kirja.Sivut()) nimet.push_back(sivu.Nimi());
  EXPECT_EQ(nimet, (std::vector<std::string>{std::string(31, 'x'), std::string(29, 'x') + " 2",
                                             "Öljysäiliö   A B    \"vanha\"", "Koulu", "Taulukko", "Taulukko 2",
                                             "koulu 2", std::string(20, 'a') + "äöäöäöäöäöä"}));
  EXPECT_EQ(kirja.Sivu(2).Teksti(1, 1), oot) << "the contents are whole";
}

TEST_F(LaskentataulukkoTesti, ALongListKeepsEachFigure) {
  constexpr int kRiveja = 5000;
  Laskentataulukko taulukko{"Pitkä", {"Rivi", "Arvo"}};
  for (int i = 0; i < kRiveja; ++i) taulukko.rivit.push_back({std::to_string(i), Taulukkoluku{i / 7.0, "### ##0.00"}});
  TallennaLaskentataulukko(taulukko, "Pitkä", tiedosto);
  const Koetaulukko kirja(tiedosto);
  const Koesivu& sivu = kirja.Sivu();
  for (int i = 0; i < kRiveja; ++i) ASSERT_DOUBLE_EQ(sivu.Luku(i + 4, 2), i / 7.0);
}

TEST(Taulukkokuviot, AFigureIsShownOnTheSheetAsOnTheScreen) {
  for (const auto& [teksti, kuvio] : {std::pair{"1 234,50", "#,##0.00"},
                                      {"1985", "0"},
                                      {"12,5", "#,##0.0"},
                                      {"-1 000", "#,##0"},
                                      {"-12345", "0"},
                                      {"0,25", "#,##0.00"}}) {
    EXPECT_EQ(TiedostonKuvio(KuvioTekstista(teksti)), kuvio) << teksti;
    EXPECT_EQ(Muotoile(*LueLuku(teksti), KuvioTekstista(teksti)), teksti);
  }
}

}  // namespace
