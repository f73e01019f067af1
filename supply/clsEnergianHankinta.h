// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "supply/clsEnergiamuodot.h"

/// How heat, electricity or water is bought.
class clsEnergianHankinta : public Malli<clsEnergianHankinta> {
 public:
  static const Luokka kLuokka;
  enum Laji : std::int16_t { Lampo = 0, Sahko = 1, Vesi = 2 };

  std::string Nimi;
  std::string Kuvaus;
  std::int16_t Kayttotarkoitus = Lampo;  ///< what is bought
  clsEnergiamuodot Energiamuodot;

  /// Adds a form of the supply's kind under a fresh key. One of heat or electricity counts as of the standard base.
  clsEnergiamuoto& LisaaMuoto();
};
