// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsValittuToimenpide.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsValittuToimenpide::TiedotUpToDate>("TiedotUpToDate"),
    Arvo<&clsValittuToimenpide::SaastoPatoTeho>("SaastoPatoTeho", "kW"),
    Arvo<&clsValittuToimenpide::SaastoLoisTeho>("SaastoLoisTeho", "kVAr"),
    Arvo<&clsValittuToimenpide::SaastoLampoteho>("SaastoLampoteho", "kW"),
    Arvo<&clsValittuToimenpide::Investointi>("Investointi", "€"),
    Arvo<&clsValittuToimenpide::Takaisinmaksuaika>("Takaisinmaksuaika", "a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoYhteensa>("KustannusSaastoYhteensa", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoVesi>("KustannusSaastoVesi", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoSahkoLoisTeho>("KustannusSaastoSahkoLoisTeho", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoSahkoPatoTeho>("KustannusSaastoSahkoPatoTeho", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoSahkoEnergia>("KustannusSaastoSahkoEnergia", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoLampoTeho>("KustannusSaastoLampoTeho", "€/a"),
    Arvo<&clsValittuToimenpide::KustannusSaastoLampoEnergia>("KustannusSaastoLampoEnergia", "€/a"),
    Arvo<&clsValittuToimenpide::SaastoVedenKulutus>("SaastoVedenKulutus", "m³/a"),
    Arvo<&clsValittuToimenpide::SaastoSahkoEnergia>("SaastoSahkoEnergia", "MWh/a"),
    Arvo<&clsValittuToimenpide::SaastoLampoEnergia>("SaastoLampoEnergia", "MWh/a"),
    Arvo<&clsValittuToimenpide::Tyyppi>("Tyyppi"),
    Arvo<&clsValittuToimenpide::ToimenpidesKey>("ToimenpidesKey"),
    Arvo<&clsValittuToimenpide::JalkeensKey>("JalkeensKey"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsValittuToimenpide::Nimi>("Nimi"),
};

}  // namespace

const Luokka clsValittuToimenpide::kLuokka{"clsValittuToimenpide", kJasenet, Luokka::Osallistuu::EiRekisteriin};
