// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmLTOhyotylaskenta.h"

frmLTOhyotylaskenta::frmLTOhyotylaskenta() : Muokkauslomake("frmLTOhyotylaskenta") {
  for (const TextBox& kentta : {txtTu, txtTp, txtTlto}) kentta.KunMuuttuu([this] { Nosta(DataMuuttui); });
}
