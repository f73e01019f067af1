// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <vector>

#include "kernel/Tietokanta.h"
#include "supply/clsEnergiamuoto.h"

/// A row of a fuel database; members are the columns. Impacts are per MWh of energy bought: energies in MJ, raw
/// materials, emissions and `Massa` in kg.
struct Energiamuotorivi {
  std::int32_t Id = 0;
  std::string sKey;
  std::string Nimi;
  std::string Kuvaus;
  std::string Yksikko;
  double YlempiLampoArvo = 0;  ///< MJ/kg, of a gas MJ/m³
  double AlempiLampoArvo = 0;
  double HappamoituminenSOxekv = 0;
  double Hyotysuhde = 0;  ///< yearly efficiency, %
  double IlmastonLampeneminenCO2ekv = 0;
  double Kuivatiheys = 0;  ///< kg/m³
  double Massa = 0;
  double OksidanttienMuodostus = 0;
  double OsuusNettotarpeesta = 0;  ///< %
  std::int32_t Tyyppi = 0;
  double UusiutumatonEnergia = 0;
  double UusiutumattomatRaakaaineet = 0;
  double UusiutuvaEnergia = 0;
  double UusiutuvatRaakaaineet = 0;
  double Vakiohäviöt = 0;
  double VarastoitunutCO2 = 0;
  bool LiittyyLammitykseen = false;

  friend bool operator==(const Energiamuotorivi&, const Energiamuotorivi&) = default;
};

/// One of the two fuel databases that the settings name: the standard one, which comes with the program, or the user's
/// own, which alone can be edited. Every method raises error 9999: the file is missing, damaged, locked, or no fuel
/// database.
class Energiamuotokanta {
 public:
  /// In the order of the choice list.
  enum class Laji { Vakio = 0, Kayttajan = 1 };
  explicit Energiamuotokanta(Laji laji);

  /// The version of the database; −1 when it tells none, with a message.
  std::int32_t Versio();
  /// The rows of heat forms, or those of the others, by Id.
  std::vector<Energiamuotorivi> Rivit(bool lammitys);
  std::optional<Energiamuotorivi> Hae(std::int32_t id);

  /// An energy form as the row tells it, with what it was taken from but for the version. Particles aren't in the
  /// table: 0.
  clsEnergiamuoto Muoto(const Energiamuotorivi& rivi) const;
  /// Takes the row for the form, with the version of the database; the form's place in its supply stays.
  void Poimi(const Energiamuotorivi& rivi, clsEnergiamuoto& muoto);
  /// A fuel of a form's list: impact and mass of 1 MJ of it, 1 MJ for each MJ used.
  clsResurssi Polttoaine(const Energiamuotorivi& rivi) const;

  bool Muokattavissa() const noexcept { return laji_ == Laji::Kayttajan; }
  // Editing, for the user's own database only; each is done on the disk when it returns, or not at all.

  /// Adds a row of the next free Id with the texts of a new form, unit "kWh" and zeros, and gives it.
  Energiamuotorivi Lisaa(bool lammitys);
  /// Writes the row in place of the one of its Id. False when that is gone: another window has removed it.
  bool Tallenna(const Energiamuotorivi& rivi);
  /// Nothing happens when it is gone already.
  void Poista(std::int32_t id);

 private:
  Tietokanta Kirjoitettavaksi() const;

  Laji laji_;
  std::string polku_;
  Tietokanta kanta_;
};
