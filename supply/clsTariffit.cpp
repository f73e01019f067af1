// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffit.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

}  // namespace

const Luokka clsTariffit::kLuokka{"clsTariffit", kJasenet};

clsTariffi& clsTariffit::LisaaTariffi(clsTariffi::Laji laji) try {
  const clsLumivirtaAsetukset& asetukset = Asetukset();
  clsTariffi& tariffi = Add(Tunniste::Uusi(clsTariffi::kLuokka.NimiSana()));
  tariffi.Tariffityyppi = laji;
  tariffi.ALV = laji == clsTariffi::LampoTariffi ? asetukset.dblLampoALV : asetukset.dblSahkoALV;
  tariffi.MaksutSisaltavatALVn = asetukset.KaytaKohtTulostuksissaALVHintoja;
  return tariffi;
} catch (...) {
  NostaVirhe("clsTariffit:LisaaTariffi Method");
}

std::vector<std::string> clsTariffit::Kayttajat(const clsTariffi& tariffi) const {
  const clsPerustiedot& tiedot = koti_.Rakennus().Perustiedot;
  const auto& hankinta =
      tariffi.Tariffityyppi == clsTariffi::LampoTariffi ? tiedot.LammonHankinta : tiedot.SahkonHankinta;
  return hankinta.Energiamuodot.TariffinKayttajat(tariffi.sKey);
}
