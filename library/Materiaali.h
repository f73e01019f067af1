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

  friend bool operator==(const Materiaali&, const Materiaali&) = default;
};
