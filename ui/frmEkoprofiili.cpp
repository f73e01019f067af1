// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmEkoprofiili.h"

frmEkoprofiili::frmEkoprofiili() : Avokenttalomake("frmEkoprofiili") {
  cmbLaji.KunMuuttuu([this] { Nosta(LajiValittu); });
  for (const TextBox& kentta : {txtVertailunNimi, txtVertailuMateriaalit, txtVertailuEnergia})
    kentta.KunMuuttuu([this] { Nosta(VertailuMuuttui); });
  cmdKopioi.KunKlikataan([this] { (tabProfiili.Indeksi() == 1 ? Picture2 : Picture1).KopioiLeikepoydalle(); });
}
