// SPDX-License-Identifier: GPL-3.0-or-later
// A list as a sheet, and the workbook that a spreadsheet program opens.
#include "results/Laskentataulukko.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>

#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"
#include "ui/frmIVKoneYhteenveto.h"

namespace {

/// A part of the workbook, unpacked by the interpreter that the build needs, too.
std::string Osa(const std::string& tiedosto, const std::string& osa) {
  const std::string komento = "python3 -c \"import sys, zipfile; sys.stdout.write(zipfile.ZipFile('" + tiedosto +
                              "').read('" + osa + "').decode())\"";
  const std::unique_ptr<FILE, int (*)(FILE*)> putki(popen(komento.c_str(), "r"), pclose);
  std::string teksti;
  std::array<char, 4096> pala{};
  while (const std::size_t n = std::fread(pala.data(), 1, pala.size(), putki.get())) teksti.append(pala.data(), n);
  return teksti;
}

class LaskentataulukkoTesti : public RakennusTesti {
 protected:
  static bool Sisaltaa(const std::string& teksti, std::string_view osa) { return teksti.find(osa) != teksti.npos; }
  const Koehakemisto kansio;
  const std::string tiedosto = (kansio / "taulukko.xlsx").string();
};

TEST_F(LaskentataulukkoTesti, AListGoesToASheetInTheOrderOfTheScreenWithItsFullNumbers) {
  frmIVKoneYhteenveto lomake;
  Luettelosisalto sisalto{{{{"TK02", "kone", "Sali"}, "b"}, {{"TK01", "kone", "Aula"}, "a"}},
                          {"Yhteensä", "", "", "3,5"}};
  sisalto.rivit[0].LisaaLuku(2.0041, "0.0");
  sisalto.rivit[1].LisaaLuku(1.4996, "0.0");
  lomake.lvwKoneet.Tayta(std::move(sisalto));
  lomake.lvwKoneet.Kohde().KayttajaLajittelee(0);
  const Laskentataulukko taulukko = TaulukkoLuettelosta(lomake.lvwKoneet, "Koneet");
  ASSERT_EQ(taulukko.rivit.size(), 2u);
  EXPECT_EQ(std::get<std::string>(taulukko.rivit[0][0]), "TK01");
  EXPECT_EQ(std::get<Taulukkoluku>(taulukko.rivit[0][3]).arvo, 1.4996);
  EXPECT_EQ(std::get<Taulukkoluku>(taulukko.summat[3]).arvo, 3.5) << "the sum that is shown";
  EXPECT_EQ(taulukko.sarakkeet.size(), lomake.lvwKoneet.Kohde().Osat().size());
}

TEST_F(LaskentataulukkoTesti, ColumnsAreWideEnoughAndThePageTakesTheWidth) {
  Laskentataulukko taulukko{"Kuukausitase", {"Tase", "Vuosi"}};
  taulukko.rivit = {{"Johtuminen", Taulukkoluku{1234567.891, "### ##0.00"}}};
  taulukko.summat = {"Lämmöntarve", Taulukkoluku{1234567, "### ##0"}};
  taulukko.huomautukset = {"Pitkä huomautus, joka ei levennä mitään saraketta, sillä se on rivillään yksin."};
  TallennaLaskentataulukko(taulukko, "Tase", tiedosto);
  const std::string sivu = Osa(tiedosto, "xl/worksheets/sheet1.xml"), tyylit = Osa(tiedosto, "xl/styles.xml");
  EXPECT_TRUE(Sisaltaa(tyylit, "numFmtId=\"4\"") || Sisaltaa(tyylit, "formatCode=\"#,##0.00\"")) << tyylit;
  EXPECT_TRUE(Sisaltaa(tyylit, "numFmtId=\"3\"") || Sisaltaa(tyylit, "formatCode=\"#,##0\"")) << tyylit;
  EXPECT_TRUE(Sisaltaa(sivu, "orientation=\"landscape\"")) << sivu;
  EXPECT_TRUE(Sisaltaa(sivu, "fitToHeight=\"0\"")) << "as many pages down as it takes, one across";
  EXPECT_TRUE(Sisaltaa(sivu, "min=\"1\" max=\"1\" width=\"13.7")) << "the longest name: " << sivu;
  EXPECT_TRUE(Sisaltaa(sivu, "min=\"2\" max=\"2\" width=\"14.7")) << "1 234 567,89 and air: " << sivu;
  EXPECT_TRUE(Sisaltaa(Osa(tiedosto, "xl/workbook.xml"), "Print_Titles"));
}

}  // namespace
