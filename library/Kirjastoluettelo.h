// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <vector>

#include "library/Kirjastotietue.h"

/// What a structure database holds, read at once. A database that is missing, damaged, locked or of another kind raises
/// error 9999.

/// All structures with their layers, by kind, first year, era and name.
std::vector<Kirjastorakenne> LueRakenteet(const std::string& kanta, Kirjasto kirjasto);
/// The structure of that identifier as it stands now; nothing when it has been removed.
std::optional<Kirjastorakenne> LueRakenne(const std::string& kanta, Kirjasto kirjasto, const std::string& id);
/// All materials, by group and name.
std::vector<Kirjastomateriaali> LueMateriaalit(const std::string& kanta, Kirjasto kirjasto);
