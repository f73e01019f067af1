// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmLTOhyotylaskenta.h"

#include "ui/Kenttatarkistus.h"

frmLTOhyotylaskenta::frmLTOhyotylaskenta() : Lomake("frmLTOhyotylaskenta") {
  for (const TextBox& kentta : {txtTu, txtTp, txtTlto}) kentta.KunMuuttuu([this] { Nosta(DataMuuttui); });
  cmdOk.KunKlikataan([this] {
    if (TarkistaLukukentat(*this)) Nosta(OkKlikattu);
  });
  cmdPeruuta.Nostaa(PeruutaKlikattu);
}
