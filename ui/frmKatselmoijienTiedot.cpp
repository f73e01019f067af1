// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmKatselmoijienTiedot.h"

frmKatselmoijienTiedot::frmKatselmoijienTiedot() : Muokkauslomake("frmKatselmoijienTiedot") {
  cmdHaeOmat.Nostaa(HaeOmatKlikattu);
}
