// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Hakemistot.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <map>
#include <sstream>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <vector>

#include "kernel/Sha256.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kTekstivarasto = "StrVarasto.mdb";
constexpr const char* kLuettelo = "tehdastiedot.txt";
constexpr std::array<std::string_view, 2> kKayttajanOmat = {"KayttajanPolttoainekanta.mdb",
                                                            "Rakennekirjasto/Tietokanta.mdb"};

std::string g_appPath;

fs::path Kotihakemisto() {
  if (const char* koti = std::getenv("HOME"); koti && *koti) return koti;
  const passwd* tiedot = getpwuid(geteuid());
  return tiedot && tiedot->pw_dir ? tiedot->pw_dir : "/tmp";
}

/// A directory of the XDG base directories: a relative path in the variable counts as none.
fs::path XdgHakemisto(const char* muuttuja, const char* oletus) {
  const char* arvo = std::getenv(muuttuja);
  const fs::path hakemisto = arvo ? arvo : "";
  return (hakemisto.is_absolute() ? hakemisto : Kotihakemisto() / oletus) / "lumivirta";
}

fs::path OhjelmanHakemisto() {
  std::error_code virhe;
  return fs::read_symlink("/proc/self/exe", virhe).parent_path();
}

bool OnTiedosto(const fs::path& polku) {
  std::error_code virhe;
  return fs::is_regular_file(polku, virhe);
}

fs::path ValitseAppPath() {
  if (const char* koti = std::getenv("LUMIVIRTA_KOTI"); koti && *koti) return fs::absolute(koti);
  const fs::path ohjelma = OhjelmanHakemisto();
  if (OnTiedosto(ohjelma / kTekstivarasto) && access(ohjelma.c_str(), W_OK) == 0) return ohjelma;
  return XdgHakemisto("XDG_DATA_HOME", ".local/share");
}

/// Where a package put the reference files: beside the program or in the share directory of the same prefix.
fs::path AsennetutTiedostot() {
  const fs::path ohjelma = OhjelmanHakemisto();
  for (const auto& ehdokas : {ohjelma, ohjelma.parent_path() / "share/lumivirta"})
    if (OnTiedosto(ehdokas / kLuettelo)) return ehdokas;
  return {};
}

[[noreturn]] void NostaJarjestelmavirhe(const fs::path& tiedosto) {
  throw std::system_error(errno, std::generic_category(), tiedosto.string());
}

class Kahva {
 public:
  Kahva(const fs::path& tiedosto, int tapa, mode_t oikeudet = 0)
      : tiedosto_(tiedosto), kahva_(open(tiedosto.c_str(), tapa | O_CLOEXEC, oikeudet)) {
    if (kahva_ < 0) NostaJarjestelmavirhe(tiedosto);
  }
  ~Kahva() { close(kahva_); }
  Kahva(const Kahva&) = delete;
  Kahva& operator=(const Kahva&) = delete;

  void Kirjoita(std::string_view sisalto) {
    while (!sisalto.empty()) {
      const ssize_t n = write(kahva_, sisalto.data(), sisalto.size());
      if (n < 0 && errno != EINTR) NostaJarjestelmavirhe(tiedosto_);
      sisalto.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
    }
  }
  std::string Lue() {
    std::string sisalto;
    std::array<char, 65536> pala;
    for (;;) {
      const ssize_t n = read(kahva_, pala.data(), pala.size());
      if (n == 0) return sisalto;
      if (n < 0 && errno != EINTR) NostaJarjestelmavirhe(tiedosto_);
      sisalto.append(pala.data(), static_cast<std::size_t>(std::max<ssize_t>(n, 0)));
    }
  }
  /// Appends a file, in the kernel where the file systems can.
  void LiitaTiedosto(const fs::path& lahde) {
    Kahva luettava(lahde, O_RDONLY);
    for (;;) {
      const ssize_t n = copy_file_range(luettava.kahva_, nullptr, kahva_, nullptr, kKerralla, 0);
      if (n == 0) return;
      if (n < 0 && errno != EINTR) break;
    }
    Kirjoita(luettava.Lue());  // what is left: both handles stand where the copy ended
  }
  void Oikeudet(mode_t oikeudet) {
    if (fchmod(kahva_, oikeudet) != 0 && errno != EPERM) NostaJarjestelmavirhe(tiedosto_);
  }
  void Levylle() {
    if (fsync(kahva_) != 0 && errno != EINVAL) NostaJarjestelmavirhe(tiedosto_);
  }

