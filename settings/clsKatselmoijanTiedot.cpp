// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsKatselmoijanTiedot.h"

#include "kernel/Asetusvarasto.h"

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

// In the order of the settings keys.
constexpr std::string clsKatselmoijanTiedot::*kKentat[] = {
    &clsKatselmoijanTiedot::Tehtavanimike, &clsKatselmoijanTiedot::Nimi,  &clsKatselmoijanTiedot::Puhelin,
    &clsKatselmoijanTiedot::Matkapuhelin,  &clsKatselmoijanTiedot::Faksi, &clsKatselmoijanTiedot::Sahkoposti,
};

}  // namespace

const Luokka clsKatselmoijanTiedot::kLuokka{"clsKatselmoijanTiedot", kJasenet};

void clsKatselmoijanTiedot::HaeOletukset(std::string_view alku) {
  int i = 0;
  for (std::string clsKatselmoijanTiedot::*kentta : kKentat)
    this->*kentta = HaeAsetus("Asetukset_KatselmoijanYhteystiedot", std::string(alku) + std::to_string(i++), "");
}
