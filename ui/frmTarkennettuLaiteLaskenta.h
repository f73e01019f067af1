// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Kulutuslomake.h"

/// The yearly electricity of one consumer group.
class frmTarkennettuLaiteLaskenta : public Kulutuslomake {
 public:
  frmTarkennettuLaiteLaskenta();

  /// Fills the choice of the unit, none chosen: units of power or of energy.
  void Yksikot(bool teho);
  /// Shows and enables what the way of calculation and the unit leave to the person. To be called after the form has
  /// been filled.
  void Taytetty();
  /// The person can't change where the electricity is used.
  void LukitseTila() const;

  ComboBox cmbLiittyyTilaan{*this, "cmbLiittyyTilaan"};
  CheckBox chkHyodynnetaanLammityksessa{*this, "chkHyodynnetaanLammityksessa"};
  /// By power; by energy.
  std::array<OptionButton, 2> optLaskentatapa{OptionButton(*this, "optLaskentatapa0"),
                                              OptionButton(*this, "optLaskentatapa1")};
  /// Measured; estimated; specific consumption.
  std::array<OptionButton, 3> optEnergiamoodit{OptionButton(*this, "optEnergiamoodit0"),
                                               OptionButton(*this, "optEnergiamoodit1"),
                                               OptionButton(*this, "optEnergiamoodit2")};
  TextBox txtLaskentayksikko{*this, "txtLaskentayksikko"};
  TextBox txth_per_a{*this, "txth_per_a"};    // h/a, read only
  TextBox txtKulutus2{*this, "txtKulutus2"};  // measured or estimated, MWh/a
  TextBox txtKulutusRyhmienMaara{*this, "txtKulutusRyhmienMaara"};
  TextBox txtKokonaiskulutus{*this, "txtKokonaiskulutus"};  // MWh/a, read only

 private:
  bool Teho() const { return optLaskentatapa[0].Valittu(); }
  void VaihdaLaskentatapa();
  void PaivitaKentat();
  void PaivitaLaskentayksikko(bool lasketaan);

  std::vector<std::string> laskentayksikot_;  // by unit; an empty one is named by the person
  std::string vapaaYksikko_;
  bool teho_ = true;       // the units are those of power
  int toisenYksikko_ = 0;  // unit that was chosen of the other ones
};
