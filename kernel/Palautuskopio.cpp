// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Palautuskopio.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <tuple>
#include <utility>

#include "kernel/Hakemistot.h"
#include "kernel/Projektitiedosto.h"
#include "kernel/Tietokanta.h"
#include "kernel/UusiTiedosto.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kAlku = "~palautus", kPaate = ".lvt";
/// The one row that a project file lacks: whose copy this is.
constexpr const char* kTaulu = "CREATE TABLE Palautus (Tiedosto TEXT, Tunnus TEXT)";

/// "~palautus 1234.lvt", "~palautus 1234-2.lvt" or "~palautus.lvt"; not those with a date.
bool OnKopionNimi(std::string_view nimi) {
  if (!nimi.starts_with(kAlku) || !nimi.ends_with(kPaate)) return false;
  nimi.remove_prefix(kAlku.size());
  nimi.remove_suffix(kPaate.size());
  return nimi.empty() || (nimi.front() == ' ' && nimi.find_first_not_of("0123456789-", 1) == std::string_view::npos);
}

std::string Nimi(int monesko) {
  return AppPath() + std::string(kAlku) + " " + std::to_string(getpid()) +
         (monesko > 1 ? "-" + std::to_string(monesko) : std::string()) + std::string(kPaate);
}

std::pair<std::string, Tiedostotunnus> LueOmistaja(const std::string& polku) try {
  Tietokanta kanta(polku, Tietokanta::Tapa::Muuttumaton);
  Kysely rivi(kanta, "SELECT Tiedosto, Tunnus FROM Palautus");
  if (!rivi.Seuraava()) return {};
  return {std::string(rivi.Teksti(0)), Tiedostotunnus::Lue(std::string(rivi.Teksti(1)))};
} catch (const Tietokantavirhe&) {
  return {};
}

/// The file when no running program holds it. An empty one is the mere name of a run that died before it wrote.
std::optional<Kahva> OtaHallintaan(const fs::path& polku) try {
  Kahva kahva(polku, O_RDWR | O_NOFOLLOW);
  if (kahva.Lukitse() == Kahva::Lukko::Toisella || !kahva.OnNimella(polku)) return std::nullopt;
  const struct stat tiedot = kahva.Tiedot();
  if (S_ISREG(tiedot.st_mode) && tiedot.st_size > 0) return kahva;
  if (S_ISREG(tiedot.st_mode)) unlink(polku.c_str());
  return std::nullopt;
} catch (const std::system_error&) {
  return std::nullopt;
}

}  // namespace

std::vector<Palautuskopio> Palautuskopio::OtaJaaneet() {
  std::vector<Palautuskopio> kopiot;
  std::error_code virhe;
  for (const auto& tiedosto : fs::directory_iterator(AppPath(), virhe)) {
    if (!OnKopionNimi(tiedosto.path().filename().string())) continue;
    Palautuskopio kopio;
    kopio.kahva_ = OtaHallintaan(tiedosto.path());
    if (!kopio.kahva_) continue;
    kopio.polku_ = tiedosto.path().string();
    std::tie(kopio.projekti_, kopio.tunnus_) = LueOmistaja(kopio.polku_);
    kopiot.push_back(std::move(kopio));
  }
  std::ranges::sort(kopiot, std::greater(), [](const auto& kopio) { return fs::last_write_time(kopio.polku_); });
  UusiTiedosto::Siivoa(AppPath(), kAlku);
  return kopiot;
}

void Palautuskopio::Kirjoita(Olio& juuri, const std::string& projekti, const Tiedostotunnus& tunnus) try {
  if (Tyhja()) VaraaNimi();
  UusiTiedosto uusi(polku_, UusiTiedosto::kYksityinen);
  RakennaProjekti(juuri, uusi, Projektimalli(), {}, [&](Tietokanta& kanta) {
    kanta.Aja(kTaulu);
    kanta.Aja("INSERT INTO Palautus VALUES (?, ?)", projekti, tunnus.Teksti());
  });
  uusi.Paikalleen();
  kahva_ = uusi.Luovuta();
  projekti_ = projekti;
  tunnus_ = tunnus;
} catch (const std::system_error& virhe) {
  throw Projektivirhe(Projektivirhe::Syy::Kirjoitus, polku_ + ": " + Selitys(virhe.code()));
}

/// A died run of the same process number may have left its copy: a name that is there is never taken.
void Palautuskopio::VaraaNimi() {
  for (int i = 1;; ++i) try {
      Kahva kahva(Nimi(i), O_RDWR | O_CREAT | O_EXCL, UusiTiedosto::kYksityinen);
      kahva.Lukitse();
      polku_ = Nimi(i);
      kahva_ = std::move(kahva);
      return;
    } catch (const std::system_error& virhe) {
      if (virhe.code() != std::errc::file_exists) throw;
    }
}

void Palautuskopio::Poista() noexcept {
  if (!Tyhja()) unlink(polku_.c_str());
  *this = {};
}

std::string Palautuskopio::Sailyta() {
  const std::string talteen = SailytaAjalla(polku_, kAlku);
  *this = {};
  return talteen;
}
