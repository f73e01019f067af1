// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

#include "building/clsRakenne.h"
#include "kernel/Kokoelma.h"
#include "library/Lampotilajakauma.h"

/// The structures of a space.
class clsRakenteet : public Malli<clsRakenteet, Kotikokoelma<clsRakenne>> {
 public:
  static const Luokka kLuokka;

  /// Sum of the structures' conduction losses of month 0 to 11, kWh.
  double LampoHaviot(double Tsisa, int kuukausi) const;
  /// The same for all twelve months.
  Kuukausitaulu LampoHaviot(double Tsisa) const;

  double UlkoSeinienAla() const { return Ala(Rakennelaji::Ulkoseina); }  ///< m²
  double YlaPohjienAla() const { return Ala(Rakennelaji::Ylapohja); }    ///< m²
  double AlapohjienAla() const { return Ala(Rakennelaji::Alapohja); }    ///< m²
  double IkkunoidenAla() const { return Ala(Rakennelaji::Ikkuna); }      ///< m²

  /// Brings the materials of every structure up to a structure database.
  void PaivitaRakenteetVakiokannasta(Rakennetietokanta& kanta);

  /// Opens the dialog of the structures, modal, with all kinds shown. Edits them live; Cancel restores them. True after
  /// OK; the caller tells the building of the change.  `tilanNimi`: for the caption; `Tsisa`: the space's temperature
  /// in the pictures, °C.
  bool NaytaKayttoliityma(const std::string& tilanNimi = {}, double Tsisa = kNayttoTsisa);
  /// The same with the structures of one kind shown, 0 to 7.
  bool NaytaRakenteetKayttoliittyma(std::int32_t rakennetyyppi, const std::string& tilanNimi = {},
                                    double Tsisa = kNayttoTsisa);

 private:
  double Ala(std::int32_t tyyppi) const;
};
