// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsEnergiamaksut.h"

/// One tariff of heat or electricity. Amounts are in euros without VAT.
class clsTariffi : public Malli<clsTariffi, Alkio> {
 public:
  static const Luokka kLuokka;
  enum Laji : std::int16_t { LampoTariffi = 0, SahkoSiirtoTariffi = 1, SahkoMyyntiTariffi = 2 };
  /// Makes the six energy fees "EnergiaMaksu1" to "EnergiaMaksu6".
  clsTariffi();

  std::string Nimi;
  std::int16_t Tariffityyppi = LampoTariffi;
  double ALV = 0;                               ///< VAT rate of the tariff, %
  bool MaksutSisaltavatALVn = false;            ///< the dialog shows and takes the fees with VAT
  double Perusmaksu = 0;                        ///< basic fee, €/a
  double Tehomaksu = 0;                         ///< power fee, €/kW,a
  double TehomaksunMaaraytymisperuste = 0;      ///< power that the fee is charged on, kW
  double Loistehomaksu = 0;                     ///< reactive power fee, €/kVAr,a
  double LoistehomaksunMaaraytymisperuste = 0;  ///< reactive power that the fee is charged on, kVAr
  double Energiavero = 0;                       ///< tax, €/MWh
  std::int16_t EnergiaveroID = 1;               ///< entry of the tax list: 0 class 2, 1 class 1, 2 other
  std::string EnergiaveroStr;
  double MuuMaksu = 0;  ///< other fee, €/a
  clsEnergiamaksut Energiamaksut;
};
