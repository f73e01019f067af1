// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-laske: the calculation of project files without windows, for scripts and whole portfolios.
#include <iostream>
#include <span>

#include "batch/Tulokset.h"
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kOhje =
    "Käyttö: lumivirta-laske [--json] KOHDE.lvt...\n"
    "Laskee kohdetiedostojen lämpötaseen. Tiedostoja ei muuteta.\n"
    "  --json   tulokset JSON-muodossa: yksi olio, usealle tiedostolle taulukko\n"
    "  --help   tämä ohje\n";

/// Computes one file and lets `kirjoita` write its results. False when the file can't be read: told on standard error.
template <class F>
bool Laske(const std::string& tiedosto, F&& kirjoita) {
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  bool onnistui = false;
  try {
    clsRakennus rakennus;
    AsetaGlobaaliRakennus(&rakennus);
    rakennus.Hae(tiedosto);
    kirjoita(rakennus, viestit);
    onnistui = true;
  } catch (const std::exception& virhe) {
    std::cerr << "lumivirta-laske: " << tiedosto << ": " << SyynKuvaus(virhe) << '\n';
  }
  AsetaViestit(nullptr);
  return onnistui;
}

bool TulostaJson(std::span<const std::string> tiedostot) {
  JsonKirjoitin json(std::cout);
  bool kaikki = true;
  if (tiedostot.size() > 1) json.AlaTaulukko();
  for (const std::string& tiedosto : tiedostot)
    kaikki &= Laske(tiedosto, [&](clsRakennus& rakennus, const KerataanViestit& viestit) {
      KirjoitaJson(json, tiedosto, rakennus, viestit);
    });
  if (tiedostot.size() > 1) json.LopetaTaulukko();
  if (kaikki || tiedostot.size() > 1) std::cout << '\n';
  return kaikki;
}

bool TulostaYhteenvedot(std::span<const std::string> tiedostot) {
  bool kaikki = true;
  for (const std::string& tiedosto : tiedostot)
    kaikki &= Laske(tiedosto, [&](clsRakennus& rakennus, const KerataanViestit& viestit) {
      KirjoitaYhteenveto(std::cout, tiedosto, rakennus, viestit);
    });
  return kaikki;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> tiedostot;
  bool json = false;
  for (const char* arvo : std::span(argv, static_cast<std::size_t>(argc)).subspan(1)) {
    const std::string_view sana = arvo;
    if (sana == "--json") {
      json = true;
    } else if (sana == "--help") {
      std::cout << kOhje;
      return 0;
    } else if (sana.starts_with("--")) {
      std::cerr << "lumivirta-laske: tuntematon valitsin " << sana << '\n' << kOhje;
      return 2;
    } else {
      tiedostot.emplace_back(sana);
    }
  }
  if (tiedostot.empty()) {
    std::cerr << kOhje;
    return 2;
  }
  AlustaTekstit();
  Asetukset().HaeRekisteristä();
  const bool kaikki = json ? TulostaJson(tiedostot) : TulostaYhteenvedot(tiedostot);
  std::cout.flush();
  return kaikki && std::cout ? 0 : 1;
}
