// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsResurssit.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsResurssit::Maara>("Maara"),
    Arvo<&clsResurssit::Yksikko>("Yksikko"),
};

}  // namespace

const Luokka clsResurssit::kLuokka{"clsResurssit", kJasenet};
