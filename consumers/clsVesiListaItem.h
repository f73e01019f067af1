// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"

/// One row of the water tree: a title, a consumer group or the circulation loop.
class clsVesiListaItem : public Malli<clsVesiListaItem, Alkio> {
 public:
  static const Luokka kLuokka;
  bool OnSisaltoa() const noexcept override { return !SiirrettyToisestaModulista; }

  Tunniste Parent;              ///< key of the parent row; empty for the root
  std::string NimiTeksti;       ///< caption
  std::int16_t ItemTyyppi = 0;  ///< 0 a group row, 1 a title
  double Vuosikulutus = 0;      ///< heating energy, MWh/a
  double KvVuosikulutus = 0;    ///< water, m³/a
  double LkvVuosikulutus = 0;   ///< hot water, m³/a
  bool OnProsessiVesi = false;
  bool SiirrettyToisestaModulista = false;
  bool Collapsed = false;
  bool Visible = true;
};
