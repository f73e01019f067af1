// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <vector>

#include "library/Rakennetyyppi.h"

/// Thermal resistances of unventilated air layers: in an air gap heat goes by convection and radiation too, so that it
/// resists far less than still air of its thickness. Table of the structure database (building code C4).
class Ilmakerrokset {
 public:
  /// Reads the table. Raises error 9999: the file is missing, damaged, or no structure database.
  explicit Ilmakerrokset(const std::string& kanta);

  /// Name of the material that stands for air; empty when the database has none.
  const std::string& Aine() const { return aine_; }
  /// Resistance, m²K/W. Linear between the rows of the table, from 0 at 0 mm; above the last row that row's. 0 for a
  /// thickness of 0 mm or less.
  double Vastus(double paksuus_mm, Lampovirta suunta) const;

 private:
  struct Rivi {
    double paksuus;  // mm
    double vaakaan;  // m²K/W by direction of the heat flow
    double ylos;
    double alas;
    double Vastus(Lampovirta suunta) const;
  };
  std::string aine_;
  std::vector<Rivi> rivit_;  // by thickness, after a row of zeros
};
