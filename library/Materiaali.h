// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// A building material as a layer holds it: a full copy of the library's figures, so that no calculation needs the
/// library. No object of its own in the project file: its figures are columns of the layer.
struct Materiaali {
  float Lambda = 0;        ///< design thermal conductivity, W/mK; <= 0: not known
  float Tiheys = 0;        ///< kg/m³
  float Ominaislampo = 0;  ///< kJ/kgK
  std::string Nimi;
  std::string Id;  ///< identifier in the library that it was picked from; empty: not picked, or by an older version

  /// The same material with the same figures, wherever it was picked from.
  friend bool operator==(const Materiaali& x, const Materiaali& y) {
    return x.Lambda == y.Lambda && x.Tiheys == y.Tiheys && x.Ominaislampo == y.Ominaislampo && x.Nimi == y.Nimi;
  }
};
