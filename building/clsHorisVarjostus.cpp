// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsHorisVarjostus.h"

namespace {
constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsHorisVarjostus::TyyppiID>("TyyppiID"),
    Arvo<&clsHorisVarjostus::TyyppiStr>("TyyppiStr"),
    Arvo<&clsHorisVarjostus::Varjostuskulma>("Varjostuskulma", Suure("°").Rajat(0, 90)),
};
}

const Luokka clsHorisVarjostus::kLuokka{"clsHorisVarjostus", kJasenet};
