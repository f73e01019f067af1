// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/Vuosilasku.h"

#include "settings/clsLumivirtaAsetukset.h"

double Tariffikerroin(double alv, bool maksutSisaltavatAlvn) {
  const double valuutta = Asetukset().dblCurrencyConvCoeff;
  return maksutSisaltavatAlvn ? valuutta * (1 + alv / 100) : valuutta;
}
