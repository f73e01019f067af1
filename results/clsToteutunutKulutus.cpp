// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsToteutunutKulutus.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsToteutunutKulutus::Lampo>("Lampo", "MWh/a"),
    Arvo<&clsToteutunutKulutus::Sahko>("Sahko", "MWh/a"),
    Arvo<&clsToteutunutKulutus::Vesi>("Vesi", "m³/a"),
    Arvo<&clsToteutunutKulutus::LammTarveLuku>("LammTarveLuku", "Kd"),
    Arvo<&clsToteutunutKulutus::KaytaVertailuVuotena>("KaytaVertailuVuotena"),
};

}  // namespace

const Luokka clsToteutunutKulutus::kLuokka{"clsToteutunutKulutus", kJasenet};