 private:
  static constexpr std::size_t kKerralla = 1 << 30;

  fs::path tiedosto_;
  int kahva_;
};

/// Removes the unfinished file on the way out of a failure.
class Keskenerainen {
 public:
  explicit Keskenerainen(fs::path tiedosto) : tiedosto_(std::move(tiedosto)) {}
  ~Keskenerainen() {
    if (!tiedosto_.empty()) unlink(tiedosto_.c_str());
  }
  Keskenerainen(const Keskenerainen&) = delete;
  Keskenerainen& operator=(const Keskenerainen&) = delete;
  void Valmis() { tiedosto_.clear(); }

 private:
  fs::path tiedosto_;
};

/// What a link points to, also when that doesn't exist yet; other paths as they are.
fs::path LinkinKohde(const fs::path& tiedosto) {
  return fs::is_symlink(tiedosto) ? fs::weakly_canonical(tiedosto) : tiedosto;
}

/// Fills a new file beside `tiedosto`, flushes it and gives it the name.
template <class Tayta>
void Korvaa(const fs::path& tiedosto, Tayta&& tayta) {
  const fs::path kohde = LinkinKohde(tiedosto);
  fs::create_directories(kohde.parent_path());
  const fs::path uusi = kohde.string() + ".uusi." + std::to_string(getpid());
  Keskenerainen siivous(uusi);
  {
    Kahva kahva(uusi, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (struct stat vanha; stat(kohde.c_str(), &vanha) == 0) kahva.Oikeudet(vanha.st_mode & 07777);
    tayta(kahva);
    kahva.Levylle();
  }
  if (rename(uusi.c_str(), kohde.c_str()) != 0) NostaJarjestelmavirhe(kohde);
  siivous.Valmis();
  Kahva(kohde.parent_path(), O_RDONLY | O_DIRECTORY).Levylle();
}

using Tiivisteet = std::map<std::string, std::string>;  // file -> SHA-256

bool PysyyHakemistossa(const fs::path& tiedosto) {
  return tiedosto.is_relative() && std::find(tiedosto.begin(), tiedosto.end(), "..") == tiedosto.end();
}

Tiivisteet LueLuettelo(const std::string& sisalto) {
  Tiivisteet tulos;
  std::istringstream virta(sisalto);
  for (std::string rivi; std::getline(virta, rivi);) {
    if (rivi.ends_with('\r')) rivi.pop_back();
    const auto vali = rivi.find("  ");
    if (vali == std::string::npos) continue;
    const std::string tiedosto = rivi.substr(vali + 2);
    if (PysyyHakemistossa(tiedosto)) tulos[tiedosto] = rivi.substr(0, vali);
  }
  return tulos;
}

class Siementaja {
 public:
  Siementaja(const fs::path& lahde, const fs::path& kohde)
      : lahde_(lahde),
        kohde_(kohde),
        luettelo_(LueTiedosto(lahde / kLuettelo)),
        edellinen_(OnTiedosto(kohde / kLuettelo) ? LueTiedosto(kohde / kLuettelo) : std::string()) {}

  void Siemenna(Siemennys& tulos) {
    const Tiivisteet aiemmat = LueLuettelo(edellinen_);
    for (const auto& [tiedosto, tiiviste] : LueLuettelo(luettelo_)) {
      const auto aiempi = aiemmat.find(tiedosto);
      Kasittele(tiedosto, tiiviste, aiempi == aiemmat.end() ? std::string() : aiempi->second, tulos);
    }
    if (luettelo_ != edellinen_) KirjoitaTiedosto(kohde_ / kLuettelo, luettelo_);
  }

 private:
  void Kasittele(const std::string& tiedosto, const std::string& tiiviste, const std::string& aiempi,
                 Siemennys& tulos) {
    if (!fs::exists(kohde_ / tiedosto)) {
      Kopioi(tiedosto);
      ++tulos.kopioituja;
    } else if (luettelo_ != edellinen_ && !OnKayttajanOma(tiedosto)) {
      Paivita(tiedosto, tiiviste, aiempi, tulos);
    }
  }

  void Paivita(const std::string& tiedosto, const std::string& tiiviste, const std::string& aiempi, Siemennys& tulos) {
    const std::string nykyinen = Sha256(LueTiedosto(kohde_ / tiedosto));
    if (nykyinen == tiiviste) return;
    if (nykyinen != aiempi) {
      ++tulos.sailytettyja;
      return;
    }
    Kopioi(tiedosto);
    ++tulos.paivitettyja;
  }

  static bool OnKayttajanOma(std::string_view tiedosto) {
    return std::find(kKayttajanOmat.begin(), kKayttajanOmat.end(), tiedosto) != kKayttajanOmat.end();
  }

  void Kopioi(const std::string& tiedosto) { KopioiTiedosto(lahde_ / tiedosto, kohde_ / tiedosto); }

  fs::path lahde_;
  fs::path kohde_;
  std::string luettelo_;
  std::string edellinen_;
};

/// Byte positions where the characters of a UTF-8 text begin, and its end.
std::vector<std::size_t> MerkkienAlut(std::string_view teksti) {
  std::vector<std::size_t> alut;
  for (std::size_t i = 0; i < teksti.size(); ++i)
    if ((static_cast<unsigned char>(teksti[i]) & 0xC0) != 0x80) alut.push_back(i);
  alut.push_back(teksti.size());
  return alut;
}

}  // namespace

