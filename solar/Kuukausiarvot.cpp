// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Kuukausiarvot.h"

#include <string>

#include "solar/AurinkoVirhe.h"

void Kuukausiarvot::VaaraKuukausi(int kuukausi) {
  throw AurinkoVirhe("Kuukauden pitää olla välillä 1–12, nyt se on " + std::to_string(kuukausi) + ".");
}
