// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

/// The report's file is one that can be made: a workbook (.xlsx) or a PDF (.pdf).
bool OnRaporttitiedosto(const std::string& raportti);

/// Writes the audit report of a project file. A PDF is made by the program lumivirta-pdf, which lies beside this one:
/// only it loads what pages are painted with. Raises std::exception with what is amiss; nothing is written then.
void TeeRaporttitiedosto(const std::string& tiedosto, const std::string& raportti);
