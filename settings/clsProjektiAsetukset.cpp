// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsProjektiAsetukset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsProjektiAsetukset::strCurrentProjectFile>("strCurrentProjectFile"),
    Arvo<&clsProjektiAsetukset::strCurrentProjectPath>("strCurrentProjectPath"),
    Arvo<&clsProjektiAsetukset::strCurrentProjectFileRevision>("strCurrentProjectFileRevision"),
};

}  // namespace

const Luokka clsProjektiAsetukset::kLuokka{"clsProjektiAsetukset", kJasenet};
