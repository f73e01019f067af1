// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <cmath>
#include <stdexcept>

/// Days of the months, January first. There are no leap years in the balance.
inline constexpr std::array<int, 12> kPaivatKuukaudessa{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
inline constexpr int kKuukausia = 12;

/// Twelve monthly values, index 0 is January.
using Kuukausitaulu = std::array<double, kKuukausia>;

/// jaettava / jakaja; raises std::domain_error when the divisor is 0 or the quotient isn't finite.
inline double Jaa(double jaettava, double jakaja) {
  const double tulos = jaettava / jakaja;
  if (jakaja == 0 || !std::isfinite(tulos)) throw std::domain_error("jako nollalla tai liian suuri osamäärä");
  return tulos;
}

/// Passes a finite value on; raises std::overflow_error for infinity and not-a-number.
inline double Aarellinen(double arvo) {
  if (!std::isfinite(arvo)) throw std::overflow_error("laskennan tulos ei ole äärellinen luku");
  return arvo;
}

/// Bounds check of a 0-based month; raises std::out_of_range.
inline int TarkistaKuukausi(int kuukausi) {
  if (kuukausi < 0 || kuukausi >= kKuukausia) throw std::out_of_range("kuukausi ei ole väliltä 0-11");
  return kuukausi;
}

/// A cache flag. It never travels with a copy: every copy, and every target of one, starts with stale caches.
class Lippu {
 public:
  Lippu() = default;
  Lippu(const Lippu&) noexcept {}
  Lippu& operator=(const Lippu&) noexcept {
    arvo_ = false;
    return *this;
  }
  Lippu& operator=(bool arvo) noexcept {
    arvo_ = arvo;
    return *this;
  }
  operator bool() const noexcept { return arvo_; }

 private:
  bool arvo_ = false;
};

/// What belongs to one object and never travels with a copy: cached values, event listeners, an open dialog.
template <class T>
struct Oma {
  Oma() = default;
  Oma(const Oma&) noexcept {}
  Oma& operator=(const Oma&) noexcept { return *this; }
  T arvo{};
};
