// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Ilmakerrokset.h"

#include <algorithm>
#include <cmath>

#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"

namespace {

constexpr std::string_view kAineSql = "SELECT Nimi FROM Materiaali WHERE Id = 'ilma'";
constexpr std::string_view kRivitSql =
    "SELECT Paksuus, LammonvastusVaaka, LammonvastusYlos, LammonvastusAlas FROM Ilmakerros ORDER BY Paksuus";

}  // namespace

Ilmakerrokset::Ilmakerrokset(const std::string& kanta) try {
  Tietokanta tietokanta(kanta);
  Kysely aine(tietokanta, kAineSql);
  if (aine.Seuraava()) aine_ = aine.Teksti(0);
  rivit_.push_back({});
  Kysely kysely(tietokanta, kRivitSql);
  while (kysely.Seuraava()) rivit_.push_back({kysely.Luku(0), kysely.Luku(1), kysely.Luku(2), kysely.Luku(3)});
} catch (...) {
  NostaVirhe("Ilmakerrokset:Ilmakerrokset Method");
}

double Ilmakerrokset::Rivi::Vastus(Lampovirta suunta) const {
  switch (suunta) {
    case Lampovirta::Ylos:
      return ylos;
    case Lampovirta::Alas:
      return alas;
    default:
      return vaakaan;
  }
}

double Ilmakerrokset::Vastus(double paksuus_mm, Lampovirta suunta) const {
  if (!(paksuus_mm > 0)) return 0;
  const auto yla = std::ranges::lower_bound(rivit_, paksuus_mm, {}, &Rivi::paksuus);
  if (yla == rivit_.end()) return rivit_.back().Vastus(suunta);
  const Rivi& ala = *std::prev(yla);
  return std::lerp(ala.Vastus(suunta), yla->Vastus(suunta), (paksuus_mm - ala.paksuus) / (yla->paksuus - ala.paksuus));
}
