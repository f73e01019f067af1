// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The monthly heat balance of a space or of the building: a table of its terms and a chart of losses and gains. A
/// model class fills both; copying and the picture are the form's own.
class frmKuukausitase : public Lomake {
 public:
  frmKuukausitase();

  /// The person wants the table in this file; false or an exception tells that it couldn't be written.
  std::function<bool(const std::string& tiedosto)> TallennaTaulukko;

  ListView lvwTase{*this, "lvwTase"};
  MSChart chtTase{*this, "chtTase"};
  Label lblNormitus{*this, "lblNormitus"};
  CommandButton cmdKopioiTaulukko{*this, "cmdKopioiTaulukko"};
  CommandButton cmdKopioiKuva{*this, "cmdKopioiKuva"};
  CommandButton cmdTallennaTaulukko{*this, "cmdTallennaTaulukko"};
  CommandButton cmdTallennaKuva{*this, "cmdTallennaKuva"};
  CommandButton cmdSulje{*this, "cmdSulje"};
};
