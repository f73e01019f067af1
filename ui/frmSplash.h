// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// Start window: the product, and the person's first choice.
class frmSplash : public Lomake {
 public:
  frmSplash();

  std::function<void()> JatkaKlikattu;

  Label lblTuote{*this, "lblTuote"};
  Label lblVersio{*this, "lblVersio"};
  OptionButton Option1{*this, "Option1"};  // new object
  OptionButton Option2{*this, "Option2"};  // open a project file
  CommandButton cmdJatka{*this, "cmdJatka"};
};
