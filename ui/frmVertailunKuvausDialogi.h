// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// What the person tells of a saved combination of tariffs.
class frmVertailunKuvausDialogi : public Muokkauslomake {
 public:
  frmVertailunKuvausDialogi() : Muokkauslomake("frmVertailunKuvausDialogi") {}

  TextBox txtNimi{*this, "txtNimi"};
  Label lblTallennettu{*this, "lblTallennettu"};  // when and by whom
};
