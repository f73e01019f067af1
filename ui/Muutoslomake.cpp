// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Muutoslomake.h"

#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Tekstivarasto.h"

Muutoslomake::Muutoslomake(const char* nimi) : Lomake(nimi) {
  cmdOk.KunKlikataan([this] {
    hyvaksytty_ = true;
    Sulje();
  });
  cmdPeruuta.KunKlikataan([this] { Sulje(); });
}

bool Muutoslomake::Kysy(Taulukko muutokset) {
  lblMaara.Otsikko(Teksti(tekstit::kMuutoksia) + " " + std::to_string(muutokset.size()));
  lvwMuutokset.Rivit(std::move(muutokset));
  NaytaModaalisena();
  return hyvaksytty_;
}
