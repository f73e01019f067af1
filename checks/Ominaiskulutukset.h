// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>
#include <vector>

/// What buildings of a use type usually use in a year: bounds beyond which a figure deserves a second look.
struct Ominaiskulutus {
  std::string ryhma;    ///< "Oppilaitokset"
  std::string yksikko;  ///< "kWh/m²,a", "kWh/m³,a" or "dm³/m³,a"
  double ala = 0, yla = 0;
  std::string lahde;  ///< where the figures come from and how sure they are, for showing
};

/// The rows of a use-type code and of "lampo", "sahko" or "vesi", the type itself before its sub-kinds; none when the
/// table of the program doesn't know any. Raises error 9999 when the table can't be read.
std::vector<Ominaiskulutus> HaeOminaiskulutukset(int kayttotarkoituskoodi, std::string_view suure);
