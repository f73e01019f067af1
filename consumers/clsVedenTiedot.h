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

  /// Share of hot water, %, in water of the temperature, °C: over 100 above the hot water's, below 0 under the cold
  /// water's. 0 when the hot water isn't hotter than the cold.
  double LampimanOsuus(double kayttolampotila) const noexcept;
  /// The other way round: temperature, °C, of water that has the share of hot water, %.
  double Kayttolampotila(double lampimanOsuus) const noexcept;
  /// Gives the values, not the identity, to `kohde`.
  void KopioiArvot(clsVedenTiedot& kohde) const noexcept;
};
