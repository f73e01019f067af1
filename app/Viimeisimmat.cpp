// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Viimeisimmat.h"

#include <algorithm>
#include <filesystem>

#include "kernel/Asetusvarasto.h"

namespace {

constexpr std::size_t kEnintaan = 5;
constexpr const char* kOsio = "Asetukset_Viimeisimmat";

std::string Avain(std::size_t i) { return "Tiedosto" + std::to_string(i); }

}  // namespace

std::vector<std::string> ViimeisimmatTiedostot() {
  std::vector<std::string> tiedostot;
  for (std::size_t i = 0; i < kEnintaan; ++i)
    if (std::string tiedosto = HaeAsetus(kOsio, Avain(i), ""); !tiedosto.empty())
      tiedostot.push_back(std::move(tiedosto));
  return tiedostot;
}

void LisaaViimeisimpiin(const std::string& tiedosto) try {
  const std::string koko = std::filesystem::absolute(tiedosto).string();
  auto tiedostot = ViimeisimmatTiedostot();
  if (!tiedostot.empty() && tiedostot.front() == koko) return;
  std::erase(tiedostot, koko);
  tiedostot.insert(tiedostot.begin(), koko);
  tiedostot.resize(std::min(tiedostot.size(), kEnintaan));
  for (std::size_t i = 0; i < tiedostot.size(); ++i) TallennaAsetus(kOsio, Avain(i), tiedostot[i]);
} catch (const std::exception&) {
}
