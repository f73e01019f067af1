// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// What a newer standard library would change in the materials of the structures, before it is done.
class frmMateriaalimuutokset : public Lomake {
 public:
  frmMateriaalimuutokset();

  /// Shows the rows (space, structure, layer, material, figure, present and new value), modal. True when the person
  /// takes them.
  bool Kysy(Taulukko muutokset);

  ListView lvwMuutokset{*this, "lvwMuutokset"};
  Label lblMaara{*this, "lblMaara"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 private:
  bool hyvaksytty_ = false;
};
