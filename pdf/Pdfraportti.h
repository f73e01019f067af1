// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

struct Raportti;

/// Writes the report as a PDF on upright A4: a cover with the contents, chapters that each begin a page, headings of
/// tables repeated on every page that they run to, page numbers, the document's outline, fonts embedded. Charts are
/// those of the screen. The file is written whole or not at all. Raises std::runtime_error with the reason. An
/// application of Qt's must be running; it needs no display (platform "offscreen").
void KirjoitaPdfraportti(const Raportti& raportti, const std::string& tiedosto);
