// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Viestikooste.h"

#include <algorithm>

#include "kernel/Luetteleminen.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::size_t kNimia = 5;  // told by name

std::string Luettelo(std::span<const std::string> nimet) {
  std::string luettelo;
  for (const std::string& nimi : nimet.first(std::min(nimet.size(), kNimia))) LisaaLuetteloon(luettelo, nimi);
  return nimet.size() > kNimia ? luettelo + " " + TekstiLuvulla(tekstit::kJaMuuta, nimet.size() - kNimia) : luettelo;
}

}  // namespace

bool Viestikooste::Sopii(const Viesti& viesti) const {
  return viesti.teksti == viesti_.teksti && viesti.otsikko == viesti_.otsikko;
}

void Viestikooste::Lisaa(const Viesti& viesti) {
  ++maara_;
  if (!viesti.kohde.empty() && std::ranges::find(kohteet_, viesti.kohde) == kohteet_.end())
    kohteet_.push_back(viesti.kohde);
}

Viesti Viestikooste::Koottu() const {
  Viesti koottu = viesti_;
  if (!kohteet_.empty()) koottu.teksti += "\n\n" + Teksti(tekstit::kKoskee) + " " + Luettelo(kohteet_);
  if (const auto maara = static_cast<std::size_t>(maara_); maara > 1 && maara != kohteet_.size())
    koottu.teksti += "\n\n" + TekstiLuvulla(tekstit::kSamaIlmoitusTuli, maara);
  return koottu;
}

void LisaaKoosteisiin(std::vector<Viestikooste>& koosteet, const Viesti& viesti) {
  const auto oma = std::ranges::find_if(koosteet, [&](const Viestikooste& k) { return k.Sopii(viesti); });
  oma == koosteet.end() ? koosteet.emplace_back(viesti), void() : oma->Lisaa(viesti);
}

std::vector<Viestikooste> Koosta(std::span<const Viesti> viestit) {
  std::vector<Viestikooste> koosteet;
  for (const Viesti& viesti : viestit) LisaaKoosteisiin(koosteet, viesti);
  return koosteet;
}

std::string KoosteTekstina(std::span<const Viesti> viestit) {
  std::string teksti;
  for (const Viestikooste& kooste : Koosta(viestit)) teksti += kooste.Koottu().teksti + "\n";
  return teksti;
}
