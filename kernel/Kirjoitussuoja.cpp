// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Kirjoitussuoja.h"

#include <sys/xattr.h>

#include <array>
#include <charconv>
#include <filesystem>
#include <map>
#include <string_view>

namespace fs = std::filesystem;

namespace {

constexpr fs::perms kKaikkienKirjoitus = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

/// Permissions of the files that this run has marked, as they were.
std::map<fs::path, fs::perms>& Aiemmat() {
  static std::map<fs::path, fs::perms> aiemmat;
  return aiemmat;
}

/// The permissions are kept with the file too, where the file system has such notes: a crash takes the run's memory.
constexpr const char* kMuistiinpano = "user.lumivirta.oikeudet";

void Muista(const std::string& tiedosto, fs::perms oikeudet) {
  const std::string luku = std::to_string(static_cast<unsigned>(oikeudet));
  setxattr(tiedosto.c_str(), kMuistiinpano, luku.data(), luku.size(), 0);
}

/// Only rights to write come back, whatever the note says: they are all that the mark takes away.
fs::perms Muistettu(const std::string& tiedosto) {
  std::array<char, 16> teksti{};
  const ssize_t pituus = getxattr(tiedosto.c_str(), kMuistiinpano, teksti.data(), teksti.size());
  unsigned luku = 0;
  if (pituus > 0) std::from_chars(teksti.data(), teksti.data() + pituus, luku);
  return (static_cast<fs::perms>(luku) & kKaikkienKirjoitus) | fs::perms::owner_write;
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
  Muista(tiedosto, oikeudet);
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
  std::error_code virhe;
  fs::permissions(tiedosto, aiempi ? aiempi.mapped() : Muistettu(tiedosto), fs::perm_options::add, virhe);
  removexattr(tiedosto.c_str(), kMuistiinpano);
}
