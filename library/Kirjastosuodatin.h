// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "library/Kirjastotietue.h"

/// What a person looks for among the structures. An empty condition lets everything through.
struct Rakennesuodatin {
  std::optional<Kirjasto> Kanta;
  std::string Rakennetyyppi;  ///< the library's word of the kind
  std::string Aikakausi;
  std::optional<double> U_vahintaan;  ///< W/m²K; a structure without U-value passes neither limit
  std::optional<double> U_enintaan;
  std::string Haku;  ///< each of its words has to be somewhere in the texts, letter case aside

  bool Sopii(const Kirjastorakenne& rakenne) const;
};

/// The same among the materials.
struct Materiaalisuodatin {
  std::optional<Kirjasto> Kanta;
  std::string Ryhma;
  std::string Haku;

  bool Sopii(const Kirjastomateriaali& materiaali) const;
};
