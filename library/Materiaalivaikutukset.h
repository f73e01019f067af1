// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "library/Materiaali.h"

/// The kinds of environmental impact, in the order of showing. Energies are told in MJ, raw materials and emissions in
/// kg: CO2, SO2 and ethene equivalents.
inline constexpr std::array<std::string_view, 9> kVaikutuslajit{
    "UusiutumatonEnergia",   "UusiutuvaEnergia",           "UusiutumattomatRaakaaineet",
    "UusiutuvatRaakaaineet", "IlmastonLampeneminenCO2ekv", "VarastoitunutCO2",
    "HappamoituminenSOxekv", "OksidanttienMuodostus",      "Particle"};
inline constexpr std::size_t kIlmastonLampeneminen = 4;

/// A value of each kind; one that isn't known is missing, which isn't the same as 0.
using Vaikutusarvot = std::array<std::optional<double>, kVaikutuslajit.size()>;

/// What the production of one kilogram of a material does (modules A1–A3 of EN 15804).
struct Materiaalivaikutus {
  Vaikutusarvot kilolle;
  std::string Lahde;  ///< where the figures come from
  std::string Tila;   ///< how sure they are (docs/reference-data.md)
};

/// The impacts of materials that a structure database knows, read at once. Raises error 9999 when it can't be read.
class Materiaalivaikutukset {
 public:
  explicit Materiaalivaikutukset(const std::string& kanta);

  /// By the library's identifier, else by the exact name; nothing when the database has no values of it.
  const Materiaalivaikutus* Etsi(const Materiaali& materiaali) const;

 private:
  std::unordered_map<std::string, Materiaalivaikutus> vaikutukset_;  // by identifier
  std::unordered_map<std::string, std::string> nimet_;               // identifier by name
};
