// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Squirrel-cage motor of one speed. Efficiencies in per cent, not limited; the curves are as given for this method.
/// Errors: 9999.
class clsOikosulkuMoottori {
 public:
  double P3N = 0;  ///< nominal power, kW

  /// At full power: 4.6 ln P3N + 77; 100 for a nominal power of 0 or less.
  double HyotySuhde11Teho() const;
  /// At a shaft power P3, kW: that of full power, lower by −20 ln(P3 / P3N) − 16 points below 40 % of the nominal power
  /// (a step of 2.3 points there). 100 for a power of 0 or less.
  double HyotySuhde12Teho(double P3) const;
};
