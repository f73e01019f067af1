// SPDX-License-Identifier: GPL-3.0-or-later
// Dialogs and lists taken to the spreadsheet program: what the sheet holds, and where its file goes.
#include "results/Taulukkovienti.h"

#include <gtest/gtest.h>

#include <fstream>

#include "results/Lomakesivu.h"
#include "settings/Asetusavaimet.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Koetaulukko.h"
#include "ui/frmLampoYhteenveto.h"
#include "ui/frmPerustiedot.h"
#include "ui/frmTilaYhteenveto.h"

namespace {

namespace fs = std::filesystem;

class TaulukkovientiTesti : public RakennusTesti {
 protected:
  TaulukkovientiTesti() {
    rakennus->Perustiedot.KohteenNimi = "Ärjän \"koulu\" 1/2";
    fs::create_directories(kansio / "taulukot");
    TallennaAsetus(Avain::Taulukkokansio, (kansio / "taulukot").string());
    AsetaTulostus(VieTaulukkoon);
  }
  ~TaulukkovientiTesti() override { AsetaTulostus({}); }
  /// The list of spaces with one space, shown.
  frmTilaYhteenveto& Tilaluettelo() {
    tilat.lvwTilat.Tayta({{{{"Luokat"}, "a"}}});
    tilat.Nayta();
    return tilat;
  }
  std::string Nimi(const std::string& loppu = ".xlsx") const {
    return (kansio / "taulukot" / ("Ärjän _koulu_ 1_2 - " + tilat.Otsikko() + loppu)).string();
  }

  const Koehakemisto kansio;
  const Ymparistomuuttuja asetukset{"XDG_CONFIG_HOME", (kansio / "asetukset").string()};
  frmTilaYhteenveto tilat;
};

TEST_F(TaulukkovientiTesti, ADialogGoesToASheetAsItLooks) {
  frmLampoYhteenveto lomake;
  lomake.txtTilojenLammitys.arvo.Luku(1234.5678, "### ##0.00");
  lomake.txtMuuLampo.arvo.Luku(0, "### ##0.00");
  lomake.txtMuuLampo.arvo.Kohde().KayttajaKirjoittaa("7,5");
  lomake.Etsi("lblIlmanvaihtokoneet").Nakyva(false);
  lomake.Nayta();
  VieLomakeTaulukkoon(lomake, 970, 360);
  ASSERT_EQ(viestit.Avatut().size(), 1u);
  const Koetaulukko kirja(viestit.Avatut().front());
  const Koesivu& sivu = kirja.Sivu();
  EXPECT_EQ(sivu.Teksti(1, 1), lomake.Otsikko());
  EXPECT_TRUE(sivu.Solu(1, 1).lihava);
  const auto otsikko = sivu.Etsi(lomake.Etsi("lblTilojenLammitys").Teksti());
  ASSERT_GT(otsikko.first, 1);
  const auto arvosarake = sivu.Etsi(lomake.Etsi("lblArvo").Teksti()).second;
  EXPECT_EQ(sivu.Luku(otsikko.first, arvosarake), 1234.5678) << "the full value, on the row of its caption";
  EXPECT_EQ(sivu.Solu(otsikko.first, arvosarake).muoto, "#,##0.00");
  EXPECT_EQ(sivu.Luku(sivu.Etsi(lomake.Etsi("lblMuuLampo").Teksti()).first, arvosarake), 7.5) << "as written";
  EXPECT_EQ(sivu.Etsi(lomake.Etsi("lblIlmanvaihtokoneet").Teksti()), (std::pair{0, 0})) << "hidden";
  EXPECT_EQ(sivu.Etsi(lomake.Etsi("cmdOk").Teksti()), (std::pair{0, 0})) << "a button";
}

TEST_F(TaulukkovientiTesti, NoTextOfADialogIsLostWhateverTheCells) {
  frmPerustiedot lomake;
  lomake.txtValmistumisVuosi.Luku(1985, "0");
  lomake.optVertailuvuosi[1].Valittu(true);
  lomake.Nayta();
  std::multiset<std::string> odotetut;
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::Label || ohjain->Tyyppi() == Ohjaintyyppi::Frame)
      if (lomake.Ikkuna().Nakyvissa(*ohjain) && !ohjain->Teksti().empty()) odotetut.insert(ohjain->Teksti());
  for (const auto& [leveys, korkeus] : {std::pair{970.0, 360.0}, {970.0, 300.0}, {100000.0, 100000.0}}) {
    const Taulukkosivu sivu = Lomakesivu(lomake, leveys, korkeus);
    std::multiset<std::string> tekstit;
    for (const auto& [paikka, solu] : sivu.solut) tekstit.insert(SolunTeksti(solu.sisalto));
    for (const std::string& teksti : odotetut)
      EXPECT_EQ(tekstit.count(teksti) >= odotetut.count(teksti), true) << teksti;
    EXPECT_TRUE(tekstit.contains("1985"));
    EXPECT_TRUE(std::ranges::any_of(tekstit, [](const std::string& t) { return t.starts_with("● "); }));
  }
}

