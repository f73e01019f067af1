// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsToimenpiteidenJarjestelija.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Lapsi<&clsToimenpiteidenJarjestelija::ValitutToimenpiteet>("ValitutToimenpiteet"),
    Arvo<&clsToimenpiteidenJarjestelija::NaytaToimenpiteetStr>("NaytaToimenpiteetStr"),
    Arvo<&clsToimenpiteidenJarjestelija::NaytaToimenpiteetID>("NaytaToimenpiteetID"),
    Arvo<&clsToimenpiteidenJarjestelija::TaulukonNakymaStr>("TaulukonNakymaStr"),
    Arvo<&clsToimenpiteidenJarjestelija::TaulukonNakymaTyyppiID>("TaulukonNakymaTyyppiID"),
};

}  // namespace

const Luokka clsToimenpiteidenJarjestelija::kLuokka{"clsToimenpiteidenJarjestelija", kJasenet,
                                                    Luokka::Osallistuu::EiRekisteriin};
