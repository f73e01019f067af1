// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "solar/Ilmansuunta.h"
#include "solar/Kuukausiarvot.h"

/// A month's line of a climate zone file.
struct Saarivi {
  int kuukausi;                               ///< 1 to 12
  double lampotila;                           ///< mean, °C
  std::array<double, kIlmansuuntia> sateily;  ///< by Ilmansuunta, MJ/m² in the month
};

/// Reads the twelve lines of a climate zone file and hands each over as soon as it is known to be good.
///
/// The file's first line is a heading; the next twelve hold, for one month each, seven numbers: month 1 to 12, mean
/// temperature, and radiation in MJ/m² per month on a horizontal, south, east, west and north surface. The month's
/// number decides where the line belongs, not its place. What follows is not read.
///
/// Errors: AurinkoVirhe with file and line for a missing or malformed file, a line with more or fewer fields, a month
/// that stands twice (another is then missing) and negative radiation.
void LueSaarivit(std::string_view polku, const std::function<void(const Saarivi&)>& kasittele);

/// The monthly solar radiation of a climate zone file.
class Saataulukko {
 public:
  /// Errors: as LueSaarivit.
  explicit Saataulukko(std::string_view polku);

  /// Radiation on a surface of the orientation, MJ/m² per month.
  const Kuukausiarvot& Sateily(Ilmansuunta suunta) const { return sateily_[Indeksi(suunta)]; }

  friend bool operator==(const Saataulukko&, const Saataulukko&) = default;

 private:
  std::array<Kuukausiarvot, kIlmansuuntia> sateily_;
};
