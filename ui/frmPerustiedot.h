// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Muokkauslomake.h"

/// Basic data of the audited object and its measured consumption of three years.
class frmPerustiedot : public Muokkauslomake {
 public:
  frmPerustiedot();

  /// Volume or area was edited; the specific figures of the form are up to date.
  std::function<void()> DataMuuttui;
  /// A figure of the measured consumption was edited, or another comparison year ticked. While a field of the grid
  /// holds no whole number yet, the event waits; left so, the field tells of it.
  std::function<void()> KulutustietoMuuttui;
  /// The first model is to be made anew from the form's values, which are good.
  std::function<void()> LuoMalliKlikattu;
  /// Index of the chosen locality, 0 to 15.
  std::function<void(int)> SaaPaikkakuntaMuuttui;
  std::function<void()> VakioOsuusKlikattu;
  /// The degree days of the years are wanted from the table.
  std::function<void()> HaeTarveluvutKlikattu;
  std::function<void()> LammonHankintaKlikattu;
  std::function<void()> SahkonHankintaKlikattu;
  std::function<void()> VedenHankintaKlikattu;

  /// Specific consumption of the comparison year from the shown figures: heat and electricity kWh/m³ and kWh/m² a year,
  /// water dm³/m³ and dm³/m² a year; empty where the volume or area isn't above 0 or no year is ticked. To be called
  /// after the form has been filled.
  void LaskeOminaiskulutukset();
  /// Shows the years of the rows by the last year in its field. To be called after the form has been filled.
  void NaytaVuodet();
  /// Row of the comparison year, 0 to 2; -1 when none is ticked.
  int Vertailuvuosi() const;

  TextBox txtKohteenNimi{*this, "txtKohteenNimi"};
  TextBox txtPvm{*this, "txtPvm"};
  ComboBox cmbKayttotarkoitus{*this, "cmbKayttotarkoitus"};
  TextBox txtValmistumisVuosi{*this, "txtValmistumisVuosi"};
  TextBox txtKokonaistilavuus{*this, "txtKokonaistilavuus"};            // m³
  TextBox txtKylmanTilavuudenOsuus{*this, "txtKylmanTilavuudenOsuus"};  // %
  TextBox txtBruttoAla{*this, "txtBruttoAla"};                          // m²
  TextBox txtKylmanAlanOsuus{*this, "txtKylmanAlanOsuus"};              // %
  TextBox txtKerrostenLukumaara{*this, "txtKerrostenLukumaara"};
  TextBox txtKohteenHenkiloMaara{*this, "txtKohteenHenkiloMaara"};
  ComboBox cmbPaikkakunta{*this, "cmbPaikkakunta"};
  TextBox txtNormVuodenLammTarveLuku{*this, "txtNormVuodenLammTarveLuku"};  // degree days, read only
  Label lblALV{*this, "lblALV"};                                            // with or without value added tax

  // Measured consumption: row 0 is the newest year.
  TextBox txtKulutusTietojenViimVuosi{*this, "txtKulutusTietojenViimVuosi"};
  std::array<Label, 3> lblVuosi = Kolme<Label>(*this, "lblVuosi");
  std::array<OptionButton, 3> optVertailuvuosi = Kolme<OptionButton>(*this, "optVertailuvuosi");
  std::array<TextBox, 3> txtLammTarveLuku = Kolme<TextBox>(*this, "txtLammTarveLuku");
  std::array<TextBox, 3> txtLampo = Kolme<TextBox>(*this, "txtLampo");  // MWh/a
  std::array<TextBox, 3> txtSahko = Kolme<TextBox>(*this, "txtSahko");  // MWh/a
  std::array<TextBox, 3> txtVesi = Kolme<TextBox>(*this, "txtVesi");    // m³/a

  // Specific consumption of the comparison year, read only.
  TextBox txtLampoKuutioille{*this, "txtLampoKuutioille"};
  TextBox txtLampoNelioille{*this, "txtLampoNelioille"};
  TextBox txtSahkoKuutioille{*this, "txtSahkoKuutioille"};
  TextBox txtSahkoNelioille{*this, "txtSahkoNelioille"};
  TextBox txtVesiKuutioille{*this, "txtVesiKuutioille"};
  TextBox txtVesiNelioille{*this, "txtVesiNelioille"};

  CommandButton cmdVakioOsuus{*this, "cmdVakioOsuus"};
  CommandButton cmdHaeTarveluvut{*this, "cmdHaeTarveluvut"};
  CommandButton cmdLammonHankinta{*this, "cmdLammonHankinta"};
  CommandButton cmdSahkonHankinta{*this, "cmdSahkonHankinta"};
  CommandButton cmdVedenHankinta{*this, "cmdVedenHankinta"};
  CommandButton cmdLuoMalli{*this, "cmdLuoMalli"};

 private:
  void KuunteleVuotta(std::size_t i);
  void KulutusKirjoitettu();
  bool KulutuksetLuettavissa() const;
  void TaytaOminaiskulutus(const TextBox& kuutioille, const TextBox& nelioille, const std::array<TextBox, 3>& kulutus);
};
