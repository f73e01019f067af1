// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmMateriaalimuutokset.h"

#include "tekstit/lomakkeet_kirjasto.h"
#include "ui/Tekstivarasto.h"

namespace {}

frmMateriaalimuutokset::frmMateriaalimuutokset() : Lomake("frmMateriaalimuutokset") {
  cmdOk.KunKlikataan([this] {
    hyvaksytty_ = true;
    Sulje();
  });
  cmdPeruuta.KunKlikataan([this] { Sulje(); });
}

bool frmMateriaalimuutokset::Kysy(Taulukko muutokset) {
  lblMaara.Otsikko(Teksti(tekstit::kMuutoksia) + " " + std::to_string(muutokset.size()));
  lvwMuutokset.Rivit(std::move(muutokset));
  NaytaModaalisena();
  return hyvaksytty_;
}
