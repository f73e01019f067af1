// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/Energiamuotokanta.h"
#include "ui/Taulukko.h"

class clsPerustiedot;

/// What bringing the energy forms of the heat and electricity supplies up to the standard fuel database would change,
/// for showing; nothing is changed. Forms of the present version are passed over, so that a missing row is told once.
struct Energiamuotomuutokset {
  Taulukko rivit;                      ///< supply, form, figure, as it is and as it would be
  std::vector<std::string> puuttuvat;  ///< forms whose row is no longer in the database

  bool Tyhja() const noexcept { return rivit.empty() && puuttuvat.empty(); }
};

/// Raises error 9999 as the database does.
Energiamuotomuutokset VertaaEnergiamuodot(const clsPerustiedot& tiedot, Energiamuotokanta& kanta);

/// Shows the rows and asks whether to take them. True when the person says so, and when there are none.
bool HyvaksyEnergiamuotomuutokset(Taulukko rivit);
