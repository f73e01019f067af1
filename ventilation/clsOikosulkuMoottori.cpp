// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsOikosulkuMoottori.h"

#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"
#include "ventilation/Puhallinlaskenta.h"

double clsOikosulkuMoottori::HyotySuhde11Teho() const { return P3N <= 0 ? 100 : 4.6 * std::log(P3N) + 77; }

double clsOikosulkuMoottori::HyotySuhde12Teho(double P3) const try {
  constexpr double kVajaaKuorma = 0.4;
  if (P3 <= 0) return 100;
  const double kuorma = Jaa(P3, P3N);
  const double vahennys = kuorma < kVajaaKuorma ? -20 * Logaritmi(kuorma) - 16 : 0;
  return HyotySuhde11Teho() - vahennys;
} catch (...) {
  NostaVirhe("clsOikosulkuMoottori:HyotySuhde12Teho Method");
}
