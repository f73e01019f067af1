// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Lampotilajakauma.h"

#include <algorithm>

LammonlapaisyTulos LaskeLampotilajakauma(const Rakenneratkaisu& ratkaisu, double Tsisa, double Tulko) {
  std::vector<Kerros> kerrokset;
  for (const clsRakennekerros& kerros : ratkaisu.Kerrokset) {
    kerrokset.push_back(kerros.Laskentakerros());
    kerrokset.back().mukana = kerros.Vastustaa();
  }
  if (std::ranges::none_of(kerrokset, &Kerros::mukana)) {
    LammonlapaisyTulos tulos;
    tulos.kerrosvastukset.resize(kerrokset.size());
    return tulos;
  }
  const bool annettu = ratkaisu.PintavastusSisa > 0 || ratkaisu.PintavastusUlko > 0;
  const Pintavastukset pinnat = annettu ? Pintavastukset{ratkaisu.PintavastusSisa, ratkaisu.PintavastusUlko}
                                        : Oletuspintavastukset(ratkaisu.Rakennetyyppi);
  return LaskeLammonlapaisy(kerrokset, pinnat.sisa, pinnat.ulko, Tsisa, Tulko);
}

const std::string& KerroksenNimi(const clsRakennekerros& kerros) {
  return kerros.Nimi.empty() ? kerros.Materiaali.Nimi : kerros.Nimi;
}