TEST_F(TaulukkovientiTesti, TheSheetIsNamedByTheObjectAndAFileOfTheOwnRunIsReplaced) {
  VieTaulukkoon(Tilaluettelo());
  VieTaulukkoon(tilat);
  EXPECT_EQ(viestit.Avatut(), (std::vector<std::string>{Nimi(), Nimi()}));
  EXPECT_NE(viestit.Paneeli().find(Nimi()), std::string::npos);
  fs::last_write_time(Nimi(), fs::last_write_time(Nimi()) + std::chrono::seconds(5));
  VieTaulukkoon(tilat);
  EXPECT_EQ(viestit.Avatut().back(), Nimi(" 2.xlsx")) << "what the person has edited stays";
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(TaulukkovientiTesti, WhereTheFileIsOpenAnotherNameIsOffered) {
  VieTaulukkoon(Tilaluettelo());
  const fs::path lukko = fs::path(Nimi()).parent_path() / (".~lock." + fs::path(Nimi()).filename().string() + "#");
  std::ofstream(lukko) << "auki";
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  VieTaulukkoon(tilat);
  EXPECT_EQ(viestit.Avatut().back(), Nimi(" 2.xlsx"));
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  viestit.AsetaSeuraavaTiedosto((kansio / "oma").string());
  VieTaulukkoon(tilat);
  EXPECT_EQ(viestit.Avatut().back(), (kansio / "oma.xlsx").string());
  EXPECT_EQ(HaeAsetus(Avain::Taulukkokansio) + "/", (kansio / "").string()) << "remembered";
  TallennaAsetus(Avain::Taulukkokansio, (kansio / "taulukot").string());
  viestit.AsetaSeuraavaVastaus(Vastaus::Peruuta);
  VieTaulukkoon(tilat);
  EXPECT_EQ(viestit.Avatut().size(), 3u);
}

TEST_F(TaulukkovientiTesti, WhatCantBeWrittenIsToldAndGoesWhereThePersonWants) {
  int yrityksia = 0;
  viestit.AsetaSeuraavaTiedosto((kansio / "ei ole" / "t.xlsx").string());
  viestit.AsetaSeuraavaTiedosto((kansio / "t.xlsx").string());
  KirjoitaJaAvaa("Koe", [&](const std::string& tiedosto) {
    if (++yrityksia == 1) throw std::runtime_error("levy on täynnä");
    TallennaKirja({{.nimi = "Koe", .otsikko = ""}}, tiedosto);
  });
  EXPECT_EQ(yrityksia, 3);
  EXPECT_EQ(viestit.Esiintymia("levy on täynnä"), 1);
  EXPECT_EQ(viestit.Esiintymia("tiedostoa tai kansiota ei ole"), 1);
  EXPECT_EQ(viestit.Avatut(), (std::vector<std::string>{(kansio / "t.xlsx").string()}));
  viestit.AsetaAvaaja(false);
  VieTaulukkoon(Tilaluettelo());
  EXPECT_EQ(viestit.Esiintymia("taulukkolaskentaohjelma"), 1);
  EXPECT_EQ(viestit.Esiintymia((kansio / "").string()), 3) << "two that failed, and where it is";
}

TEST_F(TaulukkovientiTesti, AnyNamesMakeAFileName) {
  const std::string nimi = Taulukkotiedosto(std::string(300, 'x') + "ä", "Tilat: \"A/B\"");
  EXPECT_LE(nimi.size(), 200u);
  EXPECT_TRUE(nimi.ends_with(" - Tilat_ _A_B_")) << nimi;
  std::string aat;
  for (int i = 0; i < 300; ++i) aat += "ä";
  EXPECT_EQ(Taulukkotiedosto(aat, "").size(), 200u);
  EXPECT_EQ(Taulukkotiedosto("..", " "), "Taulukko");
}

TEST_F(TaulukkovientiTesti, ThePrintButtonAndTheKeyTakeTheForm) {
  Tilaluettelo();
  ikkunat.Ikkuna("frmTilaYhteenveto").KayttajaTulostaa();
  EXPECT_EQ(viestit.Avatut(), std::vector<std::string>{Nimi()});
}

}  // namespace
