// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// Heat summary: the computed distribution of heat beside the measured consumption. A model class sets the three plain
/// members, fills the first column (`arvo` fields, "### ##0.00", MWh/a) and calls Laske; sums, difference, specific
/// columns, the losses dialog and the chart are the form's own.
class frmLampoYhteenveto : public Lomake {
 public:
  /// A figure in MWh/a with its companions in kWh/m² and kWh/m³.
  struct Rivi {
    Rivi(const Lomake& lomake, const std::string& nimi)
        : arvo(lomake, nimi), nelioille(lomake, nimi + "Nelioille"), kuutioille(lomake, nimi + "Kuutioille") {}
    TextBox arvo, nelioille, kuutioille;
  };

  frmLampoYhteenveto();

  /// The person gave other heat a new value, MWh/a, and left the field. The sums follow the typing.
  std::function<void(double)> MuuLampoMuuttui;
  /// OK with valid fields; the listener closes the form.
  std::function<void()> OkKlikattu;
  std::function<void()> KuukausitaseKlikattu;

  /// Sum of the five parts, of the two waters and of the two losses, measured minus sum, and the specific columns: all
  /// from the shown texts, so that the columns add up on the screen.
  void Laske();

  double BruttoAla = 0;         // m²
  double Kokonaistilavuus = 0;  // m³
  std::string KohteenNimi;      // title of the chart

  Rivi txtTilojenLammitys{*this, "txtTilojenLammitys"};
  Rivi txtIlmanvaihtokoneet{*this, "txtIlmanvaihtokoneet"};
  Rivi txtKayttoVedenLammitys{*this, "txtKayttoVedenLammitys"};
  Rivi txtProsessiVedenLammitys{*this, "txtProsessiVedenLammitys"};
  Rivi txtVedenLammitysYht{*this, "txtVedenLammitysYht"};
  Rivi txtMuuLampo{*this, "txtMuuLampo"};
  Rivi txtYhteensa{*this, "txtYhteensa"};
  Rivi txtToteutunutKulutus{*this, "txtToteutunutKulutus"};
  Rivi txtHaviot{*this, "txtHaviot"};
  Rivi txtHaviotYhteensa{*this, "txtHaviotYhteensa"};
  // Not shown here, "0.00000000": what the losses dialog opens with.
  TextBox txtSaatoHaviot{*this, "txtSaatoHaviot"};
  TextBox txtLammonTuotonHaviot{*this, "txtLammonTuotonHaviot"};

  CommandButton cmdNaytaGraafi{*this, "cmdNaytaGraafi"};
  CommandButton Command4{*this, "Command4"};
  CommandButton cmdKuukausitase{*this, "cmdKuukausitase"};
  CommandButton cmdOk{*this, "cmdOk"};

 private:
  void LaskeYhteensa();
  void LaskeOminaisarvot(const Rivi& rivi) const;
  void MuuLampoKirjoitettu();
  void VahvistaMuuLampo();
  void NaytaGraafi();
  void NaytaHaviot();
};
