// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Kulutuslomake.h"

/// The yearly water of one consumer group and its heating.
class frmTarkennettuVesiLaskenta : public Kulutuslomake {
 public:
  frmTarkennettuVesiLaskenta();

  // The person has written a number: the other field of the two tells the same.
  std::function<void(double celsiusta)> LampotilaMuuttui;
  std::function<void(double prosenttia)> OsuusMuuttui;

  /// Shows what the unit needs. To be called after the form has been filled.
  void Taytetty() { PaivitaKentat(); }
  /// The use in a day is within a day. If not, tells and takes the person there.
  bool TunnitKelpaavat() const;

  Label lblTxtLaskentayksikko{*this, "lblTxtLaskentayksikko"};
  TextBox txtLaskentayksikko2{*this, "txtLaskentayksikko2"};
  Label lbl_hPer_d{*this, "lbl_hPer_d"};
  TextBox txtVedenKayttoLampotila{*this, "txtVedenKayttoLampotila"};  // °C
  TextBox txtLampimanVedenOsuus{*this, "txtLampimanVedenOsuus"};      // %
  Label lblVedenTiedot{*this, "lblVedenTiedot"};
  TextBox txtVedenLammittamisenEnergia{*this, "txtVedenLammittamisenEnergia"};  // MWh/a, read only

 private:
  void PaivitaKentat();
  void KuunteleLampoa(const TextBox& kentta, const std::function<void(double)>& tapahtuma);

  std::vector<std::string> laskentayksikot_, kayttoyksikot_;  // by unit
};
