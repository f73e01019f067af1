// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tekstivarasto.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "kernel/Hakemistot.h"
#include "kernel/Virhe.h"
#include "tests/kernel/Koehakemisto.h"
#include "ui/KerataanViestit.h"

namespace {

constexpr const char* kVarasto = R"(
  CREATE TABLE Kieli (Kielitunnus TEXT);
  INSERT INTO Kieli VALUES ('Suomi');
  CREATE TABLE LumivirtaResurssit (Id INTEGER, Suomi TEXT, Svenska TEXT);
  INSERT INTO LumivirtaResurssit VALUES (1001, 'Uusi', 'Ny'), (1002, NULL, 'Öppna'), (9100, 'Virhe', 'Fel'),
    (9101, 'Huomautus', 'Obs'), (9510, 'Poistetaanko?', ''), (9511, 'Poisto', ''), (9999, 'Ohjelmassa tapahtui virhe.', '');
  CREATE TABLE Combotaulu (Id INTEGER, frmName TEXT, cmbName TEXT, Suomi TEXT, Svenska TEXT);
  INSERT INTO Combotaulu VALUES (3, 'frmRakenteet', 'cmbSuuntaus', 'Etelä', 's'), (1, 'frmRakenteet', 'cmbSuuntaus', 'Pohjoinen', 'n'),
    (2, 'frmRakenteet', 'cmbSuuntaus', 'Itä', 'ö'), (4, 'frmTila', 'cmbSuuntaus', 'Muu', 'a');
  CREATE TABLE Errortaulu (Id INTEGER, ErrorCode INTEGER, ErrorLevel INTEGER, Suomi TEXT, Svenska TEXT);
  INSERT INTO Errortaulu VALUES (1, 1008, 1, 'Arvo ei ole luku.', 'x'), (2, 1068, 2, 'Suuri U-arvo', 'x'), (3, 1, 3, 'Tieto', 'x'),
    (4, 1040, 1, 'Tekstivarastoa ei löydy:', 'x');
  CREATE TABLE HelppiIDt (Formi TEXT, HelpID INTEGER, HelpID2 INTEGER, HelpID3 INTEGER);
  INSERT INTO HelppiIDt VALUES ('frmTila', 11, 12, NULL);
)";

