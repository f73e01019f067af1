// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsSahkoTariffienVertailu.h"

#include "settings/clsLumivirtaAsetukset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsSahkoTariffienVertailu::TotEnergia>("TotEnergia", "MWh/a"),
    Arvo<&clsSahkoTariffienVertailu::TotHuippuTeho>("TotHuippuTeho", "kW"),
    Arvo<&clsSahkoTariffienVertailu::TotLoisteho>("TotLoisteho", "kVAr"),
    Arvo<&clsSahkoTariffienVertailu::BruttoAla>("BruttoAla", "m²"),
    Arvo<&clsSahkoTariffienVertailu::KaytaVertailussaALVHintoja>("KaytaVertailussaALVHintoja"),
    Lapsi<&clsSahkoTariffienVertailu::Tapaukset>("Tapaukset"),
};

}  // namespace

const Luokka clsSahkoTariffienVertailu::kLuokka{"clsSahkoTariffienVertailu", kJasenet};

clsSahkoTariffienVertailu::clsSahkoTariffienVertailu()
    : KaytaVertailussaALVHintoja(Asetukset().KaytaKohtTulostuksissaALVHintoja) {}
