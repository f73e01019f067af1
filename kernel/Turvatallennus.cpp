// SPDX-License-Identifier: GPL-3.0-or-later
// How a project file is replaced. At every moment a whole file stands under the project's name:
//
// 1. The template is read, and "<name>.uusi" is made of it beside the project; what an interrupted save may have left
//    there is removed first, its journal too: it would be rolled back into the new file.
//    Interrupted here: the project is untouched, "<name>.uusi" is rubbish that the next save removes.
// 2. The project is copied to the backup name in AppPath, through a temporary name, and flushed. This runs on a second
//    thread beside step 3. A backup that was there already stays under a name with its date and time.
//    Interrupted here: as in 1, and the backup is either missing or whole.
// 3. "<name>.uusi" is filled in one transaction, which ends flushed, and its row counts are checked.
//    Interrupted here: as in 2.
// 4. When both have succeeded, "<name>.uusi" is flushed and renamed over the project, and the directory is flushed.
//    Interrupted here: the project is the old or the new one, whole; the backup is whole.
// 5. The backup is removed.
//    Interrupted here: the project is the new one; the backup is offered at the next start.
//
// A failure in 1 to 4 removes "<name>.uusi" and leaves the backup. The lock of AppPath is held all the way, since the
// running programs share the backup's name.
#include "kernel/Turvatallennus.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <future>
#include <system_error>
#include <vector>

#include "kernel/Hakemistot.h"
#include "kernel/Projektitiedosto.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kVarakopio = "~backup1lvt.old";
constexpr std::size_t kSailytettavia = 5;

using Syy = Projektivirhe::Syy;

std::string Selitys(const std::error_code& virhe) {
  switch (virhe.value()) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return "levy on täynnä";
    case EACCES:
    case EPERM:
    case EROFS:
      return "kirjoitusoikeutta ei ole";
    case ENOENT:
    case ENOTDIR:
      return "tiedostoa tai hakemistoa ei ole";
    case ENAMETOOLONG:
      return "nimi on liian pitkä";
    case EIO:
      return "levyn luku tai kirjoitus epäonnistui";
    default:
      return virhe.message();
  }
}

[[noreturn]] void NostaTiedostovirhe(Syy syy, const fs::path& tiedosto, const std::error_code& virhe) {
  throw Projektivirhe(syy, tiedosto.string() + ": " + Selitys(virhe));
}

void VaadiOnnistuminen(bool onnistui, const fs::path& tiedosto) {
  if (!onnistui) NostaTiedostovirhe(Syy::Kirjoitus, tiedosto, {errno, std::generic_category()});
}

void Levylle(const fs::path& polku) {
  const int kahva = open(polku.c_str(), O_RDONLY | O_CLOEXEC);
  VaadiOnnistuminen(kahva >= 0, polku);
  const bool onnistui = fdatasync(kahva) == 0 || errno == EINVAL;  // some file systems can't flush a directory
  close(kahva);
  VaadiOnnistuminen(onnistui, polku);
}

std::string VarakopionPolku() { return AppPath() + std::string(kVarakopio); }

std::string SailytettyjenAlku(const fs::path& tiedosto) { return tiedosto.stem().string() + " "; }

fs::path SailytetynPolku(const fs::path& tiedosto) {
  struct stat tiedot {};
  stat(tiedosto.c_str(), &tiedot);
  char aika[32];
  tm paikallinen{};
  std::strftime(aika, sizeof aika, "%Y-%m-%d %H.%M.%S", localtime_r(&tiedot.st_mtime, &paikallinen));
  return tiedosto.parent_path() / (SailytettyjenAlku(tiedosto) + aika + tiedosto.extension().string());
}

/// The last five stay; their names sort by time.
void KarsiSailytetyt(const fs::path& tiedosto) {
  std::vector<fs::path> sailytetyt;
  for (const auto& toinen : fs::directory_iterator(tiedosto.parent_path()))
    if (toinen.path().filename().string().starts_with(SailytettyjenAlku(tiedosto))) sailytetyt.push_back(toinen.path());
  std::ranges::sort(sailytetyt);
  while (sailytetyt.size() > kSailytettavia) {
    fs::remove(sailytetyt.front());
    sailytetyt.erase(sailytetyt.begin());
  }
}

