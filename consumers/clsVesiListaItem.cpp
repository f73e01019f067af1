// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVesiListaItem.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsVesiListaItem::Parent>("Parent"),
    Arvo<&clsVesiListaItem::NimiTeksti>("NimiTeksti"),
    Arvo<&clsVesiListaItem::ItemTyyppi>("ItemTyyppi"),
    Kopio<&clsVesiListaItem::Vuosikulutus>("Vuosikulutus", "MWh/a"),
    Kopio<&clsVesiListaItem::KvVuosikulutus>("KvVuosikulutus", "m³/a"),
    Kopio<&clsVesiListaItem::LkvVuosikulutus>("LkvVuosikulutus", "m³/a"),
    Kopio<&clsVesiListaItem::OnProsessiVesi>("OnProsessiVesi"),
    Arvo<&clsVesiListaItem::SiirrettyToisestaModulista>("SiirrettyToisestaModulista"),
    Kopio<&clsVesiListaItem::Collapsed>("Collapsed"),
    Kopio<&clsVesiListaItem::Visible>("Visible"),
};

}  // namespace

const Luokka clsVesiListaItem::kLuokka{"clsVesiListaItem", kJasenet};
