// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "library/Lammonlapaisy.h"
#include "library/Rakenneratkaisu.h"

/// Temperatures at which a structure is shown, °C.
inline constexpr double kNayttoTsisa = 21;
inline constexpr double kNayttoTulko = -26;

/// Resistances and temperatures through all layers of a solution, as `LaskeU_arvo` counts them: a layer that doesn't
/// resist has resistance 0, and `U` is that function's value. Not `onArvo` when no layer resists.
LammonlapaisyTulos LaskeLampotilajakauma(const Rakenneratkaisu& ratkaisu, double Tsisa, double Tulko);

/// A section through a solution as it is drawn: by layer from inside out, and the temperatures along it.
struct Leikkaus {
  std::vector<std::string> nimet;
  std::vector<double> paksuudet;   ///< mm
  std::vector<double> vastukset;   ///< m²K/W; 0 for a layer that doesn't count
  std::vector<double> lampotilat;  ///< °C: room, inner surface, behind each layer, outdoors; empty without a U-value
};
Leikkaus MuodostaLeikkaus(const Rakenneratkaisu& ratkaisu, double Tsisa, double Tulko);

/// The layer's name, or its material's when it has none.
const std::string& KerroksenNimi(const clsRakennekerros& kerros);
