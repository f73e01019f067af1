// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Kokoelma.h"
#include "results/clsToteutunutKulutus.h"

/// Measured consumption of the latest years, newest first: row "Tot i" is the year `KulutusTietojenViimVuosi` − (i −
/// 1).
class clsToteutuneetKulutukset : public Malli<clsToteutuneetKulutukset, Kokoelma<clsToteutunutKulutus>> {
 public:
  static const Luokka kLuokka;

  std::int32_t KulutusTietojenViimVuosi = 0;  ///< newest year of the data

  /// The first year marked as the comparison year. With none: a year of zeros, never nothing.
  const clsToteutunutKulutus& VertailuVuodenTiedot() const;
  /// The comparison year, 2024; 0 with none.
  int Vertailuvuosi() const;
  /// The i:th newest year, from 1, under the key "Tot i" or "Tot " + the year; nothing if there is no such row.
  clsToteutunutKulutus* Vuosi(int i) const;
};
