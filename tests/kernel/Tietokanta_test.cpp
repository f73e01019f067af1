// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tietokanta.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kernel/Hakemistot.h"
#include "tests/kernel/Koehakemisto.h"

using testing::HasSubstr;

namespace {

class TietokantaTesti : public testing::Test {
 protected:
  std::string Tiedosto() const { return (hakemisto / "kanta 100 %?#.mdb").string(); }
  Koehakemisto hakemisto;
};

}  // namespace

TEST(Lauseeksi, TranslatesOtherDialectsButNoText) {
  EXPECT_EQ(Lauseeksi("DELETE * FROM a"), "DELETE FROM a");
  EXPECT_EQ(Lauseeksi("SELECT * FROM a WHERE b = True AND c = false"), "SELECT * FROM a WHERE b <> 0 AND c = 0");
  EXPECT_EQ(Lauseeksi("SELECT '= True, ''DELETE * FROM'"), "SELECT '= True, ''DELETE * FROM'");
}

TEST_F(TietokantaTesti, ValuesAreBoundAndTrueIsMinusOne) {
  Tietokanta kanta(Tiedosto(), Tietokanta::Tapa::Uusi);
  kanta.Aja("CREATE TABLE t (nimi TEXT, luku REAL, kylla BOOLEAN)");
  kanta.Aja("INSERT INTO t VALUES (?, ?, ?)", "O'Hara; DROP TABLE t", 0.1, true);
  kanta.Aja("INSERT INTO t VALUES (?, ?, ?)", std::string("ä"), 2, false);
  Kysely rivit(kanta, "SELECT nimi, luku, kylla FROM t WHERE kylla = True");
  ASSERT_TRUE(rivit.Seuraava());
  EXPECT_EQ(rivit.Teksti(0), "O'Hara; DROP TABLE t");
  EXPECT_EQ(rivit.Luku(1), 0.1);
  EXPECT_EQ(rivit.Kokonais(2), -1);
  EXPECT_FALSE(rivit.Seuraava());
}

TEST_F(TietokantaTesti, AnUncommittedTransactionRollsBack) {
  Tietokanta kanta(Tiedosto(), Tietokanta::Tapa::Uusi);
  kanta.Aja("CREATE TABLE t (a)");
  {
    Transaktio transaktio(kanta);
    kanta.Aja("INSERT INTO t VALUES (1)");
  }
  EXPECT_FALSE(Kysely(kanta, "SELECT * FROM t").Seuraava());
}

TEST_F(TietokantaTesti, AnErrorTellsFileAndCause) {
  KirjoitaTiedosto(Tiedosto(), std::string(5000, 'x'));
  try {
    Tietokanta kanta(Tiedosto());
    Kysely(kanta, "SELECT * FROM sqlite_master").Seuraava();
    FAIL();
  } catch (const Tietokantavirhe& virhe) {
    EXPECT_THAT(virhe.what(), HasSubstr(Tiedosto()));
    EXPECT_THAT(virhe.what(), HasSubstr("ei ole tietokanta"));
  }
  EXPECT_THROW(Tietokanta("/ei/ole.mdb"), Tietokantavirhe);
}
