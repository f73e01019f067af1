// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>

/// The degree days that a new object's measured years have until the person gives their own, K·d: no locality's figure.
inline constexpr double kLammitystarvelukuAluksi = 4444;

/// Degree days of a measured year.
struct Vuositarveluku {
  double luku;        ///< K·d, at the level of the program's normal-year figures, so that the two can be divided
  std::string lahde;  ///< where the figure comes from and how good it is, for showing
};

/// The year's figure at a locality, 0 (Hanko) to 15 (Vaasa); nothing when the table of the program doesn't know it.
/// Raises error 9999 when the table can't be read.
std::optional<Vuositarveluku> HaeLammitystarveluku(int paikkakunta, int vuosi);
