// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "batch/Kohdelaskenta.h"

/// What a portfolio tells of one building, as text: the result of a piece of work for YhdistaSalkku. Never raises.
Laskettu LaskeSalkkurivi(const std::string& tiedosto);

/// Writes the rows of the buildings to a workbook, those whose package of measures saves most first, then those without
/// one by their specific heat, with a chart. Raises std::exception with the reason.
void KirjoitaSalkku(const std::vector<std::string>& rivit, const std::string& tiedosto);
