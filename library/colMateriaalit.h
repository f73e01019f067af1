// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "library/clsRakennekerros.h"

/// The layers of a structure solution, the innermost first.
class colMateriaalit : public Malli<colMateriaalit, Kokoelma<clsRakennekerros>> {
 public:
  static const Luokka kLuokka;

  /// Adds an outermost layer under a fresh key.
  clsRakennekerros& LisaaKerros();
  /// Moves the layer at a position from 1 one step inwards; the innermost one stays. A missing position raises
  /// std::out_of_range.
  void SiirraSisaanpain(int paikka);
};
