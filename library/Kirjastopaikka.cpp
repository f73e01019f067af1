// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Kirjastopaikka.h"

#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "kernel/Sha256.h"
#include "kernel/Virhe.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kTiivistetta = 16;

/// The directory is ours and closed to others; a link or another user's directory of that name isn't.
bool OnOma(const fs::path& hakemisto) {
  struct stat tiedot {};
  return lstat(hakemisto.c_str(), &tiedot) == 0 && S_ISDIR(tiedot.st_mode) && tiedot.st_uid == getuid() &&
         (tiedot.st_mode & 0077) == 0;
}

fs::path AjonaikainenHakemisto() {
  const char* annettu = std::getenv("XDG_RUNTIME_DIR");
  if (annettu && fs::path(annettu).is_absolute() && OnOma(annettu)) return annettu;
  const fs::path oma = fs::temp_directory_path() / ("lumivirta-" + std::to_string(getuid()));
  mkdir(oma.c_str(), 0700);
  if (!OnOma(oma)) throw std::runtime_error(oma.string() + ": hakemisto ei ole käyttäjän oma");
  return oma;
}

}  // namespace

Kirjastopaikka PalvelimenPaikka(const std::string& koti) try {
  const std::string tunnus = Sha256((fs::weakly_canonical(fs::absolute(koti)) / "").string()).substr(0, kTiivistetta);
  const std::string alku = (AjonaikainenHakemisto() / ("lumivirta-kirjasto-" + tunnus)).string();
  Kirjastopaikka paikka{alku + ".pistoke", alku + ".lukko"};
  if (paikka.pistoke.size() >= sizeof(sockaddr_un::sun_path))
    throw std::runtime_error(paikka.pistoke + ": nimi on liian pitkä pistokkeelle");
  return paikka;
} catch (...) {
  NostaVirhe("Kirjastopaikka:PalvelimenPaikka Method");
}
