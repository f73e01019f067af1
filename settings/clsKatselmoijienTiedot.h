// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "settings/clsKatselmoijanTiedot.h"

/// The auditors of the building.
class clsKatselmoijienTiedot : public Malli<clsKatselmoijienTiedot> {
 public:
  static const Luokka kLuokka;

  clsKatselmoijanTiedot LVIKatselmoija;    ///< of heating, plumbing and ventilation
  clsKatselmoijanTiedot SahkoKatselmoija;  ///< of electricity

  /// Fills both from the user's settings: a new building starts with them and has its own copy from then on.
  void HaeOletukset();

  /// Lets the person edit the auditors of the global building. The dialog's fields are written at OK, all at once.
  void NaytaKayttoliittyma();
};
