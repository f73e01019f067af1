// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Kenttanimi.h"

#include "kernel/Kirjainkoko.h"
#include "kernel/Luetteleminen.h"

namespace {

std::string Otsikko(const Ohjain& ohjain) {
  std::string otsikko = ohjain.Teksti();
  if (otsikko.ends_with(':')) otsikko.pop_back();
  return otsikko;
}

/// Captions of the controls in a list with commas.
std::string Otsikot(const Lomakeikkuna& ikkuna, std::string_view nimet) {
  std::string otsikot;
  while (!nimet.empty()) {
    const auto pilkku = nimet.find(',');
    LisaaLuetteloon(otsikot, Otsikko(ikkuna.Etsi(nimet.substr(0, pilkku))));
    nimet.remove_prefix(pilkku == std::string_view::npos ? nimet.size() : pilkku + 1);
  }
  return otsikot;
}

}  // namespace

std::string KentanNimi(const Lomakeikkuna& ikkuna, const Ohjain& ohjain) {
  if (!ohjain.Nimio().empty()) return Otsikot(ikkuna, ohjain.Nimio());
  for (const auto& otsikko : ikkuna.Ohjaimet())
    if (!otsikko->Kumppani().empty() && SamaNimi(otsikko->Kumppani(), ohjain.Nimi())) return Otsikko(*otsikko);
  return {};
}

std::string KentanYksikko(const Lomakeikkuna& ikkuna, const Ohjain& ohjain) {
  constexpr std::size_t kEtuliite = 3;  // txt
  const Ohjain* yksikko = ikkuna.Loyda("lblYks" + ohjain.Nimi().substr(kEtuliite));
  return yksikko ? yksikko->Teksti() : std::string();
}
