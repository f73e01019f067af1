// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <vector>

/// Rows of cells, as a list shows them and a spreadsheet gives them.
using Taulukko = std::vector<std::vector<std::string>>;

/// The cell, or an empty text beyond the row's end.
std::string_view Solu(const std::vector<std::string>& rivi, std::size_t sarake);

/// What a column holds: how many of its cells are numbers and how many something else; empty cells and "---" are
/// neither.
class Sarakesisalto {
 public:
  Sarakesisalto(const Taulukko& rivit, std::size_t sarake);
  /// A cell of the column has another text.
  void Vaihda(std::string_view entinen, std::string_view uusi);
  /// The column has a number and nothing but numbers.
  bool OnLukuja() const { return lukuja_ > 0 && muita_ == 0; }

 private:
  void Laske(std::string_view solu, int maara);

  int lukuja_ = 0;
  int muita_ = 0;
};

/// Places of the rows in order of a column, from 0: a column of numbers by value, any other in Finnish alphabetical
/// order (å, ä, ö last, letter case aside, "Luokka 2" before "Luokka 10"). Equal rows keep their order. A column that
/// doesn't exist gives the rows as they stand.
std::vector<int> Jarjestyksessa(const Taulukko& rivit, int sarake, bool laskeva);

/// Rows as text for the clipboard: cells parted by tabs, rows by line breaks, blanks between thousands left out.
std::string TaulukkoTekstina(const Taulukko& rivit);
/// Rows of a text from the clipboard. Cells in quotation marks may hold tabs, line breaks and doubled quotation marks;
/// blank rows are left out.
Taulukko TaulukkoTekstista(std::string_view teksti);
