// SPDX-License-Identifier: GPL-3.0-or-later
// Feeds the loader of project files. The first byte of an input chooses the tree and the kind: even, the rest is a file
// as it stands; odd, the rest tells changes of rows and columns of a whole file, which reach further than bytes that
// SQLite refuses.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstdlib>
#include <fstream>
#include <memory>

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Projektitiedosto.h"
#include "tests/tuki/Koepuu.h"

namespace fs = std::filesystem;

namespace {

/// A tree that is loaded into: how it is made, and a whole file of it.
struct Kohde {
  std::unique_ptr<Olio> (*luo)();
  std::vector<const Luokka*> luokat;
  std::string ehja;
};

koe::Hakemisto& Hakemisto() {
  static koe::Hakemisto hakemisto;
  return hakemisto;
}

std::string Tallennettuna(Olio& puu, const std::string& malli) {
  TallennaProjekti(puu, Hakemisto().Projekti(), malli);
  return LueTiedosto(Hakemisto().Projekti());
}

Kohde Koepuu() {
  koe::Rakennus puu;
  koe::Tayta(puu, 3);
  puu.Saasto.Oma.Luo();
  return {[]() -> std::unique_ptr<Olio> { return std::make_unique<koe::Rakennus>(); },
          {std::begin(koe::kLuokat), std::end(koe::kLuokat)},
          Tallennettuna(puu, Hakemisto().Malli())};
}

/// The building of the program, with an item in each of its larger collections.
Kohde Rakennus(const std::string& malli) {
  clsRakennus rakennus;
  for (int i = 0; i < 3; ++i)
    rakennus.Tilat.Add(UusiInstanssiId("clsTila")).Rakenteet.Add(UusiInstanssiId("clsRakenne")).RakenneRatkaisu.Luo();
  Kohde kohde{
      []() -> std::unique_ptr<Olio> { return std::make_unique<clsRakennus>(); }, {}, Tallennettuna(rakennus, malli)};
  for (const std::string& nimi : koe::Arvot(malli, "ClassTypes", "Name"))
    if (const Luokka* luokka = Luokka::Nimella(nimi)) kohde.luokat.push_back(luokka);
  return kohde;
}

/// The small tree, and the building where the program's data has been built: its template takes the place of the
/// tree's.
const std::vector<Kohde>& Kohteet() {
  static const std::vector<Kohde> kohteet = [] {
    const std::string malli = AppPath() + "stemplate.tmp";  // before the test's own directory takes its place
    std::vector<Kohde> tulos{Koepuu()};
    if (!fs::exists(malli)) return tulos;
    fs::copy_file(malli, Hakemisto().Malli(), fs::copy_options::overwrite_existing);
    tulos.push_back(Rakennus(Hakemisto().Malli()));
    return tulos;
  }();
  return kohteet;
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

std::string Muutos(const Kohde& kohde, FuzzedDataProvider& data) {
  const Luokka& luokka = *kohde.luokat[data.ConsumeIntegralInRange<std::size_t>(0, kohde.luokat.size() - 1)];
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

void KirjoitaMuutettu(const Kohde& kohde, FuzzedDataProvider& data) {
  Kirjoita(kohde.ehja);
  Tietokanta kanta(Hakemisto().Projekti(), Tietokanta::Tapa::Kirjoitus);
  kanta.Aja("PRAGMA synchronous=OFF; PRAGMA journal_mode=OFF");
  for (int i = 0; i < 20 && data.remaining_bytes() > 0; ++i) try {
      kanta.Aja(Muutos(kohde, data));
    } catch (const Tietokantavirhe&) {  // a column that was renamed already
    }
}

void Lue(const Kohde& kohde) {
  const std::string ennen = LueTiedosto(Hakemisto().Projekti());
  const std::unique_ptr<Olio> puu = kohde.luo();
  Latausraportti raportti;
  try {
    HaeProjekti(*puu, Hakemisto().Projekti(), raportti);
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
    for (char i = 0; i < static_cast<char>(Kohteet().size()); ++i) {
      std::ofstream(korpus / ("ehja" + std::to_string(i)), std::ios::binary)
          << static_cast<char>(2 * i) << Kohteet()[static_cast<std::size_t>(i)].ehja;
      std::ofstream(korpus / ("muutettu" + std::to_string(i)), std::ios::binary)
          << static_cast<char>(2 * i + 1) << std::string(64, 'x');
    }
    break;
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* tavut, std::size_t maara) {
  if (maara == 0) return 0;
  const Kohde& kohde = Kohteet()[tavut[0] / 2 % Kohteet().size()];
  if (tavut[0] % 2 == 0) {
    Kirjoita({reinterpret_cast<const char*>(tavut + 1), maara - 1});
  } else {
    FuzzedDataProvider data(tavut + 1, maara - 1);
    KirjoitaMuutettu(kohde, data);
  }
  Lue(kohde);
  return 0;
}
