// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

#include "results/raportti/Raportti.h"

/// Writes the report to a workbook (.xlsx): a sheet for each chapter, numbers as numbers, formulas with the report's
/// value beside them, charts of the cells. A formula that leans on a chapter that was left out is its value alone.
/// Sheets print on upright A4, a page wide. The file is written whole or not at all. Raises std::runtime_error with the
/// reason.
void KirjoitaRaporttikirja(const Raportti& raportti, const std::string& tiedosto);
