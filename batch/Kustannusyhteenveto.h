// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>

class clsRakennus;

/// Writes what the comparison year's use costs and emits, heat normalised, with the costs by area and volume. Nothing
/// when the building has no comparison year.
void KirjoitaKustannukset(std::ostream& tulos, clsRakennus& rakennus);
