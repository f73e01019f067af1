// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fault/Muistivika.h"

#include <cstdlib>
#include <new>

namespace {
thread_local int g_jaljella = 0;
thread_local bool g_sattui = false;
}  // namespace

Muistivika::Muistivika(int monesko) noexcept { g_jaljella = monesko, g_sattui = false; }
Muistivika::~Muistivika() { g_jaljella = 0; }
bool Muistivika::Sattui() noexcept { return g_sattui; }

// Replaces the program's own operators, so that every request passes here.
void* operator new(std::size_t koko) {
  if (g_jaljella > 0 && --g_jaljella == 0) {
    g_sattui = true;
    throw std::bad_alloc();
  }
  if (void* muisti = std::malloc(koko)) return muisti;
  throw std::bad_alloc();
}
void* operator new(std::size_t koko, const std::nothrow_t&) noexcept {
  try {
    return operator new(koko);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
void operator delete(void* muisti) noexcept { std::free(muisti); }
void operator delete(void* muisti, const std::nothrow_t&) noexcept { std::free(muisti); }
void operator delete(void* muisti, std::size_t) noexcept { std::free(muisti); }
