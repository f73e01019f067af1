// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "kernel/Laskenta.h"
#include "supply/clsTariffiVertailuTapaukset.h"

class Tariffivertailuikkuna;

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
  /// MWh/a as kWh/m²,a or kW as W/m².
  static double Ominaisarvo(double arvo, double ala) noexcept { return ala == 0 ? 0 : arvo * 1000 / ala; }
  /// A case of the present energy and powers at the two tariffs, in no list.
  clsTariffiVertailuTapaus Tapaus(const Tunniste& myynti, const Tunniste& siirto) const;
  /// What the comparison multiplies amounts by when it shows them, and divides the written ones by: the coefficient of
  /// the display currency, with the VAT of electricity when prices are shown with it.
  double NayttoKerroin() const;

  /// Opens the comparison, or brings it to front. Each thing done there is committed by itself; to be called on the
  /// building that the windows show.
  void NaytaKayttoliittyma();

 private:
  Oma<std::shared_ptr<Tariffivertailuikkuna>> ikkuna_;
};
