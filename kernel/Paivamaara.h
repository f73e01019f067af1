// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <string>
#include <string_view>

/// The local day as "d.M.yyyy", e.g. "7.3.2026".
std::string TamaPaiva();
/// The same as "YYYY-MM-DD", which sorts.
std::string TamaPaivaLajiteltavana();
/// The local calendar year.
int TamaVuosi();
/// A day of the calendar written so; blanks around it are skipped.
bool OnPaivamaara(std::string_view teksti);

/// A local moment as it is written in Finnish: "7.3.2026" and "9.05".
struct Ajankohta {
  std::string paiva;
  std::string kello;
};
/// When the file was last written; that of a missing file is the beginning of 1970.
Ajankohta Kirjoitusaika(const std::string& tiedosto);
