// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>

class clsRakennus;

/// Writes the saving measures, each with what it saves alone, and the arranged ones with what each saves behind those
/// above it, with the totals. Money is in the currency and with the VAT of the settings. A measure that can't be
/// computed is a line with its reason. Nothing is written of a building without measures.
void KirjoitaToimenpiteet(std::ostream& tulos, clsRakennus& rakennus);
