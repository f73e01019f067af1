// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>
#include <optional>

/// Control of variable-flow ventilation: electric power of a fan at part flow. The shaft power that takes the power
/// measured at a reference flow is found by iteration through drive and motor; a fit carries it to another flow.
/// Never raises: what can't be computed is 0.
class clsMivSaato {
 public:
  double ma2 = 0, ma1 = 0, ma0 = 0;        ///< the fit in use
  double TaajuusMuuttajanHyotySuhde = 98;  ///< of the frequency converter, %
  std::int32_t VoimansiirtoID = 0;         ///< drive (clsVoimasiirto::Valitys)
  double IlmavirtaPros = 100;              ///< reference flow, 30 to 100 %
  double P1 = 0;                           ///< electric power at the reference flow, kW
  std::optional<double> P3N;               ///< nominal power of the motor, kW; without one it comes of the iteration
  std::int32_t PaineenKorotuksenVakioOsuus = 0;  ///< share of constant pressure rise, %, steps of ten
  std::int32_t IlmavirranSaatotapa = 0;          ///< control method (IlmavirranSaatotavat)

  /// Electric power at a flow of x %, kW. Outside 30 to 100 % a message, and 0; 0 also for an unknown control method,
  /// and with error 1045 for an unknown drive.
  double MivTehontarve(double x);
  /// Shaft power at the reference flow, kW: electric power P1 through converter, motor and drive. Outside 30 to 100 % a
  /// message, and 0; 0 for a power of 0 or less.
  double IteroiP4Toimintapisteessa() const;
  /// Sets ma2, ma1, ma0; all 0 for an unknown method.
  void AsetaSovitteenKertoimet(double x, std::int32_t tapa, std::int32_t osuus);
  double P4_akseliteho() const { return 0; }
  /// The fits hold at a flow of x %: 30 to 100.
  static bool OnVirta(double x) noexcept;

  /// What the iteration finds.
  struct Toimintapiste {
    double P4 = 0;   ///< shaft power at the operating point, or where the fit is 1, kW
    double P3N = 0;  ///< nominal power of the motor, kW
  };
  /// That of the fan where its fit is 1: the same for every flow, so that many flows take one iteration.
  Toimintapiste LaskeToimintapiste();
  /// The electric power at x % with the operating point given. Shows no message for the reference flow.
  double MivTehontarve(double x, const Toimintapiste& piste);

 private:
  Toimintapiste Iteroi() const;
  double SuhteellinenTeho(double x);
  bool KaksiNopeusmoottori() const;
  double Sahkoteho(double P3, double P3N, double x) const;
};
