// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/UusiTiedosto.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kTunnus = ".uusi-";
constexpr std::size_t kKirjaimia = 6;

[[noreturn]] void NostaJarjestelmavirhe(const fs::path& tiedosto) {
  throw fs::filesystem_error("file", tiedosto, {errno, std::generic_category()});
}

std::string ArvoKirjaimet() {
  static constexpr std::string_view kMerkit = "abcdefghijkmnpqrstuvwxyz23456789";
  std::random_device satunnainen;
  std::string kirjaimet;
  while (kirjaimet.size() < kKirjaimia) kirjaimet += kMerkit[satunnainen() % kMerkit.size()];
  return kirjaimet;
}

/// The name of the file that an unfinished one belongs to; "" when the name isn't one of an unfinished file.
std::string_view KohteenNimi(std::string_view nimi) {
  if (nimi.size() <= kTunnus.size() + kKirjaimia) return {};
  const std::size_t pituus = nimi.size() - kTunnus.size() - kKirjaimia;
  return nimi.substr(pituus, kTunnus.size()) == kTunnus ? nimi.substr(0, pituus) : std::string_view();
}

void PoistaPaivakirjoineen(const fs::path& polku) noexcept {
  for (const char* loppu : {"-journal", ""}) unlink((polku.string() + loppu).c_str());
}

/// A file of that name that this program alone holds. Nothing when the name is in use, or another took the file between
/// making and locking, as a sweep may.
std::optional<Kahva> TeeJaLukitse(const fs::path& polku, mode_t oikeudet, const fs::path& kohde) try {
  Kahva kahva(polku, O_RDWR | O_CREAT | O_EXCL, oikeudet);
  if (kahva.Lukitse() == Kahva::Lukko::Toisella || !kahva.OnNimella(polku)) return std::nullopt;
  kahva.Nimea(kohde);
  return kahva;
} catch (const std::system_error& virhe) {
  if (virhe.code() == std::errc::file_exists) return std::nullopt;
  throw fs::filesystem_error("file", kohde, virhe.code());
}

/// Makes the file under a free name, which goes to `polku`.
Kahva Tee(const fs::path& kohde, mode_t oikeudet, fs::path& polku) {
  constexpr int kYrityksia = 20;
  for (int i = 0; i < kYrityksia; ++i) {
    polku = kohde.string() + std::string(kTunnus) + ArvoKirjaimet();
    if (auto kahva = TeeJaLukitse(polku, oikeudet, kohde)) return std::move(*kahva);
  }
  throw fs::filesystem_error("file", kohde, {EBUSY, std::generic_category()});
}

void SiivoaHylatty(const fs::path& polku) noexcept try {
  const Kahva kahva(polku, O_RDONLY | O_NOFOLLOW);
  if (kahva.Lukitse() == Kahva::Lukko::Saatu && kahva.OnNimella(polku)) PoistaPaivakirjoineen(polku);
} catch (const std::exception&) {
  return;  // what can't be swept does no harm
}

mode_t KorvattavanOikeudet(const fs::path& kohde) {
  struct stat vanha {};
  return stat(kohde.c_str(), &vanha) == 0 ? (vanha.st_mode & 0777) | S_IWUSR : 0666;
}

bool LevylleKansio(const fs::path& kansio) try {
  Kahva(kansio, O_RDONLY | O_DIRECTORY).Levylle();
  return true;
} catch (const std::system_error& virhe) {
  return virhe.code() == std::errc::permission_denied;
}

}  // namespace

/// A file that replaces a private one is never open to others, not even while it is empty.
UusiTiedosto::UusiTiedosto(const fs::path& kohde, std::optional<mode_t> oikeudet)
    : kohde_(LinkinKohde(kohde)), kahva_(Tee(kohde_, oikeudet.value_or(KorvattavanOikeudet(kohde_)), polku_)) {
  struct stat vanha {};
  if (!oikeudet && stat(kohde_.c_str(), &vanha) == 0) kahva_.OtaOikeudet(vanha);
}

UusiTiedosto::~UusiTiedosto() {
  if (!paikallaan_) PoistaPaivakirjoineen(polku_);
}

bool UusiTiedosto::Paikalleen() {
  kahva_.Levylle();
  if (!kahva_.OnNimella(polku_)) errno = ESTALE;
  if (!kahva_.OnNimella(polku_) || rename(polku_.c_str(), kohde_.c_str()) != 0) NostaJarjestelmavirhe(kohde_);
  paikallaan_ = true;
  return LevylleKansio(fs::absolute(kohde_).parent_path());
}

void UusiTiedosto::Siivoa(const fs::path& kansio, std::string_view alku) noexcept {
  std::error_code virhe;
  for (fs::directory_iterator it(kansio, virhe), loppu; !virhe && it != loppu; it.increment(virhe)) {
    const std::string nimi = it->path().filename().string();
    if (const std::string_view kohde = KohteenNimi(nimi); !kohde.empty() && kohde.starts_with(alku))
      SiivoaHylatty(it->path());
  }
}
