// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffiVertailuTapaus.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsTariffiVertailuTapaus::Nimi>("Nimi"),
    Arvo<&clsTariffiVertailuTapaus::Kuvaus>("Kuvaus"),
    Arvo<&clsTariffiVertailuTapaus::Investointi>("Investointi", "€"),
    Arvo<&clsTariffiVertailuTapaus::MyyntiTariffiSkey>("MyyntiTariffiSkey"),
    Arvo<&clsTariffiVertailuTapaus::SiirtoTariffiSkey>("SiirtoTariffiSkey"),
    Arvo<&clsTariffiVertailuTapaus::TotEnergia>("TotEnergia", "MWh/a"),
    Arvo<&clsTariffiVertailuTapaus::TotHuippuTeho>("TotHuippuTeho", "kW"),
    Arvo<&clsTariffiVertailuTapaus::TotLoisteho>("TotLoisteho", "kVAr"),
    Arvo<&clsTariffiVertailuTapaus::ToimenpiteenPaivays>("ToimenpiteenPaivays"),
    Arvo<&clsTariffiVertailuTapaus::ToimenpiteenTekijanNimi>("ToimenpiteenTekijanNimi"),
};

}  // namespace

const Luokka clsTariffiVertailuTapaus::kLuokka{"clsTariffiVertailuTapaus", kJasenet};
