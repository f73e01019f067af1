// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "batch/malliauditoinnit/Taulukko.h"

class Olio;
class clsRakennus;

/// Gives a sample building its electricity and water groups: the rows of `ryhmat` with its Tunnus, each a row of the
/// catalogue (consumers/Kulutusluettelo.h), the number of units, and what differs from the catalogue. The empty water
/// groups of a new building go. Raises std::runtime_error for a row that the catalogue doesn't have.
void AsetaKulutusryhmat(const std::string& tunnus, const std::vector<Rivi>& ryhmat, clsRakennus& rakennus);

/// Fills a group of electricity or water from a row of the catalogue. Raises std::runtime_error for a row that the
/// catalogue doesn't have and std::bad_cast for another object.
void TaytaLuettelosta(const std::string& luettelorivi, Olio& ryhma);
