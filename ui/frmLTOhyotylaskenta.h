// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Temperature efficiency of a heat recovery unit from three measured temperatures.
class frmLTOhyotylaskenta : public Muokkauslomake {
 public:
  frmLTOhyotylaskenta();

  /// A field was edited.
  std::function<void()> DataMuuttui;

  TextBox txtTu{*this, "txtTu"};                        // outdoor air, °C
  TextBox txtTp{*this, "txtTp"};                        // exhaust air, °C
  TextBox txtTlto{*this, "txtTlto"};                    // supply air after the unit, °C
  TextBox txtLtoHyotysuhde{*this, "txtLtoHyotysuhde"};  // %, read only
};
