// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffiVertailuTapaukset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsTariffiVertailuTapaukset::kLuokka{"clsTariffiVertailuTapaukset", kJasenet};
