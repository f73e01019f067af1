// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"

/// The fuel databases: the rows of one database and of one set (heat or electricity), and the fields of the chosen row.
class frmEmuo3 : public Lomake {
 public:
  frmEmuo3();

  /// Another database or another set was chosen.
  std::function<void()> KantaVaihtui;
  std::function<void()> HakuMuuttui;
  /// A field of the row was written in.
  std::function<void()> KenttaMuuttui;
  std::function<void()> TallennaKlikattu;
  std::function<void()> OkKlikattu;
  std::function<void()> PeruutaKlikattu;

  void TyhjennaKentat() const;
  /// Whether the fields of the row are only looked at.
  void LukitseKentat(bool lukitaan) const;

  ComboBox cmbKanta{*this, "cmbKanta"};    // rows in the order of Energiamuotokanta::Laji
  ComboBox cmbJoukko{*this, "cmbJoukko"};  // heat, electricity
  TextBox txtHaku{*this, "txtHaku"};
  ListView lvwEnergiamuodot{*this, "lvwEnergiamuodot"};
  CommandButton cmdAdd{*this, "cmdAdd"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdDelete{*this, "cmdDelete"};
  TextBox txtNimi{*this, "txtNimi"};
  CommandButton cmdUpdate{*this, "cmdUpdate"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};
  Luettelomuokkain luettelo{*this, {lvwEnergiamuodot, cmdAdd, {}, cmdKopioi, cmdDelete}};

 private:
  std::vector<TextBox> kentat_;  // of the row
};
