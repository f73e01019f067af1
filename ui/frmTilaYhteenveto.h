// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The spaces of the building and their heat balance of the year; their electricity-load settings.
class frmTilaYhteenveto : public Lomake {
 public:
  frmTilaYhteenveto();

  std::function<void()> LisaaKlikattu;
  // These four with a space chosen in the list.
  std::function<void()> MuokkaaKlikattu;
  std::function<void()> KopioiKlikattu;
  std::function<void()> PoistaKlikattu;
  std::function<void()> KuukausitaseKlikattu;
  /// The check box was clicked, or a valid share was written.
  std::function<void()> SahkokuormatMuuttuivat;

  /// Enables what can be done to the present list; `lukittu`: spaces may neither come nor go.
  void PaivitaNapit(bool lukittu);

  ListView lvwTilat{*this, "lvwTilat"};
  CommandButton cmdLisaaTila{*this, "cmdLisaaTila"};
  CommandButton cmdMuokkaaTila{*this, "cmdMuokkaaTila"};
  CommandButton cmdKopioiTila{*this, "cmdKopioiTila"};
  CommandButton cmdPoistaTila{*this, "cmdPoistaTila"};
  CommandButton cmdKuukausitase{*this, "cmdKuukausitase"};
  CheckBox chkKaytaTotSahkoKuormia{*this, "chkKaytaTotSahkoKuormia"};
  TextBox txtTotSahkoKuormaPros{*this, "txtTotSahkoKuormaPros"};  // %
  CommandButton cmdSulje{*this, "cmdSulje"};

 private:
  bool OtaSahkokuormat();

  bool lukittu_ = false;
};
