// SPDX-License-Identifier: GPL-3.0-or-later
// What the calculations of fans, drives and motors share.
#pragma once
#include <algorithm>
#include <cmath>
#include <stdexcept>

/// Power taken in, for a power given out and an efficiency in per cent. The efficiency formulas are logarithms, which
/// fall below zero for tiny powers: 1 % at least is divided by.
inline double OttotehoHyotysuhteella(double antoteho, double hyotysuhde) {
  constexpr double kPienin = 1;
  return antoteho * 100 / std::max(hyotysuhde, kPienin);
}

/// Natural logarithm; raises std::domain_error for 0 and less.
inline double Logaritmi(double x) {
  if (!(x > 0)) throw std::domain_error("logaritmi luvusta, joka ei ole positiivinen");
  return std::log(x);
}

/// Shaft power, kW, at which a fan takes the electric power P1 > 0: `sahkoteho(P4)` gives the electric power of a shaft
/// power. Repeated until the relative error is at most 1e-7, 2001 times at most. 0 when no power comes of it.
template <class F>
double IteroiAkseliteho(double P1, F&& sahkoteho) {
  constexpr double kTarkkuus = 1e-7;
  constexpr int kKierroksia = 2001;
  double P4 = P1, virhe = 1000;
  for (int i = 0; std::abs(virhe) > kTarkkuus && i < kKierroksia; ++i) {
    const double P1c = sahkoteho(P4);
    if (!(P1c > 0)) return 0;
    virhe = (P1c - P1) / P1c;
    P4 = P1 * P4 / P1c;
  }
  return P4;
}
