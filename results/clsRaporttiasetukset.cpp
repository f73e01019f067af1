// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/clsRaporttiasetukset.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsRaporttiasetukset::Nykytila>("Nykytila"),
    Arvo<&clsRaporttiasetukset::Suositus>("Suositus"),
    Arvo<&clsRaporttiasetukset::Poisjatetyt>("Poisjatetyt"),
};

std::vector<std::string> Nimet(const std::string& luettelo) {
  std::vector<std::string> nimet;
  std::istringstream virta(luettelo);
  for (std::string nimi; std::getline(virta, nimi, ',');)
    if (!nimi.empty()) nimet.push_back(nimi);
  return nimet;
}

}  // namespace

const Luokka clsRaporttiasetukset::kLuokka{"clsRaporttiasetukset", kJasenet};

bool clsRaporttiasetukset::OnMukana(std::string_view osa) const {
  const std::vector<std::string> poisjatetyt = Nimet(Poisjatetyt);
  return std::ranges::find(poisjatetyt, osa) == poisjatetyt.end();
}

void clsRaporttiasetukset::OtaMukaan(std::string_view osa, bool mukana) {
  std::vector<std::string> nimet = Nimet(Poisjatetyt);
  std::erase(nimet, osa);
  if (!mukana) nimet.emplace_back(osa);
  Poisjatetyt.clear();
  for (const std::string& nimi : nimet) Poisjatetyt += (Poisjatetyt.empty() ? "" : ",") + nimi;
}
