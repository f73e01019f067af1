// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Amounts of a year by what is bought: heat and electricity in MWh and water in m³, or their costs in euros.
struct Hyodykkeet {
  double lampo = 0, sahko = 0, vesi = 0;

  friend Hyodykkeet operator-(const Hyodykkeet& a, const Hyodykkeet& b) noexcept {
    return {a.lampo - b.lampo, a.sahko - b.sahko, a.vesi - b.vesi};
  }
  Hyodykkeet& operator+=(const Hyodykkeet& toinen) noexcept {
    lampo += toinen.lampo;
    sahko += toinen.sahko;
    vesi += toinen.vesi;
    return *this;
  }
  /// Their sum: of costs.
  double Yhteensa() const noexcept { return lampo + sahko + vesi; }

  friend bool operator==(const Hyodykkeet&, const Hyodykkeet&) = default;
};
