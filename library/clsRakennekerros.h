// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <algorithm>

#include "kernel/Olio.h"
#include "library/Lammonlapaisy.h"
#include "library/Materiaali.h"

/// One layer of a structure solution. The layers stand from inside out.
class clsRakennekerros : public Malli<clsRakennekerros, Alkio> {
 public:
  static const Luokka kLuokka;

  /// True when the layer counts towards the U-value and has a resistance: a fixed one, or a positive thickness and
  /// conductivity of the main material.
  bool Vastustaa() const noexcept { return UArvoon && (Lammonvastus > 0 || (Paksuus > 0 && Materiaali.Lambda > 0)); }
  /// The layer in the form of the U-value calculation.
  Kerros Laskentakerros() const noexcept {
    Kerros kerros;
    kerros.paksuus_m = PaksuusMetreina();
    kerros.lambda = Materiaali.Lambda;
    kerros.mukana = UArvoon;
    kerros.yhtenainen = Yhtenainen;
    if (!Yhtenainen) {
      kerros.lambda2 = Lisamateriaali.Lambda;
      kerros.osuus2 = LisamateriaalinPaino();
    }
    if (Lammonvastus > 0) kerros.vastus = Lammonvastus;
    return kerros;
  }
  /// Masses of the materials per area, kg/m²; those of an inhomogeneous layer by their shares.
  struct Aineidenmassat {
    double paa, lisa;
  };
  Aineidenmassat Massat() const noexcept;
  /// Mass per area, kg/m².
  double Massa() const noexcept { return Massat().paa + Massat().lisa; }

  // What the U-value is computed from stands together: it is read for every layer in each recalculation.
  float Paksuus = 0;               ///< mm
  float LisamateriaalinOsuus = 0;  ///< per cent of the area, 0 to 100; clamped in calculations
  float Lammonvastus = 0;          ///< fixed resistance of an air layer, m²K/W; 0: from thickness and conductivity
  bool UArvoon = true;             ///< counts towards the U-value
  bool Yhtenainen = true;          ///< homogeneous; else the additional material takes its share of the area
  ::Materiaali Materiaali;
  ::Materiaali Lisamateriaali;
  std::string Nimi;  ///< empty: the layer is shown by its number

 private:
  double PaksuusMetreina() const noexcept { return double{Paksuus} / 1000; }
  double LisamateriaalinPaino() const noexcept {
    return Yhtenainen ? 0 : std::clamp(double{LisamateriaalinOsuus} / 100, 0.0, 1.0);
  }
};
