// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Lets one request for memory of this program fail: the `monesko` from now on, counted from 1, within the scope.
class Muistivika {
 public:
  explicit Muistivika(int monesko) noexcept;
  ~Muistivika();
  Muistivika(const Muistivika&) = delete;
  Muistivika& operator=(const Muistivika&) = delete;

  /// It has failed.
  static bool Sattui() noexcept;
};
