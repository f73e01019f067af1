// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>
#include <limits>
#include <optional>

#include "ventilation/clsMivSaato.h"

/// Electric power of one fan at any flow. The operating point at full flow is found once, when it is first needed; the
/// powers of the flows asked last are kept, since a schedule runs the fan at few flows, over and over.
class PuhaltimenTeho {
 public:
  enum Jarjestelma : std::int32_t { Vakioilmavirta = 0, Kaksinopeus = 1, MuuttuvaIlmavirta = 2 };

  /// `saato` has the fan's power at full flow, drive and control method.
  PuhaltimenTeho(std::int32_t jarjestelmaTyyppi, const clsMivSaato& saato)
      : jarjestelma_(jarjestelmaTyyppi), saato_(saato) {}

  /// The fan can run at a flow of x %: one of two speeds at 33 to 66 and from 100 on, one of variable flow at 30 to
  /// 100, one of constant flow at any.
  bool OnVirta(double x) const noexcept;
  double Taysteho() const noexcept { return saato_.P1; }  ///< kW
  /// Power in a running period of x % flow, kW. A constant-flow fan has its full power at any flow, a two-speed one
  /// from 100 % on.
  double Teho(double x);
  /// Power at a part flow of x %, kW; that of a constant-flow fan is its full power.
  double Osateho(double x);

  /// Two speeds: the shaft power falls with the cube of the flow, to a low-speed point that is a fifth poorer; the
  /// motor is chosen 30 % over the need. At most the full power. Flow 33 to 66 %, else error 1014, and 0.
  double KaksiNopPuhaltimenOsateho(double x);
  /// Variable flow (clsMivSaato): flow 30 to 100 %, else a message, and 0.
  double MivPuhaltimenOsateho(double x);

 private:
  struct Virranteho {
    double x = std::numeric_limits<double>::quiet_NaN(), teho = 0;  // %, kW
  };

  clsMivSaato::Toimintapiste KaksinopeuksinenPiste() const;

  std::int32_t jarjestelma_;
  clsMivSaato saato_;
  std::optional<clsMivSaato::Toimintapiste> piste_;
  std::array<Virranteho, 8> muisti_;
  std::size_t seuraava_ = 0;
};
