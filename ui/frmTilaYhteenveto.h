// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"

/// The spaces of the building and their heat balance of the year; their electricity-load settings.
class frmTilaYhteenveto : public Lomake {
 public:
  frmTilaYhteenveto();

  /// With a space chosen in the list.
  std::function<void()> KuukausitaseKlikattu;
  /// The check box was clicked, or a valid share was written.
  std::function<void()> SahkokuormatMuuttuivat;

  /// Enables what hangs on the chosen space and on the check box.
  void PaivitaKentat() const;

  ListView lvwTilat{*this, "lvwTilat"};
  CommandButton cmdLisaaTila{*this, "cmdLisaaTila"};
  CommandButton cmdMuokkaaTila{*this, "cmdMuokkaaTila"};
  CommandButton cmdKopioiTila{*this, "cmdKopioiTila"};
  CommandButton cmdPoistaTila{*this, "cmdPoistaTila"};
  CommandButton cmdKuukausitase{*this, "cmdKuukausitase"};
  CheckBox chkKaytaTotSahkoKuormia{*this, "chkKaytaTotSahkoKuormia"};
  TextBox txtTotSahkoKuormaPros{*this, "txtTotSahkoKuormaPros"};  // %
  Label lblErittely{*this, "lblErittely"};                        // how the demand of the chosen space comes about
  Label lblHuomautus{*this, "lblHuomautus"};                      // what doesn't fit the basic data
  CommandButton cmdSulje{*this, "cmdSulje"};
  Luettelomuokkain luettelo{*this, {lvwTilat, cmdLisaaTila, cmdMuokkaaTila, cmdKopioiTila, cmdPoistaTila}};

 private:
  bool OtaSahkokuormat();
};
