// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsEnergiamaksu.h"

/// The unit prices of a tariff.
class clsEnergiamaksut : public Malli<clsEnergiamaksut, Kokoelma<clsEnergiamaksu>> {
 public:
  static const Luokka kLuokka;
};
