// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Laskenta.h"
#include "kernel/Olio.h"

class PuhaltimenTeho;

/// Degree days of the locality's normal year, K·d: a machine's heat is in proportion to them.
struct Lammitystarveluku {
  double Kd = 0;
};

/// One running period of a ventilation machine: a time of day on some days of the week, in one season.
/// Months are 0 (January) to 11.
class clsKayntiAika : public Malli<clsKayntiAika, Alkio> {
 public:
  static const Luokka kLuokka;
  /// Seasons: December to February, March to May, June to August, September to November, the whole year.
  enum Vuosijakso : std::int32_t { EkaNeljannes, TokaNeljannes, KolmasNeljannes, NeljasNeljannes, KokoVuosi };

  std::int32_t Jakso = EkaNeljannes;   ///< season (enum Vuosijakso)
  std::int32_t KayntiJaksojenLkm = 0;  ///< times a week that the period is run
  Kellonaika Alkaa, Paattyy;           ///< an end at or before the start is that of the next day
  double TuloIlmavirtaProsentti = 0;   ///< flow, % of that at full power; for both fans
  double Tsp = 16.0;                   ///< set-point of the supply air, °C
  double dTPuhallin = 1.0;             ///< warming of the air in the fan, K

  /// The period's season takes in the month; never for an unknown season.
  bool KuuluuKuukauteen(int kuukausi) const noexcept {
    if (kuukausi < 0 || kuukausi >= kKuukausia) return false;
    return Jakso == KokoVuosi || Jakso == MuunnaKuukausiJaksoksi(kuukausi);
  }
  /// Season of a month: 1 for March to May, 2 for June to August, 3 for September to November, else 0.
  static constexpr int MuunnaKuukausiJaksoksi(int kuukausi) noexcept {
    constexpr int kMaaliskuu = 2, kMarraskuu = 10, kKuukausiaJaksossa = 3;
    return kuukausi < kMaaliskuu || kuukausi > kMarraskuu ? 0 : (kuukausi - kMaaliskuu) / kKuukausiaJaksossa + 1;
  }
  /// Hours of one run, 0 to 24. Times that aren't times of day: a message, and 0.
  double KayntiTunnit() const;
  /// Running hours of the month. Errors: 9999.
  double KuukaudenKayntiTunnit(int kuukausi) const;
  /// Running hours of a year, those of the season's months. Errors: 9999.
  double VuodenKayntiTunnit() const;
  /// The period is run and moves air; else it counts for nothing.
  bool Kaytossa() const noexcept { return KayntiJaksojenLkm > 0 && TuloIlmavirtaProsentti > 0; }
  /// `Tsp` and `Tsp` − `dTPuhallin` lie within the heating table; else no heat is computed for the period.
  bool LampotilatTaulukossa() const;

  /// Takes runs, times, flow and temperatures of another period; key, season and identity stay.
  void KopioiKaynti(const clsKayntiAika& lahde);

  /// What the air is warmed to: the period's own set-point, or the temperature of the space (Tsisa) whose loss is
  /// computed.
  struct Kohdelampotila {
    double C = 0;  ///< °C
    bool tilan = false;
  };
  Kohdelampotila OmaLampotila() const noexcept { return {Tsp, false}; }

  /// By month, kWh: energy that warms q m³/s of supply air at full power from outdoors to `lampotila` − `dTPuhallin`,
  /// whatever the season; each run counts for a seventh of the days. 0 without flow or runs. Error 1015, which tells
  /// the two temperatures, and 0 for a difference outside 15 to 30 °C. A failure shows a message and gives 0.
  Kuukausitaulu KayntiJaksonLampo(double q, Kohdelampotila lampotila, Lammitystarveluku S) const;
  /// The same of one month to the period's own set-point.
  double KayntiJaksonLampo(double q, int kuukausi, Lammitystarveluku S) const;

  /// Energy efficiency of heat recovery over a season, %, by the season's outdoor temperatures: set-point `Tsp` °C,
  /// temperature efficiency `LtoHyoty` %, exhaust air `Tp` °C. In summer 100 as soon as the efficiency exceeds 5.
  /// Error 1015 for a set-point outside 15 to 30 °C, 1018 for any other season than the four, and 0.
  static double LtoEnergiaHyotySuhde(double Tsp, double LtoHyoty, double Tp, int jakso);

  /// Electricity of one fan, kWh in a month: its power at this period's flow. 0 without flow or runs.
  double KayntiJaksonPuhallinEnergia(PuhaltimenTeho& puhallin, int kuukausi) const;
};
