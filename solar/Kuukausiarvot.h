// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

/// Twelve figures, one a month, asked for by the month's number 1 (January) to 12.
/// Errors: AurinkoVirhe for any other number.
struct Kuukausiarvot {
  static constexpr int kKuukausia = 12;

  std::array<double, kKuukausia> arvot{};  ///< index 0 is January

  double& operator()(int kuukausi) { return arvot[Indeksi(kuukausi)]; }
  double operator()(int kuukausi) const { return arvot[Indeksi(kuukausi)]; }

  friend bool operator==(const Kuukausiarvot&, const Kuukausiarvot&) = default;

  static constexpr bool OnKuukausi(int numero) { return numero >= 1 && numero <= kKuukausia; }

 private:
  static std::size_t Indeksi(int kuukausi) {
    if (!OnKuukausi(kuukausi)) VaaraKuukausi(kuukausi);
    return static_cast<std::size_t>(kuukausi - 1);
  }
  [[noreturn]] static void VaaraKuukausi(int kuukausi);
};
