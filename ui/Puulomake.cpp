// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Puulomake.h"

#include <utility>

Puulomake::Puulomake(std::string nimi) : Muokkauslomake(std::move(nimi)) {
  cmdLisaaLuettelosta.Nostaa(LuettelostaKlikattu);
  cmdLisaaUusiNimike.Nostaa(NimikeKlikattu);
}

void Puulomake::NaytaVertailu(double toteutunut, std::optional<double> laskettu, const char* kuvio) const {
  txtToteutunut.Luku(toteutunut, kuvio);
  if (laskettu) {
    txtLaskettu.Luku(*laskettu, kuvio);
    txtErotus.Luku(txtToteutunut.Luku() - txtLaskettu.Luku(), kuvio);
  } else {
    txtLaskettu.Teksti(kEiLukua);
    txtErotus.Teksti(kEiLukua);
  }
}
