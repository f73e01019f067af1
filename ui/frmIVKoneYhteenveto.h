// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjaimet.h"

/// The ventilation machines of the building and their energy of the year.
class frmIVKoneYhteenveto : public Lomake {
 public:
  frmIVKoneYhteenveto();

  std::function<void()> LisaaKlikattu;
  // These three with a machine chosen in the list.
  std::function<void()> MuokkaaKlikattu;
  std::function<void()> KopioiKlikattu;
  std::function<void()> PoistaKlikattu;

  /// Enables what can be done to the present list; `lukittu`: machines may neither come nor go.
  void PaivitaNapit(bool lukittu);

  ListView lvwKoneet{*this, "lvwKoneet"};
  CommandButton cmdLisaaKone{*this, "cmdLisaaKone"};
  CommandButton cmdMuokkaaKone{*this, "cmdMuokkaaKone"};
  CommandButton cmdKopioiKone{*this, "cmdKopioiKone"};
  CommandButton cmdPoistaKone{*this, "cmdPoistaKone"};
  CommandButton cmdSulje{*this, "cmdSulje"};

 private:
  bool lukittu_ = false;
};
