// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>

#include "kernel/Laskenta.h"
#include "kernel/Olio.h"

/// Calculator of a heat recovery unit's temperature efficiency from three measured temperatures.
class clsLto : public Malli<clsLto> {
 public:
  static const Luokka kLuokka;

  double Tu = 0;    ///< outdoor air, °C
  double Tp = 0;    ///< exhaust air, °C
  double Tlto = 0;  ///< supply air after the recovery unit, °C

  /// Keeps the exhaust temperature and gives the efficiency (Tlto − Tu) / (Tp − Tu) as a ratio; not limited. 0 when Tp
  /// equals Tu.
  double LtoHyotysuhde(double Tp);

  /// Raised after the dialog's OK with the efficiency in per cent.
  Oma<std::function<void(double)>> LtoHyotysuhdeMuuttui;

  /// Opens the calculator, modal. OK keeps the temperatures and raises the event. True after OK.
  bool NaytaKayttoliittyma();
};
