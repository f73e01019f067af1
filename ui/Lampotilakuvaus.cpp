// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lampotilakuvaus.h"

#include "tekstit/lomakkeet_kirjasto.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"

Kaaviotiedot Lampotilakuvaus(std::string otsikko, std::vector<std::string> nimet, std::vector<double> paksuudet,
                             std::vector<double> vastukset, std::vector<double> lampotilat) {
  return {.otsikko = std::move(otsikko),
          .nimet = std::move(nimet),
          .sarjat = {{Teksti(tekstit::kPaksuusMm), std::move(paksuudet)},
                     {Teksti(tekstit::kLammonvastusYksikoin), std::move(vastukset)},
                     {Teksti(tekstit::kLampotilaYksikoin), std::move(lampotilat)}},
          .yksikko = "°C",
          .reunat = {Teksti(tekstit::kLeikkauksenSisapuoli), Teksti(tekstit::kLeikkauksenUlkopuoli)}};
}
