// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsKaksiNopOikosulkuMoottori.h"

#include "kernel/Virhe.h"
#include "ventilation/Puhallinlaskenta.h"

double clsKaksiNopOikosulkuMoottori::HyotySuhde11Teho() const try { return 5.9 * Logaritmi(P3N) + 72; } catch (...) {
  NostaVirhe("clsKaksiNopOikosulkuMoottori:HyotySuhde11Teho Method");
}

double clsKaksiNopOikosulkuMoottori::HyotySuhde12Teho() const {
  return P3N <= 0 ? 0 : 4.6 * std::log(P3N) + HyotySuhde11Teho() - 26;
}
