// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <filesystem>

#include "kernel/Hakemistot.h"
#include "tests/kernel/Koehakemisto.h"

/// A data directory of its own with both structure databases as they are shipped, and a runtime directory beside it.
class Koekirjasto {
 public:
  Koekirjasto() {
    namespace fs = std::filesystem;
    const fs::path lahde = AppPath();
    fs::create_directories(hakemisto_ / "Rakennekirjasto");
    fs::create_directories(hakemisto_ / "ajo");
    for (const char* tiedosto :
         {"StrVarasto.mdb", "Rakennekirjasto/Tietokanta.mdb", "Rakennekirjasto/Tietokanta_perus.mdb"})
      fs::copy_file(lahde / tiedosto, hakemisto_ / tiedosto);
    fs::permissions(hakemisto_ / "ajo", fs::perms::owner_all);
  }

  std::string Koti() const { return hakemisto_.Polku().string(); }
  std::string Oma() const { return (hakemisto_ / "Rakennekirjasto/Tietokanta.mdb").string(); }
  std::string Vakio() const { return (hakemisto_ / "Rakennekirjasto/Tietokanta_perus.mdb").string(); }
  std::string Tiedosto(const std::string& nimi) const { return (hakemisto_ / nimi).string(); }

 private:
  Koehakemisto hakemisto_;
  Ymparistomuuttuja ajohakemisto_{"XDG_RUNTIME_DIR", (hakemisto_ / "ajo").string()};
};
