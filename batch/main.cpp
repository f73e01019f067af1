// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-laske: the calculation of project files without windows, for scripts and whole portfolios.
#include <charconv>
#include <iostream>
#include <optional>
#include <span>
#include <thread>
#include <utility>

#include "batch/Kohdelaskenta.h"
#include "batch/Raporttitiedosto.h"
#include "batch/Rinnakkain.h"
#include "batch/Salkku.h"
#include "batch/Toimenpidelaskenta.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kOhje =
    "Käyttö: lumivirta-laske [--json | --tarkista] [--rinnakkain=N] KOHDE.lvt...\n"
    "        lumivirta-laske --toimenpide NIMI --vie UUSI.lvt KOHDE.lvt\n"
    "        lumivirta-laske --raportti RAPORTTI.xlsx|RAPORTTI.pdf KOHDE.lvt\n"
    "        lumivirta-laske [--rinnakkain=N] --salkku SALKKU.xlsx KOHDE.lvt...\n"
    "Laskee kohdetiedostojen lämpötaseen. Tiedostoja ei muuteta.\n"
    "  --json         tulokset JSON-muodossa: yksi olio, usealle tiedostolle taulukko\n"
    "  --tarkista     mitä kohteista puuttuu ja mikä niissä on ristiriitaista tai epätodennäköistä\n"
    "  --rinnakkain=N montako tiedostoa lasketaan yhtä aikaa; oletus on suorittimien määrä\n"
    "  --toimenpide NIMI --vie UUSI.lvt\n"
    "                 kirjoittaa uuden kohteen, jossa säästötoimenpide on toteutettu; nimi tai avain\n"
    "  --raportti TIEDOSTO\n"
    "                 kirjoittaa katselmuksen raportin laskentataulukoksi (.xlsx) tai PDF:ksi (.pdf)\n"
    "  --salkku TIEDOSTO.xlsx\n"
    "                 kirjoittaa kohteet taulukoksi, rivi kohdetta kohti, eniten säästävä ensin\n"
    "  --help         tämä ohje\n"
    "Paluuarvo on 0, kun kaikki on laskettu, havaintoja tai ei, 1, kun jotain ei voitu laskea, ja 2, kun komento on "
    "virheellinen.\n";
constexpr std::string_view kRinnakkain = "--rinnakkain=";

struct Komento {
  std::vector<std::string> tiedostot;
  Tulostusmuoto muoto = Tulostusmuoto::Yhteenveto;
  unsigned rinnakkain = std::max(1u, std::thread::hardware_concurrency());
  std::string toimenpide, vie, raportti, salkku;
  bool ohje = false;

  bool OnVienti() const { return !toimenpide.empty() || !vie.empty(); }
  bool OnKelvollinen() const {
    if (ohje) return true;
    if (OnVienti() + !raportti.empty() + !salkku.empty() + (muoto != Tulostusmuoto::Yhteenveto) > 1) return false;
    if (!raportti.empty()) return tiedostot.size() == 1 && OnRaporttitiedosto(raportti);
    if (!salkku.empty() && !salkku.ends_with(".xlsx")) return false;
    if (!OnVienti()) return !tiedostot.empty();
    return !toimenpide.empty() && !vie.empty() && tiedostot.size() == 1;
  }
};

/// Where the value of an option of two words goes; nothing for another option.
std::string* Arvollinen(std::string_view sana, Komento& komento) {
  if (sana == "--toimenpide") return &komento.toimenpide;
  if (sana == "--vie") return &komento.vie;
  if (sana == "--raportti") return &komento.raportti;
  if (sana == "--salkku") return &komento.salkku;
  return nullptr;
}

/// Reads one option; false when there is none such.
bool LueValitsin(std::string_view sana, Komento& komento) {
  if (sana == "--json") return komento.muoto = Tulostusmuoto::Json, true;
  if (sana == "--tarkista") return komento.muoto = Tulostusmuoto::Tarkistukset, true;
  if (sana == "--help") return komento.ohje = true;
  if (!sana.starts_with(kRinnakkain)) return false;
  sana.remove_prefix(kRinnakkain.size());
  const auto [loppu, virhe] = std::from_chars(sana.data(), sana.data() + sana.size(), komento.rinnakkain);
  return virhe == std::errc() && loppu == sana.data() + sana.size() && komento.rinnakkain > 0;
}

