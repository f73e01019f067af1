// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// A ventilation machine.
class clsIVKone : public Malli<clsIVKone, Alkio> {
 public:
  static const Luokka kLuokka;
  enum Periaate : std::int32_t { Tuloilmakone = 0, TuloilmakonePlusLTO = 1, Poistoilmakone = 2, TuloPoisto = 3 };
  clsIVKone();

  std::string KoneenTunnus;                       ///< the machine's identifier
  double TuloIlmavirta11Teho = 1.0;               ///< supply air flow at full power, m³/s
  double PoistoIlmavirta11Teho = 1.0;             ///< exhaust air flow at full power, m³/s
  double SisaanpuhallusLampotila = 16.0;          ///< supply air temperature, °C
  double PoistoLampotila = 21.0;                  ///< exhaust air temperature when no space is joined, °C
  double IlmanLampeneminenPuhaltimessa = 1.0;     ///< K
  double LtoHyotysuhde = 0;                       ///< efficiency of heat recovery, %
  bool TuloilmanLammitysSahkoPatterilla = false;  ///< the supply air is heated by an electric coil
  std::int32_t IVPeriaateID = TuloilmakonePlusLTO;
  std::string IVPeriaate;
  std::int32_t JarjestelmaTyyppiID = 2;  ///< 0 constant flow, 1 two speeds, 2 variable flow
  std::string JarjestelmaTyyppi;
  std::int32_t PuhaltimenSaatotapaID = 5;  ///< control of the flow
  std::string PuhaltimenSaatotapa;
  std::int32_t PuhaltimenVoimansiirtoTapaID = 0;  ///< drive
  std::string PuhaltimenVoimansiirtoTapa;
  std::int32_t VakioPaineOsuusID = 1;  ///< share of constant pressure: index of the list
  std::string VakioPaineOsuus = "20";
  Tunniste LiittyyTilaansKey;  ///< key of the space served; empty: none

  bool OnTulopuhallin() const noexcept { return IVPeriaateID != Poistoilmakone; }
  bool OnPoistopuhallin() const noexcept { return IVPeriaateID != Tuloilmakone; }
  /// Yearly after-heating of the supply air, MWh/a. A machine without a running schedule needs none.
  double VuotuinenIVjalkilammitysLampo() const noexcept { return 0; }
};
