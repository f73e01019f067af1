// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpiteet.h"

#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsSaastotoimenpiteet::TaulukonNakymaTyyppiID>("TaulukonNakymaTyyppiID"),
};

}  // namespace

const Luokka clsSaastotoimenpiteet::kLuokka{"clsSaastotoimenpiteet", kJasenet, Luokka::Osallistuu::EiRekisteriin};

clsSaastoToimenpideListaItem& clsSaastotoimenpiteet::AddListaItem(const Tunniste& sKey, const Tunniste& Parent,
                                                                  std::string NimiTeksti, std::int32_t ItemTyyppi) try {
  return LisaaRivi(sKey, Parent, ItemTyyppi, std::move(NimiTeksti), true);
} catch (...) {
  NostaVirhe("clsSaastotoimenpiteet:AddListaItem Method");
}

std::vector<Tunniste> clsSaastotoimenpiteet::LiittyykoToimenpidetta(const Tunniste& instanssiId) const {
  std::vector<Tunniste> avaimet;
  for (const clsSaastotoimenpide& toimenpide : *this)
    if (toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin == instanssiId) avaimet.push_back(toimenpide.sKey);
  return avaimet;
}
