// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Lampotilajakauma.h"

#include <algorithm>
#include <utility>

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

Leikkaus MuodostaLeikkaus(const Rakenneratkaisu& ratkaisu, double Tsisa, double Tulko) {
  LammonlapaisyTulos tulos = LaskeLampotilajakauma(ratkaisu, Tsisa, Tulko);
  Leikkaus leikkaus{{}, {}, std::move(tulos.kerrosvastukset), std::move(tulos.lampotilat)};
  for (const clsRakennekerros& kerros : ratkaisu.Kerrokset) {
    leikkaus.nimet.push_back(KerroksenNimi(kerros));
    leikkaus.paksuudet.push_back(kerros.Paksuus);
  }
  if (leikkaus.lampotilat.empty()) return leikkaus;
  leikkaus.lampotilat.insert(leikkaus.lampotilat.begin(), Tsisa);
  leikkaus.lampotilat.push_back(Tulko);
  return leikkaus;
}

const std::string& KerroksenNimi(const clsRakennekerros& kerros) {
  return kerros.Nimi.empty() ? kerros.Materiaali.Nimi : kerros.Nimi;
}
