// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmEnergiamuoto.h"

#include "tekstit/lomakkeet_hankinta.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"

frmEnergiamuoto::frmEnergiamuoto() : Muokkauslomake("frmEnergiamuoto") {
  for (const auto& ohjain : Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox && ohjain->Sailio() == "fraVaikutukset")
      vaikutukset_.push_back(ohjain.get());
  chkLaskePaastotPolttoaineista.KunKlikataan([this] { Nosta(LasketaanKlikattu); });
  NostaaKunKelpaa(cmdPoimiKirjastosta, PoimiKirjastostaKlikattu);
}

void frmEnergiamuoto::NaytaEnergiatiedot(bool nakyvat) const {
  for (const char* nimi : {"fraVaikutukset", "fraPolttoaineet", "lblLahde", "cmdPoimiKirjastosta"})
    Etsi(nimi).Nakyva(nakyvat);
}

void frmEnergiamuoto::VaikutuksetLasketaan(bool lasketaan) const {
  for (Ohjain* kentta : vaikutukset_) kentta->Lukittu(lasketaan);
}
