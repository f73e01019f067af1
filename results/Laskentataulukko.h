// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A cell of a sheet: text or number.
using Taulukkosolu = std::variant<std::string, double>;

/// A table as a sheet: a title, headings over the columns, rows. Numbers stay numbers.
struct Laskentataulukko {
  std::string otsikko;
  std::vector<std::string> sarakkeet;
  std::vector<std::vector<Taulukkosolu>> rivit;
};

/// Writes the table to a workbook (.xlsx) of one sheet, named `valilehti` (at most 31 letters, none of []:*?/\). The
/// file is written whole or not at all. Raises std::runtime_error with the reason.
void TallennaLaskentataulukko(const Laskentataulukko& taulukko, std::string_view valilehti,
                              const std::string& tiedosto);
