// SPDX-License-Identifier: GPL-3.0-or-later
// Sorting, copying and pasting of lists.
#include "ui/Taulukko.h"

#include <gtest/gtest.h>

namespace {

using Solut = std::vector<std::string>;

Solut Lajiteltuna(const Solut& solut, bool laskeva = false) {
  Taulukko rivit;
  for (const std::string& solu : solut) rivit.push_back({solu});
  Solut tulos;
  for (const int i : Jarjestyksessa(rivit, 0, laskeva)) tulos.push_back(solut[static_cast<std::size_t>(i)]);
  return tulos;
}

TEST(Taulukko, TextsInFinnishAlphabeticalOrder) {
  EXPECT_EQ(Lajiteltuna({"Öljy", "Zeniitti", "ähky", "Åbo", "auto", "Čapek", "", "élan", "Eteinen"}),
            (Solut{"", "auto", "Čapek", "élan", "Eteinen", "Zeniitti", "Åbo", "ähky", "Öljy"}));
  EXPECT_EQ(Lajiteltuna({"Luokka 10", "luokka 2", "Luokka 002b", "Luokka"}),
            (Solut{"Luokka", "luokka 2", "Luokka 002b", "Luokka 10"}));
}

TEST(Taulukko, NumbersByValueAndEqualOnesStay) {
  EXPECT_EQ(Lajiteltuna({"1 200,5", "-3", "90", "---", ""}), (Solut{"---", "", "-3", "90", "1 200,5"}));
  EXPECT_EQ(Lajiteltuna({"1 200,5", "-3", "90", "---", ""}, true), (Solut{"1 200,5", "90", "-3", "---", ""}));
  EXPECT_EQ(Lajiteltuna({"10", "9", "Sali"}), (Solut{"9", "10", "Sali"})) << "one text makes a column of texts";
  EXPECT_EQ(Jarjestyksessa({{"b", "1"}, {"a", "1"}, {"c"}}, 1, true), (std::vector<int>{0, 1, 2}));
  EXPECT_EQ(Jarjestyksessa({{"b"}, {"a"}}, -1, false), (std::vector<int>{0, 1}));
}

TEST(Taulukko, TheClipboardsTextFitsASpreadsheet) {
  const Taulukko rivit{{"Tila", "Ala (m²)"}, {"Luokka\t1", "1 200,5"}, {"12 34", "7"}};
  EXPECT_EQ(TaulukkoTekstina(rivit), "Tila\tAla (m²)\nLuokka 1\t1200,5\n12 34\t7\n");
}

TEST(Taulukko, PastedTextIsDividedIntoRows) {
  EXPECT_EQ(TaulukkoTekstista("Nimi\tAla\r\n\"Sali \"\"A\"\"\n2 krs\"\t12,5\r\n\t\r\nAula\t\r\n"),
            (Taulukko{{"Nimi", "Ala"}, {"Sali \"A\"\n2 krs", "12,5"}, {"Aula", ""}}));
  EXPECT_TRUE(TaulukkoTekstista("").empty());
  EXPECT_EQ(TaulukkoTekstista("\"kesken\tjäi").size(), 1u) << "an open quotation loses nothing";
}

}  // namespace
