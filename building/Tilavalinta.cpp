// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tilavalinta.h"

#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"

std::vector<std::string> TilojenNimet() {
  std::vector<std::string> nimet;
  for (const clsTila& tila : VaadiRakennus().Tilat) nimet.push_back(tila.TilanNimi);
  return nimet;
}

std::int32_t TilanRivi(const Tunniste& avain) {
  std::int32_t rivi = 0;
  for (const clsTila& tila : VaadiRakennus().Tilat) {
    ++rivi;
    if (tila.sKey == avain) return rivi;
  }
  return 0;
}

Tunniste RivinTila(std::int32_t rivi) { return rivi > 0 ? VaadiRakennus().Tilat.Item(rivi).sKey : Tunniste(); }

std::string RivinTilanNimi(std::int32_t rivi) {
  return rivi > 0 ? VaadiRakennus().Tilat.Item(rivi).TilanNimi : std::string();
}
