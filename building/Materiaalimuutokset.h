// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/Rakennetietokanta.h"
#include "ui/Taulukko.h"

class clsTilat;

/// What bringing the materials of the structures up to a structure database would change, for showing; nothing is
/// changed. A row per figure: space, structure, layer, material, figure, as it is and as it would be. The U-value of a
/// structure that takes it from its layers follows on a row of its own. Raises error 9999 as the database does.
Taulukko Materiaalimuutokset(const clsTilat& tilat, Rakennetietokanta& kanta);

/// Shows the rows and asks whether to take them. True when the person says so.
bool HyvaksyMateriaalimuutokset(Taulukko muutokset);
