// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>
#include <string>

class JsonKirjoitin;
class clsRakennus;

/// Writes what is missing, contradictory or improbable in the building as text, by level: a line for each finding.
void KirjoitaTarkistukset(std::ostream& tulos, const std::string& tiedosto, clsRakennus& rakennus);
/// Writes the same as a JSON array.
void KirjoitaTarkistukset(JsonKirjoitin& json, clsRakennus& rakennus);
