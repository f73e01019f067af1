// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "library/Rakennetietokanta.h"

/// The structure library: the user's own database before the standard one. Raises error 9999 as the databases do.
class Rakennekirjasto {
 public:
  /// Both databases must open; for one alone use Rakennetietokanta.
  Rakennekirjasto(const std::string& kayttajanKanta, const std::string& vakiokanta);

  /// The solution of that identifier from the user's database, else from the standard one, else nothing.
  std::optional<Rakenneratkaisu> Hae(const std::string& id);
  /// Version of the standard database.
  std::string Versio() const;

 private:
  Rakennetietokanta kayttajan_;
  Rakennetietokanta vakio_;
};
