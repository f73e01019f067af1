// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmIVKoneYhteenveto.h"

#include "ui/Lomakekaannos.h"

frmIVKoneYhteenveto::frmIVKoneYhteenveto() : Lomake("frmIVKoneYhteenveto") {
  lvwKoneet.KunMuuttuu([this] { PaivitaNapit(lukittu_); });
  lvwKoneet.KunKlikataan([this] { Nosta(MuokkaaKlikattu); });
  cmdLisaaKone.Nostaa(LisaaKlikattu);
  cmdMuokkaaKone.Nostaa(MuokkaaKlikattu);
  cmdKopioiKone.Nostaa(KopioiKlikattu);
  cmdPoistaKone.Nostaa(PoistaKlikattu);
  cmdSulje.KunKlikataan([this] { Sulje(); });
}

void frmIVKoneYhteenveto::PaivitaNapit(bool lukittu) {
  lukittu_ = lukittu;
  cmdLisaaKone.Kaytossa(true);
  for (const CommandButton& nappi : {cmdMuokkaaKone, cmdKopioiKone, cmdPoistaKone})
    nappi.Kaytossa(lvwKoneet.Indeksi() >= 0);
  LukitseMuokkausnapit(*this, lukittu_);
}
