// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmRakennekerroksenMuokkaaminen.h"

frmRakennekerroksenMuokkaaminen::frmRakennekerroksenMuokkaaminen() : Muokkauslomake("frmRakennekerroksenMuokkaaminen") {
  for (const TextBox& kentta :
       {txtPaksuus, paamateriaali.lambda, lisamateriaali.lambda, txtLisamateriaalinOsuus, txtLammonvastus})
    kentta.KunMuuttuu([this] { Nosta(DataMuuttui); });
  chkUArvoon.KunKlikataan([this] { Nosta(DataMuuttui); });
  chkHomogeeninen.KunKlikataan([this] {
    PaivitaKentat();
    Nosta(DataMuuttui);
  });
  cmdHaePaamateriaali.Nostaa(PaamateriaaliHakuun);
  cmdHaeLisamateriaali.Nostaa(LisamateriaaliHakuun);
}

void frmRakennekerroksenMuokkaaminen::PaivitaKentat() {
  for (const TextBox& kentta : {lisamateriaali.nimi, lisamateriaali.lambda, lisamateriaali.tiheys,
                                lisamateriaali.ominaislampo, txtLisamateriaalinOsuus})
    kentta.Kaytossa(!chkHomogeeninen.Valittu());
  cmdHaeLisamateriaali.Kaytossa(!chkHomogeeninen.Valittu());
}
