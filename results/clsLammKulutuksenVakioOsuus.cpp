// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsLammKulutuksenVakioOsuus.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLammKulutuksenVakioOsuus::kkOsuus>("kkOsuus", "MWh"),
    Arvo<&clsLammKulutuksenVakioOsuus::VuosiOsuus>("VuosiOsuus", "MWh/a"),
};

}  // namespace

const Luokka clsLammKulutuksenVakioOsuus::kLuokka{"clsLammKulutuksenVakioOsuus", kJasenet};
