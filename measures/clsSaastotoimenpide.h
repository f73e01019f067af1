// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "measures/KelluvaRyhma.h"
#include "measures/clsMuuttuneetAttribuutit.h"

/// A saving measure: a variation of the live model, or of a consumer group of its own, with prices and the yearly
/// figures before and after. Amounts are in euros without VAT.
class clsSaastotoimenpide : public Malli<clsSaastotoimenpide, Alkio> {
 public:
  static const Luokka kLuokka;
  /// Dated today, made by the present user.
  clsSaastotoimenpide();

  clsMuuttuneetAttribuutit MuuttuneetAttribuutit;
  double LampoEnergiaJalkeen = 0;      ///< yearly gross heat after, MWh/a
  double SahkoEnergiaJalkeen = 0;      ///< yearly gross electricity after, MWh/a
  double VedenkulutusJalkeen = 0;      ///< yearly water after, m³/a
  bool JalkeenTiedotUpToDate = false;  ///< the figures after are valid
  bool EnnenTiedotUpToDate = false;    ///< the figures before are valid
  double SahkoLoisTehoHinta = 0;       ///< €/kVAr
  double SahkoPatoTehoHinta = 0;       ///< €/kW
  double LampoTehoHinta = 0;           ///< €/kW
  double VesiHinta = 0;                ///< €/m³
  double SahkoEnergiaHinta = 0;        ///< €/MWh
  double LampoEnergiaHinta = 0;        ///< €/MWh
  double SaastoLoisTeho = 0;           ///< saved reactive power, kVAr: given, never calculated, as the two below
  double SaastoPatoTeho = 0;           ///< saved power, kW
  double SaastoLampoteho = 0;          ///< saved heat power, kW
  double Investointi = 0;              ///< €
  std::string Kuvaus;
  std::string Nimi;
  std::string ToimenpiteenPaivays;
  std::string ToimenpiteenTekijanNimi;
  KelluvaRyhma KelluvaEnnen;  ///< the measure's own group before; empty when it concerns a live object

  /// Yearly gross heat and electricity, MWh/a, and water, m³/a, before. A new figure more than 0.1 away from the stored
  /// one makes the figures before and after invalid.
  double LampoEnergiaEnnen() const noexcept { return lampoEnnen_; }
  void LampoEnergiaEnnen(double arvo) noexcept { AsetaEnnen(lampoEnnen_, arvo); }
  double SahkoEnergiaEnnen() const noexcept { return sahkoEnnen_; }
  void SahkoEnergiaEnnen(double arvo) noexcept { AsetaEnnen(sahkoEnnen_, arvo); }
  double VedenkulutusEnnen() const noexcept { return vesiEnnen_; }
  void VedenkulutusEnnen(double arvo) noexcept { AsetaEnnen(vesiEnnen_, arvo); }

 private:
  static const Jasen kJasenet[];

  void AsetaEnnen(double& tieto, double arvo) noexcept;

  double lampoEnnen_ = 0;
  double sahkoEnnen_ = 0;
  double vesiEnnen_ = 0;
};
