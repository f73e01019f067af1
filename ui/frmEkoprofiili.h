// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Avokenttalomake.h"

/// The building's environmental impact by life-cycle module for a square metre and year, and beside what the person
/// compares it with.
class frmEkoprofiili : public Avokenttalomake {
 public:
  frmEkoprofiili();

  std::function<void()> LajiValittu;
  /// The person is writing of what the building is compared with.
  std::function<void()> VertailuMuuttui;

  ComboBox cmbLaji{*this, "cmbLaji"};
  MSChart Picture1{*this, "Picture1"};
  TextBox txtVertailunNimi{*this, "txtVertailunNimi"};
  TextBox txtVertailuMateriaalit{*this, "txtVertailuMateriaalit"};  // kg of CO2 equivalent per m² and year
  TextBox txtVertailuEnergia{*this, "txtVertailuEnergia"};          // the same
  MSChart Picture2{*this, "Picture2"};
  Label lblTiedot{*this, "lblTiedot"};
  TabStrip tabProfiili{*this, "tabProfiili"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
};
