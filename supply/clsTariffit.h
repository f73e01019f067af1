// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsTariffi.h"

/// The heat and electricity tariffs of the building, of all three kinds.
class clsTariffit : public Malli<clsTariffit, Kokoelma<clsTariffi>> {
 public:
  static const Luokka kLuokka;
};
