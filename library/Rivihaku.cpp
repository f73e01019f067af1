// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rivihaku.h"

#include <stdexcept>

namespace {

void NaytaSarake(const SQLite::Column& sarake, ArvoNakyma& nakyma) {
  if (sarake.isInteger())
    nakyma.Aseta(sarake.getInt64());
  else if (sarake.isFloat())
    nakyma.Aseta(sarake.getDouble());
  else
    nakyma.Aseta(std::string_view(sarake.getText(), static_cast<std::size_t>(sarake.getBytes())));
}

}  // namespace

Rivihaku::Rivihaku(const SQLite::Database& kanta, const char* sql, const Luokka& luokka) : kysely_(kanta, sql) {
  for (int i = 0; i < kysely_.getColumnCount(); ++i) jasenet_.push_back(luokka.Etsi(kysely_.getColumnName(i)));
}

void Rivihaku::LueRivi(Olio& olio) {
  for (std::size_t i = 0; i < jasenet_.size(); ++i) {
    const SQLite::Column sarake = kysely_.getColumn(static_cast<int>(i));
    if (!jasenet_[i] || sarake.isNull()) continue;
    ArvoNakyma nakyma;
    NaytaSarake(sarake, nakyma);
    if (!jasenet_[i]->kirjoita || !jasenet_[i]->kirjoita(olio, nakyma))
      throw std::runtime_error("sarakkeen " + std::string(jasenet_[i]->nimi) + " arvoa ei voi lukea");
  }
}
