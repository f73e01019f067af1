// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the loader of project files. The first byte of an input chooses: even, the rest is a file as it stands; odd,
// the rest tells changes of rows and columns of a whole file, which reach further than bytes that SQLite refuses.
#include <fuzzer/FuzzedDataProvider.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>

#include "kernel/Projektitiedosto.h"
#include "tests/tuki/Koepuu.h"

namespace fs = std::filesystem;

namespace {

koe::Hakemisto& Hakemisto() {
  static koe::Hakemisto hakemisto;
  return hakemisto;
}

/// A whole file, bytes.
const std::string& Ehja() {
  static const std::string ehja = [] {
    koe::Rakennus puu;
    koe::Tayta(puu, 3);
    puu.Saasto.Oma.Luo();
    TallennaProjekti(puu, Hakemisto().Projekti());
    return LueTiedosto(Hakemisto().Projekti());
  }();
  return ehja;
}

void Kirjoita(std::string_view sisalto) {
  std::ofstream(Hakemisto().Projekti(), std::ios::binary | std::ios::trunc) << sisalto;
}

std::string Arvo(FuzzedDataProvider& data) {
  static const char* const kArvot[] = {
      "NULL", "'Empty'",     "'IsObjectGet'",       "''",     "-1",    "1e999",   "x'00FF'", "ObjID", "ParentID",
      "0.5",  "'KoeTila 1'", "9223372036854775807", "'12,5'", "rowid", "'Tilat'", "'Root'"};
  return kArvot[data.ConsumeIntegralInRange<std::size_t>(0, std::size(kArvot) - 1)];
}

std::string Muutos(FuzzedDataProvider& data) {
  const Luokka& luokka = *koe::kLuokat[data.ConsumeIntegralInRange<std::size_t>(0, std::size(koe::kLuokat) - 1)];
  const std::string taulu(luokka.Nimi()),
      ehto = " WHERE rowid % 7 = " + std::to_string(data.ConsumeIntegral<std::uint8_t>() % 8);
  static constexpr std::string_view kKiinteat[] = {"ObjID", "ParentID", "MyRealNameInParentObj", "OrderID"};
  const std::size_t i = data.ConsumeIntegralInRange<std::size_t>(0, luokka.Jasenet().size() + 3);
  const std::string sarake(i < 4 ? kKiinteat[i] : luokka.Jasenet()[i - 4].nimi);
  switch (data.ConsumeIntegral<std::uint8_t>() % 6) {
    case 0:
      return "DELETE FROM " + taulu + ehto;
    case 1:
      return "INSERT INTO " + taulu + " SELECT * FROM " + taulu + ehto;
    case 2:
      return "ALTER TABLE " + taulu + " RENAME COLUMN " + sarake + " TO vieras";
    default:
      return "UPDATE " + taulu + " SET " + sarake + " = " + Arvo(data) + ehto;
  }
}

void KirjoitaMuutettu(FuzzedDataProvider& data) {
  Kirjoita(Ehja());
  Tietokanta kanta(Hakemisto().Projekti(), Tietokanta::Tapa::Kirjoitus);
  kanta.Aja("PRAGMA synchronous=OFF; PRAGMA journal_mode=OFF");
  for (int i = 0; i < 20 && data.remaining_bytes() > 0; ++i) try {
      kanta.Aja(Muutos(data));
    } catch (const Tietokantavirhe&) {  // a column that was renamed already
    }
}

void Lue() {
  const std::string ennen = LueTiedosto(Hakemisto().Projekti());
  koe::Rakennus puu;
  Latausraportti raportti;
  try {
    HaeProjekti(puu, Hakemisto().Projekti(), raportti);
  } catch (const Projektivirhe&) {
  }
  try {
    HaeTiedostonVersio(Hakemisto().Projekti());
  } catch (const Projektivirhe&) {
  }
  if (LueTiedosto(Hakemisto().Projekti()) != ennen) abort();
}

}  // namespace

/// Puts the seeds into the corpus, the first directory of the command line.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  for (int i = 1; i < *argc; ++i) {
    const fs::path korpus = (*argv)[i];
    if (!fs::is_directory(korpus)) continue;
    std::ofstream(korpus / "ehja", std::ios::binary) << '\0' << Ehja();
    std::ofstream(korpus / "muutettu", std::ios::binary) << "\1" << std::string(64, 'x');
    break;
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* tavut, std::size_t maara) {
  if (maara == 0) return 0;
  if (tavut[0] % 2 == 0) {
    Kirjoita({reinterpret_cast<const char*>(tavut + 1), maara - 1});
  } else {
    FuzzedDataProvider data(tavut + 1, maara - 1);
    KirjoitaMuutettu(data);
  }
  Lue();
  return 0;
}
