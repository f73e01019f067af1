// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkoListaItem.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsSahkoListaItem::Parent>("Parent"),
    Arvo<&clsSahkoListaItem::NimiTeksti>("NimiTeksti"),
    Kopio<&clsSahkoListaItem::Laskentatapa>("Laskentatapa"),
    Arvo<&clsSahkoListaItem::ItemTyyppi>("ItemTyyppi"),
    Kopio<&clsSahkoListaItem::Vuosikulutus>("Vuosikulutus", "MWh/a"),
    Arvo<&clsSahkoListaItem::SiirrettyToisestaModulista>("SiirrettyToisestaModulista"),
    Kopio<&clsSahkoListaItem::Collapsed>("Collapsed"),
    Kopio<&clsSahkoListaItem::Visible>("Visible"),
};

}  // namespace

const Luokka clsSahkoListaItem::kLuokka{"clsSahkoListaItem", kJasenet};
