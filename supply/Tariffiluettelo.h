// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "kernel/Paivamaara.h"
#include "supply/clsTariffi.h"
#include "supply/clsVesitariffi.h"

/// What is told alike of every row of the catalogue of typical Finnish tariffs.
struct Tariffirivitiedot {
  std::int32_t Id = 0;
  std::string Nimi;
  double Perusmaksu = 0;  ///< €/a
  int Hintavuosi = 0;     ///< year of the prices
  std::string Lahde;      ///< where the prices come from, in Finnish
  std::string Tila;       ///< how sure they are (docs/reference-data.md)
};

/// A tariff of heat or electricity, in euros without VAT. The bases of the power fees are assumed.
struct Tariffirivi : Tariffirivitiedot {
  struct Maksu {
    std::string Nimi;
    double Hinta = 0;         ///< €/MWh
    double Kulutusosuus = 0;  ///< %
  };
  clsTariffi::Laji Laji = clsTariffi::LampoTariffi;
  std::vector<Maksu> Maksut;                    ///< one to four; their shares make 100 %
  double Tehomaksu = 0;                         ///< €/kW,a
  double TehomaksunMaaraytymisperuste = 0;      ///< kW
  double Loistehomaksu = 0;                     ///< €/kVAr,a
  double LoistehomaksunMaaraytymisperuste = 0;  ///< kVAr
  double MuuMaksu = 0;                          ///< €/a
  double Energiavero = 0;                       ///< tax of a fuel, €/MWh
  int Veroluokka = 0;                           ///< electricity tax class 1 or 2; 0: none

  double Keskihinta() const;  ///< price of a MWh without electricity tax, €/MWh
};

/// A water tariff, in euros without VAT.
struct Vesitariffirivi : Tariffirivitiedot {
  double PuhdasVesi = 0;  ///< €/m³
  double Jatevesi = 0;    ///< €/m³
};

/// The catalogue of the program, in its own order. Raises error 9999 when it can't be read.
std::vector<Tariffirivi> LueTariffit(clsTariffi::Laji laji);
std::vector<Vesitariffirivi> LueVesitariffit();
/// The tax or VAT rate `nimike` (data/tariffit/verot.csv) in force on the day `paiva`, "YYYY-MM-DD"; nothing when none
/// is known of that day.
std::optional<double> VeroPaivana(const std::string& nimike, const std::string& paiva);

/// Fills a tariff from a row; key, identity and kind stay, and what the row doesn't tell becomes 0. The VAT rate is
/// that of the settings. An electricity tax is the class's of the day `paiva`, as a number; the class is named where
/// the settings hold the same figure to the cent, else it is "Muu". The tariff is an ordinary one: it doesn't remember
/// the row. Raises error 9999 when the tax can't be read.
void TaytaTariffi(const Tariffirivi& rivi, clsTariffi& tariffi, const std::string& paiva = TamaPaivaLajiteltavana());
/// The same of a water tariff; all water is billed as waste water.
void TaytaTariffi(const Vesitariffirivi& rivi, clsVesitariffi& tariffi);

/// Lets the person pick a row, of the kind of the tariff, and fills the tariff from it. True when one was picked; else
/// the tariff is as it was. It commits nothing (clsRakennus::Muuttui is up to the caller).
bool PoimiLuettelosta(clsTariffi& tariffi);
bool PoimiLuettelosta(clsVesitariffi& tariffi);
