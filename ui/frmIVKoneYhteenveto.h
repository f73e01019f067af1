// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"

/// The ventilation machines of the building and their energy of the year.
class frmIVKoneYhteenveto : public Lomake {
 public:
  frmIVKoneYhteenveto();

  ListView lvwKoneet{*this, "lvwKoneet"};
  CommandButton cmdLisaaKone{*this, "cmdLisaaKone"};
  CommandButton cmdMuokkaaKone{*this, "cmdMuokkaaKone"};
  CommandButton cmdKopioiKone{*this, "cmdKopioiKone"};
  CommandButton cmdPoistaKone{*this, "cmdPoistaKone"};
  CommandButton cmdSulje{*this, "cmdSulje"};
  Luettelomuokkain luettelo{*this, {lvwKoneet, cmdLisaaKone, cmdMuokkaaKone, cmdKopioiKone, cmdPoistaKone}};
};
