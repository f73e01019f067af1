// SPDX-License-Identifier: GPL-3.0-or-later
// The template of project files and the member tables of the classes say the same.
#include <set>

#include "kernel/Hakemistot.h"
#include "kernel/Sha256.h"
#include "kernel/Tietokanta.h"
#include "kernel/Versio.h"
#include "results/clsYhteenveto.h"
#include "tests/building/Koerakennus.h"

namespace {

using Sarakkeet = std::vector<std::pair<std::string, std::string>>;  // name, declared type

Sarakkeet TaulunSarakkeet(const Tietokanta& kanta, const std::string& taulu) {
  Sarakkeet sarakkeet;
  for (Kysely kysely(kanta, "SELECT name, type FROM pragma_table_info(?)", taulu); kysely.Seuraava();)
    sarakkeet.emplace_back(kysely.Teksti(0), kysely.Teksti(1));
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

std::set<std::string> Taulut(const Tietokanta& kanta) {
  std::set<std::string> taulut;
  for (Kysely luokat(kanta, "SELECT Name FROM ClassTypes"); luokat.Seuraava();) taulut.emplace(luokat.Teksti(0));
  return taulut;
}

TEST(Mallipohja, AChangeOfTheTemplateRaisesTheVersion) {
  const Tietokanta kanta(AppPath() + "stemplate.tmp");
  std::string kuvaus = std::to_string(kVersioMajor) + "." + std::to_string(kVersioMinor) + "\n";
  for (const std::string& taulu : Taulut(kanta)) {
    kuvaus += taulu + "\n";
    for (const auto& [nimi, tyyppi] : TaulunSarakkeet(kanta, taulu)) kuvaus += " " + nimi + " " + tyyppi + "\n";
  }
  EXPECT_EQ(Sha256(kuvaus), kMallinTiiviste) << "raise kVersioMinor when a table or a column has changed, then put the "
                                                "new sum beside it";
}

TEST(Mallipohja, TablesAreTheClassesAndColumnsTheirMembersInOrder) {
  const Tietokanta kanta(AppPath() + "stemplate.tmp");
  std::set<std::string> taulut = Taulut(kanta);

  ASSERT_FALSE(clsRakennus::kLuokka.Jasenet().empty());
  for (const Luokka* luokka : Luokka::Kaikki()) {
    if (luokka == &clsYhteenveto::kLuokka) continue;  // computed when it is shown, never saved
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
