// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// Specific heat of water, kJ/(kg·K).
inline constexpr double kVedenOminaislampo = 4.19;

/// Temperatures and heating of one kind of water.
class clsVedenTiedot : public Malli<clsVedenTiedot> {
 public:
  static const Luokka kLuokka;

  double KylmanLampotila = 5.0;   ///< cold water, °C
  double LamminLampotila = 55.0;  ///< hot water, °C
  bool Sahkolammitys = false;     ///< heated by electricity

  /// Gives the values, not the identity, to `kohde`.
  void KopioiArvot(clsVedenTiedot& kohde) const noexcept;
};
