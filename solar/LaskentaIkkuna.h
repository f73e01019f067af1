// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

class Varjostustaulukko;

/// A window of the solar calculation.
class LaskentaIkkuna {
 public:
  int Vyohyke = 1;                    ///< position of the zone that gets the energy, from 1
  int Suuntaus = 0;                   ///< 0 north, 1 east, 2 south, 3 west, 4 horizontal
  double PintaAla = 0;                ///< with its frame, m²
  double U_arvo = 0;                  ///< W/m²K; has no part in the gain
  double Aurinkoenergianlapaisy = 1;  ///< total transmittance of the glazing at normal incidence (g), 0 to 1
  double Karmikerroin = 1;            ///< what the frame leaves, 0 to 1
  double Verhokerroin = 1;            ///< what the curtains leave, 0 to 1
  double SivuLippaKulma = 0;          ///< angle of the side fin, degrees
  double YlaLippaKulma = 0;           ///< angle of the overhang, degrees

  /// Load the table of side fin factors Ff, and that of overhang factors Fo, by full path; see Varjostustaulukko.
  /// Errors: AurinkoVirhe.
  void LataaFf(std::string_view polku);
  void LataaFo(std::string_view polku);

  /// What the side fin, and what the overhang, leaves of the radiation at the latitude (degrees north), 0 to 1.
  /// Errors: AurinkoVirhe when a table isn't loaded or Suuntaus isn't 0 to 4.
  double Ff(double leveysaste) const;
  double Fo(double leveysaste) const;

 private:
  const Varjostustaulukko* ff_ = nullptr;
  const Varjostustaulukko* fo_ = nullptr;
};
