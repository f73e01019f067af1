// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// A pie of founding costs and of the present value of upkeep.
class frmHoitoPerusPiirakka : public Lomake {
 public:
  frmHoitoPerusPiirakka() : Lomake("frmHoitoPerusPiirakka") {
    cmdSulje.KunKlikataan([this] { Sulje(); });
  }

  MSChart Picture1{*this, "Picture1"};
  Label lblSelite{*this, "lblSelite"};
  CommandButton cmdSulje{*this, "cmdSulje"};
};
