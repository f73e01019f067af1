// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/clsTyyppiTiedot.h"

/// One attribute whose value differs between two object trees.
struct Muutos {
  std::string_view attribuutinNimi;
  std::string_view clsTypeName;
  Laji tietoTyyppi;
  Tunniste instanssiId;  ///< of the object that the comparison was called on
  double arvoEnnen = 0;  ///< every kind but text
  double arvoJalkeen = 0;
  std::string arvoEnnenStr;  ///< text
  std::string arvoJalkeenStr;
};

/// Takes the changes that a comparison finds.
class MuutostenKeraaja {
 public:
  virtual ~MuutostenKeraaja() = default;
  virtual void Lisaa(const Muutos& muutos) = 0;
  /// The two objects are of different classes: the caller's error.
  virtual void LuokatEroavat(const Olio& tama, const Olio& toinen) = 0;
};

/// Changes as a plain list.
class Muutoslista : public MuutostenKeraaja {
 public:
  std::vector<Muutos> muutokset;
  bool luokatErosivat = false;
  void Lisaa(const Muutos& muutos) override { muutokset.push_back(muutos); }
  void LuokatEroavat(const Olio&, const Olio&) override { luokatErosivat = true; }
};

/// Real numbers nearer than this are the same: the round trip of a value through a dialog's text is no change.
inline constexpr double kVertailutarkkuus = 0.00001;

/// Compares the edited object `tama` with `toinen`, the object as it was, attribute by attribute and recursively.
/// Items of collections are paired by key; one without a partner is passed over.
void VertaileOliot(Olio& tama, Olio& toinen, MuutostenKeraaja& muuttuneet, const clsTyyppiTiedot& tyypit);
