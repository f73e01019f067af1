// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"
#include "ui/Muokkauslomake.h"

/// The saving measures of the building: the tree of what they concern, and the list of those below its chosen node.
/// Each change is made at once, so that OK and Cancel both only close the window.
class frmSaastoToimenpiteet : public Muokkauslomake {
 public:
  frmSaastoToimenpiteet();

  /// The person has chosen a node of the tree.
  std::function<void()> TreeViewKlikattu;
  /// Enter or a double click on a node.
  std::function<void()> SolmuaPainettu;
  /// Delete on a node.
  std::function<void()> SolmuPoistettava;
  /// The person has chosen a view of the columns, from 0.
  std::function<void(int nakyma)> NakymatasonValintaCmbKlikattu;

  ListView lvwKohdentaminen{*this, "lvwKohdentaminen"};
  Label lblToimenpiteet{*this, "lblToimenpiteet"};  // what the list holds, and whether its amounts have VAT
  ComboBox cmbNakymatasonValinta{*this, "cmbNakymatasonValinta"};
  ListView lvwToimenpiteet{*this, "lvwToimenpiteet"};
  Label lblOhje{*this, "lblOhje"};  // what to do when the list is empty
  CommandButton cmdLisaaUusi{*this, "cmdLisaaUusi"};
  CommandButton cmdMuokkaa{*this, "cmdMuokkaa"};
  CommandButton cmdPoista{*this, "cmdPoista"};
  Luettelomuokkain luettelo{*this, {lvwToimenpiteet, cmdLisaaUusi, cmdMuokkaa, std::nullopt, cmdPoista}};
};
