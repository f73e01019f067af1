// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "kernel/Kokoelma.h"
#include "kernel/Laskenta.h"
#include "ventilation/clsIVKone.h"

/// The ventilation machines of the building.
class clsIVKoneet : public Malli<clsIVKoneet, Kokoelma<clsIVKone>> {
 public:
  static const Luokka kLuokka;

  /// While set, the yearly after-heating keeps its last value.
  Lippu VuotuinenIVjalkilammitysLampoUpToDate;

  /// After-heating of the supply air of all machines, MWh/a.
  double VuotuinenIVjalkilammitysLampo();
  /// Supply and exhaust air flows at full power of the machines that have that fan, m³/s.
  double Tuloilmavirtojen11Summa() const;
  double Poistoilmavirtojen11Summa() const;
  /// The machines that serve no space: they have no key of one, or one that no space of the building has.
  std::vector<clsIVKone*> ListaaTilaanLiittymattomatIVKoneet() const;

 private:
  Oma<double> jalkilammitys_;
};
