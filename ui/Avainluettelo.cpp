// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Avainluettelo.h"

#include <algorithm>
#include <utility>

void Avainluettelo::Tayta(const ListView& lista, std::vector<Tunniste> avaimet, Taulukko rivit) {
  const Tunniste valittu = Valittu(lista);
  avaimet_ = std::move(avaimet);
  std::vector<std::string> summat = std::move(rivit.back());
  rivit.pop_back();
  lista.Summarivi({});
  lista.Rivit(std::move(rivit));
  lista.Summarivi(std::move(summat));
  Valitse(lista, valittu);
}

void Avainluettelo::Valitse(const ListView& lista, const Tunniste& avain) const {
  const auto paikka = std::ranges::find(avaimet_, avain);
  lista.Indeksi(paikka == avaimet_.end() ? 0 : static_cast<int>(paikka - avaimet_.begin()));
}

Tunniste Avainluettelo::Valittu(const ListView& lista) const {
  return lista.Indeksi() < 0 ? Tunniste() : avaimet_.at(static_cast<std::size_t>(lista.Indeksi()));
}
