// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/Vuosilasku.h"
#include "supply/clsEnergiamaksut.h"

/// One water tariff. Amounts are in euros without VAT. The bill of a year of W m³ is `Keskihinta` × W +
/// `VuosimaksutYht`.
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

  clsEnergiamaksu& PuhdasVesi() const { return Energiamaksut.Item("Maksu1"); }  ///< price of clean water
  /// Price of waste water; its share is that of the water which is billed as waste water, %.
  clsEnergiamaksu& Jatevesi() const { return Energiamaksut.Item("Maksu2"); }
  /// Makes the price that is missing.
  void TaydennaMaksut();

  // Amounts in euros without VAT. Error 9999 when an amount isn't finite.
  double Keskihinta() const;      ///< price of a m³, €/m³; no tax is added
  double VuosimaksutYht() const;  ///< what doesn't depend on the water used, €/a
  /// The bill of a year in which `vesi` m³ is used; the fee on the flow counts with the other fees.
  Vuosilasku Lasku(double vesi) const;
  /// What the dialog multiplies the amounts by.
  double NayttoKerroin() const { return Tariffikerroin(ALV, MaksutSisaltavatALVn); }
};
