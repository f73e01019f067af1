// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsEnergiamaksu.h"

/// The unit prices of a tariff.
class clsEnergiamaksut : public Malli<clsEnergiamaksut, Kokoelma<clsEnergiamaksu>> {
 public:
  static const Luokka kLuokka;

  /// Price of a unit of consumption, €/MWh (of water €/m³): prices by their shares, which are taken as they stand
  /// whatever they sum to.
  double Keskihinta() const;
  /// Sum of the shares, %.
  double OsuuksienSumma() const;
  /// The sum, rounded to one decimal (a half to the even one), is above 99.7 and below 100.3 %.
  static bool OnTaysi(double osuuksienSumma);
};
