// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmTilaYhteenveto.h"

#include "ui/Kenttatarkistus.h"

frmTilaYhteenveto::frmTilaYhteenveto() : Lomake("frmTilaYhteenveto") {
  cmdKuukausitase.Nostaa(KuukausitaseKlikattu);
  chkKaytaTotSahkoKuormia.KunKlikataan([this] {
    PaivitaKentat();
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

void frmTilaYhteenveto::PaivitaKentat() const {
  cmdKuukausitase.Kaytossa(!luettelo.Valittu().Tyhja());
  txtTotSahkoKuormaPros.Kaytossa(chkKaytaTotSahkoKuormia.Valittu());
}
