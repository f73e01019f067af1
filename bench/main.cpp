// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-bench: saving, opening, copying and recalculating a building, each beside a yardstick. See
// docs/performance.md.
#include <cstdlib>
#include <iostream>

#include "bench/Mittaukset.h"
#include "bench/Taulukko.h"
#include "bench/Vertailukanta.h"
#include "building/Yhteiset.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "ui/KerataanViestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestikooste.h"

namespace mittaus {

namespace {

constexpr double kKaltevuusvara = 0.03, kLaskennanKaltevuus = 1.02;
constexpr int kMassaPareja = 5;
constexpr std::array<int, 4> kKasvunTilat{10, 100, 1000, 10000};

struct Toiminto {
  const char* nimi;
  const char* vertailu;
  double tavoite;
  Vertailupari (*pari)(clsRakennus&);
  bool koneita = false;  ///< on the building with ventilation machines
};
constexpr Toiminto kToiminnot[] = {
    {"save", "one plain transaction of the same rows", 1.15, Tallennuspari},
    {"open", "plain scans into structs", 1.25, Avauspari},
    {"copy and free", "memcpy of the same bytes", 6, Kopiointipari},
    {"undo step", "the whole object copied once", 1.2, Kumouspari},
    {"recalculate", "scalar loop over arrays", 3.0, Laskentapari},
    {"after-heating of the machines", "plain loop over periods and hours", 1.0, Ilmanvaihtopari, true},
    {"recalculate with machines", "scalar loop over arrays and hours", 0.5, Laskentapari, true},
};

std::unique_ptr<clsRakennus> TeeRakennus(int tiloja, int rakenteita, int koneita) {
  auto rakennus = TeeMallirakennus(tiloja, rakenteita);
  LisaaKoneet(*rakennus, koneita);
  return rakennus;
}

/// That of the main table, without or with machines; each made when it is first measured.
clsRakennus& Rakennus(bool koneita = false) {
  static std::unique_ptr<clsRakennus> rakennukset[2];
  auto& rakennus = rakennukset[koneita];
  if (!rakennus) rakennus = TeeRakennus(kTiloja, kRakenteita, koneita ? kKoneita : 0);
  AsetaGlobaaliRakennus(rakennus.get());
  return *rakennus;
}

template <std::size_t I>
void Paataulu(benchmark::State& state) {
  const Vertailupari pari = kToiminnot[I].pari(Rakennus(kToiminnot[I].koneita));
  MittaaParit(state, kToiminnot[I].tavoite, pari.meidan, pari.vertailu, pari.tarkista);
}

/// Medians of ours and of the yardstick at one size; fewer pairs where one takes long.
std::pair<double, double> Koossa(const Vertailupari& pari, int koko) {
  const Ajo meidan = Toistettuna(pari.meidan), vertailu = Toistettuna(pari.vertailu);
  Paritulos tulos;
  const int pareja = koko >= 10000 ? 5 : koko >= 1000 ? 11 : kPareja;
  for (int i = 0; i < pareja; ++i) {
    AjaPari(tulos, meidan, vertailu, i % 2 == 1);
    pari.tarkista();
  }
  return {Mediaani(tulos.meidan), Mediaani(tulos.vertailu)};
}

/// The slopes of ours and of the yardstick; `koossa`(size) gives the medians. Goal: theirs and a little, but those of
/// calculations stand fixed.
template <class F>
void MittaaKasvu(benchmark::State& state, bool laskenta, F koossa) {
  std::vector<double> koot, meidan, vertailu;
  for (auto _ : state) {
    for (const int koko : kKasvunTilat) {
      const auto [oma, toinen] = koossa(koko);
      koot.push_back(koko);
      meidan.push_back(oma);
      vertailu.push_back(toinen);
    }
    state.SetIterationTime(meidan.back());
  }
  const double kaltevuus = Kaltevuus(koot, meidan), verrattava = Kaltevuus(koot, vertailu);
  state.counters["kaltevuus"] = 1;
  state.counters["meidan_s"] = kaltevuus;
  state.counters["vertailu_s"] = verrattava;
  state.counters["suhde"] = kaltevuus;
  state.counters["tavoite"] = laskenta ? kLaskennanKaltevuus : verrattava + kKaltevuusvara;
}

template <std::size_t I>
void Kasvu(benchmark::State& state) {
  const Toiminto& toiminto = kToiminnot[I];
  MittaaKasvu(state, toiminto.pari == Laskentapari || toiminto.pari == Ilmanvaihtopari, [&](int tiloja) {
    const auto rakennus = TeeRakennus(tiloja, kKasvunRakenteita, toiminto.koneita ? tiloja / kTilojaKoneella : 0);
    return Koossa(toiminto.pari(*rakennus), tiloja);
  });
}

void Kulutuspuu(benchmark::State& state) {
  constexpr double kTavoite = 20;
  constexpr int kRyhmia = 1000;
  const Vertailupari pari = Kulutuspuupari(kRyhmia);
  MittaaParit(state, kTavoite, Toistettuna(pari.meidan), Toistettuna(pari.vertailu), pari.tarkista);
}

void KulutuspuunKasvu(benchmark::State& state) {
  MittaaKasvu(state, true, [](int ryhmia) { return Koossa(Kulutuspuupari(ryhmia), ryhmia); });
}

void Massalaskenta(benchmark::State& state) {
  constexpr double kTavoite = 0.6;  // on two cores
  const auto rakennus = TeeRakennus(kTilojaKoneella, kKasvunRakenteita, 1);
  const Vertailupari pari = Massapari(*rakennus);
  MittaaParit(state, kTavoite, pari.meidan, pari.vertailu, pari.tarkista);
}

template <std::size_t... I>
void Ilmoita(std::index_sequence<I...>) {
  (IlmoitaParit(std::string(kToiminnot[I].nimi) + "; " + kToiminnot[I].vertailu, Paataulu<I>), ...);
  IlmoitaJasenmittaukset();
  IlmoitaToimenpidemittaukset();
  IlmoitaParit("rebuild and sum the tree of 1,000 groups; plain sum of the groups", Kulutuspuu);
  benchmark::RegisterBenchmark("lumivirta-laske over 200 files; with one core", Massalaskenta)
      ->UseManualTime()
      ->Iterations(kMassaPareja);
  (benchmark::RegisterBenchmark(
       (std::string("slope of ") + kToiminnot[I].nimi + ", 10 to 10,000 spaces; " + kToiminnot[I].vertailu).c_str(),
       Kasvu<I>)
       ->UseManualTime()
       ->Iterations(1),
   ...);
  benchmark::RegisterBenchmark("slope of the tree, 10 to 10,000 groups; plain sum of the groups", KulutuspuunKasvu)
      ->UseManualTime()
      ->Iterations(1);
}

void KerroMalli() {
  clsRakennus& rakennus = Rakennus();
  const std::string tiedosto = Mittauskansio() + "malli.lvt";
  rakennus.Tallenna(tiedosto);
  const Vertailukanta kanta(tiedosto);
  std::cout << "Building: " << kTiloja << " spaces x " << kRakenteita << " structures, " << Olioita(rakennus)
            << " objects, " << kanta.Riveja() << " rows in " << kanta.Tauluja() << " tables\n";
}

}  // namespace

}  // namespace mittaus

int main(int argc, char** argv) try {
  setenv("XDG_CONFIG_HOME", mittaus::Mittauskansio().c_str(), 1);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  KerataanViestit viestit;
  AsetaViestit(&viestit);
  AlustaTekstit();
  Asetukset().HaeRekisteristä();
  mittaus::KerroMalli();
  mittaus::Ilmoita(std::make_index_sequence<std::size(mittaus::kToiminnot)>());
  mittaus::Taulukko taulukko;
  benchmark::RunSpecifiedBenchmarks(&taulukko);
  std::cerr << KoosteTekstina(viestit.Naytetyt());
  return taulukko.Epaonnistui() || !viestit.Naytetyt().empty() ? 1 : 0;
} catch (const std::exception& virhe) {
  std::cerr << "lumivirta-bench: " << virhe.what() << '\n';
  return 1;
}
