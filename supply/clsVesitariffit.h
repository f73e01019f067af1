// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <vector>

#include "building/Koti.h"
#include "supply/Tariffitapa.h"
#include "supply/clsVesitariffi.h"

/// The water tariffs of the building.
class clsVesitariffit : public Malli<clsVesitariffit, Kokoelma<clsVesitariffi>> {
 public:
  static const Luokka kLuokka;
  /// Gives the building whose water supply uses the tariffs.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  /// Adds a tariff under a fresh key, with the VAT as the settings say.
  clsVesitariffi& LisaaTariffi();
  /// Names of the forms of the water supply that use the tariff. One that has any isn't to be removed.
  std::vector<std::string> Kayttajat(const clsVesitariffi& tariffi) const;

  /// Lets the person choose a tariff and edit them, as clsTariffit::NaytaKayttoliittyma does. `kulutus`: m³/a.
  std::optional<Tunniste> NaytaKayttoliittyma(const Tunniste& valittava, double kulutus,
                                              Tariffitapa tapa = Tariffitapa::Muokkaus);

 private:
  Koti koti_;
};
