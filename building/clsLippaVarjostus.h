// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// Shading of a window by a side fin or an overhang.
class clsLippaVarjostus : public Malli<clsLippaVarjostus> {
 public:
  static const Luokka kLuokka;

  std::int32_t TyyppiID = 0;  ///< index of the type of shading
  std::string TyyppiStr;      ///< its text
  double Varjostuskulma = 0;  ///< shading angle, degrees
};
