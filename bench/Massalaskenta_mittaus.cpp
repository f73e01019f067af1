// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-laske over many files with all cores, against one core.
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "bench/Mittaukset.h"
#include "kernel/Hakemistot.h"

namespace mittaus {

namespace {

constexpr int kTiedostoja = 200;

/// Seconds of the clock that the program takes for the files of the folder.
double Laske(const std::string& kansio, const char* valitsin) {
  const std::string komento =
      "'" + AppPath() + "lumivirta-laske' --json " + valitsin + " '" + kansio + "'/*.lvt >/dev/null";
  return Kesto([&] {
    if (std::system(komento.c_str()) != 0) throw std::runtime_error("lumivirta-laske failed");
  });
}

}  // namespace

Vertailupari Massapari(clsRakennus& rakennus) {
  const std::string kansio = Mittauskansio() + "massa";
  std::filesystem::create_directories(kansio);
  for (int i = 0; i < kTiedostoja; ++i) rakennus.Tallenna(kansio + "/" + std::to_string(i) + ".lvt");
  return {[kansio] { return Laske(kansio, ""); }, [kansio] { return Laske(kansio, "--rinnakkain=1"); }, [] {}};
}

}  // namespace mittaus
