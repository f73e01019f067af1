// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "library/Materiaalivaikutukset.h"
#include "lifecycle/Elinkaarihierarkia.h"

class clsRakennus;

/// A material in the structures of a node.
struct Raakaaine {
  std::string nimi;
  double massa;  ///< kg
};

/// What is known of the impacts of some materials, and of how much of them nothing is known.
struct Materiaalisumma {
  Vaikutusarvot arvot{};  ///< MJ and kg; none when no material has a value of the kind
  double massa = 0;       ///< kg
  std::array<double, kVaikutuslajit.size()> massaIlmanArvoa{};  ///< kg, by the kind
  double massaIlmanTietoja = 0;     ///< mass of the materials that have no value of any kind, kg
  double alaIlmanKerroksia = 0;     ///< area of the structures that hold no layers, m²
  std::vector<Raakaaine> aineet{};  ///< in the order in which they are met

  /// Share of the mass of which nothing is known, 0 to 1; nothing when there is no mass.
  std::optional<double> OsuusIlmanTietoja() const;
  void Lisaa(const Materiaalisumma& toinen);
  /// Adds the production of the material.
  void Lisaa(const Materiaali& materiaali, double massa, const Materiaalivaikutukset& vaikutukset);

 private:
  void LisaaAine(const Raakaaine& aine);
};

/// The impact of what is bought of heat or electricity in a year.
struct Ostovaikutus {
  double ostettu = 0;        ///< MWh/a
  Vaikutusarvot vuodessa{};  ///< MJ and kg a year: the form's value per MWh times what is bought in it
};

/// The tree of environmental impact: of the materials in the building's structures, each layer's area times thickness
/// times density times the value of the library for a kilogram (modules A1–A3), and of the energy that is bought in a
/// year, form by form (module B6). Materials stand for the period: they aren't replaced in it. What is bought of water
/// has no impact values.
class Vaikutuspuu {
 public:
  struct Solmu : Hierarkiasolmu {
    Materiaalisumma materiaalit;       ///< of the node and of those below
    std::optional<Ostovaikutus> osto;  ///< of the node and of those below
  };

  /// `pitoaika`: the calculation period, a; without it no total is told of what is bought. Errors: 9999 when what is
  /// bought can't be computed.
  Vaikutuspuu(clsRakennus& rakennus, const Materiaalivaikutukset& vaikutukset, std::optional<int> pitoaika);

  const std::vector<Solmu>& Solmut() const noexcept { return solmut_; }
  const Solmu* Etsi(const Tunniste& avain) const;
  const Materiaalisumma& Materiaalit() const { return solmut_.front().materiaalit; }
  const Ostovaikutus& Osto() const { return *solmut_.front().osto; }
  /// Impact of what is bought over the period; nothing without a period.
  Vaikutusarvot OstoPitoaikana(const Solmu& solmu) const;
  /// All that is known of the node, over the period: MJ and kg. A node that buys has nothing without a period.
  Vaikutusarvot Yhteensa(const Solmu& solmu) const;
  std::optional<int> Pitoaika() const { return pitoaika_; }

 private:
  void LaskeYlos();

  std::optional<int> pitoaika_;
  std::vector<Solmu> solmut_;  // each after its parent
};
