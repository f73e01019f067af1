// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Kirjainkoko.h"

std::string PieniksiKirjaimiksi(std::string_view teksti) {
  std::string tulos(teksti);
  for (std::size_t i = 0; i < tulos.size(); ++i) tulos[i] = PieniTavu(teksti[i], i ? teksti[i - 1] : '\0');
  return tulos;
}
