// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsVesitariffi.h"

/// The water tariffs of the building.
class clsVesitariffit : public Malli<clsVesitariffit, Kokoelma<clsVesitariffi>> {
 public:
  static const Luokka kLuokka;
};
