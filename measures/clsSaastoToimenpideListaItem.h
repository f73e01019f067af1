// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One node of the measure tree.
class clsSaastoToimenpideListaItem : public Malli<clsSaastoToimenpideListaItem, Alkio> {
 public:
  static const Luokka kLuokka;
  bool OnSisaltoa() const noexcept override { return ItemTyyppi != 0; }

  Tunniste Parent;                   ///< key of the parent node; empty for the root
  std::string NimiTeksti;            ///< text
  std::int32_t ItemTyyppi = 0;       ///< 0 a node of the model, 1 a measure
  bool Visible = true;               ///< shown in the tree
  bool ValittuTaulukko2een = false;  ///< the measure is ticked for the arranger
};
