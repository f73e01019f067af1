// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsEnergiamuoto.h"

/// The energy forms of a supply.
class clsEnergiamuodot : public Malli<clsEnergiamuodot, Kokoelma<clsEnergiamuoto>> {
 public:
  static const Luokka kLuokka;
};
