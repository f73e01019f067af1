// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "building/Koti.h"
#include "supply/clsEnergiamuoto.h"

/// The energy forms of a supply, and what they cost and emit together. Each figure is computed anew. A form without a
/// tariff adds nothing for it. Tariffs are those of the building that the supply belongs to; error 9999 when it has no
/// such tariff any more. Amounts are in euros without VAT.
class clsEnergiamuodot : public Malli<clsEnergiamuodot, Kokoelma<clsEnergiamuoto>> {
 public:
  static const Luokka kLuokka;
  /// Gives the building whose tariffs the forms name.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  /// Price of a unit of energy, €/MWh (of water €/m³), sales and transfer, by the shares of the forms.
  double Keskihinta() const;
  /// Yearly fees of all tariffs, €/a; in full, whatever the share.
  double Vuosimaksut() const;
  /// The part of them that is charged on power and reactive power, €/a; a water form has none.
  double Tehomaksut() const;
  /// Power fee, €/kW,a, by the shares; a water form has none.
  double TehoKeskihinta() const;
  /// Reactive power fee, €/kVAr,a, by the shares; a water form has none.
  double LoisTehoKeskihinta() const;
  /// Global warming per MWh of net demand, kg of CO2 equivalent; a form of efficiency 0 adds nothing.
  double IlmastonLampeneminenCO2ekv() const;
  /// Loss of turning bought energy into the net demand `verkko`, MWh, form by form.
  double Konversiohaviot(double verkko) const;

  /// Sum of the shares, %.
  double OsuuksienSumma() const;
  /// The sum is 100 % but for the rounding of the sum itself: 33.3 + 33.3 + 33.4 is, 99.999999 isn't.
  static bool OnTaysi(double osuuksienSumma);

  /// Some form sells or transfers by that tariff.
  bool OnkoTariffiKiinniEnergiamuodossa(const Tunniste& tariffi) const;
  /// Names of the forms that do.
  std::vector<std::string> TariffinKayttajat(const Tunniste& tariffi) const;

 private:
  struct Tariffisuure;
  double Tariffeista(const clsEnergiamuoto& muoto, const Tariffisuure& suure) const;
  double Painotettu(const Tariffisuure& suure) const;
  double Taysina(const Tariffisuure& suure) const;

  Koti koti_;
};
