// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/Aurinkotaulukot.h"

#include <array>
#include <atomic>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace {

/// How many times everything has been forgotten: what was found before that is to be looked up anew.
std::atomic<unsigned> unohdettu{0};

/// The files of one kind, for all threads. A table once read lives for the run, so that whoever holds it may go on with
/// it whatever another thread does.
template <class Taulukko>
class Varasto {
 public:
  const Taulukko& Hae(std::string_view polku) {
    const std::scoped_lock lukko(lukko_);
    const unsigned nyt = unohdettu.load();
    const auto kohta = voimassa_.find(polku);
    if (kohta != voimassa_.end() && kohta->second.luettu == nyt) return *kohta->second.taulukko;
    const Taulukko& luettu = Lue(polku);
    voimassa_.insert_or_assign(std::string(polku), Paikka{&luettu, nyt});
    return luettu;
  }

 private:
  struct Paikka {
    const Taulukko* taulukko;
    unsigned luettu;  // how many times everything had been forgotten by then
  };

  /// The table in the file; one read before that holds the same is used again.
  const Taulukko& Lue(std::string_view polku) {
    Taulukko uusi(polku);
    for (const Taulukko& vanha : luetut_)
      if (vanha == uusi) return vanha;
    return luetut_.emplace_back(std::move(uusi));
  }

  std::mutex lukko_;
  std::deque<Taulukko> luetut_;
  std::map<std::string, Paikka, std::less<>> voimassa_;
};

/// What this thread asked for last is nearly always what it asks for next: found without a lock.
template <class Taulukko>
struct Viimeksi {
  std::string polku;
  const Taulukko* taulukko = nullptr;
  unsigned luettu = 0;

  const Taulukko& Hae(Varasto<Taulukko>& varasto, std::string_view haettava) {
    const unsigned nyt = unohdettu.load(std::memory_order_relaxed);
    if (taulukko && luettu == nyt && polku == haettava) return *taulukko;
    const Taulukko& loydetty = varasto.Hae(haettava);
    *this = {std::string(haettava), &loydetty, nyt};
    return loydetty;
  }
};

Varasto<Saataulukko> saataulukot;
std::array<Varasto<Varjostustaulukko>, 3> varjostustaulukot;  // by Varjostuslaji

}  // namespace

const Saataulukko& HaeSaataulukko(std::string_view polku) {
  thread_local Viimeksi<Saataulukko> viimeksi;
  return viimeksi.Hae(saataulukot, polku);
}

const Varjostustaulukko& HaeVarjostustaulukko(Varjostuslaji laji, std::string_view polku) {
  thread_local std::array<Viimeksi<Varjostustaulukko>, 3> viimeksi;
  const auto i = static_cast<std::size_t>(laji);
  return viimeksi[i].Hae(varjostustaulukot[i], polku);
}

void TyhjennaAurinkotaulukot() { ++unohdettu; }
