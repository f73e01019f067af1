// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "kernel/Vertailu.h"
#include "measures/clsMuuttunutAttribuutti.h"

/// A variation: the changed attributes of one object and of the objects below it. Collects what a comparison of the
/// edited object with the object as it was finds.
class clsMuuttuneetAttribuutit : public Malli<clsMuuttuneetAttribuutit, Kokoelma<clsMuuttunutAttribuutti>>,
                                 public MuutostenKeraaja {
 public:
  static const Luokka kLuokka;
  /// Stands for the identity of the object when there is none: the measure owns its object then.
  static const Tunniste kViittausPuuttuu;

  std::string TyypinNimi;                           ///< class of the object that the measure concerns
  Tunniste LiittyyInstanssiin = "ViittausPuuttuu";  ///< its identity

  bool Kelluva() const noexcept { return LiittyyInstanssiin == kViittausPuuttuu; }
  /// Adds the change under a fresh key.
  void Lisaa(const Muutos& muutos) override;
  /// Removes the change and those of the same object that have no meaning without it: a choice and its text, the two
  /// ways of calculation, a U-value and the flag that it is computed. An error when there is no such change.
  void PoistaPareineen(const Tunniste& avain);
  /// The two change together: they are of one object, and one has no meaning without the other.
  static bool OvatPari(const clsMuuttunutAttribuutti& a, const clsMuuttunutAttribuutti& b);
  /// Shows error 1046: the two objects are of different classes.
  void LuokatEroavat(const Olio& tama, const Olio& toinen) override;
};
