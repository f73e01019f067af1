// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "batch/malliauditoinnit/Taulukko.h"

class clsRakennus;

/// What the sample audits propose.
struct Toimenpidetaulukot {
  std::vector<Rivi> toimenpiteet;  ///< data/malliauditoinnit_toimenpiteet.csv: a row for each measure
  std::vector<Rivi> muutokset;     ///< data/malliauditoinnit_muutokset.csv: a row for each value that a measure changes
};

/// Gives a sample building its saving measures, in the way that a person makes them: each is added at its node of the
/// tree, its object after is edited and compared, and those of the package are ticked in their order. Raises
/// std::runtime_error for what the building doesn't have, and for a measure that changes nothing.
void AsetaToimenpiteet(const std::string& tunnus, const Toimenpidetaulukot& taulukot, clsRakennus& rakennus);
