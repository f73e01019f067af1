// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>

#include "ui/Luettelomuokkain.h"
#include "ui/Muokkauslomake.h"

/// A list of consumer groups as a tree under titles, and above it the measured consumption beside the computed one.
class Puulomake : public Muokkauslomake {
 public:
  static constexpr const char* kEiLukua = "---";  ///< in place of a figure that can't be calculated

  std::function<void()> LuettelostaKlikattu;
  std::function<void()> NimikeKlikattu;

  /// The difference is that of the shown numbers; without a computed figure there is none.
  void NaytaVertailu(double toteutunut, std::optional<double> laskettu, const char* kuvio) const;

  TextBox txtToteutunut{*this, "txtToteutunut"};  // read only, as the two below
  TextBox txtLaskettu{*this, "txtLaskettu"};
  TextBox txtErotus{*this, "txtErotus"};  // measured less computed
  ListView lvwRyhmat{*this, "lvwRyhmat"};
  CommandButton cmdLisaaUusi{*this, "cmdLisaaUusi"};
  CommandButton cmdLisaaLuettelosta{*this, "cmdLisaaLuettelosta"};
  CommandButton cmdLisaaUusiNimike{*this, "cmdLisaaUusiNimike"};
  CommandButton cmdMuokkaa{*this, "cmdMuokkaa"};
  CommandButton cmdKopioi{*this, "cmdKopioi"};
  CommandButton cmdPoista{*this, "cmdPoista"};
  CommandButton cmdJakauma{*this, "cmdJakauma"};
  Luettelomuokkain luettelo{*this, {lvwRyhmat, cmdLisaaUusi, cmdMuokkaa, cmdKopioi, cmdPoista}};

 protected:
  explicit Puulomake(std::string nimi);
};
