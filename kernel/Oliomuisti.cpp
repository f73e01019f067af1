// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Oliomuisti.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <new>
#include <utility>

namespace oliomuisti {

namespace {

#ifdef __has_feature  // clang
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t kSuurinLohko = 0;
#else
constexpr std::size_t kSuurinLohko = 1024;  // larger objects are few and come from the heap
#endif
constexpr std::size_t kTasaus = 16;
constexpr std::size_t kPala = 64 * 1024;

struct Lohko {
  Lohko* seuraava;
};

using Vapaat = std::array<Lohko*, kSuurinLohko / kTasaus + 1>;  // by size class

// Trivially destructible, so that objects may be freed until the very end of the thread.
thread_local Vapaat g_vapaat{};
thread_local std::byte* g_pala = nullptr;
thread_local std::size_t g_palassa = 0;
thread_local std::size_t g_kaytossa = 0;

/// What ended threads have left free, by size class: calculations come and go on threads of their own.
std::array<std::atomic<Lohko*>, std::tuple_size_v<Vapaat>> g_perinto{};

void Jata(std::atomic<Lohko*>& perinto, Lohko* ensimmainen) {
  if (!ensimmainen) return;
  Lohko* viimeinen = ensimmainen;
  while (viimeinen->seuraava) viimeinen = viimeinen->seuraava;
  viimeinen->seuraava = perinto.load();
  while (!perinto.compare_exchange_weak(viimeinen->seuraava, ensimmainen)) {
  }
}

/// All that lies in the inheritance, or nothing.
Lohko* Peri(std::atomic<Lohko*>& perinto) {
  return perinto.load(std::memory_order_relaxed) ? perinto.exchange(nullptr) : nullptr;
}

/// Leaves the thread's free blocks, and the rest of its piece, to the others when the thread ends.
struct Jattaja {
  ~Jattaja() {
    for (; g_palassa > 0; g_palassa -= std::min(g_palassa, kSuurinLohko)) {
      const std::size_t koko = std::min(g_palassa, kSuurinLohko);
      Lohko*& vapaa = g_vapaat[koko / kTasaus];
      vapaa = new (std::exchange(g_pala, g_pala + koko)) Lohko{vapaa};
    }
    for (std::size_t i = 0; i < g_vapaat.size(); ++i) Jata(g_perinto[i], std::exchange(g_vapaat[i], nullptr));
  }
};

void* Leikkaa(std::size_t koko) {
  thread_local const Jattaja jattaja;
  if (g_palassa < koko) {
    g_pala = static_cast<std::byte*>(::operator new(kPala));
    g_palassa = kPala;
  }
  g_palassa -= koko;
  return std::exchange(g_pala, g_pala + koko);
}

std::size_t Kokoluokka(std::size_t koko) { return (koko + kTasaus - 1) / kTasaus; }

}  // namespace

void* Varaa(std::size_t koko) {
  g_kaytossa += koko;
  if (koko > kSuurinLohko) return ::operator new(koko);
  Lohko*& vapaa = g_vapaat[Kokoluokka(koko)];
  if (!vapaa) vapaa = Peri(g_perinto[Kokoluokka(koko)]);
  return vapaa ? std::exchange(vapaa, vapaa->seuraava) : Leikkaa(Kokoluokka(koko) * kTasaus);
}

void Vapauta(void* lohko, std::size_t koko) noexcept {
  g_kaytossa -= koko;
  if (koko > kSuurinLohko) return ::operator delete(lohko);
  Lohko*& vapaa = g_vapaat[Kokoluokka(koko)];
  vapaa = new (lohko) Lohko{vapaa};
}

std::size_t Kaytossa() noexcept { return g_kaytossa; }

}  // namespace oliomuisti
