// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tekstitiedosto.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>
#include <sstream>
#include <stdexcept>

namespace {

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

class Muunnin {
 public:
  explicit Muunnin(const char* merkisto) : kahva_(iconv_open("UTF-8", merkisto)) {
    if (kahva_ == iconv_t(-1)) throw std::runtime_error("Järjestelmä ei tunne merkistöä " + std::string(merkisto));
  }
  ~Muunnin() { iconv_close(kahva_); }
  Muunnin(const Muunnin&) = delete;
  Muunnin& operator=(const Muunnin&) = delete;

  /// Nothing when some byte has no character in the encoding.
  std::optional<std::string> Muunna(std::string_view tavut) {
    std::string teksti(3 * tavut.size(), '\0');  // no byte of an 8-bit encoding grows to more
    char *lahde = const_cast<char*>(tavut.data()), *kohde = teksti.data();
    std::size_t luettavaa = tavut.size(), tilaa = teksti.size();
    if (iconv(kahva_, &lahde, &luettavaa, &kohde, &tilaa) == std::size_t(-1)) return std::nullopt;
    teksti.resize(teksti.size() - tilaa);
    return teksti;
  }

 private:
  iconv_t kahva_;
};

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

/// Windows-1252 leaves five bytes undefined: a text with one of them is read as Latin-1, which knows all.
std::string Utf8ksi(std::string_view tavut) {
  if (OnUtf8(tavut)) return std::string(tavut);
  if (auto teksti = Muunnin("CP1252").Muunna(tavut)) return *std::move(teksti);
  return Muunnin("ISO-8859-1").Muunna(tavut).value();
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
