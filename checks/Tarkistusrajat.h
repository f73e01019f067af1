// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Bounds beyond which a figure is told of. Each says where it comes from; "assumed" is our own choice, wide enough
/// that ordinary buildings stay inside.
namespace tarkistusraja {

/// Sums of the spaces against the building, share: drawings are measured and rounded to a few per cent (assumed).
inline constexpr double kPoikkeamaTiloissa = 0.05;
/// Volume by area, m. A room may not be lower than 2.2 m where people stay (building code G1 asks for 2.4 to 2.5 m);
/// beyond 15 m stand high-bay stores only.
inline constexpr double kMatalinKerros = 2.2, kKorkeinKerros = 15;
/// Degree days of a year against the year's in the program's table, share: stations of one locality differ by less, and
/// another locality or a normal year by more (assumed).
inline constexpr double kTarveluvunPoikkeama = 0.1;

/// U-values, W/m²K. Below 0.05 there is no structure that is built (a passive house has 0.08); an uninsulated concrete
/// or thin brick wall has 2 to 3. Against ground a floor without insulation comes to some 0.5: more than 1 isn't
/// credible.
inline constexpr double kPieninU = 0.05, kSuurinU = 3, kSuuriMaanvarainenU = 1;
/// Windows and doors, W/m²K: the best have 0.5, single glazing in its frame 5.8.
inline constexpr double kPieninIkkunanU = 0.4, kSuurinIkkunanU = 6;
/// A floor by outside dimensions may exceed the space's gross area by the rounding; a roof by its pitch, 45° being 1.4
/// times.
inline constexpr double kSuurinAlapohja = 1.05, kSuurinYlapohja = 1.5;

/// Indoor set-points of a heated space, °C: frost-free stores to swimming pools.
inline constexpr double kKylminTila = 5, kLamminTila = 32;

/// Supply flow by exhaust flow of one machine: separate fans of kitchens and toilets explain differences up to these
/// (assumed); the flows of the building are to be in balance or below pressure.
inline constexpr double kPieninVirtasuhde = 0.6, kSuurinVirtasuhde = 1.25;
/// Temperature efficiency of heat recovery over a year, %: the best rotary and counterflow units reach some 85.
inline constexpr double kSuurinLto = 85;
/// Specific power of one fan, kW/(m³/s): a small exhaust fan without ducts has 0.3, an old worn one 4 (assumed).
inline constexpr double kPieninOminaisteho = 0.2, kSuurinOminaisteho = 5;

/// Computed against measured use, share: an audit is usually fitted to 10 to 15 per cent before savings are computed of
/// it (assumed).
inline constexpr double kMallinPoikkeama = 0.15;

}  // namespace tarkistusraja
