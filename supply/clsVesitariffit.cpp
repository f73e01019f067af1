// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsVesitariffit.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsVesitariffit::kLuokka{"clsVesitariffit", kJasenet};

clsVesitariffi& clsVesitariffit::LisaaTariffi() try {
  return Add(Tunniste::Uusi(clsVesitariffi::kLuokka.NimiSana()));
} catch (...) {
  NostaVirhe("clsVesitariffit:LisaaTariffi Method");
}

std::vector<std::string> clsVesitariffit::Kayttajat(const clsVesitariffi& tariffi) const {
  return koti_.Rakennus().Perustiedot.VedenHankinta.Energiamuodot.TariffinKayttajat(tariffi.sKey);
}
