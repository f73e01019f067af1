// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "batch/malliauditoinnit/Taulukko.h"

class clsRakennus;

/// What the sample buildings buy and for what price.
struct Hankintataulukot {
  std::vector<Rivi> muodot;     ///< data/malliauditoinnit_hankinta.csv: a row for each form of each building
  std::vector<Rivi> tariffit;   ///< data/malliauditoinnit_tariffit.csv: prices of the audits' year, € without VAT
  std::vector<Rivi> vertailut;  ///< data/malliauditoinnit_tariffivertailu.csv: the cases that are compared
};

/// Gives a sample building its energy forms, rows of the standard fuel database, and their tariffs. Powers and basic
/// fee of a form's row are those of its transfer tariff, or of its sales tariff where it has no other. Raises
/// std::runtime_error for what the tables or the database don't have.
void AsetaHankinnat(const std::string& tunnus, const Hankintataulukot& taulukot, clsRakennus& rakennus);

/// Saves the cases of the building's comparison of electricity tariffs, at its measured electricity and the powers of
/// the rows. A tariff that the building doesn't have comes to its tariffs. A case with an investment is compared with
/// the first one and goes to the end of the arranger's rows. Errors as above.
void AsetaTariffivertailu(const std::string& tunnus, const Hankintataulukot& taulukot, clsRakennus& rakennus);
