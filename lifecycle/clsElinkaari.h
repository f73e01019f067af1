// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "building/Koti.h"
#include "lifecycle/Investointilaskelma.h"
#include "lifecycle/clsElinkaarisolmu.h"

class Vaikutuspuu;

/// What the person assumes of the building's life, and the costs entered for it. Nothing is assumed by the program:
/// until the defaults are given, no figure over the life is computed.
class clsElinkaari : public Malli<clsElinkaari> {
 public:
  static const Luokka kLuokka;
  /// Takes its place in a building.
  void Kotiudu(const Koti& koti) { koti_.Muuta(koti); }

  bool OletuksetAnnettu = false;  ///< the five below have been given
  std::int32_t Pitoaika = 0;      ///< calculation period, a
  double Korkokanta = 0;          ///< interest, %
  double LammonHinnannousu = 0;   ///< yearly rise of the costs of heat, %, real or nominal as the interest
  double SahkonHinnannousu = 0;   ///< of electricity, %
  double VedenHinnannousu = 0;    ///< of water, %
  std::string VertailunNimi;      ///< what the eco-profile is compared with
  double VertailuMateriaalit =
      0;  ///< its global warming by materials (A1–A3), kg of CO2 equivalent per gross m² and year; 0: none
  double VertailuEnergia = 0;       ///< the same by energy in use (B6)
  clsElinkaarisolmut Perustaminen;  ///< founding costs by building element
  clsElinkaarisolmut Hoito;         ///< yearly upkeep costs

  /// The given defaults as the reckoning takes them; nothing before they are given.
  std::optional<Elinkaarioletukset> Oletukset() const;

  /// Environmental impact of the building by the structure library of the settings. Errors: those of both.
  Vaikutuspuu Vaikutukset() const;

  // Dialogs, modal. Errors: those of the figures that they show.
  void NaytaOletusarvot();
  void NaytaKustannukset();
  void NaytaYmparistovaikutukset();
  void NaytaEkoprofiili();

 private:
  Koti koti_;
};
