// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "library/Rakenneratkaisu.h"

/// Solutions and materials as text, for the way between the library server and the program. A line for each member, its
/// name and value with a tab between; a line "Kerros" begins a layer. Identities aren't carried: the reader makes its
/// own. Figures read back exactly.
std::string Sanomaksi(const Rakenneratkaisu& ratkaisu);
std::string Sanomaksi(const Materiaali& materiaali);

/// Nothing when the text isn't such a message. A member that this program doesn't know is passed over, one that is
/// missing keeps its default: the two programs may be of different age for the moment of an upgrade.
std::optional<Rakenneratkaisu> RatkaisuSanomasta(std::string_view sanoma);
std::optional<Materiaali> MateriaaliSanomasta(std::string_view sanoma);
