// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <span>

/// Hours by outdoor temperature: element i is the hours at the whole degree `alin` + i °C.
struct Pysyvyys {
  int alin = 0;
  std::span<const std::int16_t> tunnit;
};

/// Outdoor temperatures of a season (clsKayntiAika::Vuosijakso), hours of the season in all; none for summer, in which
/// all heating is recovered, nor for a number that is no season.
/// Source: the temperatures behind the program's heating table: degree hours below 15 °C agree with it.
Pysyvyys Ulkolampotilat(int jakso);
