// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lampotilakuvaus.h"

#include "ui/Tekstivarasto.h"

namespace {

constexpr int kPaksuusOtsikko = 5010;
constexpr int kVastusOtsikko = 5011;
constexpr int kLampotilaOtsikko = 5012;

}  // namespace

Kaaviotiedot Lampotilakuvaus(std::string otsikko, std::vector<std::string> nimet, std::vector<double> paksuudet,
                             std::vector<double> vastukset, std::vector<double> lampotilat) {
  return {.otsikko = std::move(otsikko),
          .nimet = std::move(nimet),
          .sarjat = {{Teksti(kPaksuusOtsikko), std::move(paksuudet)},
                     {Teksti(kVastusOtsikko), std::move(vastukset)},
                     {Teksti(kLampotilaOtsikko), std::move(lampotilat)}},
          .yksikko = "°C"};
}
