// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// The page of sheets and prints, kept in the settings: paper, its direction and its margins in mm.
struct Sivuasetukset {
  std::string paperi = "A4";  ///< "A3", "A4", "A5" or "Letter"; another one counts as A4
  bool vaaka = true;          ///< the paper lies on its long side
  double vasen = 20;
  double yla = 20;
  double oikea = 20;
  double ala = 20;

  bool operator==(const Sivuasetukset&) const = default;
};

Sivuasetukset HaeSivuasetukset();
/// All or none. Raises 9999 when the store can't be written.
void TallennaSivuasetukset(const Sivuasetukset& sivu);
