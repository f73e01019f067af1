// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Varjostustaulukko.h"

#include <algorithm>

#include "solar/Lukutiedosto.h"

namespace {

constexpr std::size_t kSarake[kIlmansuuntia] = {2, 1, 0, 1, 0};  // by orientation; a horizontal surface asks for none

/// The neighbours of x among rising points, and how far x lies from the lower to the upper one, 0 to below 1.
/// Outside the points both neighbours are the outermost one.
struct Vali {
  std::size_t ala;
  std::size_t yla;
  double osuus;
};

template <class Alkio>
Vali EtsiVali(const std::vector<Alkio>& pisteet, double Alkio::*paikka, double x) {
  std::size_t yla = 0;
  while (yla < pisteet.size() && pisteet[yla].*paikka <= x) ++yla;
  if (yla == 0) return {0, 0, 0.0};
  const std::size_t ala = yla - 1;
  if (yla == pisteet.size()) return {ala, ala, 0.0};
  const double alku = pisteet[ala].*paikka;
  return {ala, yla, (x - alku) / (pisteet[yla].*paikka - alku)};
}

/// Between f(lower) and f(upper); the upper one is asked for only where it counts.
template <class Funktio>
double Interpoloi(const Vali& vali, Funktio f) {
  const double alku = f(vali.ala);
  return vali.osuus == 0.0 ? alku : alku + vali.osuus * (f(vali.yla) - alku);
}

/// Where the point x stands, or would stand, among rising points.
template <class Alkio>
typename std::vector<Alkio>::iterator Paikka(std::vector<Alkio>& pisteet, double Alkio::*paikka, double x) {
  return std::find_if(pisteet.begin(), pisteet.end(), [&](const Alkio& p) { return p.*paikka >= x; });
}

bool Valilla(double luku, double ala, double yla) { return luku >= ala && luku <= yla; }

}  // namespace

Varjostustaulukko::Varjostustaulukko(std::string_view polku) {
  Lukutiedosto tiedosto(polku);
  while (tiedosto.SeuraavaRivi())
    if (!tiedosto.OnTyhja()) LisaaRivi(tiedosto);
  if (kayrat_.empty()) tiedosto.Hylkaa("taulukossa ei ole yhtään riviä");
}

void Varjostustaulukko::LisaaRivi(const Lukutiedosto& tiedosto) {
  std::array<double, 2 + kSarakkeita> luvut{};
  tiedosto.Luvut(luvut);
  const auto [leveysaste, kulma, etela, itaLansi, pohjoinen] = luvut;
  if (!Valilla(leveysaste, -90, 90)) tiedosto.Hylkaa("leveysasteen pitää olla välillä -90–90");
  if (!Valilla(kulma, 0, 90)) tiedosto.Hylkaa("varjostuskulman pitää olla välillä 0–90");
  for (const double kerroin : {etela, itaLansi, pohjoinen})
    if (!Valilla(kerroin, 0, 1)) tiedosto.Hylkaa("varjostuskertoimen pitää olla välillä 0–1");

  auto kayra = Paikka(kayrat_, &Kayra::leveysaste, leveysaste);
  if (kayra == kayrat_.end() || kayra->leveysaste != leveysaste) kayra = kayrat_.insert(kayra, {leveysaste, {}});
  const auto piste = Paikka(kayra->pisteet, &Piste::kulma, kulma);
  if (piste != kayra->pisteet.end() && piste->kulma == kulma) tiedosto.Hylkaa("sama leveysaste ja kulma on jo luettu");
  kayra->pisteet.insert(piste, {kulma, {etela, itaLansi, pohjoinen}});
}

double Varjostustaulukko::Kerroin(double leveysaste, double kulma, Ilmansuunta suunta) const {
  if (suunta == Ilmansuunta::Vaaka) return 1.0;
  const std::size_t sarake = kSarake[Indeksi(suunta)];
  return Interpoloi(EtsiVali(kayrat_, &Kayra::leveysaste, leveysaste),
                    [&](std::size_t i) { return KayranKerroin(kayrat_[i], kulma, sarake); });
}

double Varjostustaulukko::KayranKerroin(const Kayra& kayra, double kulma, std::size_t sarake) {
  return Interpoloi(EtsiVali(kayra.pisteet, &Piste::kulma, kulma),
                    [&](std::size_t i) { return kayra.pisteet[i].kertoimet[sarake]; });
}
