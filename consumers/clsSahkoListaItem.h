// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One row of the electricity tree: a title, a device group, or a row that another part of the model gives.
class clsSahkoListaItem : public Malli<clsSahkoListaItem, Alkio> {
 public:
  static const Luokka kLuokka;
  bool OnSisaltoa() const noexcept override { return !SiirrettyToisestaModulista; }

  Tunniste Parent;                          ///< key of the parent row; empty for the root
  std::string NimiTeksti;                   ///< caption
  std::string Laskentatapa;                 ///< stored, shown nowhere
  std::int16_t ItemTyyppi = 0;              ///< 0 a device row, 1 a row that only sums or comes from elsewhere
  double Vuosikulutus = 0;                  ///< MWh/a
  bool SiirrettyToisestaModulista = false;  ///< another part of the model gives the row; not edited here
  bool Collapsed = false;
  bool Visible = true;
};
