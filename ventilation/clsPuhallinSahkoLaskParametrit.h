// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// What the electric power of one fan at full flow is computed from.
class clsPuhallinSahkoLaskParametrit : public Malli<clsPuhallinSahkoLaskParametrit> {
 public:
  static const Luokka kLuokka;

  double Ilmavirta = 0;                    ///< m³/s
  double PaineenKorotus = 0;               ///< pressure rise, Pa
  double PuhaltimenHyotysuhde = 60;        ///< %, typically 25 to 75
  double HihnavalityksenHyotysuhde = 95;   ///< %, typically 85 to 98
  double MoottorinHyotysuhde = 90;         ///< %, typically 85 to 98
  double TaajuusmuuttajanHyotysuhde = 98;  ///< %, typically 97 to 99

  /// Electric power, kW: flow × pressure rise / 1000 / the product of the four efficiencies as ratios. Raises 9999 when
  /// one of them is 0.
  double Ottoteho() const;

  /// Opens the dialog of the fan of that name, modal. A flow of 0 begins as `koneenVirta`, m³/s. True after OK; nothing
  /// is changed before.
  bool NaytaKayttoliittyma(const std::string& puhallin, double koneenVirta);
};