/// The command line; nothing when it is faulty, which is told.
std::optional<Komento> LueKomento(std::span<char*> sanat) {
  Komento komento;
  std::string* arvo = nullptr;  // what the next word belongs to
  for (const std::string_view sana : sanat)
    if (arvo) {
      *std::exchange(arvo, nullptr) = sana;
    } else if (!sana.starts_with("--")) {
      komento.tiedostot.emplace_back(sana);
    } else if ((arvo = Arvollinen(sana, komento))) {
      continue;
    } else if (!LueValitsin(sana, komento)) {
      std::cerr << "lumivirta-laske: tuntematon valitsin " << sana << '\n' << kOhje;
      return std::nullopt;
    }
  if (arvo || !komento.OnKelvollinen()) {
    std::cerr << kOhje;
    return std::nullopt;
  }
  return komento;
}

/// Writes the object with the measure carried out, or its report. True when it could be done.
bool Vie(const Komento& komento) try {
  if (komento.raportti.empty())
    VieToimenpide(komento.tiedostot.front(), komento.toimenpide, komento.vie);
  else
    TeeRaporttitiedosto(komento.tiedostot.front(), komento.raportti);
  return true;
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-laske: " << komento.tiedostot.front() << ": " << SyynKuvaus(virhe) << '\n';
  return false;
}

/// Writes the portfolio of the files that can be computed. True when all could be.
bool TeeSalkku(const Komento& komento) try {
  bool kaikki = true;
  std::vector<std::string> rivit;
  LaskeRinnakkain(
      komento.tiedostot.size(), komento.rinnakkain,
      [&](std::size_t i) { return LaskeSalkkurivi(komento.tiedostot[i]); },
      [&](const Laskettu& laskettu) {
        kaikki &= laskettu.onnistui;
        std::cerr << laskettu.virheet;
        if (laskettu.onnistui) rivit.push_back(laskettu.tulos);
      });
  KirjoitaSalkku(rivit, komento.salkku);
  return kaikki;
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-laske: " << komento.salkku << ": " << SyynKuvaus(virhe) << '\n';
  return false;
}

/// Computes the files and writes their results in their order. True when everything could be computed.
bool Laske(const Komento& komento) {
  const bool taulukko = komento.muoto == Tulostusmuoto::Json && komento.tiedostot.size() > 1;
  bool kaikki = true, kirjoitettu = false;
  if (taulukko) std::cout << '[';
  LaskeRinnakkain(
      komento.tiedostot.size(), komento.rinnakkain,
      [&](std::size_t i) { return LaskeKohde(komento.tiedostot[i], komento.muoto, taulukko ? 1 : 0); },
      [&](const Laskettu& laskettu) {
        kaikki &= laskettu.onnistui;
        std::cerr << laskettu.virheet;
        if (laskettu.tulos.empty()) return;
        if (taulukko && kirjoitettu) std::cout << ',';
        std::cout << laskettu.tulos;
        kirjoitettu = true;
      });
  if (taulukko) std::cout << (kirjoitettu ? "\n]" : "]");
  if (komento.muoto == Tulostusmuoto::Json && (taulukko || kirjoitettu)) std::cout << '\n';
  std::cout.flush();
  return kaikki && std::cout;
}

}  // namespace

int main(int argc, char** argv) {
  const auto komento = LueKomento(std::span(argv, static_cast<std::size_t>(argc)).subspan(1));
  if (!komento) return 2;
  if (komento->ohje) return std::cout << kOhje, 0;
  AlustaTekstit();
  Asetukset().HaeRekisteristä();
  if (komento->OnVienti() || !komento->raportti.empty()) return Vie(*komento) ? 0 : 1;
  return (komento->salkku.empty() ? Laske(*komento) : TeeSalkku(*komento)) ? 0 : 1;
}
