// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"
#include "supply/Vuosilasku.h"

class clsTariffit;

/// One saved case of the tariff comparison: a sales and a transfer tariff at the case's own energy and powers.
class clsTariffiVertailuTapaus : public Malli<clsTariffiVertailuTapaus, Alkio> {
 public:
  static const Luokka kLuokka;

  std::string Nimi;
  std::string Kuvaus;
  double Investointi = 0;      ///< € without VAT
  Tunniste MyyntiTariffiSkey;  ///< sales tariff; empty: none
  Tunniste SiirtoTariffiSkey;  ///< transfer tariff; empty: none
  double TotEnergia = 0;       ///< MWh/a
  double TotHuippuTeho = 0;    ///< kW
  double TotLoisteho = 0;      ///< kVAr
  std::string ToimenpiteenPaivays;
  std::string ToimenpiteenTekijanNimi;

  /// The yearly bills of selling and of transfer at the case's own energy and powers, whatever the bases of the
  /// tariffs' power fees are. All 0 without a tariff; error 9999 when there is no such tariff any more.
  Vuosilasku Myynti(const clsTariffit& tariffit) const;
  Vuosilasku Siirto(const clsTariffit& tariffit) const;
  /// Both, €/a.
  double KustannusYhteensa(const clsTariffit& tariffit) const;
  /// False when a tariff of the case has been removed since: it has no cost then.
  bool TariffitLoytyvat(const clsTariffit& tariffit) const;

 private:
  Vuosilasku Lasku(const clsTariffit& tariffit, const Tunniste& tariffi) const;
};