class Tekstivarasto : public testing::Test {
 protected:
  Tekstivarasto() {
    AsetaAppPath(koti_.Polku().string());
    AsetaViestit(&viestit_);
    Aja(kVarasto);
    AlustaTekstit();
  }
  ~Tekstivarasto() override {
    AsetaViestit(nullptr);
    AsetaAppPath("");
  }
  void Aja(const std::string& sql) const {
    SQLite::Database(AppPath() + "StrVarasto.mdb", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(sql);
  }
  void PoistaVarasto() const { std::filesystem::remove(AppPath() + "StrVarasto.mdb"); }
  const Viesti& Viimeinen() const { return viestit_.Naytetyt().back(); }

  Koehakemisto koti_;
  KerataanViestit viestit_;
};

TEST_F(Tekstivarasto, TekstitOvatVarastonKielella) {
  EXPECT_EQ(Teksti(1001), "Uusi");
  EXPECT_EQ(Teksti(1002), "");  // a null text is no error
  EXPECT_EQ(Teksti(1003), "[String 1003 is missing]");
  EXPECT_TRUE(viestit_.Naytetyt().empty());
  Aja("UPDATE Kieli SET Kielitunnus = 'Svenska'");
  AlustaTekstit();
  EXPECT_EQ(Teksti(1001), "Ny");
  EXPECT_EQ(Valintalista("frmTila", "cmbSuuntaus"), std::vector<std::string>{"a"});
}

TEST_F(Tekstivarasto, ViestinOtsikkoTuleeTasosta) {
  NaytaVirhe(1008, "5 - 10");
  EXPECT_EQ(Viimeinen().teksti, "Arvo ei ole luku. 5 - 10");
  EXPECT_EQ(Viimeinen().otsikko, "Virhe");
  EXPECT_EQ(Viimeinen().vakavuus, Vakavuus::Virhe);
  NaytaVirhe(1068, "US1");
  EXPECT_EQ(Viimeinen().otsikko, "Huomautus");
  NaytaVirhe(1, "");
  EXPECT_EQ(Viimeinen().otsikko, "");
}

TEST_F(Tekstivarasto, RivitonVirhekoodiNaytetaanNumerolla) {
  NaytaVirhe(4711, "lisä");
  EXPECT_EQ(Viimeinen().teksti, "Virhe 4711 lisä");
}

TEST_F(Tekstivarasto, PuuttuvastaVarastostaKerrotaanJaOhjelmaJatkuu) {
  PoistaVarasto();
  EXPECT_EQ(HaeKielitunnus(), "");
  EXPECT_EQ(Viimeinen().teksti, "Virhe 1040 " + AppPath() + "StrVarasto.mdb");
  AlustaTekstit();
  EXPECT_EQ(viestit_.Naytetyt().size(), 2u);  // once for each look-up of the language, none for the texts
  LataaTekstit({}, "Suomi");
  EXPECT_EQ(viestit_.Naytetyt().size(), 3u);
  EXPECT_EQ(Teksti(1001), "[String 1001 is missing]");
  EXPECT_FALSE(std::filesystem::exists(AppPath() + "StrVarasto.mdb"));
  EXPECT_THROW(Valintalista("frmTila", "cmbSuuntaus"), Virhe);
}

TEST_F(Tekstivarasto, KieletonVarastoKertooVirheella1040) {
  Aja("DELETE FROM Kieli");
  EXPECT_EQ(HaeKielitunnus(), "");
  EXPECT_EQ(viestit_.Naytetyt().size(), 1u);
}

TEST_F(Tekstivarasto, TuntematonKielisarakeEiAnnaNimeaanTeksteiksi) {
  Aja("UPDATE Kieli SET Kielitunnus = 'Norsk'");
  AlustaTekstit();
  EXPECT_EQ(Teksti(1001), "[String 1001 is missing]");
  EXPECT_EQ(Viimeinen().teksti.substr(0, 10), "Virhe 1040");
}

TEST_F(Tekstivarasto, ValintalistaOnIdJarjestyksessaNimienKirjainkoostaRiippumatta) {
  const std::vector<std::string> suunnat = {"Pohjoinen", "Itä", "Etelä"};
  EXPECT_EQ(Valintalista("FRMRakenteet", "cmbsuuntaus"), suunnat);
  EXPECT_TRUE(Valintalista("frmTila' OR '1'='1", "cmbSuuntaus").empty());
}

TEST_F(Tekstivarasto, OhjeaiheIndeksinMukaan) {
  EXPECT_EQ(Ohjeaihe("frmTila", 0), 11);
  EXPECT_EQ(Ohjeaihe("frmtila", 1), 12);
  EXPECT_EQ(Ohjeaihe("frmTila", 2), 0);
  EXPECT_EQ(Ohjeaihe("frmTila", 3), 0);
  EXPECT_EQ(Ohjeaihe("frmMuu", 0), 0);
}

TEST_F(Tekstivarasto, PoistoaEiTehdaIlmanKyllaVastausta) {
  EXPECT_FALSE(KysyPoisto());
  viestit_.AsetaSeuraavaVastaus(Vastaus::Kylla);
  EXPECT_TRUE(KysyPoisto());
  EXPECT_EQ(Viimeinen().otsikko, "Poisto");
}

TEST_F(Tekstivarasto, NostettuVirheKantaaVarastonTekstin) {
  try {
    NostaVirhe("clsTila:Koe Method", "syy");
  } catch (const Virhe& virhe) {
    EXPECT_EQ(virhe.Kuvaus(), "Ohjelmassa tapahtui virhe.");
  }
}

}  // namespace
