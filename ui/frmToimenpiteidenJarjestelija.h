// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// The arranger of measures: all measures with what each saves alone, those ticked in their order with what each saves
/// in its place, and the order as a picture. Columns and rows come from outside.
class frmToimenpiteidenJarjestelija : public Muokkauslomake {
 public:
  frmToimenpiteidenJarjestelija();

  std::function<void()> NakymatasonValintaCmbKlikattu;
  std::function<void()> VaihtoehtoSuodatusCmbKlikattu;
  std::function<void(const Tunniste& toimenpide, bool valittu)> TehtyToimenpideChekattu;
  std::function<void()> LaskeKlikattu;
  std::function<void(const Tunniste& rivi)> ValittuToimenpideSiirtyiYlos;
  std::function<void(const Tunniste& rivi)> ValittuToimenpideSiirtyiAlas;
  std::function<void(const Tunniste& rivi)> PoistaValittuKlikattu;
  /// Whether a row may be put right behind another one, and that the person has put it there.
  std::function<bool(const Tunniste& rivi, const Tunniste& edellinen)> SaaSiirtaa;
  std::function<void(const Tunniste& rivi, const Tunniste& edellinen)> ValittuToimenpideSiirtyi;
  /// Another row of the lower list is chosen.
  std::function<void()> RiviVaihtui;
  std::function<void()> SuureVaihtui;
  std::function<void()> Taulukko2eenKlikattu;

  ComboBox cmbVaihtoehtoSuodatus{*this, "cmbVaihtoehtoSuodatus"};
  ComboBox cmbNakymatasonValinta{*this, "cmbNakymatasonValinta"};
  ListView lvwToimenpiteet{*this, "lvwToimenpiteet"};
  ListView lvwValitut{*this, "lvwValitut"};
  Label lblBrutto{*this, "lblBrutto"};
  Label lblNetto{*this, "lblNetto"};
  Label lblPaketti{*this, "lblPaketti"};
  CommandButton cmdLaske{*this, "cmdLaske"};
  CheckBox chkLaskeHeti{*this, "chkLaskeHeti"};
  CommandButton cmdYlos{*this, "cmdYlos"};
  CommandButton cmdAlas{*this, "cmdAlas"};
  CommandButton cmdPoista{*this, "cmdPoista"};
  CommandButton cmdTaulukko2een{*this, "cmdTaulukko2een"};
  ComboBox cmbSuure{*this, "cmbSuure"};
  MSChart chtVesiputous{*this, "chtVesiputous"};
};
