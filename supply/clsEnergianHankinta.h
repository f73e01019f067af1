// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>

#include "kernel/Laskenta.h"
#include "supply/clsEnergiamuodot.h"

class Energiamuotokanta;

/// How heat, electricity or water is bought.
class clsEnergianHankinta : public Malli<clsEnergianHankinta> {
 public:
  static const Luokka kLuokka;
  enum Laji : std::int16_t { Lampo = 0, Sahko = 1, Vesi = 2 };

  std::string Nimi;
  std::string Kuvaus;
  std::int16_t Kayttotarkoitus = Lampo;  ///< what is bought
  clsEnergiamuodot Energiamuodot;

  /// Adds a form of the supply's kind under a fresh key. One of heat or electricity counts as of the standard base.
  clsEnergiamuoto& LisaaMuoto();
  /// Gives a new form what LisaaMuoto does.
  void AlustaMuoto(clsEnergiamuoto& muoto) const;

  /// The forms that were taken from a row of the standard fuel database. Water isn't: its first form ends the search.
  std::vector<clsEnergiamuoto*> VakiokannanMuodot() const;
  /// Gives those forms the values and the version that the database has now; shares, tariffs and resources stay.
  /// Returns the names of those whose row is gone: they keep their values. A database without a version is told of.
  /// Raises error 9999 as the database does.
  std::vector<std::string> PaivitaEMuodotVakiokannasta(Energiamuotokanta& kanta);

  /// At OK of the dialog.
  Oma<std::function<void()>> OKPainettu;
  /// Lets the person edit the forms and the tariffs that they have; those of a saving measure's supply can only be
  /// chosen. Cancel takes back the tariffs too. True after OK.
  bool NaytaKayttoliittyma();
};
