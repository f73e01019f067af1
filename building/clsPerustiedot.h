// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <functional>
#include <memory>

#include "kernel/Laskenta.h"
#include "kernel/Olio.h"
#include "results/clsLammKulutuksenVakioOsuus.h"
#include "results/clsToteutuneetKulutukset.h"
#include "supply/clsEnergianHankinta.h"

/// What identifies the audited object, and its measured consumption.
class clsPerustiedot : public Malli<clsPerustiedot> {
 public:
  static const Luokka kLuokka;
  clsPerustiedot();
  /// Copies the data; events and dialog stay with the object.
  clsPerustiedot(const clsPerustiedot& toinen);
  clsPerustiedot& operator=(const clsPerustiedot& toinen);

  std::string KohteenNimi;
  std::string Pvm;                       ///< date of the audit, "d.M.yyyy"; today for a new object
  std::string Kayttotarkoitus;           ///< use type, as shown
  std::int16_t KayttoTarkoitusID = 0;    ///< index of the use type, 0 to 40
  std::int32_t ValmistumisVuosi = 0;     ///< year of completion
  double Kokonaistilavuus = 0;           ///< m³
  double KylmanTilavuudenOsuus = 0;      ///< unheated share of the volume, %
  double BruttoAla = 0;                  ///< gross floor area, m²
  double KylmanAlanOsuus = 0;            ///< unheated share of the area, %
  double KerrostenLukumaara = 1;         ///< storeys
  double KohteenHenkiloMaara = 4;        ///< people
  std::string LammTarveLukuPaikkakunta;  ///< locality of the degree days, as shown
  double NormVuodenLammTarveLuku = 0;    ///< degree days of the locality's normal year, K·d
  clsToteutuneetKulutukset ToteutuneetKulutukset;
  clsLammKulutuksenVakioOsuus LammKulVakioOsuus;
  clsEnergianHankinta LammonHankinta;
  clsEnergianHankinta SahkonHankinta;
  clsEnergianHankinta VedenHankinta;
  /// Gives the supplies the building whose tariffs they name.
  void Kotiudu(const Koti& koti);
  bool OletusarvotLaskettu = false;  ///< the first model has been generated

  /// Locality number, 0 (Hanko) to 15 (Vaasa).
  std::int32_t LammTarveLukuPaikkakuntaID() const noexcept { return paikkakunta_; }
  /// Sets the locality and its degree days; a number outside 0 to 15 leaves the degree days as they were.
  void LammTarveLukuPaikkakuntaID(std::int32_t paikkakunta);

  /// A year's measured heat as it would be in the normal year, MWh: what depends on the weather in proportion to the
  /// degree days, the constant share as it is. 0 for a year without degree days.
  double NormitettuLampo(const clsToteutunutKulutus& vuosi) const noexcept;

  /// At OK when the locality has changed.
  Oma<std::function<void(int paikkakunta)>> SaaTietoMuuttui;
  /// At OK while OletusarvotLaskettu is False.
  Oma<std::function<void()>> LaskeOletusarvotPerustietojenMukaan;

  /// Opens the basic-data dialog, modal. OK writes the values, and at the first OK has the first model generated;
  /// Cancel restores them. False when the object never took shape and is to be dropped.
  bool NaytaKayttoliityma();
  /// What an OK does once the values are written: tells the weather when the locality differs from
  /// `entinenPaikkakunta`, and has the first model of a new object generated.
  void OtaKayttoon(std::int32_t entinenPaikkakunta);

 private:
  static const Jasen kJasenet[];

  std::int32_t paikkakunta_ = 0;
};
