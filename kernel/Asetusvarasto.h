// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

/// The user's settings: texts by section and key in one INI file, "asetukset.ini" in AsetusHakemisto(), UTF-8. Sections
/// and keys are the same when they differ by letter case only; a value is kept to the last blank. The file is read at
/// each request and is written under a lock from what it then holds, so that two running programs don't undo each
/// other's changes. Comments, unknown keys and the order of lines stay.

/// The stored value; `oletus` when there is none or the file can't be read.
std::string HaeAsetus(std::string_view osio, std::string_view avain, std::string_view oletus);

struct Asetus {
  std::string osio;
  std::string avain;
  std::string arvo;
};

/// Saves a value. The file is written whole or not at all, and only when something changes. Raises 9999 when it can't
/// be.
void TallennaAsetus(std::string_view osio, std::string_view avain, std::string_view arvo);
/// Saves several values in one go: all or none.
void TallennaAsetukset(std::span<const Asetus> asetukset);

/// A file that isn't a settings file (zero bytes, a line that is no section, key or comment) is renamed aside and the
/// defaults hold from then on; the name that it got is told here, at once or, if it happened before, when this is set.
void AsetaVioittumisilmoitus(std::function<void(const std::string& siirretty)> ilmoitus);
