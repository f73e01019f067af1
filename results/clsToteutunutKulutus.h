// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// Measured consumption of one year.
class clsToteutunutKulutus : public Malli<clsToteutunutKulutus, Alkio> {
 public:
  static const Luokka kLuokka;

  double Lampo = 0;                   ///< heat, MWh/a
  double Sahko = 0;                   ///< electricity, MWh/a
  double Vesi = 0;                    ///< water, m³/a
  double LammTarveLuku = 0;           ///< the year's heating degree days, Kd
  bool KaytaVertailuVuotena = false;  ///< this is the year that the model is compared with
};
