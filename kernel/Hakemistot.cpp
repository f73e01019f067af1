// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Hakemistot.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <sstream>
#include <stdexcept>
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

std::string Aineistotiedosto(std::string_view nimi) {
  const std::string oma = AppPath() + std::string(nimi);
  if (OnTiedosto(oma)) return oma;
  const fs::path asennettu = AsennetutTiedostot() / nimi;
  return OnTiedosto(asennettu) ? asennettu.string() : oma;
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
  } catch (const fs::filesystem_error& virhe) {
    tulos.virhe = virhe.path1().string() + ": " + Selitys(virhe.code());
  } catch (const std::exception& virhe) {
    tulos.virhe = virhe.what();
  }
  return tulos;
}

Lukitus::Lukitus(const std::string& tiedosto, std::chrono::milliseconds enimmillaan)
    : kahva_(tiedosto, O_RDONLY | O_CREAT, 0666) {
  const auto takaraja = std::chrono::steady_clock::now() + enimmillaan;
  while (kahva_.Lukitse() == Kahva::Lukko::Toisella) {
    if (std::chrono::steady_clock::now() >= takaraja)
      throw std::runtime_error("Toinen ohjelma varaa tiedostoa " + tiedosto);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
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
