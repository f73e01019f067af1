// SPDX-License-Identifier: GPL-3.0-or-later
// How a project file is replaced. At every moment a whole file stands under the project's name:
//
// 1. The project is locked, so that of two programs that save it at the same moment one waits; both may be of different
//    users with AppPaths of their own. Under the lock it is compared with what the caller has seen of it: a save by
//    another hand isn't replaced unseen. A new project has nothing to lock: the later one stands.
// 2. What killed saves of this project have left is swept, and "<name>.uusi-xxxxxx" is made beside the project.
//    Interrupted here: the project is untouched, "<name>.uusi-xxxxxx" is rubbish that the next save removes.
// 3. The project is put under the backup name in AppPath: as a second name of the same file where that is possible,
// else
//    as a copy made through a temporary name and flushed, on a second thread beside step 4. It is as private as the
//    project. A backup that was there already stays under a name with its date and time.
//    Interrupted here: as in 2, and the backup is either missing or whole.
// 4. "<name>.uusi-xxxxxx" is filled in one transaction, which ends flushed, and its row counts are checked.
//    Interrupted here: as in 3.
// 5. When both have succeeded, the new file is flushed and renamed over the project, and the folder is flushed.
//    Interrupted here: the project is the old or the new one, whole; the backup is whole.
// 6. The backup is removed.
//    Interrupted here: the project is the new one; the backup is offered at the next start.
//
// A failure in 2 to 5 removes the new file and leaves the backup. The lock of AppPath is held from 3 on, since the
// running programs share the backup's name.
#include "kernel/Turvatallennus.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <future>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

#include "kernel/Hakemistot.h"
#include "kernel/Projektitiedosto.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kVarakopio = "~backup1lvt.old", kVarakopionAlku = "~backup1lvt";
constexpr std::size_t kSailytettavia = 5;
constexpr std::chrono::seconds kOdotus{20};

using Syy = Projektivirhe::Syy;

[[noreturn]] void NostaTiedostovirhe(Syy syy, const fs::path& tiedosto, const std::error_code& virhe) {
  throw Projektivirhe(syy, tiedosto.string() + ": " + Selitys(virhe));
}

/// The project as it stands under its name, open; nothing when it isn't there or this user may not open it.
std::optional<Kahva> AvaaProjekti(const fs::path& kohde) {
  for (const int tapa : {O_RDWR, O_RDONLY}) try {
      return Kahva(kohde, tapa);  // network drives lock only what is open for writing
    } catch (const std::system_error&) {
      continue;
    }
  return std::nullopt;
}

