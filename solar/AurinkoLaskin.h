// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "solar/Ilmansuunta.h"
#include "solar/Kuukausiarvot.h"
#include "solar/LaskentaIkkuna.h"
#include "solar/LaskentaJoukko.h"
#include "solar/LaskentaVyohyke.h"

class Saataulukko;
class Varjostustaulukko;

/// Monthly solar gains through windows. Made for one calculation and then thrown away: load the files, give the zones,
/// horizon angles and windows, call Laske, read AurinkoEnergia.
///
/// Gain of a window in a month, MJ = I x A x 0.9 x g x F_frame x F_curtain x Fh x Fo x Ff, where I is the radiation on
/// its orientation (MJ/m² per month), A its area, 0.9 g its mean transmittance and the rest what frame, curtains,
/// horizon, overhang and side fin leave.  Source: prEN 832, effective collecting area.
///
/// A calculation with one zone and one window takes no memory from the heap once the files have been read.
class AurinkoLaskin {
 public:
  /// Loads the climate zone file by full path; see Saataulukko.  Errors: AurinkoVirhe.
  void LataaSaa(std::string_view polku);

  /// Degrees north; 60, southern Finland, unless set.
  double Leveysaste = 60.0;

  /// Loads the table of horizon factors Fh by full path; see Varjostustaulukko.  Errors: AurinkoVirhe.
  void LataaFh(std::string_view polku);

  LaskentaJoukko<LaskentaVyohyke> Vyohykkeet;
  LaskentaJoukko<LaskentaIkkuna> Ikkunat;

  /// Sets the angle of the horizon seen from windows of the orientation (0 to 4), degrees; 0 unless set.
  /// Errors: AurinkoVirhe for another orientation.
  void HorisonttiKulma(int suuntaus, double kulma);

  /// Mean temperature of a zone in month 1 to 12, °C: under the method's continuous heating its set-point.
  /// Errors: AurinkoVirhe for another month or a zone that wasn't added.
  double Keskilampotila(int kuukausi, int vyohyke = 1) const;

  /// Calculates all months of all zones.  Errors: AurinkoVirhe when a file isn't loaded, or a window
  /// has an orientation outside 0 to 4 or a zone that wasn't added; no zone has energy then.
  void Laske();

  /// Solar energy of the zone in month 1 to 12, MJ, from the latest Laske.
  /// Errors: AurinkoVirhe for another month or a zone that had no part in it.
  double AurinkoEnergia(int kuukausi, int vyohyke = 1) const { return energiat_.Item(vyohyke)(kuukausi); }

 private:
  void LisaaEnergia(const LaskentaIkkuna& ikkuna);

  const Saataulukko* saa_ = nullptr;
  const Varjostustaulukko* fh_ = nullptr;
  std::array<double, kIlmansuuntia> horisonttiKulmat_{};
  LaskentaJoukko<Kuukausiarvot> energiat_;  ///< by zone, MJ
};
