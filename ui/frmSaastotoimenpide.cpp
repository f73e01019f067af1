// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSaastotoimenpide.h"

#include "tekstit/lomakkeet_toimenpide.h"
#include "ui/Tekstivarasto.h"

frmSaastotoimenpide::frmSaastotoimenpide() : Muokkauslomake("frmSaastotoimenpide") {
  for (const auto& ohjain : Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox && !ohjain->Lukittu() &&
        ohjain.get() != &txtToimenpiteenVaikutusAste.Kohde())
      ohjain->Muuttui = [this, kentta = ohjain.get()] { Nosta(KenttaMuuttui, *kentta); };
  chkToimenpiteenVaikutusAste.KunKlikataan(
      [this] { txtToimenpiteenVaikutusAste.Kaytossa(chkToimenpiteenVaikutusAste.Valittu()); });
  txtToimenpiteenVaikutusAste.Kaytossa(false);
  NostaaKunKelpaa(cmdEnnen, EnnenKlikattu);
  NostaaKunKelpaa(cmdJalkeen, JalkeenKlikattu);
  cmdPoistaMuutos.Nostaa(PoistaMuutosKlikattu);
  cmdKayttoiat.Nostaa(KayttoiatKlikattu);
  lvwMuutokset.KunPoistetaan([this] { Nosta(PoistaMuutosKlikattu); });
  lvwMuutokset.KunMuuttuu([this] { cmdPoistaMuutos.Kaytossa(!lvwMuutokset.Valittu().Tyhja()); });
}

void frmSaastotoimenpide::NaytaVero(const std::string& vero) const {
  Etsi("fraSaastotoimenpiteenVaikutus").Teksti(Teksti(tekstit::kToimenpiteenVaikutus) + ". " + vero);
  Etsi("fraToimenpiteenHinnat").Teksti(Teksti(tekstit::kToimenpiteenHinnat) + ". " + vero);
}

void frmSaastotoimenpide::NaytaTariffisaasto(bool nakyva) const {
  for (const char* nimi : {"lblTariffisaasto", "txtTariffisaasto", "lblYksTariffisaasto", "lblTariffiaika",
                           "txtTariffiaika", "lblYksTariffiaika"})
    Etsi(nimi).Nakyva(nakyva);
}

void frmSaastotoimenpide::NaytaMuutokset(Luettelosisalto muutokset) const {
  lvwMuutokset.Tayta(std::move(muutokset));
  cmdPoistaMuutos.Kaytossa(!lvwMuutokset.Valittu().Tyhja());
}
