// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffiVertailuTapaukset.h"

#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

constexpr double kRaja = 10000000000.0;  // €/a: no case is dearer

}  // namespace

const Luokka clsTariffiVertailuTapaukset::kLuokka{"clsTariffiVertailuTapaukset", kJasenet};

Tunniste clsTariffiVertailuTapaukset::HalvinTariffisKey(const clsTariffit& tariffit) const try {
  Tunniste avain;
  double halvin = kRaja;
  for (const clsTariffiVertailuTapaus& tapaus : *this)
    if (const double kustannus = tapaus.KustannusYhteensa(tariffit); kustannus < halvin)
      halvin = kustannus, avain = tapaus.sKey;
  return avain;
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaukset:HalvinTariffisKey Method");
}

Tunniste clsTariffiVertailuTapaukset::KalleinTariffisKey(const clsTariffit& tariffit) const try {
  Tunniste avain;
  double kallein = -kRaja;
  for (const clsTariffiVertailuTapaus& tapaus : *this)
    if (const double kustannus = tapaus.KustannusYhteensa(tariffit); kustannus > kallein)
      kallein = kustannus, avain = tapaus.sKey;
  return avain;
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaukset:KalleinTariffisKey Method");
}
