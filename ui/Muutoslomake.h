// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// What a newer reference database would change in the object, before it is done: a form with the list `lvwMuutokset`,
/// the number of its rows and two buttons.
class Muutoslomake : public Lomake {
 public:
  /// Shows the rows, modal. True when the person takes them.
  bool Kysy(Taulukko muutokset);

  ListView lvwMuutokset{*this, "lvwMuutokset"};
  Label lblMaara{*this, "lblMaara"};
  CommandButton cmdOk{*this, "cmdOk"};
  CommandButton cmdPeruuta{*this, "cmdPeruuta"};

 protected:
  explicit Muutoslomake(const char* nimi);

 private:
  bool hyvaksytty_ = false;
};
