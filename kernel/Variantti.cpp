// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Variantti.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "kernel/Kirjainkoko.h"
#include "kernel/Luvut.h"

namespace {

/// A finite number of any source: integer, real, or a text that reads as one.
std::optional<double> Luku(const ArvoNakyma& lahde) {
  switch (lahde.OmaMuoto()) {
    case ArvoNakyma::Muoto::Kokonaisluku:
      return static_cast<double>(lahde.Kokonais());
    case ArvoNakyma::Muoto::Reaaliluku:
      return std::isfinite(lahde.Reaali()) ? std::optional(lahde.Reaali()) : std::nullopt;
    case ArvoNakyma::Muoto::Teksti: {
      const std::string_view t = lahde.Teksti();
      double arvo = 0;
      const auto [loppu, virhe] = std::from_chars(t.data(), t.data() + t.size(), arvo);
      if (virhe == std::errc() && loppu == t.data() + t.size() && std::isfinite(arvo)) return arvo;
      return LueLuku(t);
    }
    case ArvoNakyma::Muoto::Tyhja:
      break;
  }
  return std::nullopt;
}

template <class T>
bool MuunnaKokonaisluvuksi(const ArvoNakyma& lahde, T& kohde) {
  const auto luku = Luku(lahde);
  if (!luku) return false;
  const double pyoristetty = std::nearbyint(*luku);  // half to even
  if (pyoristetty < std::numeric_limits<T>::min() || pyoristetty > std::numeric_limits<T>::max()) return false;
  kohde = static_cast<T>(pyoristetty);
  return true;
}

std::optional<std::int32_t> Minuutit(std::string_view teksti) {
  if (teksti.size() != 5 || teksti[2] != ':') return std::nullopt;
  int tunnit = 0, minuutit = 0;
  const char* p = teksti.data();
  if (std::from_chars(p, p + 2, tunnit).ptr != p + 2 || std::from_chars(p + 3, p + 5, minuutit).ptr != p + 5)
    return std::nullopt;
  if (tunnit < 0 || tunnit > 23 || minuutit < 0 || minuutit > 59) return std::nullopt;
  return tunnit * 60 + minuutit;
}

}  // namespace

bool Muunna(const ArvoNakyma& lahde, std::int16_t& kohde) { return MuunnaKokonaisluvuksi(lahde, kohde); }
bool Muunna(const ArvoNakyma& lahde, std::int32_t& kohde) { return MuunnaKokonaisluvuksi(lahde, kohde); }

bool Muunna(const ArvoNakyma& lahde, double& kohde) {
  const auto luku = Luku(lahde);
  if (luku) kohde = *luku;
  return luku.has_value();
}

bool Muunna(const ArvoNakyma& lahde, float& kohde) {
  const auto luku = Luku(lahde);
  if (!luku || std::fabs(*luku) > std::numeric_limits<float>::max()) return false;
  kohde = static_cast<float>(*luku);
  return true;
}

bool Muunna(const ArvoNakyma& lahde, bool& kohde) {
  if (lahde.OmaMuoto() == ArvoNakyma::Muoto::Teksti &&
      (SamaNimi(lahde.Teksti(), "True") || SamaNimi(lahde.Teksti(), "Tosi"))) {
    kohde = true;
    return true;
  }
  if (lahde.OmaMuoto() == ArvoNakyma::Muoto::Teksti &&
      (SamaNimi(lahde.Teksti(), "False") || SamaNimi(lahde.Teksti(), "Epätosi"))) {
    kohde = false;
    return true;
  }
  const auto luku = Luku(lahde);
  if (luku) kohde = *luku != 0;
  return luku.has_value();
}

bool Muunna(const ArvoNakyma& lahde, Kellonaika& kohde) {
  if (lahde.OmaMuoto() == ArvoNakyma::Muoto::Teksti)
    if (const auto minuutit = Minuutit(lahde.Teksti())) {
      kohde.minuutit = *minuutit;
      return true;
    }
  const auto luku = Luku(lahde);
  if (!luku || *luku < 0 || *luku >= 1) return false;
  kohde.minuutit = static_cast<std::int32_t>(std::nearbyint(*luku * 1440)) % 1440;
  return true;
}

bool Muunna(const ArvoNakyma& lahde, std::string& kohde) {
  switch (lahde.OmaMuoto()) {
    case ArvoNakyma::Muoto::Teksti:
      kohde.assign(lahde.Teksti());
      return true;
    case ArvoNakyma::Muoto::Kokonaisluku:
      kohde = std::to_string(lahde.Kokonais());
      return true;
    case ArvoNakyma::Muoto::Reaaliluku:
      kohde = LyhinMuoto(lahde.Reaali());
      return true;
    case ArvoNakyma::Muoto::Tyhja:
      break;
  }
  return false;
}

bool Muunna(const ArvoNakyma& lahde, Tunniste& kohde) {
  if (lahde.OmaMuoto() != ArvoNakyma::Muoto::Teksti) return false;
  kohde = Tunniste(lahde.Teksti());
  return true;
}
