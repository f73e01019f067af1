// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>

#include "library/Rakenneratkaisu.h"

/// The library that an entry stands in: the user's own, or the standard one that nobody edits.
enum class Kirjasto { Oma, Vakio };

/// A structure as it stands in a library.
struct Kirjastorakenne {
  Kirjasto Kanta = Kirjasto::Oma;
  std::string Id;  ///< empty: not stored yet
  std::string Aikakausi;
  std::int32_t VuosiAlku = 0;  ///< years of construction that it is typical of; 0: not told
  std::int32_t VuosiLoppu = 0;
  std::string Lahde;  ///< where its figures come from
  Rakenneratkaisu Ratkaisu;
};

/// A material as it stands in a library.
struct Kirjastomateriaali {
  Kirjasto Kanta = Kirjasto::Oma;
  std::string Id;  ///< empty: not stored yet
  std::string Ryhma;
  float MuKuiva = 0;  ///< water-vapour resistance factor, dry cup
  float MuMarka = 0;  ///< the same, wet cup
  std::string Lahde;
  std::string Tila;  ///< how sure the figures are
  Materiaali Aine;
};
