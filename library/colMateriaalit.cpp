// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/colMateriaalit.h"

const Luokka colMateriaalit::kLuokka("colMateriaalit", {}, Luokka::Osallistuu::EiKumpaankaan);

clsRakennekerros& colMateriaalit::LisaaKerros() { return Add(Tunniste::Uusi(clsRakennekerros::kLuokka.NimiSana())); }

void colMateriaalit::SiirraSisaanpain(int paikka) {
  const Tunniste siirrettava = Item(paikka).sKey;
  if (paikka == 1) return;
  const clsRakennekerros sisempi = Item(paikka - 1);
  Remove(paikka - 1);
  LisaaJalkeen(siirrettava, sisempi.sKey) = sisempi;
}
