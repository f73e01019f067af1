// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

/// The project files that were opened or saved last, the latest first, at most five; kept in the user's settings.
std::vector<std::string> ViimeisimmatTiedostot();
/// Puts the file first. A store that can't be written is passed over: the list is a convenience.
void LisaaViimeisimpiin(const std::string& tiedosto);
