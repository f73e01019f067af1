// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Tariffilomake.h"

/// Water tariffs: clean water and waste water.
class frmVesitariffi : public Tariffilomake {
 public:
  frmVesitariffi() : Tariffilomake({"frmVesitariffi", "lstVesitariffit", "txtVedenkulutusM3a", "txtYhteensa"}) {}

  // Of a year, read only:
  TextBox txtPuhdasVesiYhteensa{*this, "txtEnergiaYhteensa1"};
  TextBox txtJatevesiYhteensa{*this, "txtEnergiaYhteensa2"};
  TextBox txtVesiYhteensa{*this, "txtVesiYhteensa"};
};
