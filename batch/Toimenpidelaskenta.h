// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <optional>
#include <string>

class clsRakennus;

/// Computes the measures of the building and their order anew: what is stored in the file isn't believed. The cause
/// when something can't be computed; the measures that can be are computed all the same.
std::optional<std::string> LaskeToimenpiteetUudelleen(clsRakennus& rakennus);

/// Writes the object of the file `tiedosto` with the measure `toimenpide` (name or key) carried out to the file `uusi`,
/// which may not be there yet. Raises std::runtime_error that tells what is amiss: no such measure or several, one that
/// isn't of the model, changes that can't be made, a file that can't be read or written. Nothing is written then.
void VieToimenpide(const std::string& tiedosto, const std::string& toimenpide, const std::string& uusi);
