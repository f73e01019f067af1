// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muutoslomake.h"

/// What a newer standard fuel database would change in the energy forms. Rows: supply, energy form, figure, present and
/// new value.
class frmEnergiamuotomuutokset : public Muutoslomake {
 public:
  frmEnergiamuotomuutokset() : Muutoslomake("frmEnergiamuotomuutokset") {}
};
