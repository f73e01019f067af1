// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One node of the measure tree.
class clsSaastoToimenpideListaItem : public Malli<clsSaastoToimenpideListaItem, Alkio> {
 public:
  static const Luokka kLuokka;
  enum Solmulaji : std::int32_t { Mallisolmu = 0, Toimenpidesolmu = 1 };

  bool OnSisaltoa() const noexcept override { return ItemTyyppi != 0; }

  Tunniste Parent;         ///< key of the parent node; empty for the root
  std::string NimiTeksti;  ///< text
  std::int32_t ItemTyyppi = Mallisolmu;
  bool Visible = true;               ///< shown in the tree
  bool ValittuTaulukko2een = false;  ///< the measure is ticked for the arranger
};
