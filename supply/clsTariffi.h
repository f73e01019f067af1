// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "supply/Vuosilasku.h"
#include "supply/clsEnergiamaksut.h"

/// One tariff of heat or electricity. Amounts are in euros without VAT: the currency and the VAT come to them when they
/// are shown. The bill of a year of E MWh is `Keskihinta` × E + `VuosimaksutYht`.
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
  std::int16_t EnergiaveroID = 1;               ///< entry of the tax list (`Veroluokka`)
  std::string EnergiaveroStr;
  double MuuMaksu = 0;  ///< other fee, €/a
  clsEnergiamaksut Energiamaksut;

  static constexpr int kMaksuja = 6;
  /// Energy fee of number 1 to 6. Raises std::out_of_range for another number.
  clsEnergiamaksu& Maksu(int numero) const { return Energiamaksut.Item(MaksunAvain(numero)); }
  static Tunniste MaksunAvain(int numero) { return "EnergiaMaksu" + std::to_string(numero); }
  /// Makes those of the six energy fees that are missing.
  void TaydennaMaksut();

  // Amounts in euros without VAT. Error 9999 when an amount isn't finite.
  double Keskihinta() const;               ///< price of a MWh: energy fees by their shares, and the tax, €/MWh
  double VuotuisetLoistehomaksut() const;  ///< reactive power fee on its base, €/a
  double VuotuisetPatotehomaksut() const;  ///< power fee on its base, €/a
  double VuosimaksutYht() const;           ///< what doesn't depend on the energy, €/a
  /// The bill of a year in which `energia` MWh is used.
  Vuosilasku Lasku(double energia) const;
  /// What the dialog multiplies the amounts by.
  double NayttoKerroin() const { return Tariffikerroin(ALV, MaksutSisaltavatALVn); }

  /// The entries of the tax list (`EnergiaveroID`).
  enum Veroluokka : std::int16_t { Luokka2 = 0, Luokka1 = 1, MuuVero = 2 };
  /// Tax of an entry by the settings, €/MWh; nothing for one that sets no tax.
  static std::optional<double> LuokanVero(std::int16_t veroluokka);
};
