// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

class clsRakennus;
class clsValittuToimenpide;

/// What a row of the arranger builds upon, in words: the rows above it that concern the same object, its space or the
/// supplies, and the floating ones, whose saving is taken from it. Empty for the totals.
std::string Riviperuste(clsRakennus& rakennus, const clsValittuToimenpide& rivi);
