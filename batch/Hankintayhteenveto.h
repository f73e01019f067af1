// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>

class clsRakennus;

/// Writes what the building buys in a year, supply by supply and form by form: gross use, cost with what VAT it holds,
/// and emissions. What can't be computed is a line with its reason. Nothing is written of a building without energy
/// forms.
void KirjoitaHankinta(std::ostream& tulos, clsRakennus& rakennus);