/// Waits for the lock of the project that stands under the name: a save that held it has put another file there.
std::optional<Kahva> LukitseProjekti(const fs::path& kohde) {
  const auto takaraja = std::chrono::steady_clock::now() + kOdotus;
  for (;;) {
    std::optional<Kahva> projekti = AvaaProjekti(kohde);
    if (!projekti) return std::nullopt;
    if (!S_ISREG(projekti->Tiedot().st_mode))
      NostaTiedostovirhe(Syy::Kirjoitus, kohde, {EINVAL, std::generic_category()});
    if (projekti->Lukitse() != Kahva::Lukko::Toisella && projekti->OnNimella(kohde)) return projekti;
    if (std::chrono::steady_clock::now() >= takaraja)
      NostaTiedostovirhe(Syy::Kirjoitus, kohde, {EBUSY, std::generic_category()});
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

std::string VarakopionPolku() { return AppPath() + std::string(kVarakopio); }

/// A name that is free: "<alku> <date> <time>[ (2)]<extension>", the time being that of the file's last writing.
fs::path SailytetynPolku(const fs::path& tiedosto, std::string_view alku) {
  struct stat tiedot {};
  stat(tiedosto.c_str(), &tiedot);
  char aika[32];
  tm paikallinen{};
  std::strftime(aika, sizeof aika, " %Y-%m-%d %H.%M.%S", localtime_r(&tiedot.st_mtime, &paikallinen));
  const fs::path runko = tiedosto.parent_path() / (std::string(alku) + aika);
  fs::path polku = runko.string() + tiedosto.extension().string();
  for (int i = 2; fs::exists(polku); ++i)
    polku = runko.string() + " (" + std::to_string(i) + ")" + tiedosto.extension().string();
  return polku;
}

/// The file that was just put aside stays, and four others: their names sort by time, which a clock may have got wrong.
void KarsiSailytetyt(const fs::path& uusin, std::string_view alku) {
  std::vector<fs::path> muut;
  for (const auto& toinen : fs::directory_iterator(uusin.parent_path())) {
    const std::string nimi = toinen.path().filename().string();
    if (nimi.starts_with(std::string(alku) + " 2") && toinen.path() != uusin && nimi.find('.') != std::string::npos)
      muut.push_back(toinen.path());
  }
  std::ranges::sort(muut, std::greater());
  for (std::size_t i = kSailytettavia - 1; i < muut.size(); ++i) fs::remove(muut[i]);
}

std::string SailytaLukittuna(const fs::path& tiedosto, std::string_view alku) {
  if (!fs::exists(tiedosto)) return {};
  const fs::path sailytetty = SailytetynPolku(tiedosto, alku);
  fs::rename(tiedosto, sailytetty);
  KarsiSailytetyt(sailytetty, alku);
  return sailytetty.string();
}

/// A second name of the file: a save never writes into a project, it replaces it, so that this name keeps the content.
bool Linkita(const fs::path& tiedosto, const fs::path& nimi) { return link(tiedosto.c_str(), nimi.c_str()) == 0; }

/// Puts the project aside, if there is one. Runs on the second thread.
void KopioiVanha(const fs::path& tiedosto, bool sailytaEnnen) try {
  if (!fs::exists(tiedosto)) return;
  if (!Linkita(tiedosto, VarakopionPolku())) KopioiTiedosto(tiedosto, VarakopionPolku());
  if (sailytaEnnen) KopioiTiedosto(tiedosto, tiedosto.string() + ".ennen");
} catch (const std::system_error& virhe) {
  NostaTiedostovirhe(Syy::Varmuuskopio, VarakopionPolku(), virhe.code());
}

void VaadiOdotettu(const fs::path& kohde, const Korvaustapa& tapa) {
  if (tapa.odotettu && !tapa.odotettu->OnYha(kohde.string()))
    throw Projektivirhe(Syy::Vaihtunut, kohde.string() + ": toinen ohjelma on muuttanut tiedostoa");
}

}  // namespace

bool KorvaaTurvallisesti(const std::string& tiedosto, const Korvaustapa& tapa,
                         const std::function<void(UusiTiedosto& uusi)>& rakenna) try {
  const fs::path kohde = LinkinKohde(tiedosto);
  const std::optional<Kahva> projekti = LukitseProjekti(kohde);
  VaadiOdotettu(kohde, tapa);
  UusiTiedosto::Siivoa(fs::absolute(kohde).parent_path(), kohde.filename().string());
  UusiTiedosto uusi(kohde);
  const Lukitus lukko;
  SailytaLukittuna(VarakopionPolku(), kVarakopionAlku);
  std::future<void> kopiointi = std::async(std::launch::async, KopioiVanha, kohde, tapa.sailytaEnnen);
  rakenna(uusi);
  kopiointi.get();
  const bool vahvistettu = uusi.Paikalleen();
  if (vahvistettu) unlink(VarakopionPolku().c_str());
  return vahvistettu;
} catch (const std::system_error& virhe) {
  NostaTiedostovirhe(Syy::Kirjoitus, tiedosto, virhe.code());
}

std::string JaanytVarakopio() try {
  const Lukitus lukko;
  return fs::exists(VarakopionPolku()) ? VarakopionPolku() : std::string();
} catch (const std::system_error&) {
  return {};  // a data directory that can't be written holds no backup of ours
}

std::string SailytaAjalla(const std::string& tiedosto, std::string_view alku) {
  const Lukitus lukko;
  return SailytaLukittuna(tiedosto, alku.empty() ? fs::path(tiedosto).stem().string() : std::string(alku));
}
