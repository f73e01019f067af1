// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/MivSovitteet.h"

#include <algorithm>
#include <array>

namespace {

using Sovitteet = std::array<Sovite, 11>;  // by tens of per cent of the share of constant pressure, from 0 to 100

constexpr double kNopeudenVaihto = 70;  // %: up to here a two-speed fan runs at low speed

constexpr Sovite kKuristusKertoimet1nop{-0.5415, 1.1685, 0.3854};
constexpr Sovite kKuristusKertoimet2nopTaysi{-1.5, 2.73, -0.233};
constexpr Sovitteet kKuristusKertoimet2nopOsa{{
    {0, 0.1146, 0.2698},
    {0, 0.1641, 0.2807},
    {0, 0.2136, 0.2917},
    {0, 0.2216, 0.3216},
    {0, 0.2293, 0.3515},
    {0, 0.2091, 0.3979},
    {0, 0.1889, 0.4443},
    {0, 0.2153, 0.4686},
    {0, 0.2418, 0.4929},
    {0, 0.2196, 0.5318},
    {0, 0.1976, 0.5707},
}};
constexpr Sovitteet kJohtosiipiKertoimet2nopOsa{{
    {1.1607, -0.6065, 0.1957},
    {0.9444, -0.3384, 0.16},
    {0.7282, -0.0704, 0.1244},
    {0.5778, 0.0889, 0.1221},
    {0.4279, 0.2475, 0.1201},
    {0.3517, 0.3051, 0.1496},
    {0.2754, 0.3627, 0.1792},
    {0.0274, 0.6369, 0.1516},
    {-0.2211, 0.9117, 0.1238},
    {-0.3069, 0.9752, 0.1448},
    {-0.3069, 0.9752, 0.1448},
}};
constexpr Sovitteet kJohtosiipiKertoimet2nopTaysi{{
    {2.5, -2.8333, 1.3313},
    {2.1003, -2.3044, 1.2022},
    {1.703, -1.7794, 1.0748},
    {1.4756, -1.5103, 1.0332},
    {1.2507, -1.2452, 0.9931},
    {1.0522, -1.0142, 0.9607},
    {0.8537, -0.7831, 0.9283},
    {0.6218, -0.5317, 0.9088},
    {0.3874, -0.2763, 0.8877},
    {0.3192, -0.2384, 0.9181},
    {0.2486, -0.1967, 0.9469},
}};
constexpr Sovitteet kJohtosiipiKertoimet1nop{{
    {1.0434, -0.4124, 0.348},
    {0.76, -0.0752, 0.2962},
    {0.4769, 0.2614, 0.2445},
    {0.2987, 0.4493, 0.2356},
    {0.121, 0.6365, 0.2269},
    {-0.0005, 0.7406, 0.2456},
    {-0.122, 0.8446, 0.2643},
    {-0.3639, 1.1126, 0.2382},
    {-0.6064, 1.3812, 0.2118},
    {-0.6864, 1.4387, 0.2342},
    {-0.7671, 1.497, 0.2564},
}};
constexpr Sovitteet kSiipikulmaKertoimet{{
    {1.4779, -0.7535, 0.2598},
    {1.1945, -0.4163, 0.208},
    {0.9114, -0.0796, 0.1563},
    {0.7332, 0.1083, 0.1474},
    {0.5555, 0.2955, 0.1387},
    {0.4341, 0.3996, 0.1574},
    {0.3126, 0.5036, 0.1761},
    {0.0706, 0.7715, 0.15},
    {-0.1718, 1.0402, 0.1236},
    {-0.2519, 1.0977, 0.146},
    {-0.3326, 1.156, 0.1682},
}};
constexpr Sovitteet kMivKertoimet{{
    {1.9614, -1.1894, 0.223},
    {1.678, -0.8522, 0.1712},
    {1.3949, -0.5155, 0.1195},
    {1.2167, -0.3276, 0.1106},
    {1.039, -0.1404, 0.1019},
    {0.9175, -0.0364, 0.1206},
    {0.796, 0.0677, 0.1393},
    {0.5541, 0.3356, 0.1132},
    {0.3116, 0.6043, 0.0868},
    {0.2316, 0.6618, 0.1092},
    {0.1509, 0.72, 0.1314},
}};

const Sovite& Rivi(const Sovitteet& sovitteet, std::int32_t osuus) {
  return sovitteet[static_cast<std::size_t>(std::clamp(osuus, 0, 100) / 10)];
}

}  // namespace

std::optional<Sovite> MivSovite(double x, std::int32_t tapa, std::int32_t osuus) {
  const bool taysi = x > kNopeudenVaihto;
  switch (tapa) {
    case Kuristus1nop:
      return kKuristusKertoimet1nop;
    case Kuristus2nop:
      return taysi ? kKuristusKertoimet2nopTaysi : Rivi(kKuristusKertoimet2nopOsa, osuus);
    case Johtosiipi1nop:
      return Rivi(kJohtosiipiKertoimet1nop, osuus);
    case Johtosiipi2nop:
      return Rivi(taysi ? kJohtosiipiKertoimet2nopTaysi : kJohtosiipiKertoimet2nopOsa, osuus);
    case Siipikulma:
      return Rivi(kSiipikulmaKertoimet, osuus);
    case Taajuusmuuttaja:
      return Rivi(kMivKertoimet, osuus);
    default:
      return std::nullopt;
  }
}
