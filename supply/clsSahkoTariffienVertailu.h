// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsTariffiVertailuTapaukset.h"

/// The comparison of electricity tariff combinations.
class clsSahkoTariffienVertailu : public Malli<clsSahkoTariffienVertailu> {
 public:
  static const Luokka kLuokka;
  clsSahkoTariffienVertailu();

  double TotEnergia = 250.0;        ///< MWh/a
  double TotHuippuTeho = 50.0;      ///< kW
  double TotLoisteho = 25.0;        ///< kVAr
  double BruttoAla = 0;             ///< m²
  bool KaytaVertailussaALVHintoja;  ///< prices are shown with VAT; at first as the settings say
  clsTariffiVertailuTapaukset Tapaukset;
};
