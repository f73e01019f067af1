// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "library/Rakenneratkaisu.h"
#include "library/Rivihaku.h"

/// One database of structure solutions and materials, opened read only. Queries are prepared once, so keep it open over
/// a run of look-ups. Every method raises error 9999: the file is missing, damaged, locked, or no structure database.
class Rakennetietokanta {
 public:
  explicit Rakennetietokanta(const std::string& polku);

  /// The database's version, e.g. "1.0001.5"; empty when it tells none.
  std::string Versio() const;
  /// A copy of the solution of that identifier, layers from inside out; nothing if there is none.
  std::optional<Rakenneratkaisu> Hae(const std::string& id);
  /// The material of that name; nothing if there is none.
  std::optional<Materiaali> HaeMateriaali(const std::string& nimi);
  /// Gives the layers' materials the figures that this database has for their names, and sums the mass anew if any of
  /// them changed. A material that the database doesn't know stays. Tells whether anything changed.
  bool PaivitaMateriaalit(Rakenneratkaisu& ratkaisu);

 private:
  bool PaivitaMateriaali(Materiaali& materiaali);

  Tietokanta kanta_;
  Rivihaku rakenteet_;
  Rivihaku kerrokset_;
  Rivihaku materiaalit_;
};
