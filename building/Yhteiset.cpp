// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Yhteiset.h"

#include <atomic>
#include <stdexcept>

#include "building/clsRakennus.h"
#include "building/clsSaa.h"

namespace {
std::atomic<clsRakennus*> g_rakennus = nullptr;
}

clsRakennus* GlobaaliRakennus() noexcept { return g_rakennus; }
clsSaa* GlobaaliSaa() noexcept {
  clsRakennus* rakennus = g_rakennus;
  return rakennus ? &rakennus->Saa : nullptr;
}
void AsetaGlobaaliRakennus(clsRakennus* rakennus) noexcept { g_rakennus = rakennus; }

clsRakennus& VaadiRakennus() {
  if (clsRakennus* rakennus = g_rakennus) return *rakennus;
  throw std::logic_error("laskentakohdetta ei ole");
}

clsSaa& VaadiSaa() { return VaadiRakennus().Saa; }
