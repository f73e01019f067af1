// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// Heating powers of a machine, kW: kept with it, not calculated.
class clsLammTehot : public Malli<clsLammTehot> {
 public:
  static const Luokka kLuokka;

  double TuloilmanLammitysteho = 0;  ///< warming the supply air in all
  double LtoTeho = 0;                ///< of heat recovery
  double JalkilammitysTeho = 0;      ///< of the after-heating coil
};
