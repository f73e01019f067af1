// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// The share of the measured heat that doesn't depend on the weather and so is left out of its normalisation.
class clsLammKulutuksenVakioOsuus : public Malli<clsLammKulutuksenVakioOsuus> {
 public:
  static const Luokka kLuokka;

  double kkOsuus = 0;     ///< MWh per month
  double VuosiOsuus = 0;  ///< MWh/a
};
