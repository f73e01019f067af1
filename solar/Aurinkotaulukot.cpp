// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Aurinkotaulukot.h"

#include <array>
#include <functional>
#include <map>
#include <string>

namespace {

/// The files of one kind. The one asked for last is nearly always the one asked for next, so it is tried first.
template <class Taulukko>
class Varasto {
 public:
  const Taulukko& Hae(std::string_view polku) {
    if (!viimeksi_ || viimeksi_->first != polku) viimeksi_ = &Luettu(polku);
    return viimeksi_->second;
  }

  void Tyhjenna() {
    viimeksi_ = nullptr;
    taulukot_.clear();
  }

 private:
  using Taulukot = std::map<std::string, Taulukko, std::less<>>;

  const typename Taulukot::value_type& Luettu(std::string_view polku) {
    const auto kohta = taulukot_.find(polku);
    return kohta != taulukot_.end() ? *kohta : *taulukot_.emplace(polku, Taulukko(polku)).first;
  }

  Taulukot taulukot_;
  const typename Taulukot::value_type* viimeksi_ = nullptr;
};

Varasto<Saataulukko> saataulukot;
std::array<Varasto<Varjostustaulukko>, 3> varjostustaulukot;  // by Varjostuslaji

}  // namespace

const Saataulukko& HaeSaataulukko(std::string_view polku) { return saataulukot.Hae(polku); }

const Varjostustaulukko& HaeVarjostustaulukko(Varjostuslaji laji, std::string_view polku) {
  return varjostustaulukot[static_cast<std::size_t>(laji)].Hae(polku);
}

void TyhjennaAurinkotaulukot() {
  saataulukot.Tyhjenna();
  for (auto& varasto : varjostustaulukot) varasto.Tyhjenna();
}
