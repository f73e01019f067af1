// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One saved case of the tariff comparison: a sales and a transfer tariff at the case's own energy and powers.
class clsTariffiVertailuTapaus : public Malli<clsTariffiVertailuTapaus, Alkio> {
 public:
  static const Luokka kLuokka;

  std::string Nimi;
  std::string Kuvaus;
  double Investointi = 0;      ///< € without VAT
  Tunniste MyyntiTariffiSkey;  ///< sales tariff; empty: none
  Tunniste SiirtoTariffiSkey;  ///< transfer tariff; empty: none
  double TotEnergia = 0;       ///< MWh/a
  double TotHuippuTeho = 0;    ///< kW
  double TotLoisteho = 0;      ///< kVAr
  std::string ToimenpiteenPaivays;
  std::string ToimenpiteenTekijanNimi;
};
