// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Poimintalomake.h"

/// The catalogue of typical tariffs: name, price of a unit, unit, power fee, basic fee, year of the prices, how sure
/// they are.
class frmTariffiluettelo : public Poimintalomake {
 public:
  frmTariffiluettelo() : Poimintalomake("frmTariffiluettelo") {}
};
