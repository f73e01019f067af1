// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsLammTehot.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLammTehot::TuloilmanLammitysteho>("TuloilmanLammitysteho", "kW"),
    Arvo<&clsLammTehot::LtoTeho>("LtoTeho", "kW"),
    Arvo<&clsLammTehot::JalkilammitysTeho>("JalkilammitysTeho", "kW"),
};

}  // namespace

const Luokka clsLammTehot::kLuokka{"clsLammTehot", kJasenet};
