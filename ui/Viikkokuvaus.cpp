// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Viikkokuvaus.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tekstit/lomakkeet_puhaltimet.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr int kPaivia = 7, kLauantai = 5, kSunnuntai = 6, kMinuuttejaVuorokaudessa = 1440;

/// Flow, %, in each minute of the week.
class Viikko {
 public:
  void Lisaa(const Viikkokaynti& kaynti) {
    int kesto = kaynti.paattyy.minuutit - kaynti.alkaa.minuutit;
    if (kesto <= 0) kesto += kMinuuttejaVuorokaudessa;
    const auto [ensimmainen, paivia] = Paivat(kaynti.kertoja);
    for (int paiva = ensimmainen; paiva < ensimmainen + paivia; ++paiva)
      for (int i = 0; i < kesto; ++i)
        Virta(paiva * kMinuuttejaVuorokaudessa + kaynti.alkaa.minuutit + i) += kaynti.virta;
  }
  double Virta(int paiva, int minuutti) const {
    return virrat_[static_cast<std::size_t>(paiva * kMinuuttejaVuorokaudessa + minuutti)];
  }

 private:
  /// Minute of the week; what runs over Sunday's midnight goes on on Monday.
  double& Virta(int minuutti) { return virrat_[static_cast<std::size_t>(minuutti) % virrat_.size()]; }

  /// First day and number of days.
  std::pair<int, int> Paivat(int kertoja) const {
    if (kertoja > 2) return {0, std::min(kertoja, kPaivia)};
    if (kertoja == 2) return {kLauantai, 2};
    return {Minuutteja(kLauantai) <= Minuutteja(kSunnuntai) ? kLauantai : kSunnuntai, 1};
  }
  std::ptrdiff_t Minuutteja(int paiva) const {
    const auto alku = virrat_.begin() + paiva * kMinuuttejaVuorokaudessa;
    return std::count_if(alku, alku + kMinuuttejaVuorokaudessa, [](double virta) { return virta > 0; });
  }

  std::array<double, kPaivia * kMinuuttejaVuorokaudessa> virrat_{};
};

/// Adds the periods of one day to the series.
void LisaaPaiva(const Viikko& viikko, int paiva, std::vector<Kaaviosarja>& sarjat) {
  for (int alku = 0, loppu = 0; alku < kMinuuttejaVuorokaudessa; alku = loppu) {
    const double virta = viikko.Virta(paiva, alku);
    while (loppu < kMinuuttejaVuorokaudessa && viikko.Virta(paiva, loppu) == virta) ++loppu;
    if (virta <= 0) continue;
    sarjat[kPaivat].arvot.push_back(paiva);
    sarjat[kAlut].arvot.push_back(alku);
    sarjat[kLoput].arvot.push_back(loppu);
    sarjat[kVirrat].arvot.push_back(virta);
  }
}

}  // namespace

Kaaviotiedot Viikkokuvaus(std::string otsikko, const std::vector<Viikkokaynti>& kaynnit) {
  Kaaviotiedot kuva{.otsikko = std::move(otsikko), .nimet = {}, .yksikko = "%"};
  for (const Tekstinumero nimi : {tekstit::kPaiva, tekstit::kAlkaa, tekstit::kPaattyy, tekstit::kIlmavirta})
    kuva.sarjat.push_back({Teksti(nimi), {}});
  Viikko viikko;
  for (const Viikkokaynti& kaynti : kaynnit)
    if (kaynti.kertoja > 0 && kaynti.virta > 0) viikko.Lisaa(kaynti);
  for (int paiva = 0; paiva < kPaivia; ++paiva) {
    kuva.nimet.push_back(Teksti(tekstit::kViikonpaivat[static_cast<std::size_t>(paiva)]));
    LisaaPaiva(viikko, paiva, kuva.sarjat);
  }
  return kuva;
}
