// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/Rakenneratkaisu.h"
#include "ui/Ohjain.h"

/// How the library windows show a solution.

/// "U-arvo 0,28 W/m²K", with the word for a given one; the reason when there is none.
std::string UarvonTeksti(const Rakenneratkaisu& ratkaisu);
/// Section with the temperatures of a winter day.
Kaaviotiedot Leikkauskuva(const Rakenneratkaisu& ratkaisu);
/// A row per layer: number, material, thickness, resistance, temperature behind it, "U-arvoon", "Yhtenäinen".
Taulukko Kerrosrivit(const Rakenneratkaisu& ratkaisu);
