// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"

/// The comparison of electricity tariffs: energy, powers and tariffs of a combination, its cost in parts, and the saved
/// combinations.
class frmSahkotariffiVertailu : public Lomake {
 public:
  frmSahkotariffiVertailu();

  /// The person is writing in a number field.
  std::function<void(const Ohjain& kentta)> KenttaMuuttui;
  /// A number field that the person has changed is left, and the number fields hold good values.
  std::function<void()> KentatMuuttuivat;
  std::function<void()> TariffiValittu;
  std::function<void()> AlvKlikattu;
  std::function<void()> MyyntitariffitKlikattu;
  std::function<void()> SiirtotariffitKlikattu;
  std::function<void()> OtaVertailuunKlikattu;
  std::function<void()> VieTaulukko2eenKlikattu;

  /// Raises KentatMuuttuivat for a field that the person has changed but not left. False when a field isn't good.
  bool OtaKentat();
  /// Shows what the person is to know, or takes the line away when there is nothing.
  void NaytaOhje(std::string ohje) const;

  TextBox txtTotEnergia{*this, "txtTotEnergia"};          // MWh/a
  TextBox txtTotHuippuTeho{*this, "txtTotHuippuTeho"};    // kW
  TextBox txtTotLoisteho{*this, "txtTotLoisteho"};        // kVAr
  TextBox txtOmSahkoEnergia{*this, "txtOmSahkoEnergia"};  // kWh/m²,a, read only
  TextBox txtOmSahkoTeho{*this, "txtOmSahkoTeho"};        // W/m², read only
  ComboBox cmbMyyntiTariffit{*this, "cmbMyyntiTariffit"};
  ComboBox cmbSiirtoTariffit{*this, "cmbSiirtoTariffit"};
  CheckBox chkALV{*this, "chkALV"};
  ListView lvwKustannukset{*this, "lvwKustannukset"};
  ListView lvwYhdistelmat{*this, "lvwYhdistelmat"};
  Label lblHalvinJaKallein{*this, "lblHalvinJaKallein"};
  Label lblOhje{*this, "lblOhje"};
  CommandButton cmdTalletaYhdistelma{*this, "cmdTalletaYhdistelma"};
  CommandButton cmdOtaVertailuun{*this, "cmdOtaVertailuun"};
  Luettelomuokkain yhdistelmat{*this,
                               {lvwYhdistelmat, cmdTalletaYhdistelma, CommandButton(*this, "cmdMuokkaa"), std::nullopt,
                                CommandButton(*this, "cmdPoista")}};

 private:
  std::array<TextBox, 3> Kentat() const { return {txtTotEnergia, txtTotHuippuTeho, txtTotLoisteho}; }
};
