// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "results/Taulukkokirja.h"
#include "ui/Ohjaimet.h"

/// A table as a sheet: a title, headings over the columns, rows, sums in bold (empty: none), and lines of text below.
/// Numbers stay numbers.
struct Laskentataulukko {
  /// How a row is shown.
  struct Ulkoasu {
    bool lihava = false;
    int sisennys = 0;  ///< of its first cell, by the depth of its branch
    Tunniste avain{};  ///< of the list's row
  };

  std::string otsikko;
  std::vector<std::string> sarakkeet;
  std::vector<std::vector<Taulukkosolu>> rivit{};
  std::vector<Taulukkosolu> summat{};
  std::vector<std::string> huomautukset{};
  std::vector<Ulkoasu> ulkoasut{};  ///< of the rows; one without is plain
};

/// What a list shows, in the order of the screen; hidden columns are left out. Cells that the list knows as numbers
/// hold their full value under the pattern of the screen; other numbers, such as the sums, are what is shown.
Laskentataulukko TaulukkoLuettelosta(const ListView& lista, std::string otsikko);

/// Where a table lies on a sheet: headings on the row `otsikkorivi` (0: none), rows from `rivi` on, from the column
/// `sarake` on. A title, if it is to be seen on the sheet, stands on the first row.
struct Taulukonpaikka {
  int otsikkorivi = 3;
  int rivi = 4;
  int sarake = 1;
  bool otsikko = true;
};
Taulukkosivu Sivuksi(const Laskentataulukko& taulukko, std::string_view nimi, const Taulukonpaikka& paikka = {});

/// Writes the table to a workbook of one sheet, as TallennaKirja.
void TallennaLaskentataulukko(const Laskentataulukko& taulukko, std::string_view valilehti,
                              const std::string& tiedosto);
