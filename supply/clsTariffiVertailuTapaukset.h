// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsTariffiVertailuTapaus.h"

/// The saved cases of the tariff comparison.
class clsTariffiVertailuTapaukset : public Malli<clsTariffiVertailuTapaukset, Kokoelma<clsTariffiVertailuTapaus>> {
 public:
  static const Luokka kLuokka;

  /// Keys of the cheapest and of the dearest case at their own energies and powers, of equal ones the first; empty when
  /// there is none. A case whose tariff has been removed is passed over.
  Tunniste HalvinTariffisKey(const clsTariffit& tariffit) const;
  Tunniste KalleinTariffisKey(const clsTariffit& tariffit) const;

 private:
  template <class Vertaaja>
  Tunniste Aarimmainen(const clsTariffit& tariffit, double raja, Vertaaja parempi) const;
};
