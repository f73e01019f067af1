// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Paaikkuna.h"

namespace {
Paaikkuna g_eiIkkunaa;
Paaikkuna* g_nyt = &g_eiIkkunaa;
}  // namespace

Paaikkuna& PaaikkunaNyt() { return *g_nyt; }
void AsetaPaaikkuna(Paaikkuna* ikkuna) { g_nyt = ikkuna ? ikkuna : &g_eiIkkunaa; }
