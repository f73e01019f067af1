// SPDX-License-Identifier: GPL-3.0-or-later
// A data directory and a settings store of the test's own: what the program leaves beside its data (backups, the
// rescued object) must not meet that of a test that runs at the same time.
#pragma once
#include <gtest/gtest.h>

#include <filesystem>

#include "kernel/Hakemistot.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tests/kernel/Koehakemisto.h"
#include "ui/Tekstivarasto.h"

class Koekoti {
 public:
  Koekoti() {
    const std::filesystem::path aineisto = AppPath();
    std::filesystem::create_directory(hakemisto / "koti");
    for (const auto& tiedosto : std::filesystem::directory_iterator(aineisto))
      std::filesystem::create_symlink(tiedosto.path(), hakemisto / "koti" / tiedosto.path().filename());
    AsetaAppPath((hakemisto / "koti").string());
    AlustaTekstit();
    Asetukset().HaeRekisteristä();
  }
  ~Koekoti() { AsetaAppPath(""); }

  /// Full name of a file outside the data directory.
  std::string Tiedosto(const std::string& nimi) const { return (hakemisto / nimi).string(); }

  Koehakemisto hakemisto;
  Ymparistomuuttuja config{"XDG_CONFIG_HOME", (hakemisto / "config").string()};
};
