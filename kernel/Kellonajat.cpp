// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Kellonajat.h"

#include <charconv>

namespace {

constexpr int kMinuuttejaTunnissa = 60, kMinuuttejaVuorokaudessa = 1440;
constexpr std::size_t kOsanPituus = 2;  // digits of the hours or the minutes

std::string KaksiNumeroa(int luku) { return (luku < 10 ? "0" : "") + std::to_string(luku); }

std::string_view IlmanReunoja(std::string_view teksti) {
  const auto alku = teksti.find_first_not_of(" \t");
  if (alku == std::string_view::npos) return {};
  return teksti.substr(alku, teksti.find_last_not_of(" \t") - alku + 1);
}

/// A whole number of one or two digits.
std::optional<int> LueOsa(std::string_view osa) {
  if (osa.empty() || osa.size() > kOsanPituus || osa.find_first_not_of("0123456789") != std::string_view::npos)
    return std::nullopt;
  int luku = 0;
  std::from_chars(osa.data(), osa.data() + osa.size(), luku);
  return luku;
}

/// Where the hours end: at the mark, or before the last two of three or four digits.
std::size_t TuntienPituus(std::string_view teksti) {
  const auto merkki = teksti.find_first_of(":.");
  if (merkki != std::string_view::npos) return merkki;
  return teksti.size() > kOsanPituus ? teksti.size() - kOsanPituus : teksti.size();
}

}  // namespace

std::string KellonaikaTekstina(Kellonaika aika) {
  return KaksiNumeroa(aika.minuutit / kMinuuttejaTunnissa) + ":" + KaksiNumeroa(aika.minuutit % kMinuuttejaTunnissa);
}

std::optional<Kellonaika> LueKellonaika(std::string_view teksti) {
  teksti = IlmanReunoja(teksti);
  const std::string_view tuntiosa = teksti.substr(0, TuntienPituus(teksti));
  std::string_view minuuttiosa = teksti.substr(tuntiosa.size());
  const bool pelkatTunnit = minuuttiosa.empty();
  if (!pelkatTunnit && (minuuttiosa.front() == ':' || minuuttiosa.front() == '.')) minuuttiosa.remove_prefix(1);
  if (!pelkatTunnit && minuuttiosa.size() != kOsanPituus) return std::nullopt;
  const auto tunnit = LueOsa(tuntiosa), minuutit = pelkatTunnit ? std::optional<int>(0) : LueOsa(minuuttiosa);
  if (!tunnit || !minuutit || *minuutit >= kMinuuttejaTunnissa) return std::nullopt;
  const int yhteensa = *tunnit * kMinuuttejaTunnissa + *minuutit;
  if (yhteensa > kMinuuttejaVuorokaudessa) return std::nullopt;
  return Kellonaika{yhteensa % kMinuuttejaVuorokaudessa};
}
