// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsMuuttunutAttribuutti.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsMuuttunutAttribuutti::clsTypeName>("clsTypeName"),
    Arvo<&clsMuuttunutAttribuutti::AttribuutinNimi>("AttribuutinNimi"),
    Arvo<&clsMuuttunutAttribuutti::ArvoEnnen>("ArvoEnnen"),
    Arvo<&clsMuuttunutAttribuutti::ArvoJalkeen>("ArvoJalkeen"),
    Arvo<&clsMuuttunutAttribuutti::Yksikko>("Yksikko"),
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsMuuttunutAttribuutti::ArvoEnnenStr>("ArvoEnnenStr"),
    Arvo<&clsMuuttunutAttribuutti::ArvoJalkeenStr>("ArvoJalkeenStr"),
    Arvo<&clsMuuttunutAttribuutti::TietoTyyppi>("TietoTyyppi"),
};

}  // namespace

const Luokka clsMuuttunutAttribuutti::kLuokka{"clsMuuttunutAttribuutti", kJasenet, Luokka::Osallistuu::EiRekisteriin};
