// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmKatselmoijienTiedot.h"

frmKatselmoijienTiedot::frmKatselmoijienTiedot() : Lomake("frmKatselmoijienTiedot") {
  cmdHaeOmat.Nostaa(HaeOmatKlikattu);
  cmdOk.Nostaa(OkKlikattu);
  cmdPeruuta.Nostaa(PeruutaKlikattu);
}
