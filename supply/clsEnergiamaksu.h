// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One unit price of a tariff. Amounts are in euros without VAT.
class clsEnergiamaksu : public Malli<clsEnergiamaksu, Alkio> {
 public:
  static const Luokka kLuokka;

  std::string Nimi;
  double Hinta = 0;         ///< €/MWh; of a water tariff €/m³
  double Kulutusosuus = 0;  ///< share of the consumption billed at this price, %
};
