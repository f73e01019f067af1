// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Yhteiset.h"

#include <stdexcept>

#include "building/clsRakennus.h"

namespace {
clsRakennus* g_rakennus = nullptr;
}

clsRakennus* GlobaaliRakennus() noexcept { return g_rakennus; }
clsSaa* GlobaaliSaa() noexcept { return g_rakennus ? &g_rakennus->Saa : nullptr; }
void AsetaGlobaaliRakennus(clsRakennus* rakennus) noexcept { g_rakennus = rakennus; }

clsRakennus& VaadiRakennus() {
  if (!g_rakennus) throw std::logic_error("laskentakohdetta ei ole");
  return *g_rakennus;
}

clsSaa& VaadiSaa() { return VaadiRakennus().Saa; }
