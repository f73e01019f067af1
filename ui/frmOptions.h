// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "ui/Muokkauslomake.h"

/// The user's settings. Rates are shown per cent, electricity taxes in the display currency per MWh.
class frmOptions : public Muokkauslomake {
 public:
  frmOptions();

  /// Index of the chosen currency. The unit labels and the taxes wait for NaytaRahayksikko and AsetaVero.
  std::function<void(int)> ValuuttaMuuttui;

  /// A tax as shown (two decimals) and in its hidden companion (all of them); class 0 or 1 for tax class 1 or 2.
  void AsetaVero(std::size_t luokka, double vero);
  /// The companion's number; nothing when the person has typed something else.
  std::optional<double> Vero(std::size_t luokka) const;
  /// Name of the currency in the unit labels.
  void NaytaRahayksikko(std::string_view yksikko);
  /// A number with all its decimals.
  static std::string Tarkkana(double arvo);

  TabStrip tabAsetukset{*this, "tabAsetukset"};

  TextBox txtYleinenALV{*this, "txtYleinenALV"};   // %
  TextBox txtTotLampo{*this, "txtTotLampo"};       // %
  TextBox txtTotSahko{*this, "txtTotSahko"};       // %
  TextBox txtTotVesi{*this, "txtTotVesi"};         // %
  OptionButton optKaytaLVI{*this, "optKaytaLVI"};  // amounts with VAT
  OptionButton optIlmanLVI{*this, "optIlmanLVI"};  // amounts without VAT
  ComboBox cmbValuutta{*this, "cmbValuutta"};
  TextBox txtVeroluokka1{*this, "txtVeroluokka1"};
  TextBox txtVeroluokka2{*this, "txtVeroluokka2"};
  TextBox txtVeroluokka1Tarkennettu{*this, "txtVeroluokka1Tarkennettu"};
  TextBox txtVeroluokka2Tarkennettu{*this, "txtVeroluokka2Tarkennettu"};
  Label lblVeroYksikko1{*this, "lblVeroYksikko1"};
  Label lblVeroYksikko2{*this, "lblVeroYksikko2"};

  TextBox txtVakiokanta{*this, "txtVakiokanta"};
  TextBox txtKayttajakohtainen{*this, "txtKayttajakohtainen"};
  TextBox txtVakiokantaVersio{*this, "txtVakiokantaVersio"};
  TextBox txtEnergia_Vakiokanta{*this, "txtEnergia_Vakiokanta"};
  TextBox txtEnergia_Kayttajakohtainen{*this, "txtEnergia_Kayttajakohtainen"};
  CommandButton cmdSelaaVakiokanta{*this, "cmdSelaaVakiokanta"};
  CommandButton cmdSelaaKayttajakohtainen{*this, "cmdSelaaKayttajakohtainen"};
  CommandButton cmdSelaaEnergia_Vakiokanta{*this, "cmdSelaaEnergia_Vakiokanta"};
  CommandButton cmdSelaaEnergia_Kayttajakohtainen{*this, "cmdSelaaEnergia_Kayttajakohtainen"};

  // The user's own contact data: job title, name, telephone, mobile, fax, e-mail.
  std::array<TextBox, 6> txtLVI = Kuusi<TextBox>(*this, "txtLVI");  // HVAC auditor
  std::array<TextBox, 6> txtSah = Kuusi<TextBox>(*this, "txtSah");  // electrical auditor

  TextBox txtOletusosoite{*this, "txtOletusosoite"};

 private:
  void KuunteleVeroa(std::size_t luokka);
};
