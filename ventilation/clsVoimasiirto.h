// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <cstdint>

/// Drive between motor and fan. Its efficiency curves by shaft power: as given for this method.
class clsVoimasiirto {
 public:
  enum Valitys : std::int32_t { Kiilahihna = 0, Lattahihna = 1, SuoraVeto = 2 };

  std::int32_t ValitysTapa = Kiilahihna;
  double P4 = 0;  ///< shaft power of the fan, kW

  /// Efficiency at P4, %: not limited, negative for a very small power of a belt drive. 100 at a power of 0 or less. An
  /// unknown drive shows error 1045 and gives 0.
  double Hyotysuhde() const;
  /// Motor power, kW, that drives the fan at P4; the efficiency counts as 1 % at least. 0 for an unknown drive.
  double Moottoriteho() const;
};
