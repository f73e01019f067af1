// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Paivamaara.h"

#include <ctime>

namespace {
std::tm PaikallinenAika() {
  const std::time_t nyt = std::time(nullptr);
  std::tm aika{};
  localtime_r(&nyt, &aika);
  return aika;
}
}  // namespace

std::string TamaPaiva() {
  const std::tm aika = PaikallinenAika();
  return std::to_string(aika.tm_mday) + "." + std::to_string(aika.tm_mon + 1) + "." +
         std::to_string(aika.tm_year + 1900);
}

int TamaVuosi() { return PaikallinenAika().tm_year + 1900; }
