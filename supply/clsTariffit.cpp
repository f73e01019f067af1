// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffit.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsTariffit::kLuokka{"clsTariffit", kJasenet};
