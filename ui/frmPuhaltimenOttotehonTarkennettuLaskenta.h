// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// What the electric power of a fan is computed from.
class frmPuhaltimenOttotehonTarkennettuLaskenta : public Muokkauslomake {
 public:
  frmPuhaltimenOttotehonTarkennettuLaskenta();

  /// A field was edited.
  std::function<void()> KenttaMuuttui;

  /// m³/s, Pa and four efficiencies, %.
  std::array<TextBox, 6> kentat{TextBox(*this, "txtIlmavirta"),
                                TextBox(*this, "txtPaineenKorotus"),
                                TextBox(*this, "txtPuhaltimenHyotysuhde"),
                                TextBox(*this, "txtHihnavalityksenHyotysuhde"),
                                TextBox(*this, "txtMoottorinHyotysuhde"),
                                TextBox(*this, "txtTaajuusmuuttajanHyotysuhde")};
  TextBox txtOttoteho{*this, "txtOttoteho"};  // kW, read only
};
