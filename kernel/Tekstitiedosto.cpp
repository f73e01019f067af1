// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tekstitiedosto.h"

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

/// Bytes of the sequence that starts with this one; 0 when no sequence does.
std::size_t SarjanPituus(unsigned char eka) {
  if (eka < 0x80) return 1;
  if (eka >= 0xC2 && eka <= 0xDF) return 2;
  if (eka >= 0xE0 && eka <= 0xEF) return 3;
  if (eka >= 0xF0 && eka <= 0xF4) return 4;
  return 0;
}

bool OnUtf8(std::string_view tavut) {
  for (std::size_t i = 0; i < tavut.size();) {
    const std::size_t n = SarjanPituus(static_cast<unsigned char>(tavut[i]));
    if (n == 0 || i + n > tavut.size()) return false;
    for (std::size_t j = 1; j < n; ++j)
      if ((static_cast<unsigned char>(tavut[i + j]) & 0xC0) != 0x80) return false;
    i += n;
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
