// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// Shading of a window by the horizon or the surroundings.
class clsHorisVarjostus : public Malli<clsHorisVarjostus> {
 public:
  static const Luokka kLuokka;

  std::int32_t TyyppiID = 0;     ///< index of the type of shading
  std::string TyyppiStr;         ///< its text
  double Varjostuskulma = 15.0;  ///< shading angle above the horizon, degrees
};
