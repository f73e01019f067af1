// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergianHankinta.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsEnergianHankinta::Nimi>("Nimi"),
    Arvo<&clsEnergianHankinta::Kuvaus>("Kuvaus"),
    Arvo<&clsEnergianHankinta::Kayttotarkoitus>("Kayttotarkoitus"),
    Lapsi<&clsEnergianHankinta::Energiamuodot>("Energiamuodot"),
};

}  // namespace

const Luokka clsEnergianHankinta::kLuokka{"clsEnergianHankinta", kJasenet};
