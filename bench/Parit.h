// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

/// Measuring in pairs. Ours and its yardstick run in turn in one process, so that whatever else the machine does meets
/// both; the ratio of each pair is taken by itself and the median of the ratios is the result. Ours runs once more in
/// each pair: the ratio of ours to ours shows how far noise alone goes.
namespace mittaus {

inline constexpr int kPareja = 31;

/// One side of a pair: does its work once and gives the seconds of the part that counts; preparing and cleaning up
/// don't.
using Ajo = std::function<double()>;

/// Seconds by the clock that the work takes.
template <class F>
double Kesto(F&& tyo) {
  const auto alku = std::chrono::steady_clock::now();
  tyo();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - alku).count();
}

/// Processor seconds of this thread that the work takes: for work that waits for nothing. On a busy machine the clock
/// would also count what others run meanwhile, and the more the longer the work is.
template <class F>
double Suoritinaika(F&& tyo) {
  const auto nyt = [] {
    timespec aika{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &aika);
    return static_cast<double>(aika.tv_sec) + static_cast<double>(aika.tv_nsec) * 1e-9;
  };
  const double alku = nyt();
  tyo();
  return nyt() - alku;
}

/// Keeps a result from being optimised away.
template <class T>
void Kayta(const T& arvo) {
  benchmark::DoNotOptimize(&arvo);
  benchmark::ClobberMemory();
}

/// So many runs that together they take at least two milliseconds; in seconds for one.
inline Ajo Toistettuna(const Ajo& ajo) {
  constexpr double kVahintaan = 2e-3;
  const int kertoja = 1 + static_cast<int>(kVahintaan / std::max(1e-7, ajo()));
  return [ajo, kertoja] {
    double summa = 0;
    for (int i = 0; i < kertoja; ++i) summa += ajo();
    return summa / kertoja;
  };
}

inline double Mediaani(std::vector<double> luvut) {
  const auto keski = luvut.begin() + static_cast<std::ptrdiff_t>(luvut.size() / 2);
  std::nth_element(luvut.begin(), keski, luvut.end());
  return *keski;
}

/// Slope of the line through the points in double logarithmic scale: 1 means time in proportion to size.
inline double Kaltevuus(const std::vector<double>& koot, const std::vector<double>& ajat) {
  double x = 0, y = 0, xx = 0, xy = 0;
  for (std::size_t i = 0; i < koot.size(); ++i) {
    const double lx = std::log(koot[i]), ly = std::log(ajat[i]);
    x += lx, y += ly, xx += lx * lx, xy += lx * ly;
  }
  const auto n = static_cast<double>(koot.size());
  return (n * xy - x * y) / (n * xx - x * x);
}

struct Paritulos {
  std::vector<double> meidan, vertailu, suhteet, kohina;  // by pair: seconds, seconds, ours / yardstick, ours / ours

  void Lisaa(double oma, double toinen, double vertailuaika) {
    meidan.push_back(oma);
    vertailu.push_back(vertailuaika);
    suhteet.push_back(oma / vertailuaika);
    kohina.push_back(toinen / oma);
  }
};

/// A pair: ours, yardstick, ours; every other one in the opposite order of the two that are compared.
inline void AjaPari(Paritulos& tulos, const Ajo& meidan, const Ajo& vertailu, bool kaannetty) {
  const double eka = meidan();
  const double yardi = vertailu();
  const double toka = meidan();
  kaannetty ? tulos.Lisaa(toka, eka, yardi) : tulos.Lisaa(eka, toka, yardi);
}

/// Runs the pairs of a benchmark and leaves the medians in its counters; `tarkista` runs after each pair and throws
/// when a result is wrong. `tavoite` is the greatest ratio that is good.
inline void MittaaParit(benchmark::State& state, double tavoite, const Ajo& meidan, const Ajo& vertailu,
                        const std::function<void()>& tarkista) try {
  Paritulos tulos;
  AjaPari(tulos, meidan, vertailu, false);  // warms up
  tulos = {};
  for (auto _ : state) {
    AjaPari(tulos, meidan, vertailu, tulos.suhteet.size() % 2 == 1);
    tarkista();
    state.SetIterationTime(tulos.meidan.back());
  }
  state.counters["meidan_s"] = Mediaani(tulos.meidan);
  state.counters["vertailu_s"] = Mediaani(tulos.vertailu);
  state.counters["suhde"] = Mediaani(tulos.suhteet);
  state.counters["kohina"] = Mediaani(tulos.kohina);
  state.counters["tavoite"] = tavoite;
} catch (const std::exception& virhe) {
  state.SkipWithError(virhe.what());
}

/// Declares a benchmark of pairs under `nimi`, which stands in the table: "what; yardstick".
inline void IlmoitaParit(const std::string& nimi, void (*ajo)(benchmark::State&)) {
  benchmark::RegisterBenchmark(nimi.c_str(), ajo)->UseManualTime()->Iterations(kPareja);
}

/// Throws unless the two agree to the relative accuracy.
inline void VaadiSama(double oma, double vertailu, double tarkkuus, const char* mika) {
  if (!(std::fabs(oma - vertailu) <= tarkkuus * std::max(std::fabs(oma), std::fabs(vertailu))))
    throw std::runtime_error(std::string(mika) + ": " + std::to_string(oma) + " != " + std::to_string(vertailu));
}

}  // namespace mittaus
