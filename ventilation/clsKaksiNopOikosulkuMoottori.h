// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Squirrel-cage motor of two speeds. Efficiencies in per cent, not limited. Errors: 9999.
class clsKaksiNopOikosulkuMoottori {
 public:
  double P3N = 0;  ///< nominal power, kW

  /// At full speed: 5.9 ln P3N + 72. Raises for a nominal power of 0 or less.
  double HyotySuhde11Teho() const;
  /// At low speed, whatever the power: 4.6 ln P3N + that of full speed − 26; 0 for a nominal power of 0 or less.
  double HyotySuhde12Teho() const;
};
