// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Ohjeluettelo.h"

#include <algorithm>
#include <optional>
#include <sstream>

namespace {

constexpr std::size_t kKenttia = 4;

std::vector<std::string> Kentat(const std::string& rivi) {
  std::vector<std::string> kentat;
  std::string_view loput = rivi;
  for (std::size_t sarkain; (sarkain = loput.find('\t')) != std::string_view::npos; loput.remove_prefix(sarkain + 1))
    kentat.emplace_back(loput.substr(0, sarkain));
  kentat.emplace_back(loput);
  return kentat;
}

std::vector<int> Luvut(const std::string& teksti) {
  std::istringstream virta(teksti);
  std::vector<int> luvut;
  for (int luku = 0; virta >> luku;) luvut.push_back(luku);
  return luvut;
}

std::optional<Ohjeluettelo::Rivi> LueRivi(const std::string& rivi) {
  const auto kentat = Kentat(rivi);
  if (kentat.size() != kKenttia || kentat[1].empty()) return {};
  const auto taso = Luvut(kentat[0]);
  if (taso.size() != 1) return {};
  return Ohjeluettelo::Rivi{taso[0], kentat[1], kentat[2], Luvut(kentat[3])};
}

}  // namespace

Ohjeluettelo::Ohjeluettelo(std::string_view sisalto) {
  std::istringstream virta{std::string(sisalto)};
  for (std::string teksti; std::getline(virta, teksti);)
    if (auto rivi = LueRivi(teksti)) rivit_.push_back(std::move(*rivi));
}

const Ohjeluettelo::Rivi* Ohjeluettelo::Aihe(int aihe) const {
  if (rivit_.empty()) return nullptr;
  const auto it = std::ranges::find_if(rivit_, [=](const Rivi& r) { return std::ranges::count(r.aiheet, aihe) > 0; });
  return it == rivit_.end() ? &rivit_.front() : &*it;
}
