// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "kernel/Tiedostot.h"

/// The directory of the program's data, with "/" at its end. It is the program's own directory if that holds the text
/// store and can be written; otherwise "lumivirta" in the user's data directory (XDG_DATA_HOME), which
/// `SiemennaTiedostot` fills. The environment variable LUMIVIRTA_KOTI overrides both. Chosen at the first call.
const std::string& AppPath();
/// Sets AppPath; the text gets its "/" if it has none. An empty one lets the next call choose anew. For tests and the
/// library server.
void AsetaAppPath(std::string_view hakemisto);

/// Where a reference file, named from AppPath, is to be read: in AppPath, or where the package put it when AppPath
/// lacks it (it couldn't be filled). The name in AppPath when there is none at all.
std::string Aineistotiedosto(std::string_view nimi);

/// "lumivirta" in the user's configuration directory (XDG_CONFIG_HOME), without "/" at its end; it need not exist.
std::filesystem::path AsetusHakemisto();

/// What was done with the reference files at a start.
struct Siemennys {
  int kopioituja = 0;    ///< files that were missing
  int paivitettyja = 0;  ///< files as shipped before, replaced by the new ones
  int sailytettyja = 0;  ///< files that the user has changed, left as they are
  std::string virhe;     ///< why it ended in the middle (file and the system's reason); empty when all went well
};

/// Fills AppPath from the installed files when they lie elsewhere. Never raises: a failure stands in `virhe`.
Siemennys SiemennaTiedostot();
/// The same between two directories. The list "tehdastiedot.txt" of `lahde` has a line "<sha256>  <file>" for each
/// file; its copy in `kohde` tells what was shipped before. A missing file is copied, one that is byte-equal to the one
/// shipped before is replaced, and a changed one and the user's own databases are never overwritten.
Siemennys SiemennaTiedostot(const std::filesystem::path& lahde, const std::filesystem::path& kohde);

/// Exclusive lock between the running programs of one user, held for the life of the object. Not to be nested on one
/// file. Waits for at most `enimmillaan`, then throws std::runtime_error. File systems that know no locks pass.
class Lukitus {
 public:
  explicit Lukitus(const std::string& tiedosto = AppPath() + ".lumivirta.lukko",
                   std::chrono::milliseconds enimmillaan = std::chrono::seconds(20));

 private:
  Kahva kahva_;
};

/// The path in about `n` characters (not bytes): as it is when it is no longer than that, else its first three
/// characters, "..." and its end from the first "/" of the last n − 6 characters, or all of these when they have none.
std::string LyhennaPolku(std::string_view polku, std::size_t n);
