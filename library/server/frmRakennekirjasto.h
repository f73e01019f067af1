// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The structures of both libraries: conditions, the list of what passes them, and the chosen structure with its
/// layers.
class frmRakennekirjasto : public Lomake {
 public:
  frmRakennekirjasto();

  /// A condition was changed.
  std::function<void()> SuodatinMuuttui;
  /// Another row was chosen.
  std::function<void()> RakenneVaihtui;
  std::function<void()> ValitseKlikattu;
  std::function<void()> UusiKlikattu;
  std::function<void()> MuokkaaKlikattu;
  std::function<void()> KopioiKlikattu;
  std::function<void()> PoistaKlikattu;
  std::function<void()> TuoKlikattu;
  std::function<void()> VieKlikattu;
  std::function<void()> SuljeKlikattu;

  ComboBox cmbRakennetyyppi{*this, "cmbRakennetyyppi"};  // row 0 is all kinds
  ComboBox cmbAikakausi{*this, "cmbAikakausi"};          // row 0 is all eras
  ComboBox cmbKirjasto{*this, "cmbKirjasto"};            // both, own, standard
  TextBox txtHaku{*this, "txtHaku"};
  TextBox txtUvahintaan{*this, "txtUvahintaan"};  // W/m²K
  TextBox txtUenintaan{*this, "txtUenintaan"};    // W/m²K
  ListView lvwRakenteet{*this, "lvwRakenteet"};
  Label lblMaara{*this, "lblMaara"};
  Label lblNimi{*this, "lblNimi"};
  Label lblKuvaus{*this, "lblKuvaus"};
  Label lblLahde{*this, "lblLahde"};
  MSChart chtLampotilat{*this, "chtLampotilat"};
  ListView lvwKerrokset{*this, "lvwKerrokset"};
  CommandButton cmdUusi{*this, "cmdUusi"};
  CommandButton cmdMuokkaa{*this, "cmdMuokkaa"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdPoista{*this, "cmdPoista"};
  CommandButton cmdTuo{*this, "cmdTuo"};
  CommandButton cmdVie{*this, "cmdVie"};
  CommandButton cmdOk{*this, "cmdOk"};  // picks
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};
};
