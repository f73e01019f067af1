// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace mittaus {

/// Prints the benchmarks as a table that can be pasted into docs/performance.md. A benchmark's name is "what;
/// yardstick"; the figures are its counters.
class Taulukko : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& tilanne) override {
    std::printf("%d processors; load %s\n\n", tilanne.cpu_info.num_cpus, Kuorma(tilanne).c_str());
    std::printf(
        "| What | Yardstick | Ours | Yardstick's | Ratio | Ours / ours | Goal | "
        "|\n|---|---|---|---|---|---|---|---|\n");
    return true;
  }

  void ReportRuns(const std::vector<Run>& ajot) override {
    for (const Run& ajo : ajot) {
      const auto [mika, vertailu] = Nimet(ajo.run_name.function_name);
      if (ajo.error_occurred)
        std::printf("| %s | %s | failed: %s | | | | | |\n", mika.c_str(), vertailu.c_str(), ajo.error_message.c_str());
      else
        Rivi(ajo, mika, vertailu);
      std::fflush(stdout);
      epaonnistui_ = epaonnistui_ || ajo.error_occurred;
    }
  }

  bool Epaonnistui() const { return epaonnistui_; }

 private:
  static void Rivi(const Run& ajo, const std::string& mika, const std::string& vertailu) {
    const auto luku = [&ajo](const char* nimi) {
      const auto it = ajo.counters.find(nimi);
      return it == ajo.counters.end() ? 0.0 : static_cast<double>(it->second);
    };
    const double suhde = luku("suhde"), tavoite = luku("tavoite");
    const bool kaltevuus = luku("kaltevuus") != 0, megatavuja = luku("megatavuja") != 0;
    const auto nayta = [&](double arvo) {
      return kaltevuus ? Luku(arvo) : megatavuja ? Luku(arvo) + " MB" : Aika(arvo);
    };
    const std::string oma = nayta(luku("meidan_s")), toinen = nayta(luku("vertailu_s"));
    std::printf("| %s | %s | %s | %s | %s | %s | %s | %s |\n", mika.c_str(), vertailu.c_str(), oma.c_str(),
                toinen.c_str(), Luku(suhde).c_str(), kaltevuus ? "" : Luku(luku("kohina")).c_str(),
                Luku(tavoite).c_str(), suhde <= tavoite ? "met" : "MISSED");
  }

  static std::pair<std::string, std::string> Nimet(const std::string& nimi) {
    const auto kohta = nimi.find("; ");
    if (kohta == std::string::npos) return {nimi, ""};
    return {nimi.substr(0, kohta), nimi.substr(kohta + 2)};
  }

  static std::string Kuorma(const Context& tilanne) {
    return tilanne.cpu_info.load_avg.empty() ? "?" : Luku(tilanne.cpu_info.load_avg.front());
  }

  static std::string Luku(double luku) {
    char puskuri[32];
    std::snprintf(puskuri, sizeof puskuri, "%.3f", luku);
    return puskuri;
  }

  static std::string Aika(double sekunteja) {
    struct Yksikko {
      double vahintaan, kerroin;
      const char* nimi;
    };
    constexpr Yksikko kYksikot[] = {{1, 1, "s"}, {1e-3, 1e3, "ms"}, {1e-6, 1e6, "µs"}, {0, 1e9, "ns"}};
    char puskuri[32] = "";
    for (const Yksikko& y : kYksikot)
      if (sekunteja >= y.vahintaan) {
        std::snprintf(puskuri, sizeof puskuri, "%.3g %s", sekunteja * y.kerroin, y.nimi);
        break;
      }
    return puskuri;
  }

  bool epaonnistui_ = false;
};

}  // namespace mittaus
