// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Tariffilomake.h"

/// Tariffs of heat, of electricity transfer or of electricity sales.
class frmSahkotariffi : public Tariffilomake {
 public:
  frmSahkotariffi();

  void TyhjennaKentat() const override;
  /// Which fees the kind of tariff has.
  void NaytaTehomaksut(bool teho, bool loisteho) const;
  void NaytaVero(std::string otsikko, bool luokat) const;
  /// Sum of the shares, %; `taysi`: it will do. What is missing is told beside it.
  void NaytaOsuudet(double summa, bool taysi) const;

  std::array<TextBox, 6> txtEnergiaYhteensa;  // of a year, read only
  TextBox txtKulutusosuus1{*this, "txtKulutusosuus1"};
  Label LblSataProsenttia{*this, "LblSataProsenttia"};
  TextBox txtTehomaksuYhteensa{*this, "txtTehomaksuYhteensa"};
  TextBox txtLoistehomaksuYhteensa{*this, "txtLoistehomaksuYhteensa"};
  ComboBox cmbSahkoVeroTyyppi{*this, "cmbSahkoVeroTyyppi"};
  TextBox txtVeroHinta{*this, "txtVeroHinta"};
  TextBox txtSahkoVeroYhtensa{*this, "txtSahkoVeroYhtensa"};

 private:
  void NaytaTehorivi(const std::string& maksu, bool nakyva) const;
};
