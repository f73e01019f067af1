// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Kumous.h"

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Oliomuisti.h"

Kumous::Kumous(std::size_t muistia) : muistia_(muistia) {}
Kumous::~Kumous() = default;

void Kumous::Aloita(clsRakennus* rakennus) {
  rakennus_ = rakennus;
  tilat_.clear();
  kaytossa_ = 0;
  nyt_ = 0;
  if (!rakennus_ || !rakennus_->Perustiedot.OletusarvotLaskettu) return;
  LisaaTila({});
  rakennus_->OtaKirjatuksi();
}

void Kumous::Kirjaa(std::string_view toiminto) {
  if (!rakennus_) return;
  while (VoiTehdaUudelleen()) {
    kaytossa_ -= tilat_.back().koko;
    tilat_.pop_back();
  }
  LisaaTila(toiminto);
  nyt_ = tilat_.size() - 1;
  Rajaa();
}

void Kumous::LisaaTila(std::string_view toiminto) {
  const std::size_t ennen = oliomuisti::Kaytossa();
  auto kuva = rakennus_->Tilannekuva();
  const std::size_t koko = oliomuisti::Kaytossa() - ennen;
  tilat_.push_back({std::string(toiminto), std::move(kuva), koko, rakennus_->Tallennettu});
  kaytossa_ += koko;
}

void Kumous::Rajaa() {
  while (kaytossa_ > muistia_ && nyt_ > 1) {
    kaytossa_ -= tilat_.front().koko;
    tilat_.pop_front();
    --nyt_;
  }
}

void Kumous::Tallennettiin() {
  for (Tila& tila : tilat_) tila.tallennettu = false;
  if (!tilat_.empty()) tilat_[nyt_].tallennettu = true;
}

void Kumous::Kumoa() {
  if (VoiKumota()) Siirry(nyt_ - 1);
}

void Kumous::TeeUudelleen() {
  if (VoiTehdaUudelleen()) Siirry(nyt_ + 1);
}

void Kumous::Siirry(std::size_t tila) {
  rakennus_->PalautaTilannekuva(*tilat_[tila].kuva);
  rakennus_->Tallennettu = tilat_[tila].tallennettu;
  nyt_ = tila;
}
