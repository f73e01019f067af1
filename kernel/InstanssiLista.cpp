// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/InstanssiLista.h"

#include <algorithm>

std::size_t InstanssiLista::Kohta(std::size_t tiiviste, const Tunniste& tunniste) const noexcept {
  const std::size_t peite = paikat_.size() - 1;
  std::size_t kohta = tiiviste & peite;
  while (paikat_[kohta].olio && !(paikat_[kohta].tiiviste == tiiviste && paikat_[kohta].olio->InstanssiId == tunniste))
    kohta = (kohta + 1) & peite;
  return kohta;
}

bool InstanssiLista::Add(Olio& olio, Olio* omistaja) {
  if (maara_ * 2 >= paikat_.size()) Kasvata();
  const std::size_t tiiviste = olio.InstanssiId.Tiiviste();
  Paikka& paikka = paikat_[Kohta(tiiviste, olio.InstanssiId)];
  if (paikka.olio) return false;
  paikka = {tiiviste, &olio, omistaja};
  ++maara_;
  return true;
}

Instanssi InstanssiLista::Etsi(const Tunniste& instanssiId) const noexcept {
  if (paikat_.empty()) return {};
  const Paikka& paikka = paikat_[Kohta(instanssiId.Tiiviste(), instanssiId)];
  return {paikka.olio, paikka.omistaja};
}

void InstanssiLista::Kasvata() {
  std::vector<Paikka> vanhat(std::max<std::size_t>(16, paikat_.size() * 2));
  vanhat.swap(paikat_);
  for (const Paikka& paikka : vanhat)
    if (paikka.olio) paikat_[Kohta(paikka.tiiviste, paikka.olio->InstanssiId)] = paikka;
}

void InstanssiLista::Tyhjenna() noexcept {
  if (maara_ == 0) return;
  for (Paikka& paikka : paikat_) paikka.olio = nullptr;
  maara_ = 0;
}

void Instanssirekisteri::Lisaa(const Luokka& luokka) {
  if (listat_.size() <= luokka.Numero()) listat_.resize(luokka.Numero() + 1);
  if (!listat_[luokka.Numero()]) listat_[luokka.Numero()] = std::make_unique<InstanssiLista>();
}

InstanssiLista* Instanssirekisteri::Etsi(const Luokka& luokka) noexcept {
  return luokka.Numero() < listat_.size() ? listat_[luokka.Numero()].get() : nullptr;
}

InstanssiLista* Instanssirekisteri::Etsi(std::string_view clsNimi) noexcept {
  const Luokka* luokka = Luokka::Nimella(clsNimi);
  return luokka ? Etsi(*luokka) : nullptr;
}

int Instanssirekisteri::Count() const noexcept {
  return static_cast<int>(std::ranges::count_if(listat_, [](const auto& lista) { return lista != nullptr; }));
}

void Instanssirekisteri::TyhjennaIdListat() noexcept {
  for (const auto& lista : listat_)
    if (lista) lista->Tyhjenna();
}
