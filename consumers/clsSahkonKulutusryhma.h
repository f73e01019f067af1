// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

#include "kernel/Laskenta.h"
#include "kernel/Olio.h"

/// One electricity consumer group: a type of device, with its number and the rule that gives its yearly consumption.
class clsSahkonKulutusryhma : public Malli<clsSahkonKulutusryhma, Alkio> {
 public:
  static const Luokka kLuokka;
  clsSahkonKulutusryhma();

  std::string KulutusRyhma;                            ///< name of the group
  std::string LiittyyTilaanStr;                        ///< name of the space, as shown
  Tunniste LiittyyTilaansKey;                          ///< key of the space that the device stands in; empty: no space
  bool EnergiaHyodynnetaanLammityksessa = false;       ///< the electricity becomes an internal heat gain
  std::int16_t LaskentatapaEnergiapohjainenIndex = 2;  ///< 0 measured, 1 estimated, 2 specific consumption
  std::int16_t LaskentaperusteID = 0;                  ///< index of the unit in the list of calculation bases
  std::string LaskentaperusteStr;                      ///< text of that unit, e.g. "W/m²"
  double LaskentaperusteNumber = 0;                    ///< specific value in that unit, W or kWh
  std::string Laskentayksikko;                         ///< caption of the calculation unit, e.g. "m²"
  double LaskentayksikkoNumber = 0;                    ///< number of calculation units
  double KayttoaikaHpD = 0;                            ///< use time, h/d
  double KayttoaikaDpA = 0;                            ///< use time, d/a
  double Tasauskerroin = 1.0;                          ///< equalising factor, a plain multiplier
  double KulutusryhmienLukumaara = 1.0;                ///< number of identical groups
  double SyötettyKulutus = 0;                          ///< measured or estimated consumption of one group, MWh/a

  /// The calculation is based on power or on energy: always opposite, setting either sets both.
  bool LaskentatapaTehopohjainen() const noexcept { return tehopohjainen_; }
  void LaskentatapaTehopohjainen(bool arvo) noexcept { tehopohjainen_ = arvo; }
  bool LaskentatapaEnergiapohjainen() const noexcept { return !tehopohjainen_; }
  void LaskentatapaEnergiapohjainen(bool arvo) noexcept { tehopohjainen_ = !arvo; }

  /// The consumption is typed, measured or estimated, and isn't computed.
  bool KulutusSyotetaan() const noexcept { return !tehopohjainen_ && LaskentatapaEnergiapohjainenIndex < 2; }
  /// What the product of the group's numbers, Wh (power) or kWh (energy), is divided by to give MWh.
  double Muuntokerroin() const noexcept { return tehopohjainen_ ? 1e6 : 1e3; }
  /// Yearly consumption of one group and of all the identical groups, MWh/a: the typed consumption, or the product of
  /// specific value, units, use times and equalising factor. Error 9999 if the result isn't finite.
  double YhdenVuosikulutus() const;
  double Vuosikulutus() const;

  /// What the person may do in the dialog.
  enum class Muokkaus {
    Kaikki,
    TilaLukittu  ///< the space, and whether it is heated by the electricity, stay as they are
  };
  /// Shows the dialog. True after OK.
  bool NaytaKayttoliittyma(Muokkaus muokkaus = Muokkaus::Kaikki);
  /// At the OK of the dialog.
  Oma<std::function<void()>> DataMuuttui;

 private:
  double Kulutus(double ryhmia) const noexcept;

  bool tehopohjainen_ = true;
};
