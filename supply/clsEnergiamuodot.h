// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsEnergiamuoto.h"

/// The energy forms of a supply.
class clsEnergiamuodot : public Malli<clsEnergiamuodot, Kokoelma<clsEnergiamuoto>> {
 public:
  static const Luokka kLuokka;

  /// Conversion losses of a net demand, in its unit: for each form (1 / efficiency − 1) × demand × share. A form of
  /// efficiency 0 adds nothing; shares are used as they stand. Error 9999 if the result isn't finite.
  double Konversiohaviot(double nettotarve) const;
};
