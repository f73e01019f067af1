// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "solar/Ilmansuunta.h"

class Lukutiedosto;

/// A table of partial shading factors: by latitude, shading angle and orientation.
///
/// The file's first line is a heading; each further line holds five numbers: latitude, angle (both in degrees), and the
/// factors of a south, an east or west, and a north surface, 0 to 1. Lines may stand in any order and blank ones are
/// passed over. The table is whole: each latitude has the same angles, and the latitudes reach from 60 or less to 65 or
/// more, so that a file that has been cut short isn't taken for a shorter table.
/// Source of the method: prEN 832, informative annex on solar gains.
class Varjostustaulukko {
 public:
  /// Errors: AurinkoVirhe with file and line for a missing, empty or malformed file, a figure out of range and a
  /// latitude and angle that stand twice; with the file alone for a table that isn't whole.
  explicit Varjostustaulukko(std::string_view polku);

  /// The factor, 0 to 1: linear in the angle, then in the latitude, and beyond the table its outermost value.
  /// A horizontal surface has 1.
  double Kerroin(double leveysaste, double kulma, Ilmansuunta suunta) const;

  friend bool operator==(const Varjostustaulukko&, const Varjostustaulukko&) = default;

 private:
  static constexpr std::size_t kSarakkeita = 3;
  struct Piste {
    double kulma;
    std::array<double, kSarakkeita> kertoimet;
    friend bool operator==(const Piste&, const Piste&) = default;
  };
  struct Kayra {
    double leveysaste;
    std::vector<Piste> pisteet;  ///< at least one, by rising angle
    friend bool operator==(const Kayra&, const Kayra&) = default;
  };

  void LisaaRivi(const Lukutiedosto& tiedosto);
  void TarkistaKokonaisuus(const Lukutiedosto& tiedosto) const;

  std::vector<Kayra> kayrat_;  ///< at least one, by rising latitude
};
