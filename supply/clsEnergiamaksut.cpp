// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsEnergiamaksut.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsEnergiamaksut::kLuokka{"clsEnergiamaksut", kJasenet};
