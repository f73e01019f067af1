// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsLammKulutuksenVakioOsuus.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLammKulutuksenVakioOsuus::kkOsuus>("kkOsuus", Suure("MWh/kk").Rajat(0).Tavallisesti(0, 20000)),
    Arvo<&clsLammKulutuksenVakioOsuus::VuosiOsuus>("VuosiOsuus", Suure("MWh/a").Rajat(0).Tavallisesti(0, 200000)),
};

}  // namespace

const Luokka clsLammKulutuksenVakioOsuus::kLuokka{"clsLammKulutuksenVakioOsuus", kJasenet};
