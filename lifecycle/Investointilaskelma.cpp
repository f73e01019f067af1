// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Investointilaskelma.h"

#include <algorithm>
#include <cmath>

namespace {

double Diskonttaus(double vuosi, double korko) noexcept { return std::pow(1 + korko, -vuosi); }

/// Calls with the year of each replacement: a life that ends with the period is not renewed.
template <class F>
void Uusinnat(const Hankinta& hankinta, int pitoaika, F&& kasittele) {
  if (hankinta.kayttoika <= 0) return;
  for (int k = 1; k * hankinta.kayttoika < pitoaika; ++k) kasittele(k * hankinta.kayttoika);
}

double NykyarvoUusintoineen(const Hankinta& hankinta, int pitoaika, double korko) noexcept {
  double summa = hankinta.hinta, viimeisin = 0;
  Uusinnat(hankinta, pitoaika, [&](double vuosi) {
    summa += hankinta.hinta * Diskonttaus(vuosi, korko);
    viimeisin = vuosi;
  });
  if (hankinta.kayttoika <= 0) return summa;
  const double jaljella = (viimeisin + hankinta.kayttoika - pitoaika) / hankinta.kayttoika;
  return summa - hankinta.hinta * jaljella * Diskonttaus(pitoaika, korko);
}

/// What a year's saving, of the year `vuosi`, is worth now.
double VuodenNykyarvo(const Investointi& i, const Elinkaarioletukset& o, int vuosi) noexcept {
  const auto arvo = [&](double saasto, double nousu) { return saasto * std::pow((1 + nousu) / (1 + o.korko), vuosi); };
  return arvo(i.saasto.lampo, o.nousu.lampo) + arvo(i.saasto.sahko, o.nousu.sahko) + arvo(i.saasto.vesi, o.nousu.vesi);
}

}  // namespace

double Nykyarvokerroin(int vuosia, double korko, double nousu) noexcept {
  const double suhde = (1 + nousu) / (1 + korko);
  double summa = 0, potenssi = 1;
  for (int t = 1; t <= vuosia; ++t) summa += potenssi *= suhde;
  return summa;
}

double Investointilaskelma::HankintojenNykyarvo(double korko) const noexcept {
  double summa = 0;
  for (const Hankinta& hankinta : investointi_.hankinnat)
    summa += NykyarvoUusintoineen(hankinta, oletukset_.pitoaika, korko);
  return summa;
}

double Investointilaskelma::Nettonykyarvo(double korko) const noexcept {
  const Hyodykkeet& s = investointi_.saasto;
  const Hyodykkeet& e = oletukset_.nousu;
  const int n = oletukset_.pitoaika;
  return s.lampo * Nykyarvokerroin(n, korko, e.lampo) + s.sahko * Nykyarvokerroin(n, korko, e.sahko) +
         s.vesi * Nykyarvokerroin(n, korko, e.vesi) - HankintojenNykyarvo(korko);
}

std::optional<double> Investointilaskelma::DiskontattuTakaisinmaksuaika() const {
  struct Maksu {
    double vuosi, nykyarvo;
  };
  std::vector<Maksu> uusinnat;
  double kertynyt = 0;
  for (const Hankinta& hankinta : investointi_.hankinnat) {
    kertynyt -= hankinta.hinta;
    Uusinnat(hankinta, oletukset_.pitoaika, [&](double vuosi) {
      uusinnat.push_back({vuosi, hankinta.hinta * Diskonttaus(vuosi, oletukset_.korko)});
    });
  }
  if (kertynyt >= 0) return Nettonykyarvo() < 0 ? std::nullopt : std::optional(0.0);
  std::ranges::sort(uusinnat, {}, &Maksu::vuosi);
  auto seuraava = uusinnat.begin();
  for (int vuosi = 1; vuosi <= oletukset_.pitoaika; ++vuosi) {
    // A replacement that falls within the year is paid at its beginning: the saving of the year doesn't cover it
    // before.
    for (; seuraava != uusinnat.end() && seuraava->vuosi < vuosi; ++seuraava) kertynyt -= seuraava->nykyarvo;
    const double tuotto = VuodenNykyarvo(investointi_, oletukset_, vuosi);
    if (tuotto > 0 && kertynyt + tuotto >= 0) return vuosi - 1 + (-kertynyt) / tuotto;
    kertynyt += tuotto;
  }
  return std::nullopt;
}

std::optional<double> Investointilaskelma::SisainenKorko() const noexcept {
  constexpr double kAlin = -0.9, kYlin = 10, kAskel = 0.01;
  const auto positiivinen = [this](double korko) { return Nettonykyarvo(korko) > 0; };
  double ala = kAlin;
  while (ala < kYlin && !(positiivinen(ala) && !positiivinen(ala + kAskel))) ala += kAskel;
  if (ala >= kYlin) return std::nullopt;
  double yla = ala + kAskel;
  for (int kierros = 0; kierros < 60; ++kierros) {
    const double keski = (ala + yla) / 2;
    (positiivinen(keski) ? ala : yla) = keski;
  }
  return (ala + yla) / 2;
}

std::optional<double> Investointilaskelma::SaastetynEnergianHinta() const noexcept {
  const double kerroin = Nykyarvokerroin(oletukset_.pitoaika, oletukset_.korko);
  if (investointi_.energia <= 0 || kerroin <= 0) return std::nullopt;
  return HankintojenNykyarvo(oletukset_.korko) / kerroin / investointi_.energia;
}
