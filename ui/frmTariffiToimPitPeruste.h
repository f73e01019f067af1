// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// The choice of the saved combination that another one is compared with.
class frmTariffiToimPitPeruste : public Muokkauslomake {
 public:
  frmTariffiToimPitPeruste() : Muokkauslomake("frmTariffiToimPitPeruste") {}

  ListView lstTehdytTariffivertailut{*this, "lstTehdytTariffivertailut"};
  Label lblSaasto{*this, "lblSaasto"};  // what the choice saves
};
