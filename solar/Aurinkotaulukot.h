// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "solar/Saataulukko.h"
#include "solar/Varjostustaulukko.h"

/// The files of the solar calculator, each read and checked once in the life of the process and then found by its path:
/// a calculator is made anew for every window, and must not go to the disk for it. A file changed on the disk is seen
/// after TyhjennaAurinkotaulukot. For any thread; a table once given holds to the end of the run.

/// The three kinds of shading; a file is remembered for its kind.
enum class Varjostuslaji { Horisontti, YlaLippa, SivuLippa };

/// Errors: AurinkoVirhe, see Saataulukko; a file that failed is read anew the next time.
const Saataulukko& HaeSaataulukko(std::string_view polku);

/// Errors: AurinkoVirhe, see Varjostustaulukko; a file that failed is read anew the next time.
const Varjostustaulukko& HaeVarjostustaulukko(Varjostuslaji laji, std::string_view polku);

/// Has every file read anew when it is next asked for. Calculators and windows in use keep the tables that they have.
void TyhjennaAurinkotaulukot();
