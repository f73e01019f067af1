// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// One own structure under editing, with the section picture that follows each edit.
class frmKirjastorakenne : public Lomake {
 public:
  frmKirjastorakenne();

  /// A field of the structure was edited.
  std::function<void()> RakenneMuuttui;
  /// A field of the chosen layer was edited.
  std::function<void()> KerrosMuuttui;
  /// Another layer was chosen.
  std::function<void()> KerrosVaihtui;
  /// The focus left a number field.
  std::function<void()> KentastaPoistuttu;
  std::function<void()> RakKerLisaa;
  std::function<void()> RakKerKopioi;
  std::function<void()> RakKerPoista;
  std::function<void()> RakKerSiirraSisaanPain;
  std::function<void()> RakKerSiirraUlosPain;
  std::function<void()> SuljeKlikattu;

  TextBox txtNimi{*this, "txtNimi"};
  TextBox txtKuvaus{*this, "txtKuvaus"};
  TextBox txtLahde{*this, "txtLahde"};
  ComboBox cmbRakennetyyppi{*this, "cmbRakennetyyppi"};
  TextBox txtAikakausi{*this, "txtAikakausi"};
  TextBox txtVuosiAlku{*this, "txtVuosiAlku"};
  TextBox txtVuosiLoppu{*this, "txtVuosiLoppu"};
  CheckBox chkU_arvoAnnettu{*this, "chkU_arvoAnnettu"};
  TextBox txtUarvo{*this, "txtUarvo"};                      // W/m²K
  TextBox txtPintavastusSisa{*this, "txtPintavastusSisa"};  // m²K/W
  TextBox txtPintavastusUlko{*this, "txtPintavastusUlko"};  // m²K/W
  TextBox txtPistemaiset{*this, "txtPistemaiset"};          // number
  TextBox txtPistemaisetWpK{*this, "txtPistemaisetWpK"};    // W/K
  TextBox txtViivamaiset{*this, "txtViivamaiset"};          // number or length
  TextBox txtViivamaisetWpK{*this, "txtViivamaisetWpK"};    // W/K
  TextBox txtPaloluokka{*this, "txtPaloluokka"};
  TextBox txtRw{*this, "txtRw"};                                // dB
  TextBox txtPaksuus{*this, "txtPaksuus"};                      // mm
  TextBox txtKerrostenMassaYht{*this, "txtKerrostenMassaYht"};  // kg/m²
  CheckBox chkOnIkkuna{*this, "chkOnIkkuna"};
  TextBox txtAurinkoenergianlapaisy{*this, "txtAurinkoenergianlapaisy"};      // %
  TextBox txtKarmikerroin{*this, "txtKarmikerroin"};                          // %
  TextBox txtVerhokerroin{*this, "txtVerhokerroin"};                          // %
  TextBox txtKokonaisvarjostuskerroin{*this, "txtKokonaisvarjostuskerroin"};  // %

  ListView lvwKerrokset{*this, "lvwKerrokset"};
  CommandButton cmdLisaaKerros{*this, "cmdLisaaKerros"};
  CommandButton cmdKopioiKerros{*this, "cmdKopioiKerros"};
  CommandButton cmdPoistaKerros{*this, "cmdPoistaKerros"};
  CommandButton cmdSisaanpain{*this, "cmdSisaanpain"};
  CommandButton cmdUlospain{*this, "cmdUlospain"};
  ComboBox cmbMateriaali{*this, "cmbMateriaali"};
  TextBox txtKerroksenPaksuus{*this, "txtKerroksenPaksuus"};  // mm
  TextBox txtLammonvastus{*this, "txtLammonvastus"};          // m²K/W
  CheckBox chkUArvoon{*this, "chkUArvoon"};
  CheckBox chkYhtenainen{*this, "chkYhtenainen"};
  ComboBox cmbLisamateriaali{*this, "cmbLisamateriaali"};
  TextBox txtLisamateriaalinOsuus{*this, "txtLisamateriaalinOsuus"};  // %

  MSChart chtLampotilat{*this, "chtLampotilat"};
  Label lblTila{*this, "lblTila"};
  CommandButton cmdSulje{*this, "cmdSulje"};
};
