// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The materials of both libraries: conditions and the list of what passes them.
class frmMateriaalikirjasto : public Lomake {
 public:
  frmMateriaalikirjasto();

  /// A condition was changed.
  std::function<void()> SuodatinMuuttui;
  /// Another row was chosen.
  std::function<void()> MateriaaliVaihtui;
  std::function<void()> ValitseKlikattu;
  std::function<void()> UusiKlikattu;
  std::function<void()> MuokkaaKlikattu;
  std::function<void()> KopioiKlikattu;
  std::function<void()> PoistaKlikattu;
  std::function<void()> SuljeKlikattu;

  ComboBox cmbRyhma{*this, "cmbRyhma"};        // row 0 is all groups
  ComboBox cmbKirjasto{*this, "cmbKirjasto"};  // both, own, standard
  TextBox txtHaku{*this, "txtHaku"};
  ListView lvwMateriaalit{*this, "lvwMateriaalit"};
  Label lblMaara{*this, "lblMaara"};
  Label lblLahde{*this, "lblLahde"};
  CommandButton cmdUusi{*this, "cmdUusi"};
  CommandButton cmdMuokkaa{*this, "cmdMuokkaa"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdPoista{*this, "cmdPoista"};
  CommandButton cmdOk{*this, "cmdOk"};  // picks
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};
};
