// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsResurssi.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsResurssi::ID>("ID"),
    Arvo<&clsResurssi::Nimi>("Nimi"),
    Arvo<&clsResurssi::Kuvaus>("Kuvaus"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsResurssi::KuuluuVakiokantaan>("KuuluuVakiokantaan"),
    Arvo<&clsResurssi::ResurssiTyyppi>("ResurssiTyyppi"),
    Arvo<&clsResurssi::Yksikko>("Yksikko"),
    Arvo<&clsResurssi::Maara>("Maara"),
    Arvo<&clsResurssi::Massa>("Massa"),
    Arvo<&clsResurssi::Kuivatiheys>("Kuivatiheys", "kg/m³"),
    Arvo<&clsResurssi::YlempiLampoArvo>("YlempiLampoArvo"),
    Arvo<&clsResurssi::AlempiLampoArvo>("AlempiLampoArvo"),
    Arvo<&clsResurssi::UusiutumatonEnergia>("UusiutumatonEnergia", "MJ"),
    Arvo<&clsResurssi::UusiutuvaEnergia>("UusiutuvaEnergia", "MJ"),
    Arvo<&clsResurssi::UusiutumattomatRaakaaineet>("UusiutumattomatRaakaaineet", "kg"),
    Arvo<&clsResurssi::UusiutuvatRaakaaineet>("UusiutuvatRaakaaineet", "kg"),
    Arvo<&clsResurssi::IlmastonLampeneminenCO2ekv>("IlmastonLampeneminenCO2ekv", "kg"),
    Arvo<&clsResurssi::VarastoitunutCO2>("VarastoitunutCO2", "kg"),
    Arvo<&clsResurssi::HappamoituminenSOxekv>("HappamoituminenSOxekv", "kg"),
    Arvo<&clsResurssi::OksidanttienMuodostus>("OksidanttienMuodostus", "kg"),
    Arvo<&clsResurssi::Particle>("Particle", "kg"),
};

}  // namespace

const Luokka clsResurssi::kLuokka{"clsResurssi", kJasenet};
