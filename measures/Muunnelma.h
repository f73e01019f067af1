// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
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
/// Before 2 and after 3 the cache flags of the spaces that the variation reaches, and of the building's sums, are
/// False; what it doesn't reach keeps its caches. No object is made or removed, so the register holds throughout. What
/// can't be written is passed over and named: an object that is gone, an attribute that its class doesn't have or that
/// isn't written by name, a value that doesn't fit its type. A variation of the building that the windows show reserves
/// the model (building/Mallivaraus.h).
class Muunnelma {
 public:
  /// What was passed over: the row of its list from 1, and "class.attribute".
  struct Ohitettu {
    int rivi;
    std::string nimi;
    std::int32_t tuntematonTyyppi = 0;  ///< the code of the value's kind when there is no such kind; else 0
  };
  /// The spaces and the machines whose figures a list can change: those that hold a changed attribute; spaces of a
  /// changed machine or electricity group, before or after; machines of a changed space. No doubles; with `kaikki...`
  /// they are all of the building, whatever the list says.
  struct Ulottuvuus {
    std::vector<clsTila*> tilat;
    std::vector<clsIVKone*> koneet;
    bool kaikkiTilat = false, kaikkiKoneet = false;

    bool Sisaltaa(const clsTila& tila) const;
    bool Sisaltaa(const clsIVKone& kone) const;
  };

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

  /// What was passed over, in the order of the lists.
  const std::vector<Ohitettu>& Ohitetut() const noexcept { return ohitetut_; }
  /// How far the list reaches that was laid on last.
  const Ulottuvuus& Viimeisin() const noexcept { return viimeisin_; }

 private:
  struct Entinen {
    Olio* olio;
    const Jasen* jasen;
    Kentanarvo arvo;
  };

  bool Kirjoita(const clsMuuttunutAttribuutti& muutos);
  void Ulottuu(const Instanssi& kohde);
  void LisaaTila(clsTila* tila);
  void Mitatoi(const Ulottuvuus& ulottuvuus) noexcept;

  clsRakennus& rakennus_;
  std::optional<Mallivaraus> varaus_;
  std::vector<Entinen> entiset_;
  std::vector<Ohitettu> ohitetut_;
  Ulottuvuus viimeisin_;
  Ulottuvuus aiemmat_;                   // the spaces alone, whose caches are to be invalidated
  std::vector<clsTila*> muutetutTilat_;  // those of the last list that hold a changed attribute
};
