// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "measures/Hyodykkeet.h"
#include "settings/Alvprosentit.h"

/// What a year's costs sink by, by what they come from, €/a without VAT.
struct Kustannussaastot {
  double lampoEnergia = 0, lampoTeho = 0;
  double sahkoEnergia = 0, sahkoPatoTeho = 0, sahkoLoisTeho = 0;
  double vesi = 0;

  /// All together, each with its VAT.
  double Yhteensa(const Alvprosentit& alv) const noexcept;
};

/// Costs of a year, €/a without VAT, as they are shown: each with its VAT, if amounts are shown with it, and in the
/// shown currency.
double NaytettyHinta(const Hyodykkeet& hinta);

/// Years of a payback that never comes.
inline constexpr double kEiTakaisinmaksua = 9999;

/// Simple payback in years: the investment with the general VAT by the saving of a year, €/a with its VAT. No interest,
/// no rise of prices; negative at a negative saving, kEiTakaisinmaksua when nothing is saved.
double Takaisinmaksuaika(double investointi, double saasto, const Alvprosentit& alv) noexcept;
