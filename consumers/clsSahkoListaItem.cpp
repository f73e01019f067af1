// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkoListaItem.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsSahkoListaItem::Parent>("Parent"),
    Arvo<&clsSahkoListaItem::NimiTeksti>("NimiTeksti"),
    Arvo<&clsSahkoListaItem::Laskentatapa>("Laskentatapa"),
    Arvo<&clsSahkoListaItem::ItemTyyppi>("ItemTyyppi"),
    Arvo<&clsSahkoListaItem::Vuosikulutus>("Vuosikulutus", "MWh/a"),
    Arvo<&clsSahkoListaItem::SiirrettyToisestaModulista>("SiirrettyToisestaModulista"),
    Arvo<&clsSahkoListaItem::Collapsed>("Collapsed"),
    Arvo<&clsSahkoListaItem::Visible>("Visible"),
};

}  // namespace

const Luokka clsSahkoListaItem::kLuokka{"clsSahkoListaItem", kJasenet};
