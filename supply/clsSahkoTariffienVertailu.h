// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsTariffiVertailuTapaukset.h"

/// The comparison of electricity tariff combinations.
class clsSahkoTariffienVertailu : public Malli<clsSahkoTariffienVertailu> {
 public:
  static const Luokka kLuokka;
  clsSahkoTariffienVertailu();

  double TotEnergia = 250.0;        ///< MWh/a
  double TotHuippuTeho = 50.0;      ///< kW
  double TotLoisteho = 25.0;        ///< kVAr
  double BruttoAla = 0;             ///< m²
  bool KaytaVertailussaALVHintoja;  ///< prices are shown with VAT; at first as the settings say
  clsTariffiVertailuTapaukset Tapaukset;

  /// Energy and peak power by the area `ala` m², kWh/m²,a and W/m²; 0 without an area.
  double OmSahkoEnergia(double ala) const noexcept { return Ominaisarvo(TotEnergia, ala); }
  double OmSahkoTeho(double ala) const noexcept { return Ominaisarvo(TotHuippuTeho, ala); }
  /// A case of the present energy and powers at the two tariffs, in no list.
  clsTariffiVertailuTapaus Tapaus(const Tunniste& myynti, const Tunniste& siirto) const;

 private:
  static double Ominaisarvo(double arvo, double ala) noexcept { return ala == 0 ? 0 : arvo * 1000 / ala; }
};
