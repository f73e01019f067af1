// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"

/// What the person has entered at a node of the trees of life-cycle costs; its key is the node's. A node without one
/// has the type that it has by itself (lifecycle/Kustannuspuu.h).
class clsElinkaarisolmu : public Malli<clsElinkaarisolmu, Alkio> {
 public:
  static const Luokka kLuokka;
  enum Tyyppi : std::int32_t {
    SummaAlemmista = 0,  ///< the sum of the nodes below
    OmaArvo = 1,         ///< number of units times unit cost; nodes below don't count
    Mallista = 2,        ///< what the model computes: fees of the supplies
  };

  std::int32_t TyyppiID = OmaArvo;
  std::string Laskentayksikko;
  bool MaaraMallista = false;   ///< the number of units follows the model: areas of structures
  double YksikoidenMaara = 0;   ///< unless it follows the model
  double Yksikkokustannus = 0;  ///< €/unit, of upkeep €/unit,a; without VAT
};

/// Entries of one tree.
class clsElinkaarisolmut : public Malli<clsElinkaarisolmut, Kokoelma<clsElinkaarisolmu>> {
 public:
  static const Luokka kLuokka;
};
