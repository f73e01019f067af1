// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "supply/clsEnergianHankinta.h"

class clsPerustiedot;
class clsRakennus;

/// What is used of a supply in a year.
struct Kaytto {
  double brutto = 0;  ///< gross use, MWh/a, of water m³/a
  double verkko = 0;  ///< net demand that the conversion losses go by, MWh/a
};

/// What the building buys by its calculated use in a year, in the forms of one supply.
struct Hankintalaskelma {
  struct Muoto {
    const clsEnergiamuoto* muoto;
    double ostettu;  ///< MWh/a, of water m³/a: the form's share of the use, and what is lost in the form
    double paasto;   ///< global warming, t of CO2 equivalent a year; of water 0
  };

  double brutto = 0;     ///< gross use, MWh/a, of water m³/a
  double kustannus = 0;  ///< yearly cost, €/a without VAT: average price × gross use and the yearly fees
  double paasto = 0;     ///< sum of the forms, t/a
  std::vector<Muoto> muodot;
};

/// Raises error 9999 when a figure can't be computed, as when a form names a tariff that no longer exists.
Hankintalaskelma LaskeHankinta(clsRakennus& rakennus, clsEnergianHankinta::Laji laji);
/// The same by a use that the caller has computed.
Hankintalaskelma LaskeHankinta(const clsPerustiedot& tiedot, clsEnergianHankinta::Laji laji, const Kaytto& kaytto);
