// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muutoslomake.h"

/// What a newer standard library would change in the materials of the structures. Rows: space, structure, layer,
/// material, figure, present and new value.
class frmMateriaalimuutokset : public Muutoslomake {
 public:
  frmMateriaalimuutokset() : Muutoslomake("frmMateriaalimuutokset") {}
};
