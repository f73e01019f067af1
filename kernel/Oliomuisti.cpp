// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Oliomuisti.h"

#include <array>
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

// Trivially destructible, so that objects may be freed until the very end of the thread.
thread_local std::array<Lohko*, kSuurinLohko / kTasaus + 1> g_vapaat{};
thread_local std::byte* g_pala = nullptr;
thread_local std::size_t g_palassa = 0;
thread_local std::size_t g_kaytossa = 0;

void* Leikkaa(std::size_t koko) {
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
