// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "solar/Kuukausiarvot.h"

/// A zone of the solar calculation. It carries the windows' energy; none of its own figures has a part in it.
struct LaskentaVyohyke {
  Kuukausiarvot Asetuslampotila;  ///< set-point temperature, °C; by month 1 to 12
  double Tilavuus = 0;            ///< m³
  double Koko = 0;                ///< floor area or a like measure of size, m²
};
