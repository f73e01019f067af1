// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/Tarkistukset.h"

#include <algorithm>
#include <array>
#include <optional>

#include "building/Tasehaarukka.h"
#include "checks/Tarkistusajo.h"
#include "tekstit/tarkistukset.h"
#include "ui/Hiljaa.h"
#include "ui/Tekstivarasto.h"

namespace {

/// One calculation for all checks. Without it each that can be computed is, one by one.
std::optional<Tasehaarukka> AvaaHaarukka(clsRakennus& rakennus) {
  try {
    return std::optional<Tasehaarukka>(std::in_place, rakennus);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

void Tee(const Tarkistus& tarkistus, clsRakennus& rakennus, std::vector<Havainto>& havainnot) {
  Tarkistusajo ajo(rakennus, tarkistus, havainnot);
  try {
    tarkistus.tarkista(ajo);
  } catch (const std::exception& virhe) {
    ajo.EiOnnistunut(virhe);
  }
}

}  // namespace

std::string_view TasonSana(Tarkistustaso taso) noexcept {
  constexpr std::array<std::string_view, kTarkistustasoja> kSanat{"ristiriita", "puute", "epätodennäköinen",
                                                                  "muistutus"};
  return kSanat[static_cast<std::size_t>(taso)];
}

std::string TasonOtsikko(Tarkistustaso taso) {
  static_assert(tekstit::kTarkistustasot.size() == kTarkistustasoja);
  return Teksti(tekstit::kTarkistustasot[static_cast<std::size_t>(taso)]);
}

std::span<const Tarkistus> Tarkistukset() {
  static const std::vector<Tarkistus> kaikki = [] {
    std::vector<Tarkistus> rivit;
    for (const auto osa : {Perustietotarkistukset(), Tilatarkistukset(), Konetarkistukset(), Kulutustarkistukset(),
                           Hankintatarkistukset(), Tulostarkistukset()})
      rivit.insert(rivit.end(), osa.begin(), osa.end());
    return rivit;
  }();
  return kaikki;
}

std::vector<Havainto> Tarkista(clsRakennus& rakennus) {
  const Hiljaisuus hiljaisuus;
  const auto haarukka = AvaaHaarukka(rakennus);
  std::vector<Havainto> havainnot;
  for (const Tarkistus& tarkistus : Tarkistukset()) Tee(tarkistus, rakennus, havainnot);
  std::ranges::stable_sort(havainnot, {}, &Havainto::taso);
  return havainnot;
}