const std::string& AppPath() {
  if (g_appPath.empty()) AsetaAppPath(ValitseAppPath().string());
  return g_appPath;
}

void AsetaAppPath(std::string_view hakemisto) {
  g_appPath = hakemisto;
  if (!g_appPath.empty() && !g_appPath.ends_with('/')) g_appPath += '/';
}

fs::path AsetusHakemisto() { return XdgHakemisto("XDG_CONFIG_HOME", ".config"); }

Siemennys SiemennaTiedostot() {
  const fs::path lahde = AsennetutTiedostot();
  std::error_code virhe;
  if (lahde.empty() || fs::equivalent(lahde, AppPath(), virhe)) return {};
  return SiemennaTiedostot(lahde, AppPath());
}

Siemennys SiemennaTiedostot(const fs::path& lahde, const fs::path& kohde) {
  Siemennys tulos;
  try {
    fs::create_directories(kohde);
    const Lukitus lukko((kohde / ".lumivirta.lukko").string());
    Siementaja(lahde, kohde).Siemenna(tulos);
  } catch (const std::exception& e) {
    tulos.virhe = e.what();
  }
  return tulos;
}

Lukitus::Lukitus(const std::string& tiedosto, std::chrono::milliseconds enimmillaan)
    : kahva_(open(tiedosto.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, 0666)) {
  if (kahva_ < 0) NostaJarjestelmavirhe(tiedosto);
  const auto takaraja = std::chrono::steady_clock::now() + enimmillaan;
  while (flock(kahva_, LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR)) {
    if (std::chrono::steady_clock::now() >= takaraja) {
      close(kahva_);
      throw std::runtime_error("Toinen ohjelma varaa tiedostoa " + tiedosto);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

Lukitus::~Lukitus() { close(kahva_); }

std::string LueTiedosto(const fs::path& tiedosto) { return Kahva(tiedosto, O_RDONLY).Lue(); }

void KirjoitaTiedosto(const fs::path& tiedosto, std::string_view sisalto) {
  Korvaa(tiedosto, [sisalto](Kahva& kahva) { kahva.Kirjoita(sisalto); });
}

void KopioiTiedosto(const fs::path& lahde, const fs::path& tiedosto) {
  Korvaa(tiedosto, [&lahde](Kahva& kahva) { kahva.LiitaTiedosto(lahde); });
}

std::string LyhennaPolku(std::string_view polku, std::size_t n) {
  constexpr std::size_t kAlku = 3;
  constexpr std::size_t kAluksiJaPisteet = kAlku + 3;
  const auto alut = MerkkienAlut(polku);
  const std::size_t pituus = alut.size() - 1;
  if (pituus <= n) return std::string(polku);
  const std::size_t lopusta = n > kAluksiJaPisteet ? n - kAluksiJaPisteet : 0;
  std::string_view loppu = polku.substr(alut[pituus - lopusta]);
  if (const auto erotin = loppu.find('/'); erotin != std::string_view::npos) loppu.remove_prefix(erotin);
  return std::string(polku.substr(0, alut[std::min(kAlku, pituus)])).append("...").append(loppu);
}
