// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Kumous.h"

#include <utility>

#include "building/clsRakennus.h"

void Kumous::Aloita(clsRakennus* rakennus) {
  rakennus_ = rakennus;
  ennen_.reset();
  nyt_.reset();
  if (!rakennus_) return;
  muutoksia_ = rakennus_->Muutoksia();
  nyt_ = rakennus_->Kopioi();
  nyt_->MuuLampo = rakennus_->MuuLampo;
}

void Kumous::Seuraa(clsRakennus* rakennus) {
  if (rakennus != rakennus_) return Aloita(rakennus);
  if (!rakennus_ || rakennus_->Muutoksia() == muutoksia_) return;
  auto edellinen = std::move(nyt_);
  Aloita(rakennus_);
  if (edellinen && edellinen->Perustiedot.OletusarvotLaskettu) ennen_ = std::move(edellinen);
}

void Kumous::Kumoa() {
  if (!Voi()) return;
  const auto edellinen = std::move(ennen_);
  edellinen->Kopioi(rakennus_);
  rakennus_->MuuLampo = edellinen->MuuLampo;
  rakennus_->Saa.AsetaSaaPaikkakunta(rakennus_->Perustiedot.LammTarveLukuPaikkakuntaID());
  rakennus_->Muuttui({});
  Seuraa(rakennus_);
}
