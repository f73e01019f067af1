// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <vector>

#include "pdf/Pdfpalat.h"

/// A table as pieces: its headings, which are repeated on every page, and its rows. Columns get at least what their
/// numbers and words need; a table that is too wide for the page is set smaller. A short one stays on one page, a title
/// with what it names, sums with the last row.
std::vector<Pala> TaulukonPalat(const Sivupohja& pohja, const Raporttitaulukko& taulukko, double ennen);
