// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmSplash.h"

frmSplash::frmSplash() : Lomake("frmSplash") {
  Option1.Valittu(true);
  cmdJatka.Nostaa(JatkaKlikattu);
}
