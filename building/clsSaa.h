// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <array>

#include "kernel/Laskenta.h"
#include "kernel/Olio.h"

/// Direction of a surface.
enum Suunta : int { kPohjoinen, kIta, kEtela, kLansi, kVaakasuora, kSuuntia };

/// Weather of the building: monthly climate of one of four zones, read whole from the zone's file.
/// Not entered in the instance register: a saving measure can't change the weather. The monthly tables are neither
/// copied nor saved; the zone file on disk counts.
class clsSaa : public Malli<clsSaa> {
 public:
  static const Luokka kLuokka;

  /// Mean outdoor temperature of month 0 to 11, °C. Raises std::out_of_range.
  double Keskilampotila(int kuukausi) const {
    return taulut_.arvo.lampotila[static_cast<std::size_t>(TarkistaKuukausi(kuukausi))];
  }
  /// All twelve, for the loops of the balance.
  const Kuukausitaulu& Keskilampotilat() const noexcept { return taulut_.arvo.lampotila; }
  /// Solar radiation on a surface of that direction (`Suunta`), kWh/m² in month 0 to 11. Raises std::out_of_range.
  double AuringonSateily(int kuukausi, int suunta) const;

  std::string Nimi;                      ///< name of the climate, from the file
  double LammMitoitusUlkolampotila = 0;  ///< design outdoor temperature, °C
  double NormVuodenLammTarveLuku = 0;    ///< degree days of the zone's normal year, K·d
  std::string SaaFileNimi;               ///< the file read last, without directory

  /// Gives the monthly tables, which a copy doesn't take along, to the weather of a copied building.
  void KopioiTaulut(clsSaa& kohde) const noexcept { kohde.taulut_.arvo = taulut_.arvo; }
  /// Reads the zone file of a locality, 0 to 15; any other number changes nothing. Raises 9999 as LueSaaTiedosto.
  void AsetaSaaPaikkakunta(int paikkakunta);
  /// Reads AppPath + tiedosto. On a missing file or a malformed line raises 9999, whose cause names file and line; what
  /// had been read stays.
  void LueSaaTiedosto(const std::string& tiedosto);

 private:
  struct Taulut {
    Kuukausitaulu lampotila{};                                       // °C
    std::array<std::array<double, kSuuntia>, kKuukausia> sateily{};  // kWh/m²
  };
  Oma<Taulut> taulut_;
};
