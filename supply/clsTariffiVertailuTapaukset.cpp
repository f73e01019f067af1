// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsTariffiVertailuTapaukset.h"

#include <functional>

#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

constexpr double kRaja = 10000000000.0;  // €/a: no case is dearer

}  // namespace

const Luokka clsTariffiVertailuTapaukset::kLuokka{"clsTariffiVertailuTapaukset", kJasenet};

Tunniste clsTariffiVertailuTapaukset::HalvinTariffisKey(const clsTariffit& tariffit) const try {
  return Aarimmainen(tariffit, kRaja, std::less());
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaukset:HalvinTariffisKey Method");
}

Tunniste clsTariffiVertailuTapaukset::KalleinTariffisKey(const clsTariffit& tariffit) const try {
  return Aarimmainen(tariffit, -kRaja, std::greater());
} catch (...) {
  NostaVirhe("clsTariffiVertailuTapaukset:KalleinTariffisKey Method");
}

template <class Vertaaja>
Tunniste clsTariffiVertailuTapaukset::Aarimmainen(const clsTariffit& tariffit, double raja, Vertaaja parempi) const {
  Tunniste avain;
  for (const clsTariffiVertailuTapaus& tapaus : *this) {
    if (!tapaus.TariffitLoytyvat(tariffit)) continue;
    const double kustannus = tapaus.KustannusYhteensa(tariffit);
    if (parempi(kustannus, raja)) raja = kustannus, avain = tapaus.sKey;
  }
  return avain;
}
