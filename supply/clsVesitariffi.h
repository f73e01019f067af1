// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsEnergiamaksut.h"

/// One water tariff. Amounts are in euros without VAT.
class clsVesitariffi : public Malli<clsVesitariffi, Alkio> {
 public:
  static const Luokka kLuokka;
  /// Makes the prices "Maksu1" (clean water, billed in full) and "Maksu2" (waste water); VAT as the settings say.
  clsVesitariffi();

  std::string Nimi;
  double ALV;                                    ///< VAT rate of the tariff, %
  bool MaksutSisaltavatALVn;                     ///< the dialog shows and takes the fees with VAT
  double Perusmaksu = 0;                         ///< basic fee, €/a
  double MuuMaksu = 0;                           ///< other fee, €/a
  double Vesivirtamaksu = 0;                     ///< fee on the water flow
  double VesivirtamaksunMaaraytymisperuste = 0;  ///< flow that it is charged on
  double VesiVero = 0;                           ///< stored only, as its two companions
  std::string VesiveroStr;
  std::int16_t VesiveroID = 0;
  clsEnergiamaksut Energiamaksut;  ///< prices per m³
};
