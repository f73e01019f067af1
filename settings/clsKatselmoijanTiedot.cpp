// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsKatselmoijanTiedot.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsKatselmoijanTiedot::Tehtavanimike>("Tehtavanimike"),
    Arvo<&clsKatselmoijanTiedot::Nimi>("Nimi"),
    Arvo<&clsKatselmoijanTiedot::Puhelin>("Puhelin"),
    Arvo<&clsKatselmoijanTiedot::Matkapuhelin>("Matkapuhelin"),
    Arvo<&clsKatselmoijanTiedot::Faksi>("Faksi"),
    Arvo<&clsKatselmoijanTiedot::Sahkoposti>("Sahkoposti"),
};

constexpr std::string clsKatselmoijanTiedot::*kKentat[clsKatselmoijanTiedot::kKenttia] = {
    &clsKatselmoijanTiedot::Tehtavanimike, &clsKatselmoijanTiedot::Nimi,  &clsKatselmoijanTiedot::Puhelin,
    &clsKatselmoijanTiedot::Matkapuhelin,  &clsKatselmoijanTiedot::Faksi, &clsKatselmoijanTiedot::Sahkoposti,
};

}  // namespace

const Luokka clsKatselmoijanTiedot::kLuokka{"clsKatselmoijanTiedot", kJasenet};

std::string clsKatselmoijanTiedot::*clsKatselmoijanTiedot::Kentta(std::size_t i) { return kKentat[i]; }

void clsKatselmoijanTiedot::HaeOletukset(Avain ensimmainen) {
  int avain = static_cast<int>(ensimmainen);
  for (std::string clsKatselmoijanTiedot::*kentta : kKentat) this->*kentta = HaeAsetus(static_cast<Avain>(avain++));
}
