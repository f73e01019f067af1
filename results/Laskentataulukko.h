// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ui/Ohjaimet.h"

/// A number of a sheet and the pattern by which it is shown (kernel/Luvut.h).
struct Taulukkoluku {
  double arvo = 0;
  std::string kuvio;
};
/// A cell of a sheet: text or number.
using Taulukkosolu = std::variant<std::string, Taulukkoluku>;

/// A table as a sheet: a title, headings over the columns, rows, sums in bold (empty: none), and lines of text below.
/// Numbers stay numbers.
struct Laskentataulukko {
  std::string otsikko;
  std::vector<std::string> sarakkeet;
  std::vector<std::vector<Taulukkosolu>> rivit{};
  std::vector<Taulukkosolu> summat{};
  std::vector<std::string> huomautukset{};
};

/// What a list shows, in the order of the screen. Cells that the list knows as numbers hold their full value under the
/// pattern of the screen; other numbers, such as the sums, are what is shown.
Laskentataulukko TaulukkoLuettelosta(const ListView& lista, std::string otsikko);

/// Writes the table to a workbook (.xlsx) of one sheet, named `valilehti` (at most 31 letters, none of []:*?/\). It
/// prints on landscape A4, one page wide, the headings on each page. The file is written whole or not at all. Raises
/// std::runtime_error with the reason.
void TallennaLaskentataulukko(const Laskentataulukko& taulukko, std::string_view valilehti,
                              const std::string& tiedosto);
