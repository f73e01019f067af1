// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastoToimenpideListaItem.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsSaastoToimenpideListaItem::Parent>("Parent"),
    Arvo<&clsSaastoToimenpideListaItem::NimiTeksti>("NimiTeksti"),
    Arvo<&clsSaastoToimenpideListaItem::ItemTyyppi>("ItemTyyppi"),
    Arvo<&clsSaastoToimenpideListaItem::Visible>("Visible"),
    Arvo<&clsSaastoToimenpideListaItem::ValittuTaulukko2een>("ValittuTaulukko2een"),
};

}  // namespace

const Luokka clsSaastoToimenpideListaItem::kLuokka{"clsSaastoToimenpideListaItem", kJasenet,
                                                   Luokka::Osallistuu::EiRekisteriin};
