// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Paivamaara.h"

#include <sys/stat.h>

#include <chrono>
#include <ctime>
#include <sstream>

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

std::string TamaPaivaLajiteltavana() {
  const std::tm aika = Paikallinen(std::time(nullptr));
  char teksti[16];
  return {teksti, std::strftime(teksti, sizeof teksti, "%Y-%m-%d", &aika)};
}

int TamaVuosi() { return Paikallinen(std::time(nullptr)).tm_year + 1900; }

bool OnPaivamaara(std::string_view teksti) {
  std::istringstream luettava{std::string(teksti)};
  unsigned paiva = 0, kuukausi = 0;
  int vuosi = 0;
  char piste1 = 0, piste2 = 0;
  luettava >> paiva >> piste1 >> kuukausi >> piste2 >> vuosi >> std::ws;
  return luettava.eof() && piste1 == '.' && piste2 == '.' &&
         std::chrono::year_month_day(std::chrono::year(vuosi), std::chrono::month(kuukausi), std::chrono::day(paiva))
             .ok();
}

Ajankohta Kirjoitusaika(const std::string& tiedosto) {
  struct stat tiedot {};
  stat(tiedosto.c_str(), &tiedot);
  const std::tm aika = Paikallinen(tiedot.st_mtime);
  return {Paiva(aika), Kello(aika)};
}
