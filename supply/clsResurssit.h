// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "supply/clsResurssi.h"

/// The resources that go into `Maara` `Yksikko` of energy.
class clsResurssit : public Malli<clsResurssit, Kokoelma<clsResurssi>> {
 public:
  static const Luokka kLuokka;

  std::string Maara = "1";             ///< quantity that the list describes: a number as text
  std::string Yksikko = "Tuntematon";  ///< its unit

  // Impact per unit of the quantity: the sum over the resources of impact × amount, divided by `Maara`. Energies MJ,
  // all else kg. Raises error 9999 when `Maara` is 0 or no number.
  double UusiutumatonEnergia() const { return Yhteensa(&clsResurssi::UusiutumatonEnergia); }
  double UusiutuvaEnergia() const { return Yhteensa(&clsResurssi::UusiutuvaEnergia); }
  double UusiutumattomatRaakaaineet() const { return Yhteensa(&clsResurssi::UusiutumattomatRaakaaineet); }
  double UusiutuvatRaakaaineet() const { return Yhteensa(&clsResurssi::UusiutuvatRaakaaineet); }
  double IlmastonLampeneminenCO2ekv() const { return Yhteensa(&clsResurssi::IlmastonLampeneminenCO2ekv); }
  double VarastoitunutCO2() const { return Yhteensa(&clsResurssi::VarastoitunutCO2); }
  double HappamoituminenSOxekv() const { return Yhteensa(&clsResurssi::HappamoituminenSOxekv); }
  double OksidanttienMuodostus() const { return Yhteensa(&clsResurssi::OksidanttienMuodostus); }
  double Particle() const { return Yhteensa(&clsResurssi::Particle); }
  double MassaYht() const { return Yhteensa(&clsResurssi::Massa); }
  /// Dry volume of the resources, m³, of the whole quantity; one without a density adds nothing.
  double Tilavuus() const;

 private:
  template <class T>
  double Yhteensa(T clsResurssi::*suure) const;
};
