// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <map>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "results/Taulukkokirja.h"

/// A workbook that somebody has made in a spreadsheet program, its first sheet filled in place: styles, formulas,
/// charts and whatever else it has stay as they are.
///
/// 1. Stored results of formulas, and what charts remember of their cells, are taken out: they would be of other
///    figures. The workbook asks the spreadsheet program to compute all when it is opened.
/// 2. Rows and cells that the sheet lacks are put in their place: the file has them in ascending order.
/// 3. Texts are written in their cells, so that the workbook's table of texts stays as it is.
class Tyokirjapohja {
 public:
  using Paikka = std::pair<int, int>;  ///< row and column, from 1

  /// Reads the file. Raises std::runtime_error with the reason in Finnish.
  explicit Tyokirjapohja(std::string tiedosto);

  /// First cell of what the defined name refers to on the first sheet; `muuten` when there is no such name.
  Paikka Nimetty(const std::string& nimi, Paikka muuten) const;
  bool OnKaava(Paikka paikka) const;
  /// Gives the cell this value in the style that it has there; `lihava` in bold. An empty text clears the cell.
  void Kirjoita(Paikka paikka, const Taulukkosolu& sisalto, bool lihava = false);
  /// Writes the filled workbook, whole or not at all. Raises std::runtime_error.
  void Tallenna(const std::string& tiedosto);

 private:
  void NumeroiSolut();
  pugi::xml_node Solu(Paikka paikka);
  pugi::xml_node Loyda(Paikka paikka) const;
  std::string LihavaTyyli(const std::string& tyyli);
  void PyydaLaskemaanAvattaessa();

  std::string tiedosto_;
  std::string sivunNimi_;
  std::string sivunOsa_;
  pugi::xml_document kirja_;
  pugi::xml_document sivu_;
  pugi::xml_document tyylit_;
  std::map<std::string, std::string> lihavat_;  // bold style by the plain one
};
