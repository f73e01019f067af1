// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>
#include <string>
#include <vector>

/// A table of text for reading: the first column to the left, the others to the right, as wide as its longest texts.
class Tekstitaulu {
 public:
  using Rivi = std::vector<std::string>;
  explicit Tekstitaulu(Rivi otsikot) : sarakkeita_(otsikot.size()) { Lisaa(std::move(otsikot)); }

  /// Adds a row; cells that are missing at its end are empty.
  void Lisaa(Rivi rivi);
  /// Adds a rule across the columns.
  void Viiva() { rivit_.emplace_back(); }
  void Tulosta(std::ostream& tulos) const;

 private:
  std::size_t sarakkeita_;
  std::vector<Rivi> rivit_;  // an empty one is a rule
};
