// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsResurssit.h"

/// One form in which a supply is bought: its share of the net demand, efficiency, tariffs and environmental impact.
class clsEnergiamuoto : public Malli<clsEnergiamuoto, Alkio> {
 public:
  static const Luokka kLuokka;
  static constexpr double kMJ_MWh = 3600;
  clsEnergiamuoto();

  std::string Nimi;
  std::string Kuvaus;
  std::int16_t Tyyppi = 0;                    ///< the supply's purpose: 0 heat, 1 electricity, 2 water
  double OsuusNettotarpeesta = 0;             ///< share of the net demand, %
  double Hyotysuhde = 0;                      ///< yearly efficiency, %; 0: the form has no conversion losses
  Tunniste MyyntiTariffiSkey;                 ///< sales tariff; empty: none
  Tunniste SiirtoTariffiSkey;                 ///< transfer tariff; empty: none
  std::string Yksikko = "MWh";                ///< unit of the energy, a text only
  std::int32_t IdEmuotoKannassa = 0;          ///< row of the fuel database that the form was taken from; 0: none
  bool OnVakiokannasta = false;               ///< it was taken from the standard database
  std::int32_t EnergiaMuotokannanVersio = 0;  ///< version of that database then
  bool LaskePaastotPolttoaineista = false;    ///< the impact is computed from the resources
  clsResurssit Resurssit;                     ///< resources of 1 MJ at the point of use

  // Impact per MWh of the form's energy: energies in MJ, raw materials and emissions in kg. With
  // `LaskePaastotPolttoaineista` it is computed from the resources and replaces the stored value, though not while a
  // variation lies on a building (measures/Muunnelma.h). Error 9999 when the resources don't give it.
  double UusiutumatonEnergia() const { return Vaikutus(uusiutumatonEnergia_, &clsResurssit::UusiutumatonEnergia); }
  double UusiutuvaEnergia() const { return Vaikutus(uusiutuvaEnergia_, &clsResurssit::UusiutuvaEnergia); }
  double UusiutumattomatRaakaaineet() const {
    return Vaikutus(uusiutumattomatRaakaaineet_, &clsResurssit::UusiutumattomatRaakaaineet);
  }
  double UusiutuvatRaakaaineet() const {
    return Vaikutus(uusiutuvatRaakaaineet_, &clsResurssit::UusiutuvatRaakaaineet);
  }
  double IlmastonLampeneminenCO2ekv() const {
    return Vaikutus(ilmastonLampeneminenCO2ekv_, &clsResurssit::IlmastonLampeneminenCO2ekv);
  }
  double VarastoitunutCO2() const { return Vaikutus(varastoitunutCO2_, &clsResurssit::VarastoitunutCO2); }
  double HappamoituminenSOxekv() const {
    return Vaikutus(happamoituminenSOxekv_, &clsResurssit::HappamoituminenSOxekv);
  }
  double OksidanttienMuodostus() const {
    return Vaikutus(oksidanttienMuodostus_, &clsResurssit::OksidanttienMuodostus);
  }
  double Particle() const { return Vaikutus(particle_, &clsResurssit::Particle); }
  void UusiutumatonEnergia(double arvo) { uusiutumatonEnergia_ = arvo; }
  void UusiutuvaEnergia(double arvo) { uusiutuvaEnergia_ = arvo; }
  void UusiutumattomatRaakaaineet(double arvo) { uusiutumattomatRaakaaineet_ = arvo; }
  void UusiutuvatRaakaaineet(double arvo) { uusiutuvatRaakaaineet_ = arvo; }
  void IlmastonLampeneminenCO2ekv(double arvo) { ilmastonLampeneminenCO2ekv_ = arvo; }
  void VarastoitunutCO2(double arvo) { varastoitunutCO2_ = arvo; }
  void HappamoituminenSOxekv(double arvo) { happamoituminenSOxekv_ = arvo; }
  void OksidanttienMuodostus(double arvo) { oksidanttienMuodostus_ = arvo; }
  void Particle(double arvo) { particle_ = arvo; }
  /// Mass of the resources, kg per MWh.
  double MassaYht() const { return Resurssit.MassaYht() * kMJ_MWh; }
  /// What is lost of bought energy when `verkko` MWh of net demand is covered in the form's share: (1 / efficiency − 1)
  /// × the share of it, MWh; 0 with an efficiency of 0. Below 0 for a heat pump.
  double Konversiohavio(double verkko) const;

  /// Adds a fuel to the list that the impact is computed from, under a fresh key.
  clsResurssi& LisaaPolttoaine(const clsResurssi& polttoaine);
  /// Takes all that `uusi`, a row of a fuel database, tells of the form. Its place in the supply stays: key, identity,
  /// kind, share and tariffs.
  void Korvaa(const clsEnergiamuoto& uusi);
  /// The same from a newer version of the row that it was taken from; the resources stay and the choice to compute from
  /// them.
  void Paivita(const clsEnergiamuoto& uusi);

  /// Lets the person edit the form. True after OK.
  bool NaytaKayttoliityma();

 private:
  static const Jasen kJasenet[];

  double Vaikutus(double& talletettu, double (clsResurssit::*polttoaineista)() const) const;

  mutable double uusiutumatonEnergia_ = 0;
  mutable double uusiutuvaEnergia_ = 0;
  mutable double uusiutumattomatRaakaaineet_ = 0;
  mutable double uusiutuvatRaakaaineet_ = 0;
  mutable double ilmastonLampeneminenCO2ekv_ = 0;
  mutable double varastoitunutCO2_ = 0;
  mutable double happamoituminenSOxekv_ = 0;
  mutable double oksidanttienMuodostus_ = 0;
  mutable double particle_ = 0;
};
