// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "solar/Ilmansuunta.h"
#include "solar/Kuukausiarvot.h"

/// The monthly solar radiation of a climate zone file.
///
/// The file's first line is a heading; the next twelve hold, for one month each, seven numbers: month 1 to 12, mean
/// temperature, and radiation in MJ/m² per month on a horizontal, south, east, west and north surface. The month's
/// number decides where the line belongs, not its place. What follows is not read.
class Saataulukko {
 public:
  /// Errors: AurinkoVirhe with file and line for a missing or malformed file, a month that stands twice
  /// (another is then missing) and negative radiation.
  explicit Saataulukko(std::string_view polku);

  /// Radiation on a surface of the orientation, MJ/m² per month.
  const Kuukausiarvot& Sateily(Ilmansuunta suunta) const { return sateily_[Indeksi(suunta)]; }

  friend bool operator==(const Saataulukko&, const Saataulukko&) = default;

 private:
  std::array<Kuukausiarvot, kIlmansuuntia> sateily_;
};
