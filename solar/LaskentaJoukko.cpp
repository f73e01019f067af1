// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/LaskentaJoukko.h"

#include <string>

#include "solar/AurinkoVirhe.h"

void VaaraPaikka(int paikka, int maara) {
  throw AurinkoVirhe("Laskennan kohdetta " + std::to_string(paikka) + " ei ole, kohteita on " + std::to_string(maara) +
                     ".");
}
