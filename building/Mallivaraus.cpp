// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Mallivaraus.h"

#include <atomic>

namespace {
std::atomic<int> g_varauksia = 0;
}

Mallivaraus::Mallivaraus() noexcept { ++g_varauksia; }
Mallivaraus::~Mallivaraus() { --g_varauksia; }

bool MalliVarattu() noexcept { return g_varauksia > 0; }
