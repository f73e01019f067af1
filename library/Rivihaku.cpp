// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rivihaku.h"

#include <stdexcept>

Rivihaku::Rivihaku(const Tietokanta& kanta, const char* sql, const Luokka& luokka) : kysely_(kanta, sql) {
  for (int i = 0; i < kysely_.Sarakkeita(); ++i) jasenet_.push_back(luokka.Etsi(kysely_.SarakkeenNimi(i)));
}

void Rivihaku::LueRivi(Olio& olio) {
  for (std::size_t i = 0; i < jasenet_.size(); ++i) {
    const int sarake = static_cast<int>(i);
    if (!jasenet_[i] || kysely_.OnTyhja(sarake)) continue;
    ArvoNakyma nakyma;
    kysely_.Nayta(sarake, nakyma);
    if (!jasenet_[i]->kirjoita || !jasenet_[i]->kirjoita(olio, nakyma))
      throw std::runtime_error("sarakkeen " + std::string(jasenet_[i]->nimi) + " arvoa ei voi lukea");
  }
}
