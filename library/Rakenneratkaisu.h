// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "library/Rakennetyyppi.h"
#include "library/colMateriaalit.h"

/// A structure solution: the layers and surface data of one wall, floor, window, ... A structure of the building holds
/// a full copy, so that nothing is asked of the library in a calculation.
class Rakenneratkaisu : public Malli<Rakenneratkaisu> {
 public:
  static const Luokka kLuokka;

  /// U-value from the layers, W/m²K, by EN ISO 6946 (library/Lammonlapaisy.h); nothing when no layer resists. Surface
  /// resistances that are both 0 are replaced by those of the kind.
  std::optional<double> LaskeU_arvo() const;
  /// The U-value that the solution stands for, W/m²K: the given one, or the one of the layers and the stated one only
  /// where the layers yield none. Nothing when there is neither.
  std::optional<double> VoimassaolevaU_arvo() const;
  /// Sets `Paksuus` and `KerrostenMassaYht` from the layers; a solution without layers keeps what it has.
  void PaivitaKerrossummat();

  // What a recalculation reads stands first.
  bool OnIkkuna = false;             ///< a window solution: lets the sun through
  bool U_arvoAnnettu = false;        ///< `U_arvo` is given, not computed from the layers
  float U_arvo = 0;                  ///< W/m²K; 0: not known
  float PintavastusSisa = 0;         ///< inner surface resistance, m²K/W
  float PintavastusUlko = 0;         ///< outer surface resistance, m²K/W
  float Karmikerroin = 0;            ///< window: share that is glass, per cent
  float Aurinkoenergianlapaisy = 0;  ///< window: total solar transmittance at normal incidence, per cent
  float Verhokerroin = 0;            ///< window: share that curtains let through, per cent
  colMateriaalit Kerrokset;
  std::string Rakennetyyppi;  ///< the library's word of the kind, see RakennetyyppiSanasta()
  std::string Nimi;
  std::string Kuvaus;
  std::string Paloluokka;
  float Rw = 0;                        ///< airborne sound reduction index, dB
  float Paksuus = 0;                   ///< mm
  float Pistemaiset = 0;               ///< number of point thermal bridges
  float PistemaisetWpK = 0;            ///< W/K each
  float Viivamaiset = 0;               ///< line thermal bridges: number or length
  float ViivamaisetWpK = 0;            ///< W/K for each of them
  float KerrostenMassaYht = 0;         ///< kg/m²
  float Kokonaisvarjostuskerroin = 0;  ///< window: per cent
};

/// What stands in for a solution that neither library knows: texts that name what is missing, one layer, U given but
/// not known. A window gets ordinary factors, so that the sun of it isn't lost.
Rakenneratkaisu PuuttuvaRakenneratkaisu(const std::string& id, std::int32_t rakennetyyppi);
