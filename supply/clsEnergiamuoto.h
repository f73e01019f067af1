// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsResurssit.h"

/// One form in which a supply is bought: its share of the net demand, efficiency, tariffs and environmental impact.
class clsEnergiamuoto : public Malli<clsEnergiamuoto, Alkio> {
 public:
  static const Luokka kLuokka;
  clsEnergiamuoto();

  std::string Nimi;
  std::string Kuvaus;
  std::int16_t Tyyppi = 0;                    ///< the supply's purpose: 0 heat, 1 electricity, 2 water
  double OsuusNettotarpeesta = 0;             ///< share of the net demand, %
  double Hyotysuhde = 0;                      ///< yearly efficiency, %; 0: the form has no conversion losses
  Tunniste MyyntiTariffiSkey;                 ///< sales tariff; empty: none
  Tunniste SiirtoTariffiSkey;                 ///< transfer tariff; empty: none
  std::string Yksikko = "MWh";                ///< unit of the energy, a text only
  std::int32_t IdEmuotoKannassa = 0;          ///< row of the fuel database that the form was taken from
  bool OnVakiokannasta = false;               ///< it was taken from the standard database
  std::int32_t EnergiaMuotokannanVersio = 0;  ///< version of that database then
  bool LaskePaastotPolttoaineista = false;    ///< the impact is computed from the resources
  /// Impact per MWh of the form's energy: energies in MJ, raw materials and emissions in kg.
  double UusiutumatonEnergia = 0;
  double UusiutuvaEnergia = 0;
  double UusiutumattomatRaakaaineet = 0;
  double UusiutuvatRaakaaineet = 0;
  double IlmastonLampeneminenCO2ekv = 0;
  double VarastoitunutCO2 = 0;
  double HappamoituminenSOxekv = 0;
  double OksidanttienMuodostus = 0;
  double Particle = 0;
  clsResurssit Resurssit;  ///< resources of 1 MJ at the point of use
};
