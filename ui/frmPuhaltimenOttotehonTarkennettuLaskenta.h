// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// What the electric power of a fan is computed from.
class frmPuhaltimenOttotehonTarkennettuLaskenta : public Lomake {
 public:
  enum Kentta : std::size_t { kIlmavirta, kPaineenKorotus, kPuhallin, kHihnavalitys, kMoottori, kTaajuusmuuttaja };

  frmPuhaltimenOttotehonTarkennettuLaskenta();

  std::function<void()> OkKlikattu;
  /// A field was edited.
  std::function<void(Kentta)> KenttaMuuttui;

  /// m³/s, Pa and four efficiencies, %.
  std::array<TextBox, 6> kentat{TextBox(*this, "txtIlmavirta"),
                                TextBox(*this, "txtPaineenKorotus"),
                                TextBox(*this, "txtPuhaltimenHyotysuhde"),
                                TextBox(*this, "txtHihnavalityksenHyotysuhde"),
                                TextBox(*this, "txtMoottorinHyotysuhde"),
                                TextBox(*this, "txtTaajuusmuuttajanHyotysuhde")};
  TextBox txtOttoteho{*this, "txtOttoteho"};  // kW, read only
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};
};
