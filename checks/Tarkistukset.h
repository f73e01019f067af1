// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kernel/Tunniste.h"

class Tarkistusajo;
class clsRakennus;
enum Tekstinumero : int;

/// How serious a finding is, gravest first.
enum class Tarkistustaso : std::uint8_t {
  Ristiriita,        ///< two data can't both be true, or one is impossible
  Puute,             ///< something that the results need is missing
  Epatodennakoinen,  ///< possible, but outside what is usual
  Muistutus,         ///< harmless as such; the person should know of it
};
inline constexpr int kTarkistustasoja = 4;

/// The level's word, which stands in files and doesn't change: "puute".
std::string_view TasonSana(Tarkistustaso taso) noexcept;
/// Heading of the findings of a level, as shown.
std::string TasonOtsikko(Tarkistustaso taso);

/// The field in which a finding is mended: a form and its control, of the object that the finding concerns.
struct Hyppykohde {
  std::string_view lomake, ohjain;
};

/// The object that a finding concerns.
struct Havainnonkohde {
  std::string polku;        ///< its names from the building down: "Luokat / Ulkoseinät"
  std::string_view luokka;  ///< class and identity, by which the building has it (clsRakennus::HaeInstanssi)
  Tunniste instanssiId;
};

/// One thing missing, improbable or contradictory.
struct Havainto {
  std::string_view nimi;  ///< of the check: stays the same from version to version
  Tarkistustaso taso;
  Havainnonkohde kohde;
  std::string teksti;  ///< what it is, why it matters, what to do
  Hyppykohde hyppy;
};

/// A row of the table of checks.
struct Tarkistus {
  std::string_view nimi;
  Tarkistustaso taso;
  Tekstinumero otsikko;  ///< what it looks for, in a few words
  Tekstinumero teksti;   ///< text of a finding, with %1 to %9 in the places of its figures and names
  Hyppykohde hyppy;
  void (*tarkista)(Tarkistusajo& ajo);
};

/// All checks, in the order in which the parts of a building are entered.
std::span<const Tarkistus> Tarkistukset();

/// The findings of the building, gravest first, else in the order of the checks. Silent, and changes nothing of the
/// building. Never raises but for want of memory: a check that can't be computed is a finding that tells so.
std::vector<Havainto> Tarkista(clsRakennus& rakennus);
