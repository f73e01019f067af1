// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "building/Mallivaraus.h"
#include "kernel/InstanssiLista.h"
#include "measures/clsMuuttuneetAttribuutit.h"

class clsIVKone;
class clsRakennus;
class clsTila;

/// A variation laid over a building for one scope:
///
///  1. `Liita` writes the changed values into the fields, raw and checked, and remembers each field as it was. Lists
///  may
///     be laid on top of each other.
///  2. The figures are read. Readers write no attribute meanwhile.
///  3. At the end of the scope, also by an error, the fields are put back in reverse order: the building equals what it
///     was to the last bit, apart from values behind a cache flag that is False.
///
/// Before 2 and after 3 the cache flags are False. No object is made or removed, so the register holds throughout. What
/// can't be written is passed over and named: an object that is gone, an attribute that its class doesn't have or that
/// isn't written by name, a value that doesn't fit its type. A variation of the building that the windows show reserves
/// the model (building/Mallivaraus.h).
class Muunnelma {
 public:
  explicit Muunnelma(clsRakennus& rakennus);
  Muunnelma(clsRakennus& rakennus, const clsMuuttuneetAttribuutit& muuttuneet) : Muunnelma(rakennus) {
    Liita(muuttuneet);
  }
  ~Muunnelma();
  Muunnelma(const Muunnelma&) = delete;
  Muunnelma& operator=(const Muunnelma&) = delete;

  void Liita(const clsMuuttuneetAttribuutit& muuttuneet);
  /// Leaves what has been written in the building for good.
  void Jata() noexcept { entiset_.clear(); }

  /// A variation lies on some building of this thread.
  static bool Voimassa() noexcept;

  /// What was passed over, "class.attribute", in the order of the lists.
  const std::vector<std::string>& Ohitetut() const noexcept { return ohitetut_; }
  /// The spaces and the machines whose figures the variation can change, in the order of the building: those that hold
  /// a changed attribute; spaces of a changed machine or electricity group, before or after; machines of a changed
  /// space. All of them when what changed is common to the building.
  std::vector<clsTila*> Tilat() const;
  std::vector<clsIVKone*> Koneet() const;

 private:
  struct Entinen {
    Olio* olio;
    const Jasen* jasen;
    Kentanarvo arvo;
  };
  /// How far the changes reach.
  struct Ulottuvuus {
    std::set<const Olio*> omistajat;  // spaces and machines
    std::vector<Tunniste> tilat;      // keys of spaces that a machine or an electricity group belongs to
    bool kaikkiTilat = false;
    bool kaikki = false;
  };

  bool Kirjoita(const clsMuuttunutAttribuutti& muutos);
  void Ulottuu(const Instanssi& kohde);
  bool OnMuuttunut(const clsTila& tila) const;

  clsRakennus& rakennus_;
  std::optional<Mallivaraus> varaus_;
  std::vector<Entinen> entiset_;
  std::vector<std::string> ohitetut_;
  Ulottuvuus ulottuvuus_;
};
