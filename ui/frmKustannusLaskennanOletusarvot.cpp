// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmKustannusLaskennanOletusarvot.h"

frmKustannusLaskennanOletusarvot::frmKustannusLaskennanOletusarvot()
    : Avokenttalomake("frmKustannusLaskennanOletusarvot") {
  cmdEhdotukset.Nostaa(EhdotuksetKlikattu);
}
