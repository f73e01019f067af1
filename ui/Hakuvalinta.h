// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string_view>
#include <vector>

#include "ui/Taulukko.h"

/// Rows of a choice list that a search finds, from 0, the best first. A row is a name and everyday words for it,
/// divided by ";". Best is a name or a word that is what was written, then one that begins with it, then one that has a
/// word beginning with it, then one that has it somewhere; at last those that have each of several words written
/// somewhere. Letter case doesn't matter. Without anything written all rows, as they stand.
std::vector<int> EtsiValinnat(const Taulukko& rivit, std::string_view haku);
