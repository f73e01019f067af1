// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Ilmansuunta.h"

#include <string>

#include "solar/AurinkoVirhe.h"

Ilmansuunta IlmansuuntaNumerosta(int numero) {
  if (numero < 0 || numero >= static_cast<int>(kIlmansuuntia))
    throw AurinkoVirhe("Suuntauksen pitää olla välillä 0–4, nyt se on " + std::to_string(numero) + ".");
  return static_cast<Ilmansuunta>(numero);
}
