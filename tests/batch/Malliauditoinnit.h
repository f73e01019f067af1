// SPDX-License-Identifier: GPL-3.0-or-later
// The sample audits that are shipped with the program, for the tests of the batch calculator.
#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Hakemistot.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Tekstivarasto.h"

class MalliauditointiTesti : public testing::Test {
 protected:
  MalliauditointiTesti() {
    AlustaTekstit();
    Asetukset().HaeRekisteristä();
  }
  /// The files, in the order of their names.
  static std::vector<std::filesystem::path> Tiedostot() {
    std::vector<std::filesystem::path> tiedostot;
    for (const auto& t : std::filesystem::directory_iterator(AppPath() + "Malliauditoinnit")) tiedostot.push_back(t);
    std::ranges::sort(tiedostot);
    return tiedostot;
  }
  /// The building of a file as the calculation takes it: the global one.
  static std::unique_ptr<clsRakennus> Avaa(const std::filesystem::path& tiedosto) {
    auto rakennus = std::make_unique<clsRakennus>();
    AsetaGlobaaliRakennus(rakennus.get());
    rakennus->Hae(tiedosto.string());
    return rakennus;
  }
};
