// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// Thermal transmittance of a structure from its layers: EN ISO 6946, combined method, without the corrections for air
/// gaps and fixings. Pure functions of their arguments.
///
/// R' (upper limit): parallel sections straight through the structure, one for every combination of the materials of
/// the inhomogeneous layers, weighted by area. R'' (lower limit): layer by layer, an inhomogeneous one with its
/// conductivity weighted by area. R = (R' + R'') / 2 when a counted layer is inhomogeneous, else the plain sum.
/// U = 1 / R. Always R'' <= R <= R'.

/// A layer as the calculation sees it. The order of layers matters to the temperatures only.
struct Kerros {
  double paksuus_m = 0;    ///< m; <= 0: no resistance
  double lambda = 0;       ///< conductivity of the main material, W/mK; <= 0: no resistance
  bool mukana = true;      ///< counts towards the U-value
  bool yhtenainen = true;  ///< homogeneous; else the second material takes its share
  double lambda2 = 0;      ///< conductivity of the second material, W/mK; <= 0: the layer is bridged there
  double osuus2 = 0;       ///< the second material's share of the area, 0 to 1; clamped
  std::optional<double> vastus =
      {};  ///< fixed resistance in place of the main material's d / lambda (air layer), m²K/W
};

/// Beyond this many inhomogeneous layers the further ones enter R' with their area-weighted conductivity: the sections
/// double with each layer. No real structure comes near.
inline constexpr int kJaettujaKerroksiaEnintaan = 12;

/// What comes out, with the figures on the way for showing.
struct LammonlapaisyTulos {
  double R_yla = 0;                          ///< R', m²K/W, surfaces included
  double R_ala = 0;                          ///< R'', m²K/W, surfaces included
  double R = 0;                              ///< m²K/W, surfaces included
  double U = 0;                              ///< W/m²K; 0 when there is no value
  bool onArvo = false;                       ///< false when there is no resistance at all
  std::vector<double> kerrosvastukset = {};  ///< of each layer, m²K/W; 0 for one that doesn't count
  std::vector<double> lampotilat = {};       ///< °C: inner surface, then behind each layer, the last the outer
                                             ///< surface; empty when there is no value
};

/// The U-value alone, W/m²K, without memory from the heap; nothing when there is no resistance at all.
/// Layers from inside out. Rsi, Rse: surface resistances, m²K/W; <= 0: none.
std::optional<double> LammonlapaisyU(std::span<const Kerros> kerrokset, double Rsi, double Rse);

/// The same with all that goes with it. Temperatures in °C; the profile runs through the layers' area-weighted
/// resistances, as R'' does.
LammonlapaisyTulos LaskeLammonlapaisy(std::span<const Kerros> kerrokset, double Rsi, double Rse, double Tsisa,
                                      double Tulko);
