// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Lampotilakuvaus.h"

#include "ui/Tekstivarasto.h"

namespace {

constexpr int kPaksuusOtsikko = 5010;
constexpr int kVastusOtsikko = 5011;
constexpr int kLampotilaOtsikko = 5012;

}  // namespace

Kaaviotiedot Lampotilakuvaus(std::string otsikko, const std::vector<Leikkauskerros>& kerrokset,
                             const std::vector<double>& lampotilat, double Tsisa, double Tulko) {
  Kaaviotiedot kuva;
  kuva.otsikko = std::move(otsikko);
  kuva.yksikko = "°C";
  kuva.sarjat = {{Teksti(kPaksuusOtsikko), {}}, {Teksti(kVastusOtsikko), {}}, {Teksti(kLampotilaOtsikko), {}}};
  for (const Leikkauskerros& kerros : kerrokset) {
    kuva.nimet.push_back(kerros.nimi);
    kuva.sarjat[kPaksuudet].arvot.push_back(kerros.paksuus_mm);
    kuva.sarjat[kVastukset].arvot.push_back(kerros.vastus);
  }
  if (lampotilat.empty()) return kuva;
  auto& T = kuva.sarjat[kLampotilat].arvot;
  T = lampotilat;
  T.insert(T.begin(), Tsisa);
  T.push_back(Tulko);
  return kuva;
}
