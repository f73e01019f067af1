// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tiedostot.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "kernel/UusiTiedosto.h"

namespace fs = std::filesystem;

namespace {

[[noreturn]] void NostaJarjestelmavirhe(const fs::path& tiedosto) {
  throw fs::filesystem_error("file", tiedosto, {errno, std::generic_category()});
}

}  // namespace

Kahva::Kahva(fs::path tiedosto, int tapa, mode_t oikeudet)
    : tiedosto_(std::move(tiedosto)), numero_(open(tiedosto_.c_str(), tapa | O_CLOEXEC | O_NONBLOCK, oikeudet)) {
  if (numero_ < 0) NostaJarjestelmavirhe(tiedosto_);
}

Kahva::~Kahva() {
  if (numero_ >= 0) close(numero_);
}

Kahva::Kahva(Kahva&& toinen) noexcept
    : tiedosto_(std::move(toinen.tiedosto_)), numero_(std::exchange(toinen.numero_, -1)) {}

Kahva& Kahva::operator=(Kahva&& toinen) noexcept {
  std::swap(tiedosto_, toinen.tiedosto_);
  std::swap(numero_, toinen.numero_);
  return *this;
}

struct stat Kahva::Tiedot() const {
  struct stat tiedot {};
  if (fstat(numero_, &tiedot) != 0) NostaJarjestelmavirhe(tiedosto_);
  return tiedot;
}

bool Kahva::OnNimella(const fs::path& tiedosto) const noexcept {
  struct stat oma {
  }, nimen{};
  return fstat(numero_, &oma) == 0 && stat(tiedosto.c_str(), &nimen) == 0 && oma.st_dev == nimen.st_dev &&
         oma.st_ino == nimen.st_ino;
}

Kahva::Lukko Kahva::Lukitse() const noexcept {
  if (flock(numero_, LOCK_EX | LOCK_NB) == 0) return Lukko::Saatu;
  return errno == EWOULDBLOCK ? Lukko::Toisella : Lukko::EiTunneta;
}

void Kahva::Kirjoita(std::string_view sisalto) {
  while (!sisalto.empty()) {
    const ssize_t n = write(numero_, sisalto.data(), sisalto.size());
    if (n < 0 && errno != EINTR) NostaJarjestelmavirhe(tiedosto_);
    sisalto.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
  }
}

std::string Kahva::Lue() {
  std::string sisalto;
  std::array<char, 65536> pala;
  for (;;) {
    const ssize_t n = read(numero_, pala.data(), pala.size());
    if (n == 0) return sisalto;
    if (n < 0 && errno != EINTR) NostaJarjestelmavirhe(tiedosto_);
    sisalto.append(pala.data(), static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
  }
}

void Kahva::LiitaTiedosto(const fs::path& lahde) {
  constexpr std::size_t kKerralla = 1 << 30;
  Kahva luettava(lahde, O_RDONLY);
  for (;;) {
    const ssize_t n = copy_file_range(luettava.numero_, nullptr, numero_, nullptr, kKerralla, 0);
    if (n == 0) return;
    if (n < 0 && errno != EINTR) break;
  }
  Kirjoita(luettava.Lue());  // what is left: both handles stand where the copy ended
}

/// Changing the owner clears some bits of the permissions: these are set last.
void Kahva::OtaOikeudet(const struct stat& malli) noexcept {
  const bool ryhma = fchown(numero_, malli.st_uid, malli.st_gid) == 0 || fchown(numero_, uid_t(-1), malli.st_gid) == 0;
  const mode_t muiden = malli.st_mode & S_IRWXO;
  const mode_t oikeudet = (malli.st_mode & 0777) | S_IWUSR;
  fchmod(numero_, ryhma ? oikeudet : (oikeudet & (S_IRWXU | S_IRWXO | muiden << 3)));
}

void Kahva::Levylle() {
  if (fsync(numero_) != 0 && errno != EINVAL) NostaJarjestelmavirhe(tiedosto_);
}

std::string LueTiedosto(const fs::path& tiedosto) {
  Kahva kahva(tiedosto, O_RDONLY);
  if (S_ISREG(kahva.Tiedot().st_mode)) return kahva.Lue();
  errno = EINVAL;
  NostaJarjestelmavirhe(tiedosto);
}

void KirjoitaTiedosto(const fs::path& tiedosto, std::string_view sisalto) {
  fs::create_directories(LinkinKohde(tiedosto).parent_path());
  UusiTiedosto uusi(tiedosto);
  uusi.OmaKahva().Kirjoita(sisalto);
  uusi.Paikalleen();
}

void KopioiTiedosto(const fs::path& lahde, const fs::path& tiedosto) {
  fs::create_directories(LinkinKohde(tiedosto).parent_path());
  UusiTiedosto uusi(tiedosto, UusiTiedosto::kYksityinen);
  uusi.OmaKahva().LiitaTiedosto(lahde);
  uusi.OmaKahva().OtaOikeudet(Kahva(lahde, O_RDONLY).Tiedot());
  uusi.Paikalleen();
}

fs::path LinkinKohde(const fs::path& tiedosto) {
  return fs::is_symlink(tiedosto) ? fs::weakly_canonical(tiedosto) : tiedosto;
}

std::string Selitys(const std::error_code& virhe) {
  switch (virhe.value()) {
    case ENOSPC:
      return "levy on täynnä";
    case EDQUOT:
      return "levytilan kiintiö on täynnä";
    case EFBIG:
      return "tiedosto kasvaisi suuremmaksi kuin järjestelmä sallii";
    case EACCES:
    case EPERM:
      return "käyttöoikeutta ei ole";
    case EROFS:
      return "levylle ei voi kirjoittaa";
    case ENOENT:
    case ENOTDIR:
      return "tiedostoa tai kansiota ei ole";
    case EISDIR:
    case EINVAL:
      return "se ei ole tavallinen tiedosto";
    case ENAMETOOLONG:
      return "nimi on liian pitkä";
    case EIO:
      return "levyn luku tai kirjoitus epäonnistui";
    case ESTALE:
      return "verkkolevyn tiedosto on kadonnut";
    case EMFILE:
    case ENFILE:
      return "liian monta tiedostoa on auki";
    case ETXTBSY:
    case EBUSY:
      return "toinen ohjelma varaa tiedostoa";
    default:
      return virhe.message();
  }
}
