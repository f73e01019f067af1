// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsVesitariffit.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsVesitariffit::kLuokka{"clsVesitariffit", kJasenet};
