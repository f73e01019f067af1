// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <limits>
#include <string_view>

/// Unit of a quantity, and the values that a person may give it. A number outside `Rajat` is refused where it is typed
/// (a file or a saving measure may hold any); one outside `Tavallisesti` is accepted but told of, being most likely a
/// slip of the keys. Without them any number does.
struct Suure {
  static constexpr double kRajaton = std::numeric_limits<double>::infinity();

  constexpr Suure() = default;
  constexpr Suure(const char* yksikko_) : yksikko(yksikko_) {}

  constexpr Suure Rajat(double pienin, double suurin = kRajaton) const {
    Suure s = *this;
    s.ala = pienin;
    s.yla = suurin;
    return s;
  }
  constexpr Suure Tavallisesti(double pienin, double suurin) const {
    Suure s = *this;
    s.tavallinenAla = pienin;
    s.tavallinenYla = suurin;
    return s;
  }

  constexpr bool Sallittu(double arvo) const { return arvo >= ala && arvo <= yla; }
  constexpr bool Tavallinen(double arvo) const { return arvo >= tavallinenAla && arvo <= tavallinenYla; }

  std::string_view yksikko;                                    ///< as it is shown: "m³/s"; empty: a plain number
  double ala = -kRajaton, yla = kRajaton;                      ///< the limits themselves are allowed
  double tavallinenAla = -kRajaton, tavallinenYla = kRajaton;  ///< beyond these a value is improbable
};
