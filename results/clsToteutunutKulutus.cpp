// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsToteutunutKulutus.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsToteutunutKulutus::Lampo>("Lampo", Suure("MWh/a").Rajat(0).Tavallisesti(0, 200000)),
    Arvo<&clsToteutunutKulutus::Sahko>("Sahko", Suure("MWh/a").Rajat(0).Tavallisesti(0, 200000)),
    Arvo<&clsToteutunutKulutus::Vesi>("Vesi", Suure("m³/a").Rajat(0).Tavallisesti(0, 2000000)),
    Arvo<&clsToteutunutKulutus::LammTarveLuku>("LammTarveLuku", Suure("°Cd").Rajat(0).Tavallisesti(2500, 9000)),
    Arvo<&clsToteutunutKulutus::KaytaVertailuVuotena>("KaytaVertailuVuotena"),
};

}  // namespace

const Luokka clsToteutunutKulutus::kLuokka{"clsToteutunutKulutus", kJasenet};
