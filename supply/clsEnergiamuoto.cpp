// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamuoto.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsEnergiamuoto::Nimi>("Nimi"),
    Arvo<&clsEnergiamuoto::Kuvaus>("Kuvaus"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsEnergiamuoto::Tyyppi>("Tyyppi"),
    Arvo<&clsEnergiamuoto::OsuusNettotarpeesta>("OsuusNettotarpeesta", "%"),
    Arvo<&clsEnergiamuoto::Hyotysuhde>("Hyotysuhde", "%"),
    Arvo<&clsEnergiamuoto::MyyntiTariffiSkey>("MyyntiTariffiSkey"),
    Arvo<&clsEnergiamuoto::SiirtoTariffiSkey>("SiirtoTariffiSkey"),
    Arvo<&clsEnergiamuoto::Yksikko>("Yksikko"),
    Arvo<&clsEnergiamuoto::IdEmuotoKannassa>("IdEmuotoKannassa"),
    Arvo<&clsEnergiamuoto::OnVakiokannasta>("OnVakiokannasta"),
    Arvo<&clsEnergiamuoto::EnergiaMuotokannanVersio>("EnergiaMuotokannanVersio"),
    Arvo<&clsEnergiamuoto::LaskePaastotPolttoaineista>("LaskePaastotPolttoaineista"),
    Arvo<&clsEnergiamuoto::UusiutumatonEnergia>("UusiutumatonEnergia", "MJ/MWh"),
    Arvo<&clsEnergiamuoto::UusiutuvaEnergia>("UusiutuvaEnergia", "MJ/MWh"),
    Arvo<&clsEnergiamuoto::UusiutumattomatRaakaaineet>("UusiutumattomatRaakaaineet", "kg/MWh"),
    Arvo<&clsEnergiamuoto::UusiutuvatRaakaaineet>("UusiutuvatRaakaaineet", "kg/MWh"),
    Arvo<&clsEnergiamuoto::IlmastonLampeneminenCO2ekv>("IlmastonLampeneminenCO2ekv", "kg/MWh"),
    Arvo<&clsEnergiamuoto::VarastoitunutCO2>("VarastoitunutCO2", "kg/MWh"),
    Arvo<&clsEnergiamuoto::HappamoituminenSOxekv>("HappamoituminenSOxekv", "kg/MWh"),
    Arvo<&clsEnergiamuoto::OksidanttienMuodostus>("OksidanttienMuodostus", "kg/MWh"),
    Arvo<&clsEnergiamuoto::Particle>("Particle", "kg/MWh"),
    Lapsi<&clsEnergiamuoto::Resurssit>("Resurssit"),
};

}  // namespace

const Luokka clsEnergiamuoto::kLuokka{"clsEnergiamuoto", kJasenet};

clsEnergiamuoto::clsEnergiamuoto() { Resurssit.Yksikko = "MJ"; }
