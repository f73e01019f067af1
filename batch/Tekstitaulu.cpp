// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Tekstitaulu.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr const char* kValissa = "  ";

/// Characters of a UTF-8 text: its bytes less the continuation bytes.
std::size_t Merkkeja(std::string_view teksti) {
  return static_cast<std::size_t>(
      std::ranges::count_if(teksti, [](char tavu) { return (static_cast<unsigned char>(tavu) & 0xC0) != 0x80; }));
}

}  // namespace

void Tekstitaulu::Lisaa(Rivi rivi) {
  rivi.resize(sarakkeita_);
  rivit_.push_back(std::move(rivi));
}

void Tekstitaulu::Tulosta(std::ostream& tulos) const {
  std::vector<std::size_t> leveydet(sarakkeita_);
  for (const Rivi& rivi : rivit_)
    for (std::size_t i = 0; i < rivi.size(); ++i) leveydet[i] = std::max(leveydet[i], Merkkeja(rivi[i]));
  for (const Rivi& rivi : rivit_) {
    std::string teksti;
    for (std::size_t i = 0; i < sarakkeita_; ++i) {
      const std::string solu = rivi.empty() ? std::string(leveydet[i], '-') : rivi[i];
      const std::string taytto(leveydet[i] - Merkkeja(solu), ' ');
      teksti += kValissa + (i == 0 ? solu + taytto : taytto + solu);
    }
    tulos << teksti.substr(0, teksti.find_last_not_of(' ') + 1) << '\n';
  }
}
