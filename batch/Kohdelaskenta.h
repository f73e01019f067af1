// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>

enum class Tulostusmuoto { Yhteenveto, Json, Tarkistukset };

/// What one project file gives: the text for the output, what is told on standard error, and whether every result could
/// be computed.
struct Laskettu {
  std::string tulos, virheet;
  bool onnistui = false;
};

/// Computes a project file. Never raises: a file that can't be read, is of a newer program or can't be computed gives
/// its error. `syvyys`: how deep in the JSON document its object stands.
Laskettu LaskeKohde(const std::string& tiedosto, Tulostusmuoto muoto, int syvyys);
