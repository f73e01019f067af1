// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One fuel or other resource of an energy form, with its environmental impact per unit.
class clsResurssi : public Malli<clsResurssi, Alkio> {
 public:
  static const Luokka kLuokka;

  std::int32_t ID = 0;  ///< row of the fuel database
  std::string Nimi;
  std::string Kuvaus;
  bool KuuluuVakiokantaan = false;  ///< belongs to the standard database
  std::string ResurssiTyyppi;
  std::string Yksikko;
  double Maara = 0;                      ///< amount used for the quantity that the list describes
  double Massa = 0;                      ///< kg per unit
  float Kuivatiheys = 0;                 ///< dry density, kg/m³
  double YlempiLampoArvo = 0;            ///< upper heating value
  double AlempiLampoArvo = 0;            ///< lower heating value
  float UusiutumatonEnergia = 0;         ///< non-renewable energy, MJ
  float UusiutuvaEnergia = 0;            ///< renewable energy, MJ
  float UusiutumattomatRaakaaineet = 0;  ///< non-renewable raw materials, kg
  float UusiutuvatRaakaaineet = 0;       ///< renewable raw materials, kg
  float IlmastonLampeneminenCO2ekv = 0;  ///< global warming, kg of CO2 equivalent
  float VarastoitunutCO2 = 0;            ///< stored CO2, kg
  float HappamoituminenSOxekv = 0;       ///< acidification, kg of SOx equivalent
  float OksidanttienMuodostus = 0;       ///< formation of oxidants, kg
  float Particle = 0;                    ///< particles, kg
};
