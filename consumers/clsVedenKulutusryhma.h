// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

#include "consumers/clsVedenTiedot.h"
#include "kernel/Laskenta.h"

/// One water consumer group.
class clsVedenKulutusryhma : public Malli<clsVedenKulutusryhma, Alkio> {
 public:
  static const Luokka kLuokka;
  enum Tyyppi : std::int16_t { Kayttovesi = 0, Prosessivesi = 1 };
  clsVedenKulutusryhma();

  clsVedenTiedot VedenTiedot;  ///< the group's own copy of its kind's temperatures
  std::string KulutusRyhma;    ///< name of the group
  std::int16_t KulutusRyhmaTyyppi = Kayttovesi;
  std::int16_t LaskentaperusteID = 0;          ///< unit of the specific consumption, 0 to 6
  std::string LaskentaperusteStr;              ///< text of that unit
  double LaskentaperusteNumber = 0;            ///< specific consumption in that unit
  double Laskentayksikko = 0;                  ///< number of calculation units
  std::string LaskentayksikonTeksti;           ///< caption of the calculation unit
  double KayttokuvausKertaaD = 0;              ///< times a day, or h/d
  double KayttokuvausDpA = 0;                  ///< d/a
  double Tasauskerroin = 1.0;                  ///< equalising factor
  double VedenKayttolampotila;                 ///< use temperature, °C; at first the cold water's
  double LampimanVedenOsuus = 0;               ///< share of hot water, %
  double LammityksessaHyodynnettavaOsuus = 0;  ///< stored only

  /// Lets the share of hot water follow the use temperature, in whole per cent.
  void PaivitaLampimanVedenOsuus();
  bool OnProsessivesi() const noexcept { return KulutusRyhmaTyyppi != Kayttovesi; }
  /// What the product of the group's numbers is divided by to give m³; 0 for an unknown unit.
  double Muuntokerroin() const;
  /// Water of the group, m³/a: units × specific consumption × use × equalising factor, divided by the unit's factor
  /// to m³. Error 9999 for an unknown unit or a result that isn't finite.
  double VedenKulutus() const;
  /// Hot water of the group, m³/a: its share of the group's water.
  double LampimanVedenKulutus() const;
  /// Heat that warms the group's water from cold to its use temperature, MWh/a, with 4.19 kJ/(kg·K) and 1000 kg/m³.
  /// The share of hot water doesn't enter it.
  double VedenLammityksenEnergia() const;

  /// Shows the dialog. True after OK.
  bool NaytaKayttoliittyma();
  /// At the OK of the dialog.
  Oma<std::function<void()>> DataMuuttui;
};
