// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <vector>

#include "measures/Hyodykkeet.h"

/// What a reckoning of costs over a life assumes. Interest and rises are of one kind, both real or both nominal.
struct Elinkaarioletukset {
  int pitoaika = 0;       ///< calculation period, a; 0: nothing is reckoned
  double korko = 0;       ///< interest, 0.03 is 3 %; above −1
  Hyodykkeet nousu = {};  ///< yearly rise of the costs of heat, electricity and water, as the interest
};

/// Present value of a cost of 1 at the end of each year 1 to `vuosia`, when the cost rises by `nousu` a year:
/// Σ ((1 + e) / (1 + r))^t. With equal interest and rise it is the number of years.  Source: EN 15459-1, ISO 15686-5.
double Nykyarvokerroin(int vuosia, double korko, double nousu = 0) noexcept;

/// One thing bought at the beginning of the period.
struct Hankinta {
  double hinta = 0;      ///< €
  double kayttoika = 0;  ///< technical life, a; 0: it lasts the period and is worth nothing at its end
};

/// Purchases, what they save in a year by what is bought (at today's prices, €/a), and the energy that they save.
struct Investointi {
  std::vector<Hankinta> hankinnat;
  Hyodykkeet saasto;
  double energia = 0;  ///< heat and electricity, MWh/a
};

/// What purchases are worth over the calculation period. A purchase whose technical life ends before the period is made
/// again at the same price; at the end of the period the last one is worth the share of its life that is left
/// (straight-line).  Source: EN 15459-1 (global cost).
class Investointilaskelma {
 public:
  Investointilaskelma(const Investointi& investointi, const Elinkaarioletukset& oletukset) noexcept
      : investointi_(investointi), oletukset_(oletukset) {}

  /// Present value of the savings less the purchases, €.
  double Nettonykyarvo() const noexcept { return Nettonykyarvo(oletukset_.korko); }
  /// Years until the discounted savings first cover what has been bought by then, interpolated within the year; nothing
  /// when they don't within the period.
  std::optional<double> DiskontattuTakaisinmaksuaika() const;
  /// The interest at which the net present value is 0, 0.03 is 3 %, between −90 and 1000 %: of several the lowest above
  /// which it turns negative. Nothing when there is none.
  std::optional<double> SisainenKorko() const noexcept;
  /// Purchases as an equal cost of each year, by the saved energy, €/MWh; nothing when no energy is saved.
  std::optional<double> SaastetynEnergianHinta() const noexcept;

 private:
  double Nettonykyarvo(double korko) const noexcept;
  double HankintojenNykyarvo(double korko) const noexcept;

  const Investointi& investointi_;
  const Elinkaarioletukset& oletukset_;
};
