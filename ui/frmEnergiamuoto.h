// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelomuokkain.h"
#include "ui/Muokkauslomake.h"

/// One energy form: efficiency, share, impact and the fuels that the impact can be computed from.
class frmEnergiamuoto : public Muokkauslomake {
 public:
  frmEnergiamuoto();

  /// The choice to compute the impact from the fuels was changed.
  std::function<void()> LasketaanKlikattu;
  /// The number fields hold good values.
  std::function<void()> PoimiKirjastostaKlikattu;

  /// Water has no impact, no fuels and no database.
  void NaytaEnergiatiedot(bool nakyvat) const;
  /// Computed impact can't be written.
  void VaikutuksetLasketaan(bool lasketaan) const;

  Label lblLahde{*this, "lblLahde"};
  CommandButton cmdPoimiKirjastosta{*this, "cmdPoimiKirjastosta"};
  CheckBox chkLaskePaastotPolttoaineista{*this, "chkLaskePaastotPolttoaineista"};
  ListView lvwPolttoaineet{*this, "lvwPolttoaineet"};
  CommandButton cmdLisaaPolttoaine{*this, "cmdLisaaPolttoaine"};
  CommandButton cmdPoistaPolttoaine{*this, "cmdPoistaPolttoaine"};
  Luettelomuokkain polttoaineet{*this, {lvwPolttoaineet, cmdLisaaPolttoaine, {}, {}, cmdPoistaPolttoaine}};

 private:
  std::vector<Ohjain*> vaikutukset_;  // fields of the impact
};
