// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakennekirjasto.h"

#include "kernel/Virhe.h"

template <class Tee>
void Rakennekirjasto::Yrita(Osa& osa, Tee tee) {
  try {
    tee();
  } catch (const Virhe& virhe) {
    osa.kanta.reset();
    viat_.push_back({osa.kirjasto, osa.polku + ": " + virhe.SyynKuvaus()});
  }
}

Rakennekirjasto::Rakennekirjasto(const std::string& kayttajanKanta, const std::string& vakiokanta)
    : osat_{{{Kirjasto::Oma, kayttajanKanta}, {Kirjasto::Vakio, vakiokanta}}} {
  for (Osa& osa : osat_) Yrita(osa, [&osa] { osa.kanta.emplace(osa.polku); });
}

std::optional<Rakenneratkaisu> Rakennekirjasto::Hae(const std::string& id) {
  std::optional<Rakenneratkaisu> ratkaisu;
  for (Osa& osa : osat_)
    if (!ratkaisu && osa.kanta) Yrita(osa, [&] { ratkaisu = osa.kanta->Hae(id); });
  return ratkaisu;
}
