// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <vector>

#include "building/Koti.h"
#include "supply/Tariffitapa.h"
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

  /// Lets the person choose a tariff of that kind, and edit them, with the tariff of the key chosen to begin with.
  /// `kulutus`: MWh/a, for the yearly bill shown. Gives the key of the chosen one after OK, an empty key when there are
  /// none; nothing after Cancel.
  /// Inside the session of another dialog nothing is committed here: that session is to take the tariffs back together
  /// with its own object, Muokkausistunto(std::tie(hankinta, tariffit), ...).
  std::optional<Tunniste> NaytaKayttoliittyma(clsTariffi::Laji laji, const Tunniste& valittava, double kulutus,
                                              Tariffitapa tapa = Tariffitapa::Muokkaus);

 private:
  Koti koti_;
};
