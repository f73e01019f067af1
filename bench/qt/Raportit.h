// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace mittaus {

/// Declares the benchmarks of the audit report: as a workbook and as a PDF, and how it grows with the object.
void IlmoitaRaporttimittaukset();

}  // namespace mittaus
