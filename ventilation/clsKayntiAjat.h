// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "ventilation/clsKayntiAika.h"

/// What the lines of a season come to.
struct Kayntisumma {
  int riveja = 0;          ///< lines in use
  double tunnit = 0;       ///< running hours a year
  double virtatunnit = 0;  ///< their sum weighted by the flow, %·h

  double Keskivirta() const noexcept { return tunnit > 0 ? virtatunnit / tunnit : 0; }  ///< %
  Kayntisumma& operator+=(const Kayntisumma& toinen) noexcept;
};

/// The weekly running schedule of a ventilation machine. It is entered either once for the whole year or season by
/// season; periods of the other way are kept and don't count. Months are 0 to 11, monthly energy is kWh.
class clsKayntiAjat : public Malli<clsKayntiAjat, Kokoelma<clsKayntiAika>> {
 public:
  static const Luokka kLuokka;
  static constexpr int kJaksojaVuosijaksossa = 7;

  std::int32_t KayntiaikojenSyottotapaID = 0;  ///< 0 one schedule for the whole year, else season by season
  std::string KayntiAikojenSyottoTapa;         ///< text of that choice
  std::string IvKoneenNimi;

  bool Vuosittainen() const noexcept { return KayntiaikojenSyottotapaID == 0; }
  /// Season of a month, 0 to 3 (clsKayntiAika::MuunnaKuukausiJaksoksi).
  static constexpr int MuunnaKuukausiJaksoksi(int kuukausi) noexcept {
    return clsKayntiAika::MuunnaKuukausiJaksoksi(kuukausi);
  }
  /// Key of a line (1 to 7) of a season (clsKayntiAika::Vuosijakso): "1EkaNeljannes" to "7KokoVuosi".
  static Tunniste JaksonAvain(int rivi, int vuosijakso);
  /// Replaces the schedule by seven empty periods for each of the five seasons.
  void LuoJaksot(double Tsp, double dTPuhallin);
  /// Adds the periods that the schedule lacks, empty. True when it lacked some.
  bool TaydennaJaksot(double Tsp, double dTPuhallin);
  /// Periods of the season that are in use, whatever the way of entering.
  Kayntisumma Vuosijaksolta(int vuosijakso) const;

  /// By month: heat that warms the supply air, q m³/s at full power, from outdoors to each period's set-point.
  Kuukausitaulu LammonTarve(double q, Lammitystarveluku S) const;
  /// The same to the temperature of a space, °C, in all periods.
  Kuukausitaulu LammonTarveTilaan(double q, double Tsisa, Lammitystarveluku S) const;
  double LammonTarvePerKuukausi(double q, int kuukausi, Lammitystarveluku S) const;
  /// By month: heat recovered from exhaust air of Tp °C at a temperature efficiency of LtoHyoty %; 0 up to 0.001 % and
  /// where the sum isn't positive.
  Kuukausitaulu LtoEnergia(double q, double Tp, double LtoHyoty, Lammitystarveluku S) const;
  double LtoEnergiaPerKuukausi(double q, int kuukausi, double Tp, double LtoHyoty, Lammitystarveluku S) const;
  /// Electricity of one fan.
  double PuhallinSahkoPerKuukausi(PuhaltimenTeho& puhallin, int kuukausi) const;
  /// Running hours of the periods whose flow is from `ala` to `yla` %, entered by `syottotapa`.
  double KayntiAikaPerKuukausi(int kuukausi, std::int32_t syottotapa, double ala, double yla) const;

  /// Opens the dialog of the schedule, modal; the periods that it lacks are made with the defaults of a period. OK
  /// leaves what was written, Cancel restores the schedule. True after OK.
  bool NaytaKayttoliittyma();
  /// Copies runs, times, flow and temperatures of the first season's lines to the other three; not to the whole year.
  /// Lines that the schedule lacks are passed by.
  void KayttoLiittyma_KopioiMuihinKlikattu();

 private:
  template <class F>
  double Summa(int kuukausi, std::int32_t syottotapa, F&& arvo) const;
  template <class F>
  Kuukausitaulu Kuukausisummat(F&& arvot) const;
};
