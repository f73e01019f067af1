// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakennetyyppi.h"

#include <array>

namespace {

struct Rivi {
  std::string_view sana;
  Pintavastukset pinnat;
};

constexpr std::array<Rivi, 8> kRivit{{
    {"Ulkoseinä", {0.13F, 0.04F}},
    {"Yläpohja", {0.10F, 0.04F}},
    {"Alapohja", {0.17F, 0.04F}},
    {"Ikkuna", {0.13F, 0.04F}},
    {"Ovi", {0.13F, 0.04F}},
    {"KantavaValiseinä", {0.13F, 0.13F}},
    {"KevytValiseinä", {0.13F, 0.13F}},
    {"Välipohja", {0.13F, 0.13F}},
}};

}  // namespace

std::optional<std::int32_t> RakennetyyppiSanasta(std::string_view sana) {
  for (std::size_t i = 0; i < kRivit.size(); ++i)
    if (kRivit[i].sana == sana) return static_cast<std::int32_t>(i);
  return std::nullopt;
}

std::string_view RakennetyypinSana(std::int32_t tyyppi) {
  const auto i = static_cast<std::size_t>(tyyppi);
  return i < kRivit.size() ? kRivit[i].sana : std::string_view();
}

Pintavastukset Oletuspintavastukset(std::string_view sana) {
  const auto tyyppi = RakennetyyppiSanasta(sana).value_or(Rakennelaji::Ulkoseina);
  return kRivit[static_cast<std::size_t>(tyyppi)].pinnat;
}

Lampovirta LampovirranSuunta(std::string_view sana) {
  const auto tyyppi = RakennetyyppiSanasta(sana);
  if (tyyppi == Rakennelaji::Ylapohja) return Lampovirta::Ylos;
  return tyyppi == Rakennelaji::Alapohja ? Lampovirta::Alas : Lampovirta::Vaakaan;
}
