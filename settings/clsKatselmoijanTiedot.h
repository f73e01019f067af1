// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Olio.h"
#include "settings/Asetusavaimet.h"

/// Contact data of one auditor.
class clsKatselmoijanTiedot : public Malli<clsKatselmoijanTiedot> {
 public:
  static const Luokka kLuokka;

  std::string Tehtavanimike;  ///< job title
  std::string Nimi;
  std::string Puhelin;
  std::string Matkapuhelin;
  std::string Faksi;
  std::string Sahkoposti;

  /// The six fields in the order of the settings keys.
  static constexpr std::size_t kKenttia = 6;
  static std::string clsKatselmoijanTiedot::*Kentta(std::size_t i);

  /// Takes the user's own data from the settings: six keys from `ensimmainen` on, in the order of the fields.
  void HaeOletukset(Avain ensimmainen);
};
