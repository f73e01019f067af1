// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "kernel/Tunniste.h"

// The choice of a space in the dialog of what may belong to one: row 0 is none, the spaces of the building follow.

/// Names of the spaces, without row 0.
std::vector<std::string> TilojenNimet();
/// Row of the space; 0 for no key, or a key that no space has.
std::int32_t TilanRivi(const Tunniste& avain);
/// Key and name of the space of a row; empty for row 0.
Tunniste RivinTila(std::int32_t rivi);
std::string RivinTilanNimi(std::int32_t rivi);
