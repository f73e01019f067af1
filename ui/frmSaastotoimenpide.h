// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// A saving measure: its figures before and after, prices, costs and payback, and what it changes.
class frmSaastotoimenpide : public Muokkauslomake {
 public:
  frmSaastotoimenpide();

  /// The person has changed this field of the measure.
  std::function<void(const Ohjain&)> KenttaMuuttui;
  std::function<void()> EnnenKlikattu;
  std::function<void()> JalkeenKlikattu;
  std::function<void()> PoistaMuutosKlikattu;
  std::function<void()> KayttoiatKlikattu;

  /// What is told behind the captions of the frames with amounts: how they stand to VAT.
  void NaytaVero(const std::string& vero) const;
  /// The saving by each state's own tariffs, beside that by the measure's prices.
  void NaytaTariffisaasto(bool nakyva) const;
  /// The changes, in words; those that the person may take back have keys.
  void NaytaMuutokset(Luettelosisalto muutokset) const;

  Image imgModuuli{*this, "imgModuuli"};
  Label lblModuuli{*this, "lblModuuli"};
  Label lblHuomautus{*this, "lblHuomautus"};
  CheckBox chkToimenpiteenVaikutusAste{*this, "chkToimenpiteenVaikutusAste"};
  TextBox txtToimenpiteenVaikutusAste{*this, "txtToimenpiteenVaikutusAste"};
  TextBox txtTakaisinmaksuaika{*this, "txtTakaisinmaksuaika"};  // a, read only
  TextBox txtTariffisaasto{*this, "txtTariffisaasto"};          // a year, read only
  TextBox txtTariffiaika{*this, "txtTariffiaika"};              // a, read only
  TextBox txtPaastosaasto{*this, "txtPaastosaasto"};            // t/a, read only
  ListView lvwMuutokset{*this, "lvwMuutokset"};
  CommandButton cmdEnnen{*this, "cmdEnnen"};
  CommandButton cmdJalkeen{*this, "cmdJalkeen"};
  CommandButton cmdPoistaMuutos{*this, "cmdPoistaMuutos"};
  CommandButton cmdKayttoiat{*this, "cmdKayttoiat"};
};
