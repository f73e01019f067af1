// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsResurssi.h"

/// The resources that go into `Maara` `Yksikko` of energy.
class clsResurssit : public Malli<clsResurssit, Kokoelma<clsResurssi>> {
 public:
  static const Luokka kLuokka;

  std::string Maara = "1";             ///< quantity that the list describes: a number as text
  std::string Yksikko = "Tuntematon";  ///< its unit
};
