// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "batch/JsonKirjoitin.h"
#include "ui/KerataanViestit.h"

class clsRakennus;

/// Writes the results of the global building as one JSON object; keys are the names of the model's members. A value
/// that can't be computed is null, and its error stands in `Viestit` beside the messages that `viestit` has collected.
void KirjoitaJson(JsonKirjoitin& json, const std::string& tiedosto, clsRakennus& rakennus,
                  const KerataanViestit& viestit);

/// Writes the heat summary of the global building as text, with the messages met on the way.
void KirjoitaYhteenveto(std::ostream& tulos, const std::string& tiedosto, clsRakennus& rakennus,
                        const KerataanViestit& viestit);
