// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Asetusvarasto.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "kernel/Hakemistot.h"
#include "kernel/Kirjainkoko.h"
#include "kernel/Virhe.h"

namespace fs = std::filesystem;

namespace {

std::function<void(const std::string&)> g_ilmoitus;
std::vector<std::string> g_kertomatta;

fs::path AsetusTiedosto() { return AsetusHakemisto() / "asetukset.ini"; }
std::string LukkoTiedosto() { return (AsetusHakemisto() / ".asetukset.lukko").string(); }

std::string_view IlmanReunavaleja(std::string_view teksti) {
  const auto alku = teksti.find_first_not_of(" \t");
  if (alku == std::string_view::npos) return {};
  return teksti.substr(alku, teksti.find_last_not_of(" \t") - alku + 1);
}

std::string Koodattu(std::string_view arvo) {
  std::string tulos;
  for (const char c : arvo) {
    if (c == '\\') tulos += "\\\\";
    if (c == '\n') tulos += "\\n";
    if (c == '\r') tulos += "\\r";
    if (c != '\\' && c != '\n' && c != '\r' && c != '\0') tulos += c;
  }
  return tulos;
}

std::string Purettu(std::string_view arvo) {
  std::string tulos;
  for (std::size_t i = 0; i < arvo.size(); ++i) {
    const bool koodi = arvo[i] == '\\' && i + 1 < arvo.size();
    const char seuraava = koodi ? arvo[++i] : arvo[i];
    tulos += !koodi ? seuraava : seuraava == 'n' ? '\n' : seuraava == 'r' ? '\r' : seuraava;
  }
  return tulos;
}

/// The lines of the file; a change touches the line of its key only.
class Rivisto {
 public:
  explicit Rivisto(std::string_view sisalto) {
    if (sisalto.starts_with("\uFEFF")) sisalto.remove_prefix(3);
    while (!sisalto.empty()) {
      const auto loppu = std::min(sisalto.find('\n'), sisalto.size());
      std::string_view rivi = sisalto.substr(0, loppu);
      if (rivi.ends_with('\r')) rivi.remove_suffix(1);
      rivit_.emplace_back(rivi);
      sisalto.remove_prefix(std::min(loppu + 1, sisalto.size()));
    }
  }

  bool Kelvollinen() const { return std::all_of(rivit_.begin(), rivit_.end(), KelvollinenRivi); }

  std::optional<std::string> Hae(std::string_view osio, std::string_view avain) const {
    const Paikka paikka = Etsi(osio, avain);
    if (!paikka.avainOn) return std::nullopt;
    return Purettu(std::string_view(rivit_[paikka.rivi]).substr(rivit_[paikka.rivi].find('=') + 1));
  }

  /// True when something changed.
  bool Aseta(const Asetus& asetus) {
    const Paikka paikka = Etsi(asetus.osio, asetus.avain);
    std::string rivi = asetus.avain + "=" + Koodattu(asetus.arvo);
    if (paikka.avainOn) {
      if (Hae(asetus.osio, asetus.avain) == asetus.arvo) return false;
      rivit_[paikka.rivi] = std::move(rivi);
      return true;
    }
    if (!paikka.osioOn) AloitaOsio(asetus.osio);
    const std::size_t kohta = paikka.osioOn ? paikka.rivi : rivit_.size();
    rivit_.insert(rivit_.begin() + static_cast<std::ptrdiff_t>(kohta), std::move(rivi));
    return true;
  }

  std::string Sisalto() const {
    std::string tulos;
    for (const auto& rivi : rivit_) tulos.append(rivi).append("\n");
    return tulos;
  }

 private:
  struct Paikka {
    std::size_t rivi = 0;  // line of the key, or where it would stand: behind the last line of its section
    bool osioOn = false;
    bool avainOn = false;
  };

  static bool OnOsio(std::string_view rivi) { return rivi.starts_with('[') && rivi.ends_with(']'); }
  static bool OnKommentti(std::string_view rivi) { return rivi.starts_with(';') || rivi.starts_with('#'); }

  static bool KelvollinenRivi(std::string_view rivi) {
    if (rivi.find('\0') != std::string_view::npos) return false;
    const std::string_view karsittu = IlmanReunavaleja(rivi);
    return karsittu.empty() || OnKommentti(karsittu) || OnOsio(karsittu) || rivi.find('=') != std::string_view::npos;
  }

