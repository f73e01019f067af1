// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsVesiListaItem.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsVesiListaItem::Parent>("Parent"),
    Arvo<&clsVesiListaItem::NimiTeksti>("NimiTeksti"),
    Arvo<&clsVesiListaItem::ItemTyyppi>("ItemTyyppi"),
    Arvo<&clsVesiListaItem::Vuosikulutus>("Vuosikulutus", "MWh/a"),
    Arvo<&clsVesiListaItem::KvVuosikulutus>("KvVuosikulutus", "m³/a"),
    Arvo<&clsVesiListaItem::LkvVuosikulutus>("LkvVuosikulutus", "m³/a"),
    Arvo<&clsVesiListaItem::OnProsessiVesi>("OnProsessiVesi"),
    Arvo<&clsVesiListaItem::SiirrettyToisestaModulista>("SiirrettyToisestaModulista"),
    Arvo<&clsVesiListaItem::Collapsed>("Collapsed"),
    Arvo<&clsVesiListaItem::Visible>("Visible"),
};

}  // namespace

const Luokka clsVesiListaItem::kLuokka{"clsVesiListaItem", kJasenet};
