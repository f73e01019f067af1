// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Materiaalivaikutukset.h"

#include <algorithm>

#include "kernel/Luetteleminen.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"

namespace {

/// The database tells emissions in grams.
constexpr std::size_t kEnsimmainenPaasto = kIlmastonLampeneminen;
constexpr double kGrammaa = 1000;
constexpr int kEnsimmainenArvo = 2;

std::string Lause() {
  std::string sarakkeet = "MateriaaliId, Nimi";
  for (const std::string_view laji : kVaikutuslajit) LisaaLuetteloon(sarakkeet, std::string(laji));
  return "SELECT " + sarakkeet + ", Lahde, Tila FROM Materiaalivaikutus";
}

Materiaalivaikutus LueRivi(const Kysely& kysely) {
  Materiaalivaikutus rivi;
  int sarake = kEnsimmainenArvo;
  for (std::size_t i = 0; i < kVaikutuslajit.size(); ++i, ++sarake)
    if (!kysely.OnTyhja(sarake)) rivi.kilolle[i] = kysely.Luku(sarake) / (i < kEnsimmainenPaasto ? 1 : kGrammaa);
  rivi.Lahde = kysely.Teksti(sarake);
  rivi.Tila = kysely.Teksti(sarake + 1);
  return rivi;
}

bool OnTietoa(const Materiaalivaikutus& rivi) {
  return std::ranges::any_of(rivi.kilolle, [](const auto& arvo) { return arvo.has_value(); });
}

}  // namespace

Materiaalivaikutukset::Materiaalivaikutukset(const std::string& kanta) try {
  const Tietokanta tietokanta(kanta);
  Kysely kysely(tietokanta, Lause());
  while (kysely.Seuraava()) {
    const std::string id(kysely.Teksti(0));
    nimet_.emplace(kysely.Teksti(1), id);
    if (Materiaalivaikutus rivi = LueRivi(kysely); OnTietoa(rivi)) vaikutukset_.emplace(id, std::move(rivi));
  }
} catch (...) {
  NostaVirhe("Materiaalivaikutukset:Materiaalivaikutukset Method");
}

const Materiaalivaikutus* Materiaalivaikutukset::Etsi(const Materiaali& materiaali) const {
  if (const auto rivi = vaikutukset_.find(materiaali.Id); rivi != vaikutukset_.end()) return &rivi->second;
  const auto nimi = nimet_.find(materiaali.Nimi);
  if (nimi == nimet_.end()) return nullptr;
  const auto rivi = vaikutukset_.find(nimi->second);
  return rivi == vaikutukset_.end() ? nullptr : &rivi->second;
}