  Paikka Etsi(std::string_view osio, std::string_view avain) const {
    Paikka paikka;
    bool omassaOsiossa = false;
    for (std::size_t i = 0; i < rivit_.size(); ++i) {
      const std::string_view rivi = IlmanReunavaleja(rivit_[i]);
      if (OnOsio(rivi)) omassaOsiossa = SamaNimi(IlmanReunavaleja(rivi.substr(1, rivi.size() - 2)), osio);
      if (!omassaOsiossa || rivi.empty()) continue;
      if (!OnKommentti(rivi) && !OnOsio(rivi) && SamaNimi(IlmanReunavaleja(rivi.substr(0, rivi.find('='))), avain)) {
        return {i, true, true};
      }
      paikka = {i + 1, true, false};
    }
    return paikka;
  }

  void AloitaOsio(std::string_view osio) {
    if (!rivit_.empty()) rivit_.emplace_back();
    rivit_.push_back("[" + std::string(osio) + "]");
  }

  std::vector<std::string> rivit_;
};

Rivisto LueRivisto() {
  try {
    return Rivisto(LueTiedosto(AsetusTiedosto()));
  } catch (const std::system_error& e) {
    if (e.code() == std::errc::no_such_file_or_directory || e.code() == std::errc::not_a_directory) return Rivisto({});
    throw;
  }
}

fs::path VapaaNimi(const fs::path& tiedosto) {
  fs::path nimi = tiedosto.string() + ".vioittunut";
  for (int i = 2; fs::exists(nimi); ++i) nimi = tiedosto.string() + ".vioittunut" + std::to_string(i);
  return nimi;
}

void Kerro(const std::string& siirretty) {
  if (g_ilmoitus) {
    g_ilmoitus(siirretty);
  } else {
    g_kertomatta.push_back(siirretty);
  }
}

/// The settings with the lock held: a damaged file goes aside first. The name that it got is in `siirretty`.
Rivisto LueEhja(std::string& siirretty) {
  Rivisto rivisto = LueRivisto();
  if (rivisto.Kelvollinen()) return rivisto;
  const fs::path nimi = VapaaNimi(AsetusTiedosto());
  fs::rename(AsetusTiedosto(), nimi);
  siirretty = nimi.string();
  return Rivisto({});
}

/// Runs `tyo` on the settings under the lock between programs; the news of a damaged file is told after its release.
template <class Tyo>
void Lukittuna(Tyo tyo) {
  std::string siirretty;
  fs::create_directories(AsetusHakemisto());
  {
    const Lukitus lukko(LukkoTiedosto());
    Rivisto rivisto = LueEhja(siirretty);
    tyo(rivisto);
  }
  if (!siirretty.empty()) Kerro(siirretty);
}

}  // namespace

std::string HaeAsetus(std::string_view osio, std::string_view avain, std::string_view oletus) try {
  const Rivisto rivisto = LueRivisto();
  if (rivisto.Kelvollinen()) return rivisto.Hae(osio, avain).value_or(std::string(oletus));
  Lukittuna([](const Rivisto&) {});
  return std::string(oletus);
} catch (const std::exception&) {
  return std::string(oletus);  // what can't be read or moved aside counts as no settings
}

void TallennaAsetukset(std::span<const Asetus> asetukset) try {
  Lukittuna([asetukset](Rivisto& rivisto) {
    bool muuttui = false;
    for (const auto& asetus : asetukset) muuttui |= rivisto.Aseta(asetus);
    if (muuttui) KirjoitaTiedosto(AsetusTiedosto(), rivisto.Sisalto());
  });
} catch (...) {
  NostaVirhe("modAsetusvarasto:TallennaAsetukset Method");
}

void TallennaAsetus(std::string_view osio, std::string_view avain, std::string_view arvo) {
  const Asetus asetus{std::string(osio), std::string(avain), std::string(arvo)};
  TallennaAsetukset({&asetus, 1});
}

void AsetaVioittumisilmoitus(std::function<void(const std::string& siirretty)> ilmoitus) {
  g_ilmoitus = std::move(ilmoitus);
  if (!g_ilmoitus) return;
  for (const auto& siirretty : std::exchange(g_kertomatta, {})) g_ilmoitus(siirretty);
}
