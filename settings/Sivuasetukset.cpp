// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Sivuasetukset.h"

#include <vector>

#include "settings/Asetusavaimet.h"

namespace {

struct Reuna {
  Avain avain;
  double Sivuasetukset::*leveys;
};
constexpr Reuna kReunat[] = {{Avain::SivunVasenReuna, &Sivuasetukset::vasen},
                             {Avain::SivunYlareuna, &Sivuasetukset::yla},
                             {Avain::SivunOikeaReuna, &Sivuasetukset::oikea},
                             {Avain::SivunAlareuna, &Sivuasetukset::ala}};

}  // namespace

Sivuasetukset HaeSivuasetukset() {
  Sivuasetukset sivu{.paperi = HaeAsetus(Avain::SivunPaperi), .vaaka = HaeTotuus(Avain::SivuVaakasuorassa)};
  for (const Reuna& reuna : kReunat) sivu.*reuna.leveys = HaeMiljoonasosat(reuna.avain);
  return sivu;
}

void TallennaSivuasetukset(const Sivuasetukset& sivu) {
  std::vector<Asetus> arvot{AsetuksenArvo(Avain::SivunPaperi, sivu.paperi),
                            AsetuksenArvo(Avain::SivuVaakasuorassa, TotuusTekstina(sivu.vaaka))};
  for (const Reuna& reuna : kReunat)
    arvot.push_back(AsetuksenArvo(reuna.avain, MiljoonasosinaTekstina(sivu.*reuna.leveys)));
  TallennaAsetukset(arvot);
}
