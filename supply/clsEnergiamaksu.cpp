// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamaksu.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsEnergiamaksu::Nimi>("Nimi"),
    Arvo<&clsEnergiamaksu::Hinta>("Hinta"),
    Arvo<&clsEnergiamaksu::Kulutusosuus>("Kulutusosuus", "%"),
};

}  // namespace

const Luokka clsEnergiamaksu::kLuokka{"clsEnergiamaksu", kJasenet};
