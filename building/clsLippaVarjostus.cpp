// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsLippaVarjostus.h"

namespace {
constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLippaVarjostus::TyyppiID>("TyyppiID"),
    Arvo<&clsLippaVarjostus::TyyppiStr>("TyyppiStr"),
    Arvo<&clsLippaVarjostus::Varjostuskulma>("Varjostuskulma", Suure("°").Rajat(0, 90)),
};
}

const Luokka clsLippaVarjostus::kLuokka{"clsLippaVarjostus", kJasenet};
