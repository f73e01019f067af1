// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Paivamaara.h"

#include <sys/stat.h>

#include <ctime>

namespace {

std::tm Paikallinen(std::time_t hetki) {
  std::tm aika{};
  localtime_r(&hetki, &aika);
  return aika;
}

std::string Paiva(const std::tm& aika) {
  return std::to_string(aika.tm_mday) + "." + std::to_string(aika.tm_mon + 1) + "." +
         std::to_string(aika.tm_year + 1900);
}

std::string Kello(const std::tm& aika) {
  return std::to_string(aika.tm_hour) + (aika.tm_min < 10 ? ".0" : ".") + std::to_string(aika.tm_min);
}

}  // namespace

std::string TamaPaiva() { return Paiva(Paikallinen(std::time(nullptr))); }

int TamaVuosi() { return Paikallinen(std::time(nullptr)).tm_year + 1900; }

Ajankohta Kirjoitusaika(const std::string& tiedosto) {
  struct stat tiedot {};
  stat(tiedosto.c_str(), &tiedot);
  const std::tm aika = Paikallinen(tiedot.st_mtime);
  return {Paiva(aika), Kello(aika)};
}
