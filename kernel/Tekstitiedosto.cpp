// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tekstitiedosto.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace {

/// Code points of the bytes 0x80 to 0x9F in Windows-1252; the others are those of Latin-1.
constexpr std::array<std::uint16_t, 32> kWindows1252{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Characters of more than one byte: what the first byte may be, and the second; the others are 0x80 to 0xBF. Overlong
/// forms, surrogates and what lies beyond U+10FFFF are no characters (Unicode standard, table 3-7).
struct Sarja {
  unsigned char eka, ekaYla, toka, tokaYla;
  std::size_t pituus;
};
constexpr Sarja kSarjat[] = {{0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
                             {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
                             {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4}};

bool Sopii(const Sarja& s, std::string_view tavut) {
  const auto tavu = [&](std::size_t i) { return static_cast<unsigned char>(tavut[i]); };
  if (tavut.size() < s.pituus || tavu(0) < s.eka || tavu(0) > s.ekaYla || tavu(1) < s.toka || tavu(1) > s.tokaYla)
    return false;
  for (std::size_t i = 2; i < s.pituus; ++i)
    if ((tavu(i) & 0xC0) != 0x80) return false;
  return true;
}

/// Bytes of the character that stands first; 0 when none does.
std::size_t MerkinPituus(std::string_view tavut) {
  if (static_cast<unsigned char>(tavut[0]) < 0x80) return 1;
  for (const Sarja& sarja : kSarjat)
    if (Sopii(sarja, tavut)) return sarja.pituus;
  return 0;
}

bool OnUtf8(std::string_view tavut) {
  while (!tavut.empty()) {
    const std::size_t n = MerkinPituus(tavut);
    if (n == 0) return false;
    tavut.remove_prefix(n);
  }
  return true;
}

void LisaaMerkki(std::string& teksti, std::uint16_t koodi) {
  if (koodi >= 0x800) {
    teksti += static_cast<char>(0xE0 | koodi >> 12);
    teksti += static_cast<char>(0x80 | (koodi >> 6 & 0x3F));
  } else {
    teksti += static_cast<char>(0xC0 | koodi >> 6);
  }
  teksti += static_cast<char>(0x80 | (koodi & 0x3F));
}

}  // namespace

std::string KorvaaVirheelliset(std::string_view tavut) {
  std::string teksti;
  while (!tavut.empty()) {
    const std::size_t n = MerkinPituus(tavut);
    teksti += n == 0 ? std::string_view("\uFFFD") : tavut.substr(0, n);
    tavut.remove_prefix(std::max<std::size_t>(n, 1));
  }
  return teksti;
}

std::string Utf8ksi(std::string_view tavut) {
  if (OnUtf8(tavut)) return std::string(tavut);
  std::string teksti;
  for (const char tavu : tavut) {
    const auto t = static_cast<unsigned char>(tavu);
    if (t < 0x80)
      teksti += tavu;
    else
      LisaaMerkki(teksti, t < 0xA0 ? kWindows1252[t - 0x80u] : t);
  }
  return teksti;
}

std::vector<std::string> LueRivit(const std::string& polku) {
  std::ifstream tiedosto(polku, std::ios::binary);
  if (!tiedosto) throw std::runtime_error("Tiedostoa " + polku + " ei voi avata: " + std::strerror(errno) + ".");
  std::ostringstream sisalto;
  sisalto << tiedosto.rdbuf();
  std::istringstream teksti(Utf8ksi(sisalto.view()));
  std::vector<std::string> rivit;
  for (std::string rivi; std::getline(teksti, rivi);) {
    if (rivit.empty() && rivi.starts_with("\xEF\xBB\xBF")) rivi.erase(0, 3);
    if (rivi.ends_with('\r')) rivi.pop_back();
    rivit.push_back(std::move(rivi));
  }
  return rivit;
}
