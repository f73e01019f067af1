// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Data of one ventilation machine and, read only, its energy of the year.
class frmIlmanvaihtokone : public Muokkauslomake {
 public:
  frmIlmanvaihtokone();

  /// A choice was made, or a field was left: the figures of the year no longer hold.
  std::function<void()> DataMuuttui;
  std::function<void()> LtoKlikattu;
  // These two with valid number fields.
  std::function<void()> KayntiajatKlikattu;
  std::function<void()> PuhaltimetKlikattu;

  /// Fills the choice of the space, none chosen: row 0 is none, or the only one when there are no spaces.
  void Tilat(const std::vector<std::string>& nimet);
  /// Shows the picture of the principle and enables what principle, space and system leave to the person. To be called
  /// after the form has been filled.
  void PaivitaKentat();

  TextBox txtKoneenTunnus{*this, "txtKoneenTunnus"};
  ComboBox cmbLiittyyTilaan{*this, "cmbLiittyyTilaan"};
  ComboBox cmbIVPeriaate{*this, "cmbIVPeriaate"};
  Image imgPeriaate{*this, "imgPeriaate"};
  TextBox txtTuloIlmavirta11Teho{*this, "txtTuloIlmavirta11Teho"};                      // m³/s
  TextBox txtPoistoIlmavirta11Teho{*this, "txtPoistoIlmavirta11Teho"};                  // m³/s
  TextBox txtSisaanpuhallusLampotila{*this, "txtSisaanpuhallusLampotila"};              // °C
  TextBox txtPoistoLampotila{*this, "txtPoistoLampotila"};                              // °C
  TextBox txtIlmanLampeneminenPuhaltimessa{*this, "txtIlmanLampeneminenPuhaltimessa"};  // K
  TextBox txtLtoHyotysuhde{*this, "txtLtoHyotysuhde"};                                  // %
  CommandButton cmdLto{*this, "cmdLto"};
  CheckBox chkTuloilmanLammitysSahkoPatterilla{*this, "chkTuloilmanLammitysSahkoPatterilla"};
  ComboBox cmbJarjestelmaTyyppi{*this, "cmbJarjestelmaTyyppi"};
  ComboBox cmbPuhaltimenVoimansiirtoTapa{*this, "cmbPuhaltimenVoimansiirtoTapa"};
  ComboBox cmbPuhaltimenSaatotapa{*this, "cmbPuhaltimenSaatotapa"};
  ComboBox cmbVakioPaineOsuus{*this, "cmbVakioPaineOsuus"};  // %
  // Figures of the year, read only, and what keeps them from being right.
  TextBox txtKayntiaika{*this, "txtKayntiaika"};        // h
  TextBox txtJalkilammitys{*this, "txtJalkilammitys"};  // MWh
  TextBox txtPuhallinSahko{*this, "txtPuhallinSahko"};  // MWh
  TextBox txtLtoEnergia{*this, "txtLtoEnergia"};        // MWh
  Label lblHuomautus{*this, "lblHuomautus"};
  CommandButton cmdKayntiajat{*this, "cmdKayntiajat"};
  CommandButton cmdPuhaltimet{*this, "cmdPuhaltimet"};

 private:
  void Muuttui();
};
