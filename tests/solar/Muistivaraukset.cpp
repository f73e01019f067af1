// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/solar/Muistivaraukset.h"

#include <cstdlib>
#include <new>

namespace {
int varauksia = 0;
}

int Muistivarauksia() { return varauksia; }

// Replaces the program's own operators, so that every request passes here.
void* operator new(std::size_t koko) {
  ++varauksia;
  if (void* muisti = std::malloc(koko)) return muisti;
  throw std::bad_alloc();
}
void operator delete(void* muisti) noexcept { std::free(muisti); }
void operator delete(void* muisti, std::size_t) noexcept { std::free(muisti); }
