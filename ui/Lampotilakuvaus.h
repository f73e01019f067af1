// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjain.h"

/// What the chart control of a structure's section (the widget class Lampotilakuva of a form file) shows: the layers
/// from inside out, mm and m²K/W (0: doesn't count), and the temperatures of the room, the inner surface, behind each
/// layer and outdoors, °C; none when the structure has no U-value. Its sides are named as indoors and outdoors.
Kaaviotiedot Lampotilakuvaus(std::string otsikko, std::vector<std::string> nimet, std::vector<double> paksuudet,
                             std::vector<double> vastukset, std::vector<double> lampotilat);

/// The parts of such a chart, by the place of their series.
enum Leikkaussarja : std::size_t { kPaksuudet, kVastukset, kLampotilat };
