// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Viestit.h"

#include <utility>

#include "ui/KerataanViestit.h"
#include "ui/Laskentakohde.h"

namespace {

thread_local Viestit* t_viestit = nullptr;

}  // namespace

bool OnVastaus(Napit napit, Vastaus vastaus) {
  switch (vastaus) {
    case Vastaus::Ok:
      return napit == Napit::Ok;
    case Vastaus::Peruuta:
      return napit == Napit::KyllaEiPeruuta || napit == Napit::TallennaHylkaaPeruuta;
    default:
      return napit != Napit::Ok;
  }
}

Viestit& ViestitNyt() {
  thread_local KerataanViestit ikkunaton;
  return t_viestit ? *t_viestit : ikkunaton;
}

void AsetaViestit(Viestit* viestit) { t_viestit = viestit; }

void Ilmoita(Viesti viesti) {
  viesti.kohde = Laskentakohde::Nimi();
  ViestitNyt().Nayta(viesti);
}

void Ilmoita(std::string teksti, std::string otsikko, Vakavuus vakavuus) {
  Ilmoita(Viesti{std::move(teksti), std::move(otsikko), vakavuus});
}
