// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ui/Taulukko.h"

/// A structure as a row of a spreadsheet tells it. What the row leaves open is nothing.
struct LiitettyRakenne {
  std::string nimi;
  std::int32_t rakennetyyppi = 0;
  double ala = 0;                           // m²
  double u_arvo = 0;                        // W/m²K
  std::optional<std::int32_t> rajoittuu{};  // index of the choice
  std::optional<std::int32_t> suuntaus{};   // index of the choice
};

/// Reads pasted rows. The first one holds the headings "Nimi", "Rakennetyyppi", "Pinta-ala", "U-arvo", "Rajoittuu" and
/// "Suuntaus", in any order, units in parentheses behind them or not; other columns are passed over. Kinds, boundaries
/// and directions are the words of the choice lists. A row without a kind is of the kind `oletus`. At the first fault
/// there are no structures, and `virhe` tells the row and the value.
struct Rakenneliitos {
  Rakenneliitos(const Taulukko& rivit, std::optional<std::int32_t> oletus);

  std::vector<LiitettyRakenne> rakenteet;
  std::string virhe;
};
