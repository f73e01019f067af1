// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"
#include "measures/Kustannussaastot.h"

/// One row of the arranger: a measure and its net effect. Amounts are in euros without VAT.
class clsValittuToimenpide : public Malli<clsValittuToimenpide, Alkio> {
 public:
  static const Luokka kLuokka;
  enum Rivityyppi : std::int32_t { Toimenpide = 0, Tariffi = 1, Yhteensa = 2 };

  bool TiedotUpToDate = false;         ///< the row's figures are valid
  double SaastoPatoTeho = 0;           ///< kW
  double SaastoLoisTeho = 0;           ///< kVAr
  double SaastoLampoteho = 0;          ///< kW
  double Investointi = 0;              ///< €
  double Takaisinmaksuaika = 0;        ///< a
  double KustannusSaastoYhteensa = 0;  ///< €/a, as all savings of cost below
  double KustannusSaastoVesi = 0;
  double KustannusSaastoSahkoLoisTeho = 0;
  double KustannusSaastoSahkoPatoTeho = 0;  ///< of a tariff row the whole saving
  double KustannusSaastoSahkoEnergia = 0;
  double KustannusSaastoLampoTeho = 0;
  double KustannusSaastoLampoEnergia = 0;
  double SaastoVedenKulutus = 0;  ///< m³/a
  double SaastoSahkoEnergia = 0;  ///< MWh/a
  double SaastoLampoEnergia = 0;  ///< MWh/a
  std::int32_t Tyyppi = Toimenpide;
  Tunniste ToimenpidesKey;  ///< key of the measure
  Tunniste JalkeensKey;     ///< key of the row that it was put behind; empty: it was put at the end
  std::string Nimi;

  /// This row, if its figures are valid; else raises std::logic_error.
  const clsValittuToimenpide& Laskettu() const;
  /// The six savings of cost.
  Kustannussaastot Kustannussaasto() const noexcept;
  void AsetaKustannukset(const Kustannussaastot& saastot) noexcept;
};
