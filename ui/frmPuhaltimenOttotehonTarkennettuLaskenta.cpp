// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmPuhaltimenOttotehonTarkennettuLaskenta.h"

frmPuhaltimenOttotehonTarkennettuLaskenta::frmPuhaltimenOttotehonTarkennettuLaskenta()
    : Muokkauslomake("frmPuhaltimenOttotehonTarkennettuLaskenta") {
  for (const TextBox& kentta : kentat) kentta.KunMuuttuu([this] { Nosta(KenttaMuuttui); });
}
