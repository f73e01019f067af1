// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmPuhaltimenOttotehonTarkennettuLaskenta.h"

#include "ui/Kenttatarkistus.h"

frmPuhaltimenOttotehonTarkennettuLaskenta::frmPuhaltimenOttotehonTarkennettuLaskenta()
    : Lomake("frmPuhaltimenOttotehonTarkennettuLaskenta") {
  for (std::size_t i = 0; i < kentat.size(); ++i)
    kentat[i].KunMuuttuu([this, i] { Nosta(KenttaMuuttui, static_cast<Kentta>(i)); });
  cmdOk.KunKlikataan([this] {
    if (TarkistaLukukentat(*this)) Nosta(OkKlikattu);
  });
  cmdPeruuta.KunKlikataan([this] { Sulje(); });
}
