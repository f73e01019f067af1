// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Lammonlapaisy.h"

#include <algorithm>

namespace {

double Positiivinen(double vastus) { return vastus > 0 ? vastus : 0; }

double AineenVastus(double paksuus_m, double lambda) { return paksuus_m > 0 && lambda > 0 ? paksuus_m / lambda : 0; }

/// The resistances of a layer's two parts, m²K/W, and the second one's share of the area.
struct Osat {
  double vastus1 = 0;
  double vastus2 = 0;
  double osuus2 = 0;

  bool Jaettu() const { return osuus2 > 0 && osuus2 < 1; }

  /// Of the whole layer with area-weighted conductivity. A part without resistance bridges the layer.
  double Vastus() const {
    if (!Jaettu()) return osuus2 > 0 ? vastus2 : vastus1;
    if (vastus1 == 0 || vastus2 == 0) return 0;
    return 1 / ((1 - osuus2) / vastus1 + osuus2 / vastus2);
  }
};

Osat KerroksenOsat(const Kerros& kerros) {
  if (!kerros.mukana) return {};
  const double vastus1 = kerros.vastus ? Positiivinen(*kerros.vastus) : AineenVastus(kerros.paksuus_m, kerros.lambda);
  if (kerros.yhtenainen) return {vastus1};
  return {vastus1, AineenVastus(kerros.paksuus_m, kerros.lambda2), std::clamp(kerros.osuus2, 0.0, 1.0)};
}

/// Transmittance of the parallel sections through the layers, W/m²K, behind the resistance R met so far.
double LohkojenLapaisy(std::span<const Kerros> kerrokset, double R, int jakoja) {
  if (kerrokset.empty()) return 1 / R;
  const Osat osat = KerroksenOsat(kerrokset.front());
  const auto loput = kerrokset.subspan(1);
  if (jakoja == 0 || !osat.Jaettu()) return LohkojenLapaisy(loput, R + osat.Vastus(), jakoja);
  return (1 - osat.osuus2) * LohkojenLapaisy(loput, R + osat.vastus1, jakoja - 1) +
         osat.osuus2 * LohkojenLapaisy(loput, R + osat.vastus2, jakoja - 1);
}

struct Vastukset {
  double yla;
  double ala;
  double R;
};

Vastukset LaskeVastukset(std::span<const Kerros> kerrokset, double Rsi, double Rse) {
  const double pinnat = Positiivinen(Rsi) + Positiivinen(Rse);
  double ala = pinnat;
  bool jaettu = false;
  for (const Kerros& kerros : kerrokset) {
    const Osat osat = KerroksenOsat(kerros);
    ala += osat.Vastus();
    jaettu = jaettu || osat.Jaettu();
  }
  if (!jaettu) return {ala, ala, ala};
  const double yla = 1 / LohkojenLapaisy(kerrokset, pinnat, kJaettujaKerroksiaEnintaan);
  return {yla, ala, (yla + ala) / 2};
}

/// Falls in proportion to the resistance passed, from the room's temperature to that outdoors.
std::vector<double> Lampotilat(const LammonlapaisyTulos& tulos, double Rsi, double Tsisa, double Tulko) {
  double R = Positiivinen(Rsi);
  const auto lampotila = [&] { return Tsisa - (Tsisa - Tulko) * R / tulos.R_ala; };
  std::vector<double> lampotilat{lampotila()};
  for (const double vastus : tulos.kerrosvastukset) {
    R += vastus;
    lampotilat.push_back(lampotila());
  }
  return lampotilat;
}

}  // namespace

std::optional<double> LammonlapaisyU(std::span<const Kerros> kerrokset, double Rsi, double Rse) {
  const double R = LaskeVastukset(kerrokset, Rsi, Rse).R;
  if (!(R > 0)) return std::nullopt;
  return 1 / R;
}

LammonlapaisyTulos LaskeLammonlapaisy(std::span<const Kerros> kerrokset, double Rsi, double Rse, double Tsisa,
                                      double Tulko) {
  const auto [yla, ala, R] = LaskeVastukset(kerrokset, Rsi, Rse);
  LammonlapaisyTulos tulos{yla, ala, R};
  for (const Kerros& kerros : kerrokset) tulos.kerrosvastukset.push_back(KerroksenOsat(kerros).Vastus());
  tulos.onArvo = R > 0;
  if (!tulos.onArvo) return tulos;
  tulos.U = 1 / R;
  tulos.lampotilat = Lampotilat(tulos, Rsi, Tsisa, Tulko);
  return tulos;
}
