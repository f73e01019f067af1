// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"
#include "ui/Muokkauslomake.h"

/// The energy forms of one supply, with their shares and tariffs.
class frmEnHankKoostEnergiamuodoista : public Muokkauslomake {
 public:
  frmEnHankKoostEnergiamuodoista();

  /// What is bought decides the columns, the captions and the tariffs that a form has.
  void NaytaLampona();
  void NaytaSahkona();
  void NaytaVetena();

  static constexpr int kOsuussarake = 1;
  ListView lvwEnergiamuodot{*this, "lvwEnergiamuodot"};
  MSChart chtOsuudet{*this, "chtOsuudet"};
  CommandButton cmdMyyntiTariffi{*this, "cmdMyyntiTariffi"};
  CommandButton cmdSiirtoTariffi{*this, "cmdSiirtoTariffi"};
  CommandButton cmdIrrotaTariffit{*this, "cmdIrrotaTariffit"};
  TextBox txtKeskihinta{*this, "txtKeskihinta"};        // read only
  TextBox txtVuosimaksut{*this, "txtVuosimaksut"};      // read only
  TextBox txtPaastokerroin{*this, "txtPaastokerroin"};  // kg/MWh of net demand, read only
  Label lblALV{*this, "lblALV"};
  Luettelomuokkain muodot{*this,
                          {lvwEnergiamuodot, CommandButton(*this, "cmdLisaa"), CommandButton(*this, "cmdMuokkaa"),
                           CommandButton(*this, "cmdKopioi"), CommandButton(*this, "cmdPoista")}};

 private:
  /// One tariff for a form.
  void NaytaYhtenaTariffina(std::string ensimmainenSarake);
};
