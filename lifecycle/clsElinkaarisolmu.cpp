// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/clsElinkaarisolmu.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Alkio::sKey>("sKey"),
    Arvo<&clsElinkaarisolmu::TyyppiID>("TyyppiID"),
    Arvo<&clsElinkaarisolmu::Laskentayksikko>("Laskentayksikko"),
    Arvo<&clsElinkaarisolmu::MaaraMallista>("MaaraMallista"),
    Arvo<&clsElinkaarisolmu::YksikoidenMaara>("YksikoidenMaara"),
    Arvo<&clsElinkaarisolmu::Yksikkokustannus>("Yksikkokustannus"),
};

constexpr Jasen kKokoelma[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsElinkaarisolmu::kLuokka{"clsElinkaarisolmu", kJasenet};
const Luokka clsElinkaarisolmut::kLuokka{"clsElinkaarisolmut", kKokoelma};