std::string SailytaLukittuna(const fs::path& tiedosto) {
  if (!fs::exists(tiedosto)) return {};
  const fs::path sailytetty = SailytetynPolku(tiedosto);
  fs::rename(tiedosto, sailytetty);
  KarsiSailytetyt(tiedosto);
  return sailytetty.string();
}

/// Copies the project aside, if there is one. Runs on the second thread.
void KopioiVanha(const fs::path& tiedosto, bool sailytaEnnen) try {
  if (!fs::exists(tiedosto)) return;
  KopioiTiedosto(tiedosto, VarakopionPolku());
  if (sailytaEnnen) KopioiTiedosto(tiedosto, tiedosto.string() + ".ennen");
} catch (const std::system_error& virhe) {
  NostaTiedostovirhe(Syy::Varmuuskopio, VarakopionPolku(), virhe.code());
}

std::string LueMalli(const std::string& malli) try {
  return LueTiedosto(malli);
} catch (const std::system_error& virhe) {
  if (virhe.code() != std::errc::no_such_file_or_directory) NostaTiedostovirhe(Syy::Kirjoitus, malli, virhe.code());
  throw Projektivirhe(Syy::MalliPuuttuu, "File: " + malli + " cannot be found.");
}

/// The new file while it is being built: gone at the end unless it took the project's place.
class Uusi {
 public:
  Uusi(const fs::path& kohde, const std::string& malli) : kohde_(kohde), polku_(kohde.string() + ".uusi") {
    VaadiOnnistuminen(Poista(), polku_);
    const int kahva = open(polku_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    VaadiOnnistuminen(kahva >= 0, polku_);
    const bool onnistui = KirjoitaKaikki(kahva, malli) && AsetaOikeudet(kahva);
    const int virhe = errno;
    close(kahva);
    if (onnistui) return;
    Poista();
    errno = virhe;
    VaadiOnnistuminen(false, polku_);
  }
  ~Uusi() { Poista(); }
  Uusi(const Uusi&) = delete;
  Uusi& operator=(const Uusi&) = delete;

  const fs::path& Polku() const noexcept { return polku_; }

  void Paikalleen() {
    Levylle(polku_);
    VaadiOnnistuminen(rename(polku_.c_str(), kohde_.c_str()) == 0, kohde_);
    Levylle(fs::absolute(kohde_).parent_path());
  }

 private:
  static bool KirjoitaKaikki(int kahva, std::string_view sisalto) {
    while (!sisalto.empty()) {
      const ssize_t n = write(kahva, sisalto.data(), sisalto.size());
      if (n < 0 && errno != EINTR) return false;
      sisalto.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
    }
    return true;
  }

  /// As the replaced file's; the owner may write, since the mark of a file in use isn't part of the file.
  bool AsetaOikeudet(int kahva) const {
    struct stat vanha {};
    if (stat(kohde_.c_str(), &vanha) != 0) return true;
    return fchmod(kahva, (vanha.st_mode & 07777) | S_IWUSR) == 0 || errno == EPERM;
  }

  bool Poista() const {
    bool poissa = true;
    for (const char* loppu : {"", "-journal", "-wal", "-shm"})
      poissa &= unlink((polku_.string() + loppu).c_str()) == 0 || errno == ENOENT;
    return poissa;
  }

  fs::path kohde_;
  fs::path polku_;
};

}  // namespace

void KorvaaTurvallisesti(const std::string& tiedosto, const std::string& malli, bool sailytaEnnen,
                         const std::function<void(const std::string& uusi)>& rakenna) try {
  const fs::path kohde = fs::is_symlink(tiedosto) ? fs::weakly_canonical(tiedosto) : fs::path(tiedosto);
  const Lukitus lukko;
  Uusi uusi(kohde, LueMalli(malli));
  SailytaLukittuna(VarakopionPolku());
  std::future<void> kopiointi = std::async(std::launch::async, KopioiVanha, kohde, sailytaEnnen);
  rakenna(uusi.Polku().string());
  kopiointi.get();
  uusi.Paikalleen();
  unlink(VarakopionPolku().c_str());
} catch (const std::system_error& virhe) {
  NostaTiedostovirhe(Syy::Kirjoitus, tiedosto, virhe.code());
}

std::string JaanytVarakopio() {
  const Lukitus lukko;
  return fs::exists(VarakopionPolku()) ? VarakopionPolku() : std::string();
}

std::string SailytaAjalla(const std::string& tiedosto) {
  const Lukitus lukko;
  return SailytaLukittuna(tiedosto);
}
