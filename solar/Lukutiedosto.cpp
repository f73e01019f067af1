// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Lukutiedosto.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "solar/AurinkoVirhe.h"

namespace {

constexpr std::string_view kTyhjeet = " \t\r";

std::string_view Siistitty(std::string_view teksti) {
  const auto alku = teksti.find_first_not_of(kTyhjeet);
  if (alku == std::string_view::npos) return {};
  return teksti.substr(alku, teksti.find_last_not_of(kTyhjeet) - alku + 1);
}

/// Takes the text before the next comma off the line; nothing when the line is used up.
std::optional<std::string_view> SeuraavaKentta(std::optional<std::string_view>& rivi) {
  if (!rivi) return std::nullopt;
  const auto pilkku = rivi->find(',');
  const auto kentta = rivi->substr(0, pilkku);
  if (pilkku == std::string_view::npos)
    rivi.reset();
  else
    rivi->remove_prefix(pilkku + 1);
  return Siistitty(kentta);
}

std::optional<double> Luku(std::string_view teksti) {
  double luku = 0;
  const char* loppu = teksti.data() + teksti.size();
  const auto [kohta, virhe] = std::from_chars(teksti.data(), loppu, luku);
  if (virhe != std::errc{} || kohta != loppu || !std::isfinite(luku)) return std::nullopt;
  return luku;
}

}  // namespace

Lukutiedosto::Lukutiedosto(std::string_view polku) : polku_(polku), tiedosto_(polku_, std::ios::binary) {
  if (!SeuraavaRivi()) throw AurinkoVirhe("Tiedostoa ei löydy, se on tyhjä tai sitä ei voi lukea: " + polku_);
}

bool Lukutiedosto::SeuraavaRivi() {
  ++numero_;
  rivi_.clear();
  return static_cast<bool>(std::getline(tiedosto_, rivi_));
}

bool Lukutiedosto::OnTyhja() const { return Siistitty(rivi_).empty(); }

void Lukutiedosto::Luvut(std::span<double> luvut) const {
  std::optional<std::string_view> loput = rivi_;
  for (std::size_t i = 0; i < luvut.size(); ++i) {
    const auto kentta = SeuraavaKentta(loput);
    if (!kentta) Hylkaa("kenttiä on liian vähän, niitä pitää olla " + std::to_string(luvut.size()));
    const auto luku = Luku(*kentta);
    if (!luku) Hylkaa("kenttä " + std::to_string(i + 1) + " ei ole luku");
    luvut[i] = *luku;
  }
  if (loput) Hylkaa("kenttiä on liikaa, niitä pitää olla " + std::to_string(luvut.size()));
}

void Lukutiedosto::Hylkaa(std::string_view syy) const {
  throw AurinkoVirhe(polku_ + ", rivi " + std::to_string(numero_) + ": " + std::string(syy) + ".");
}
