// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// One own material under editing.
class frmKirjastomateriaali : public Lomake {
 public:
  frmKirjastomateriaali();

  /// A field was edited.
  std::function<void()> MateriaaliMuuttui;
  /// The focus left a field.
  std::function<void()> KentastaPoistuttu;
  std::function<void()> SuljeKlikattu;

  TextBox txtNimi{*this, "txtNimi"};
  TextBox txtRyhma{*this, "txtRyhma"};
  TextBox txtLambda{*this, "txtLambda"};              // W/mK
  TextBox txtTiheys{*this, "txtTiheys"};              // kg/m³
  TextBox txtOminaislampo{*this, "txtOminaislampo"};  // kJ/kgK
  TextBox txtMuKuiva{*this, "txtMuKuiva"};
  TextBox txtMuMarka{*this, "txtMuMarka"};
  TextBox txtLahde{*this, "txtLahde"};
  Label lblTila{*this, "lblTila"};
  CommandButton cmdSulje{*this, "cmdSulje"};
};
