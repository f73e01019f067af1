// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "building/Koti.h"
#include "supply/clsTariffi.h"

/// The heat and electricity tariffs of the building, of all three kinds.
class clsTariffit : public Malli<clsTariffit, Kokoelma<clsTariffi>> {
 public:
  static const Luokka kLuokka;
  /// Gives the building whose supplies use the tariffs.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  /// Adds a tariff of that kind under a fresh key, with the VAT rate of the kind and shown with VAT as the settings
  /// say.
  clsTariffi& LisaaTariffi(clsTariffi::Laji laji);
  /// Names of the energy forms that use the tariff: those of the heat supply for a heat tariff, those of the
  /// electricity supply for the others. One that has any isn't to be removed.
  std::vector<std::string> Kayttajat(const clsTariffi& tariffi) const;

 private:
  Koti koti_;
};
