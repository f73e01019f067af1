// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmTilaYhteenveto.h"

#include "ui/Kenttatarkistus.h"
#include "ui/Lomakekaannos.h"

frmTilaYhteenveto::frmTilaYhteenveto() : Lomake("frmTilaYhteenveto") {
  lvwTilat.KunMuuttuu([this] { PaivitaNapit(lukittu_); });
  lvwTilat.KunKlikataan([this] { Nosta(MuokkaaKlikattu); });
  cmdLisaaTila.Nostaa(LisaaKlikattu);
  cmdMuokkaaTila.Nostaa(MuokkaaKlikattu);
  cmdKopioiTila.Nostaa(KopioiKlikattu);
  cmdPoistaTila.Nostaa(PoistaKlikattu);
  cmdKuukausitase.Nostaa(KuukausitaseKlikattu);
  chkKaytaTotSahkoKuormia.KunKlikataan([this] {
    PaivitaNapit(lukittu_);
    Nosta(SahkokuormatMuuttuivat);
  });
  txtTotSahkoKuormaPros.KunPoistutaan([this] { OtaSahkokuormat(); });
  cmdSulje.KunKlikataan([this] {
    if (OtaSahkokuormat()) Sulje();
  });
}

bool frmTilaYhteenveto::OtaSahkokuormat() {
  if (!TarkistaLukukentat(*this)) return false;
  if (txtTotSahkoKuormaPros.Muuttunut()) Nosta(SahkokuormatMuuttuivat);
  return true;
}

void frmTilaYhteenveto::PaivitaNapit(bool lukittu) {
  lukittu_ = lukittu;
  const bool valittu = lvwTilat.Indeksi() >= 0;
  cmdLisaaTila.Kaytossa(true);
  for (const CommandButton& nappi : {cmdMuokkaaTila, cmdKopioiTila, cmdPoistaTila, cmdKuukausitase})
    nappi.Kaytossa(valittu);
  txtTotSahkoKuormaPros.Kaytossa(chkKaytaTotSahkoKuormia.Valittu());
  LukitseMuokkausnapit(*this, lukittu_);
}
