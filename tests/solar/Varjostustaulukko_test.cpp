// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Varjostustaulukko.h"

#include "tests/solar/Koetiedostot.h"

namespace {

using enum Ilmansuunta;
using VarjostustaulukkoTesti = Koetiedostot;

TEST_F(VarjostustaulukkoTesti, IsLinearInAngleAndLatitudeAndConstantBeyond) {
  const Varjostustaulukko fh(Kirjoita("CenFh_Table.txt", kFh));
  struct Tapaus {
    double leveysaste, kulma;
    Ilmansuunta suunta;
    double odotettu;
  };
  const Tapaus tapaukset[] = {
      {65, 20, Etela, 0.58},        // the table's own points, each orientation its own column
      {65, 20, Ita, 0.68},          //
      {65, 20, Lansi, 0.68},        //
      {65, 20, Pohjoinen, 0.93},    //
      {55, 37, Ita, 0.578},         // 0.62 - 0.7 x 0.06
      {57, 10, Etela, 0.924},       // 0.94 - 0.2 x 0.08
      {62, 25, Pohjoinen, 0.9175},  // 0.935 - 0.7 x (0.935 - 0.91)
      {70, 20, Etela, 0.58},        // north of the table
      {40, 20, Etela, 0.68},        // south of it
      {65, 80, Pohjoinen, 0.85},    // beyond the largest angle
      {60, -5, Etela, 1},           // below the smallest
      {60, 30, Vaaka, 1},           // a horizontal surface sees no horizon
  };
  for (const auto& t : tapaukset)
    EXPECT_NEAR(fh.Kerroin(t.leveysaste, t.kulma, t.suunta), t.odotettu, 1e-12)
        << t.leveysaste << " astetta, kulma " << t.kulma << ", suunta " << Indeksi(t.suunta);
}

TEST_F(VarjostustaulukkoTesti, OrderOfLinesEmptyLinesAndEncodingDontMatter) {
  const Varjostustaulukko taulukko(
      Kirjoita("a.txt",
               "\xEF\xBB\xBF"
               "etel\xE4\r\n65, 20 ,0.65,0.5,0.9\r\n\r\n55,0,1,1,1\r\n 65,0,1,1,1\r\n55,20,0.6,0.7,0.8"));
  EXPECT_NEAR(taulukko.Kerroin(65, 20, Etela), 0.65, 1e-12);
  EXPECT_NEAR(taulukko.Kerroin(55, 20, Pohjoinen), 0.8, 1e-12);
  EXPECT_NEAR(taulukko.Kerroin(60, 20, Etela), 0.625, 1e-12);
}

TEST_F(VarjostustaulukkoTesti, AFaultyFileTellsFileLineAndCause) {
  const struct {
    std::string sisalto, odotettu;
  } tapaukset[] = {
      {"otsikko\n55,0,1,1\n", "rivi 2: kenttiä on liian vähän, niitä pitää olla 5."},
      {"otsikko\n55,0,nan,1,1\n", "rivi 2: kenttä 3 ei ole luku."},
      {"otsikko\n55,0,1,86,1\n", "rivi 2: varjostuskertoimen pitää olla välillä 0–1."},
      {"otsikko\n550,0,1,1,1\n", "rivi 2: leveysasteen pitää olla välillä -90–90."},
      {"otsikko\n55,-1,1,1,1\n", "rivi 2: varjostuskulman pitää olla välillä 0–90."},
      {"otsikko\n55,0,1,1,1\n55,0,1,1,0.5\n", "rivi 3: sama leveysaste ja kulma on jo luettu."},
      {"otsikko\n55,0,1,1,1\n55,20,1,1,1\n65,0,1,1,1\n", "jokaisella leveysasteella pitää olla samat kulmat."},
      {"otsikko\n55,0,1,1,1\n55,20,1,1,1\n", "taulukon pitää kattaa leveysasteet 60–65."},
      {"otsikko\n\n", "taulukossa ei ole yhtään riviä."},
      {"", "Tiedostoa ei löydy, se on tyhjä tai sitä ei voi lukea: "},
  };
  for (const auto& t : tapaukset) {
    const std::string polku = Kirjoita("CenFo_Table.txt", t.sisalto);
    const std::string teksti = Virheteksti([&] { Varjostustaulukko taulukko(polku); });
    EXPECT_NE(teksti.find(t.odotettu), std::string::npos) << teksti;
    EXPECT_NE(teksti.find(polku), std::string::npos) << teksti;
  }
  EXPECT_EQ(Virheteksti([&] { Varjostustaulukko taulukko(Polku("")); }).find("Tiedostoa ei löydy"), 0u);
}

}  // namespace
