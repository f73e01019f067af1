// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <limits>

#include "ui/Ohjaimet.h"

/// Reads an edited field into `kohde` if it holds a number from 0 to `enintaan`; else the target stays.
inline void LueRajoissa(const TextBox& kentta, float& kohde, double enintaan = std::numeric_limits<double>::max()) {
  double arvo = double{kohde};
  if (kentta.Muuttunut() && LueArvo(kentta, arvo) && arvo >= 0 && arvo <= enintaan) kohde = static_cast<float>(arvo);
}

/// Reads an edited text; an empty one leaves the target, if it has to have one.
inline void LueTeksti(const TextBox& kentta, std::string& kohde, bool pakollinen = false) {
  if (kentta.Muuttunut() && !(pakollinen && kentta.Teksti().empty())) kohde = kentta.Teksti();
}
