// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamuodot.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsEnergiamuodot::kLuokka{"clsEnergiamuodot", kJasenet};
