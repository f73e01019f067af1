// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>

#include "results/Laskentataulukko.h"
#include "results/Tyokirjapohja.h"

class clsRakennus;

/// The report table of net savings: the template "Paataulu.xls" of AppPath, an OOXML workbook, filled with the selected
/// measures and with the basic data, consumption and yearly costs from which the template's own formulas compute. Cells
/// are found by the template's defined names (KohteenNimi, Kokonaistilavuus, Kayttotarkoitus, Vertailuvuosi, Lampo,
/// LampoKustannus, Sahko, SahkoKustannus, Vesi, VesiKustannus, Toimenpiteet), which follow when an office inserts rows;
/// without a name at fixed places.

/// Opens the template. When that fails, tells why and gives nothing.
std::unique_ptr<Tyokirjapohja> AvaaPaataulu();

/// Writes the comparison year of the building with its consumption and yearly costs, by present VAT and currency, and
/// its basic data. Without a comparison year these are zeros; the normalisation tells of it.
void KirjoitaPerustiedot(Tyokirjapohja& pohja, clsRakennus& rakennus);

/// Writes the list without its row of totals, which the template sums up itself: headings, names, and figures as they
/// are shown. In the template's first column of the table is the column `sarake` (from 1) of a list written at the row
/// `rivi` (from 1). False, after telling why, when the rows would go over formulas of the template.
bool KirjoitaToimenpiteet(Tyokirjapohja& pohja, const Laskentataulukko& taulukko, bool otsikot, int rivi, int sarake);
