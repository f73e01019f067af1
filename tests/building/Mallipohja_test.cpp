// SPDX-License-Identifier: GPL-3.0-or-later
// The template of project files and the member tables of the classes say the same.
#include <SQLiteCpp/SQLiteCpp.h>

#include <set>

#include "kernel/Hakemistot.h"
#include "tests/building/Koerakennus.h"

namespace {

using Sarakkeet = std::vector<std::pair<std::string, std::string>>;  // name, declared type

Sarakkeet TaulunSarakkeet(SQLite::Database& kanta, const std::string& taulu) {
  Sarakkeet sarakkeet;
  SQLite::Statement kysely(kanta, "SELECT name, type FROM pragma_table_info(?)");
  kysely.bind(1, taulu);
  while (kysely.executeStep()) sarakkeet.emplace_back(kysely.getColumn(0).getString(), kysely.getColumn(1).getString());
  return sarakkeet;
}

std::string SarakkeenTyyppi(Laji laji) {
  switch (laji) {
    case Laji::Lyhyt:
    case Laji::Pitka:
      return "INTEGER";
    case Laji::Teksti:
    case Laji::Olio:
      return "TEXT";
    case Laji::Totuus:
      return "BOOLEAN";
    case Laji::Paivays:
      return "DATETIME";
    default:
      return "REAL";
  }
}

TEST(Mallipohja, TablesAreTheClassesAndColumnsTheirMembersInOrder) {
  SQLite::Database kanta(AppPath() + "stemplate.tmp", SQLite::OPEN_READONLY);
  std::set<std::string> taulut;
  SQLite::Statement luokat(kanta, "SELECT Name FROM ClassTypes");
  while (luokat.executeStep()) taulut.insert(luokat.getColumn(0).getString());

  ASSERT_FALSE(clsRakennus::kLuokka.Jasenet().empty());
  for (const Luokka* luokka : Luokka::Kaikki()) {
    const std::string nimi(luokka->Nimi());
    SCOPED_TRACE(nimi);
    EXPECT_EQ(taulut.erase(nimi), 1u) << "the template has no such class";
    Sarakkeet odotetut{
        {"ObjID", "TEXT"}, {"ParentID", "TEXT"}, {"MyRealNameInParentObj", "TEXT"}, {"OrderID", "INTEGER"}};
    for (const Jasen& jasen : luokka->Jasenet()) odotetut.emplace_back(jasen.nimi, SarakkeenTyyppi(jasen.laji));
    EXPECT_EQ(TaulunSarakkeet(kanta, nimi), odotetut);
  }
  EXPECT_TRUE(taulut.empty()) << "tables without a class, the first is " << *taulut.begin();
}

}  // namespace
