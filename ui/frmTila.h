// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Data of one space.
class frmTila : public Muokkauslomake {
 public:
  frmTila();

  /// Row of the choice of hours of use or of the control method, from 0.
  std::function<void(int)> KayttoaikaValittu;
  std::function<void(int)> SaatotapaValittu;
  std::function<void()> RakenteetKlikattu;

  /// Enables what the choices leave to the person: hours and efficiency of the choice "other", the air change in use.
  /// To be called after the form has been filled.
  void PaivitaKentat();

  TextBox txtTilanNimi{*this, "txtTilanNimi"};
  TextBox txtKuvausteksti{*this, "txtKuvausteksti"};
  TextBox txtKokonaistilavuus{*this, "txtKokonaistilavuus"};    // m³
  TextBox txtBruttoAla{*this, "txtBruttoAla"};                  // m²
  TextBox txtTilanHenkilomaara{*this, "txtTilanHenkilomaara"};  // persons
  TextBox txtSisalampotila{*this, "txtSisalampotila"};          // °C
  ComboBox cmbTilanKayttoaika{*this, "cmbTilanKayttoaika"};
  TextBox txtTilanKayttoaikaHpA{*this, "txtTilanKayttoaikaHpA"};  // h/a
  CheckBox chkLammitettyTila{*this, "chkLammitettyTila"};
  CheckBox chkSahkolammitys{*this, "chkSahkolammitys"};
  CheckBox chkPainovoimainenIlmanvaihto{*this, "chkPainovoimainenIlmanvaihto"};
  TextBox txtPainovoimainenIVMaara{*this, "txtPainovoimainenIVMaara"};  // 1/h
  TextBox txtVuotoilmanvaihto{*this, "txtVuotoilmanvaihto"};            // 1/h
  ComboBox cmbSaatotapa{*this, "cmbSaatotapa"};
  TextBox txtSaatohyotysuhde{*this, "txtSaatohyotysuhde"};  // %
  // Massiveness: for show.
  ComboBox cmbRakenteidenDynamiikka{*this, "cmbRakenteidenDynamiikka"};
  TextBox txtAikavakio{*this, "txtAikavakio"};  // h, read only
  Label lblDynamiikanKuvaus{*this, "lblDynamiikanKuvaus"};
  CommandButton cmdRakenteet{*this, "cmdRakenteet"};

 private:
  void NaytaDynamiikka();
};
