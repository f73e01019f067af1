// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

class Olio;

/// Names of the saving measures of the building that concern the object or change an attribute of it or of what it
/// owns, parted by commas; empty when there is none and it may be removed.
std::string ViittaavatToimenpiteet(Olio& olio);
/// Why objects may neither come nor go: the building has saving measures, which refer to them. Empty when it has none.
std::string Muokkauslukko();
