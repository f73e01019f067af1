// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Puulomake.h"

/// The electricity of the building: groups of devices, and what other parts of the model use.
class frmSahkoLaitteet : public Puulomake {
 public:
  frmSahkoLaitteet();

  std::function<void()> JakaumaKlikattu;
};
