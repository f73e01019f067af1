// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/Ulkolampotilat.h"

#include <array>
#include <numeric>

#include "ventilation/clsKayntiAika.h"

namespace {

constexpr int kAlinJouluHelmi = -30, kAlinMaalisTouko = -18, kAlinSyysMarras = -11;  // °C

constexpr auto kJouluHelmi = std::to_array<std::int16_t>({1,   3,   3,   10,  8,   2,   8,   20, 37,  27,  10,  21,  50,
                                                          51,  47,  23,  80,  118, 70,  85,  46, 125, 127, 109, 141, 50,
                                                          122, 130, 117, 125, 107, 119, 106, 22, 17,  7,   14,  2});
constexpr auto kMaalisTouko =
    std::to_array<std::int16_t>({1,   1,  2,   2,   4,   6,   8,   10,  18, 24, 38, 52, 43, 67, 63, 94, 86, 133, 140,
                                 102, 89, 133, 135, 113, 128, 114, 101, 70, 86, 52, 60, 66, 54, 39, 30, 17, 17,  10});
constexpr auto kSyysMarras =
    std::to_array<std::int16_t>({5,   3,   5,  4,   8,  30,  21,  52, 42,  75,  76, 56, 191, 167,
                                 217, 171, 63, 141, 87, 130, 131, 72, 139, 137, 66, 58, 17,  20});

template <class Taulukko>
constexpr int Tunteja(const Taulukko& tunnit) {
  return std::accumulate(tunnit.begin(), tunnit.end(), 0);
}
static_assert(Tunteja(kJouluHelmi) == (31 + 31 + 28) * 24);
static_assert(Tunteja(kMaalisTouko) == (31 + 30 + 31) * 24);
static_assert(Tunteja(kSyysMarras) == (30 + 31 + 30) * 24);

}  // namespace

Pysyvyys Ulkolampotilat(int jakso) {
  switch (jakso) {
    case clsKayntiAika::EkaNeljannes:
      return {kAlinJouluHelmi, kJouluHelmi};
    case clsKayntiAika::TokaNeljannes:
      return {kAlinMaalisTouko, kMaalisTouko};
    case clsKayntiAika::NeljasNeljannes:
      return {kAlinSyysMarras, kSyysMarras};
    default:
      return {};
  }
}
