// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"
#include "library/Lammonlapaisy.h"
#include "library/Materiaali.h"

/// One layer of a structure solution. The layers stand from inside out.
class clsRakennekerros : public Malli<clsRakennekerros, Alkio> {
 public:
  static const Luokka kLuokka;

  /// True when the layer counts towards the U-value and has a resistance: a fixed one, or a positive thickness and
  /// conductivity of the main material.
  bool Vastustaa() const noexcept;
  /// The layer in the form of the U-value calculation.
  Kerros Laskentakerros() const noexcept;
  /// Mass per area, kg/m²; an inhomogeneous layer's materials by their shares.
  double Massa() const noexcept;

  std::string Nimi;  ///< empty: the layer is shown by its number
  ::Materiaali Materiaali;
  float Paksuus = 0;       ///< mm
  bool UArvoon = true;     ///< counts towards the U-value
  bool Yhtenainen = true;  ///< homogeneous; else the additional material takes its share of the area
  ::Materiaali Lisamateriaali;
  float LisamateriaalinOsuus = 0;  ///< per cent of the area, 0 to 100; clamped in calculations
  float Lammonvastus = 0;          ///< fixed resistance of an air layer, m²K/W; 0: from thickness and conductivity

 private:
  double LisamateriaalinPaino() const noexcept;
};
