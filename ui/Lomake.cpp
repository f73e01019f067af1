// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lomake.h"

#include <algorithm>

#include "kernel/Kirjainkoko.h"
#include "ui/Komento.h"
#include "ui/Lomakekaannos.h"

namespace {

std::vector<Lomake*>& Avoimet() {
  static std::vector<Lomake*> avoimet;
  return avoimet;
}

std::function<void(const Lomake&)>& Tulostus() {
  static std::function<void(const Lomake&)> tulosta;
  return tulosta;
}

/// The control raises no more events.
void Vaienna(Ohjain& ohjain) {
  for (auto* tapahtuma : {&ohjain.Muuttui, &ohjain.Klikattu, &ohjain.Poistuttu, &ohjain.Lisattava, &ohjain.Poistettava})
    *tapahtuma = nullptr;
  ohjain.Liitetty = nullptr;
  ohjain.Muokattu = nullptr;
  ohjain.SaaSiirtaa = nullptr;
  ohjain.Siirretty = nullptr;
}

}  // namespace

Lomake::Lomake(std::string nimi) : nimi_(std::move(nimi)), ikkuna_(TeeLomakeikkuna(nimi_)) {
  KaannaLomake(*this);
  ikkuna_->Tulostettava = [this] { Nosta(Tulostus(), *this); };
  if (Ohjain* nappi = ikkuna_->Loyda("cmdTulosta")) nappi->Klikattu = ikkuna_->Tulostettava;
  ikkuna_->Suljettu = [this] {
    Sulje();
    Nosta(Suljettu);
  };
}

/// The heir, whose functions the controls would call when closing takes the focus from them, is already gone.
Lomake::~Lomake() {
  for (const auto& ohjain : Ohjaimet()) Vaienna(*ohjain);
  Sulje();
}

void Lomake::Otsikko(std::string otsikko) {
  otsikko_ = std::move(otsikko);
  ikkuna_->Otsikko(otsikko_);
}

void Lomake::NaytaModaalisena() {
  auki_ = true;
  Avoimet().push_back(this);
  const IhmisenVuoro vuoro;
  ikkuna_->NaytaModaalisena();
}

void Lomake::Nayta() {
  if (!auki_) Avoimet().push_back(this);
  auki_ = true;
  ikkuna_->Nayta();
}

void Lomake::Sulje() {
  if (!auki_) return;
  auki_ = false;
  std::erase(Avoimet(), this);
  ikkuna_->Sulje();
}

const std::vector<Lomake*>& AvoimetLomakkeet() { return Avoimet(); }

Lomake* AvoinLomake(std::string_view nimi) {
  const auto it = std::ranges::find_if(Avoimet(), [&](const Lomake* l) { return SamaNimi(l->Nimi(), nimi); });
  return it == Avoimet().end() ? nullptr : *it;
}

Lomake* AktiivinenLomake() {
  const auto it = std::find_if(Avoimet().rbegin(), Avoimet().rend(), [](const Lomake* l) { return l->Aktiivinen(); });
  return it == Avoimet().rend() ? nullptr : *it;  // a modal form lies over those shown before it
}

void AsetaTulostus(std::function<void(const Lomake&)> tulosta) { Tulostus() = std::move(tulosta); }

void SuljeLomakkeet() {
  while (!Avoimet().empty()) Avoimet().back()->Sulje();
}
