// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Kirjoitussuoja.h"

#include <filesystem>
#include <map>

namespace fs = std::filesystem;

namespace {

constexpr fs::perms kKaikkienKirjoitus = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

/// Permissions of the files that this run has marked, as they were.
std::map<fs::path, fs::perms>& Aiemmat() {
  static std::map<fs::path, fs::perms> aiemmat;
  return aiemmat;
}

fs::path Avain(const std::string& tiedosto) {
  std::error_code virhe;
  const fs::path polku = fs::weakly_canonical(tiedosto, virhe);
  return virhe ? fs::path(tiedosto) : polku;
}

fs::perms Oikeudet(const std::string& tiedosto) {
  std::error_code virhe;
  const fs::perms oikeudet = fs::status(tiedosto, virhe).permissions();
  return virhe ? fs::perms::unknown : oikeudet;
}

}  // namespace

void AsetaKirjoitussuoja(const std::string& tiedosto) {
  const fs::perms oikeudet = Oikeudet(tiedosto);
  if (oikeudet == fs::perms::unknown || OnKirjoitussuojattu(tiedosto)) return;
  std::error_code virhe;
  fs::permissions(tiedosto, oikeudet & ~kKaikkienKirjoitus, virhe);
  if (!virhe) Aiemmat()[Avain(tiedosto)] = oikeudet;
}

bool OnKirjoitussuojattu(const std::string& tiedosto) {
  const fs::perms oikeudet = Oikeudet(tiedosto);
  return oikeudet != fs::perms::unknown && (oikeudet & fs::perms::owner_write) == fs::perms::none;
}

void PoistaKirjoitussuoja(const std::string& tiedosto) {
  const auto aiempi = Aiemmat().extract(Avain(tiedosto));
  if (!OnKirjoitussuojattu(tiedosto)) return;
  const fs::perms lisattavat = aiempi ? aiempi.mapped() : fs::perms::owner_write;
  std::error_code virhe;
  fs::permissions(tiedosto, lisattavat, fs::perm_options::add, virhe);
}
