// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjain.h"

/// One layer of a section through a structure.
struct Leikkauskerros {
  std::string nimi;
  double paksuus_mm = 0;
  double vastus = 0;  ///< m²K/W; 0: doesn't count
};

/// What the chart control of a structure's section (the widget class Lampotilakuva of a form file) shows: the layers
/// from inside out and the temperatures through them. `lampotilat`: °C at the inner surface, then behind each layer;
/// empty when the structure has no U-value.
Kaaviotiedot Lampotilakuvaus(std::string otsikko, const std::vector<Leikkauskerros>& kerrokset,
                             const std::vector<double>& lampotilat, double Tsisa, double Tulko);

/// The parts of such a chart, by the place of their series.
enum Leikkaussarja : std::size_t {
  kPaksuudet,   ///< mm, by layer
  kVastukset,   ///< m²K/W, by layer
  kLampotilat,  ///< °C: room, inner surface, behind each layer, outdoors; empty without a U-value
};
