// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/clsTyyppiTiedot.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>

#include "kernel/Hakemistot.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Virhe.h"

namespace {

/// Columns of a class's table that aren't attributes.
constexpr std::array<std::string_view, 9> kEiAttribuutteja{
    "ObjID", "ParentID", "InstanssiId", "MyRealNameInParentObj", "OrderID", "Col", "Count", "Item", "ListaItem"};

using Mallipohja = std::vector<std::pair<std::string, std::vector<std::string>>>;  // class, attributes

std::vector<std::string> LueAttribuutit(SQLite::Database& kanta, const std::string& taulu) {
  std::vector<std::string> nimet;
  SQLite::Statement kysely(kanta, "SELECT * FROM \"" + taulu + "\" LIMIT 0");
  for (int i = 0; i < kysely.getColumnCount(); ++i) {
    const std::string nimi = kysely.getColumnName(i);
    if (std::ranges::none_of(kEiAttribuutteja, [&](auto ei) { return SamaNimi(ei, nimi); })) nimet.push_back(nimi);
  }
  return nimet;
}

Mallipohja LueMallipohja(const std::string& tiedosto) {
  SQLite::Database kanta(tiedosto, SQLite::OPEN_READONLY);
  Mallipohja pohja;
  SQLite::Statement luokat(kanta, "SELECT Name FROM ClassTypes");
  while (luokat.executeStep()) pohja.emplace_back(luokat.getColumn(0).getString(), std::vector<std::string>{});
  for (auto& [nimi, attribuutit] : pohja) attribuutit = LueAttribuutit(kanta, nimi);
  return pohja;
}

const Mallipohja& HaeMallipohja(const std::string& tiedosto) {
  static std::map<std::string, Mallipohja> luetut;
  const auto it = luetut.find(tiedosto);
  return it != luetut.end() ? it->second : luetut.emplace(tiedosto, LueMallipohja(tiedosto)).first->second;
}

}  // namespace

void clsTyyppiTieto::Ratkaise() {
  luokka_ = Luokka::Nimella(clsNimi);
  jasenet_.clear();
  oliojasenet_.clear();
  if (!luokka_) return;
  for (const std::string& nimi : clsAttribuutit)
    if (const Jasen* jasen = luokka_->Etsi(nimi)) jasenet_.push_back(jasen);
  std::ranges::copy_if(jasenet_, std::back_inserter(oliojasenet_), &Jasen::OnOlio);
}

void clsTyyppiTiedot::AlustaTyyppitiedot(const std::string& tiedosto) try {
  const Mallipohja& pohja = HaeMallipohja(tiedosto.empty() ? AppPath() + "stemplate.tmp" : tiedosto);
  tiedot_.clear();
  tiedot_.reserve(pohja.size());
  for (const auto& [nimi, attribuutit] : pohja) {
    clsTyyppiTieto& tieto = Add(nimi);
    tieto.clsAttribuutit = attribuutit;
    tieto.Ratkaise();
  }
} catch (...) {
  NostaVirhe("clsTyyppiTiedot:AlustaTyyppitiedot Method");
}

clsTyyppiTieto& clsTyyppiTiedot::Add(std::string_view clsNimi) {
  clsTyyppiTieto& tieto = tiedot_.emplace_back();
  tieto.clsNimi = clsNimi;
  tieto.Ratkaise();
  if (tieto.luokka_) Nimet.Lisaa(*tieto.luokka_);
  PaivitaHakemisto();
  return tieto;
}

const clsTyyppiTieto& clsTyyppiTiedot::Item(std::string_view clsNimi) const {
  for (const clsTyyppiTieto& tieto : tiedot_)
    if (SamaNimi(tieto.clsNimi, clsNimi)) return tieto;
  throw std::out_of_range("tyyppiluettelossa ei ole luokkaa " + std::string(clsNimi));
}

const clsTyyppiTieto* clsTyyppiTiedot::Etsi(const Luokka& luokka) const noexcept {
  if (luokka.Numero() >= hakemisto_.size() || hakemisto_[luokka.Numero()] < 0) return nullptr;
  return &tiedot_[static_cast<std::size_t>(hakemisto_[luokka.Numero()])];
}

void clsTyyppiTiedot::Remove(std::string_view clsNimi) {
  const clsTyyppiTieto& tieto = Item(clsNimi);
  if (tieto.luokka_) Nimet.Poista(*tieto.luokka_);
  tiedot_.erase(tiedot_.begin() + (&tieto - tiedot_.data()));
  PaivitaHakemisto();
}

void clsTyyppiTiedot::PaivitaHakemisto() {
  hakemisto_.assign(Luokka::Kaikki().size(), -1);
  for (std::size_t i = 0; i < tiedot_.size(); ++i)
    if (tiedot_[i].luokka_) hakemisto_[tiedot_[i].luokka_->Numero()] = static_cast<std::int16_t>(i);
}
