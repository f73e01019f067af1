// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "measures/clsValittuToimenpide.h"

/// The measures of the arranger in the order of their calculation; the totals row stands first.
class clsValitutToimenpiteet : public Malli<clsValitutToimenpiteet, Kokoelma<clsValittuToimenpide>> {
 public:
  static const Luokka kLuokka;
  /// Key of the totals row.
  static const Tunniste kYhteensa;

  bool LaskelmatUpToDate = false;  ///< set False by every change

  using Sailio::Add;
  /// Adds a row right behind the row `JalkeensKey`; at the end if that is empty or there is no such row.
  clsValittuToimenpide& Add(const Tunniste& sKey, const Tunniste& JalkeensKey);
};
