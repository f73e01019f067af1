// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-bench-qt: start to the first frame and memory with an open project, beside a bare window. See
// docs/performance.md.
#include <QApplication>
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>

#include "app/Fontit.h"
#include "bench/Parit.h"
#include "bench/Taulukko.h"
#include "bench/qt/Ikkunat.h"
#include "bench/qt/Luettelot.h"
#include "bench/qt/Raportit.h"
#include "kernel/Hakemistot.h"
#include "ui/KerataanViestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/QtIkkuna.h"

namespace mittaus {

namespace {

constexpr double kAloitustavoite = 1.5, kMuistitavoite = 1.4, kLuettelotavoite = 2;

void Aloitus(benchmark::State& state) {
  QSize oma, toinen;
  MittaaParit(
      state, kAloitustavoite,
      [&] {
        std::unique_ptr<Ohjelmaikkuna> ohjelma;
        const double kesto = Kesto([&] {
          ohjelma = std::make_unique<Ohjelmaikkuna>();
          Nayta(*ohjelma->ikkuna);
        });
        oma = ohjelma->ikkuna->size();
        return kesto;
      },
      [&] {
        std::unique_ptr<QMainWindow> ikkuna;
        const double kesto = Kesto([&] {
          ikkuna = TeePaljasIkkuna();
          Nayta(*ikkuna);
        });
        toinen = ikkuna->size();
        return kesto;
      },
      [&] {
        if (oma.isEmpty() || toinen.isEmpty()) throw std::runtime_error("a window has no size");
      });
}

/// From the start of the process, the loading of the program and its libraries included.
void Prosessi(benchmark::State& state) {
  MittaaParit(
      state, kAloitustavoite, [] { return Rooliajo(kOhjelma).kesto; }, [] { return Rooliajo(kPaljas).kesto; }, [] {});
}

/// Megabytes stand where other benchmarks have seconds.
void Muisti(benchmark::State& state) {
  MittaaParit(
      state, kMuistitavoite, [] { return Rooliajo(kAvattu).muisti; }, [] { return Rooliajo(kPaljas).muisti; }, [] {});
  state.counters["megatavuja"] = 1;
}

/// The texts and forms of the program, without its main window.
Luetteloparit TeeLuetteloparit(int nimikkeita = 0) {
  SiemennaTiedostot();
  AlustaTekstit();
  AsetaQtLomakkeet(nullptr);
  return Luetteloparit(nimikkeita);
}

void LuettelonTaytto(benchmark::State& state) {
  Luetteloparit parit = TeeLuetteloparit();
  MittaaParit(
      state, kLuettelotavoite, [&] { return parit.TaytaOma(); }, [&] { return parit.TaytaPaljas(); },
      [&] { parit.Tarkista(); });
}

void PuunTaytto(benchmark::State& state) {
  constexpr int kNimikkeita = 10;
  Luetteloparit parit = TeeLuetteloparit(kNimikkeita);
  MittaaParit(
      state, kLuettelotavoite, [&] { return parit.TaytaOma(); }, [&] { return parit.TaytaPaljas(); },
      [&] { parit.Tarkista(); });
}

void LuettelonRivi(benchmark::State& state) {
  Luetteloparit parit = TeeLuetteloparit();
  parit.Tarkista();
  MittaaParit(
      state, kLuettelotavoite, [&] { return parit.MuutaOmanRivi(); }, [&] { return parit.MuutaPaljaanRivi(); },
      [&] { parit.Tarkista(); });
}

}  // namespace

}  // namespace mittaus

namespace {

/// Runs the benchmarks; the processes that they start inherit the folder of settings made here.
int AjaMittaukset(int argc, char** argv) {
  const QTemporaryDir asetukset;
  for (const char* muuttuja : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
    setenv(muuttuja, asetukset.path().toUtf8().constData(), 1);
  QApplication sovellus(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  mittaus::IlmoitaParit("start to the first frame; QMainWindow with a QMdiArea", mittaus::Aloitus);
  mittaus::IlmoitaParit("start of the process to the first frame; process of the same bare window", mittaus::Prosessi);
  mittaus::IlmoitaParit("memory with a project open; the same bare window", mittaus::Muisti);
  mittaus::IlmoitaParit("fill a list of 1,000 rows; bare QTreeWidget with the same rows", mittaus::LuettelonTaytto);
  mittaus::IlmoitaParit("show a tree of 1,000 rows under 10 titles; bare QTreeWidget with the same rows",
                        mittaus::PuunTaytto);
  mittaus::IlmoitaParit("change one row of 1,000; bare QTreeWidget with the same rows", mittaus::LuettelonRivi);
  mittaus::IlmoitaRaporttimittaukset();
  mittaus::Taulukko taulukko;
  benchmark::RunSpecifiedBenchmarks(&taulukko);
  return taulukko.Epaonnistui() ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) try {
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  if (argc != 2 || !std::string_view(argv[1]).starts_with("--rooli")) return AjaMittaukset(argc, argv);
  const std::jthread fontit = argv[1] == std::string_view(mittaus::kPaljas) ? std::jthread() : LueFontitTaustalla();
  QApplication sovellus(argc, argv);
  return mittaus::AjaRooli(argv[1]);
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-bench-qt: " << virhe.what() << '\n';
  return 1;
}
