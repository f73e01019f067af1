// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Saataulukko.h"

#include "tests/solar/Koetiedostot.h"

namespace {

using SaataulukkoTesti = Koetiedostot;

TEST_F(SaataulukkoTesti, ReadsMonthsWhateverOrderLineEndsAndEncoding) {
  std::string crlf;
  for (const char c : kSaaVyohyke1) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  const auto tammi = kSaaVyohyke1.find("1,-3.97"), touko = kSaaVyohyke1.find("5,10.76");
  for (const std::string& sisalto :
       {kSaaVyohyke1 + "\nselite\n\nVyöhyke I\n-26 °C\n", "\xEF\xBB\xBF" + crlf,
        "s\xE4teily " + crlf + "Vy\xF6hyke I, l\xE4mp\xF6tila -26 \xB0\r\n",
        kSaaVyohyke1.substr(0, tammi) + kSaaVyohyke1.substr(touko) + kSaaVyohyke1.substr(tammi, touko - tammi)}) {
    const Saataulukko saa(Kirjoita("a.txt", sisalto));
    EXPECT_EQ(saa.Sateily(Ilmansuunta::Vaaka)(1), 22.32);
    EXPECT_EQ(saa.Sateily(Ilmansuunta::Etela)(4), 386.28);
    EXPECT_EQ(saa.Sateily(Ilmansuunta::Ita)(5), 406.08);
    EXPECT_EQ(saa.Sateily(Ilmansuunta::Lansi)(5), 376.20);
    EXPECT_EQ(saa.Sateily(Ilmansuunta::Pohjoinen)(12), 15.12);
  }
}

TEST_F(SaataulukkoTesti, AFaultyFileTellsFileLineAndCause) {
  const struct {
    std::string etsi, tilalle, odotettu;
  } tapaukset[] = {
      {"4,4.50", "4,roskaa", "rivi 5: kenttä 2 ei ole luku."},
      {"4,4.50,431.64", "4,4,50,431,64", "rivi 5: kenttiä on liikaa, niitä pitää olla 7."},
      {"\n7,", "\n\n7,", "rivi 8: kenttä 1 ei ole luku."},
      {"\n7,", "\n6,", "rivi 8: kuukausi 6 on jo luettu."},
      {"\n12,", "\n13,", "rivi 13: kuukauden pitää olla kokonaisluku 1–12."},
      {"\n1,", "\n1.5,", "rivi 2: kuukauden pitää olla kokonaisluku 1–12."},
      {"22.32\n", "-22.32\n", "rivi 2: säteily ei voi olla negatiivinen."},
      {"12,-2.19,15.84,42.48,9.36,10.44,15.12\n", "", "rivi 13: tiedosto loppuu kesken, kuukausirivejä pitää olla 12."},
  };
  for (const auto& t : tapaukset) {
    std::string sisalto = kSaaVyohyke1;
    sisalto.replace(sisalto.find(t.etsi), t.etsi.size(), t.tilalle);
    const std::string polku = Kirjoita("SaaVyohyke1.txt", sisalto);
    EXPECT_EQ(Virheteksti([&] { Saataulukko saa(polku); }), polku + ", " + t.odotettu);
  }
}

}  // namespace
