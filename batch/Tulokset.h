// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "batch/JsonKirjoitin.h"
#include "ui/KerataanViestit.h"

class clsRakennus;

/// Writes the results of the building as one JSON object; keys are the names of the model's members. A value that can't
/// be computed is null, and its error stands in `Viestit` beside the messages that `viestit` has collected. True when
/// every value could be computed.
bool KirjoitaJson(JsonKirjoitin& json, const std::string& tiedosto, clsRakennus& rakennus,
                  const KerataanViestit& viestit);

/// Writes the heat summary of the building as text, with the messages met on the way. Sums are those of the shown
/// numbers, as in the window. Raises Virhe when a figure can't be computed.
void KirjoitaYhteenveto(std::ostream& tulos, const std::string& tiedosto, clsRakennus& rakennus,
                        const KerataanViestit& viestit);

/// The messages by kind, a line for each: its text, the first names that it concerns, and how many there were.
std::vector<std::string> Viestirivit(const KerataanViestit& viestit);
