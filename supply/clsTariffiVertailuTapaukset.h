// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsTariffiVertailuTapaus.h"

/// The saved cases of the tariff comparison.
class clsTariffiVertailuTapaukset : public Malli<clsTariffiVertailuTapaukset, Kokoelma<clsTariffiVertailuTapaus>> {
 public:
  static const Luokka kLuokka;
};
