// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tekstivarasto.h"

#include <gtest/gtest.h>

#include "kernel/Hakemistot.h"
#include "kernel/Tietokanta.h"
#include "kernel/Virhe.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Koeviestit.h"

namespace {

constexpr const char* kVarasto = R"(
  CREATE TABLE Kieli (Kielitunnus TEXT);
  INSERT INTO Kieli VALUES ('Suomi');
  CREATE TABLE LumivirtaResurssit (Id INTEGER, Suomi TEXT, Svenska TEXT);
  INSERT INTO LumivirtaResurssit VALUES (1001, 'Uusi', 'Ny'), (1002, NULL, 'Öppna'), (9100, 'Virhe', 'Fel'),
    (9101, 'Huomautus', 'Obs');
  CREATE TABLE Combotaulu (Id INTEGER, frmName TEXT, cmbName TEXT, Suomi TEXT, Svenska TEXT);
  INSERT INTO Combotaulu VALUES (3, 'frmRakenteet', 'cmbSuuntaus', 'Etelä', 's'), (1, 'frmRakenteet', 'cmbSuuntaus', 'Pohjoinen', 'n'),
    (2, 'frmRakenteet', 'cmbSuuntaus', 'Itä', 'ö'), (4, 'frmTila', 'cmbSuuntaus', 'Muu', 'a');
  CREATE TABLE Errortaulu (Id INTEGER, ErrorCode INTEGER, ErrorLevel INTEGER, Suomi TEXT, Svenska TEXT);
  INSERT INTO Errortaulu VALUES (1, 1008, 1, 'Arvo ei ole luku.', 'x'), (2, 1068, 2, 'Suuri U-arvo', 'x'), (3, 1, 3, 'Tieto', 'x'),
    (4, 1040, 1, 'Tekstivarastoa ei löydy:', 'x');
)";

class Tekstivarasto : public testing::Test {
 protected:
  Tekstivarasto() {
    AsetaAppPath(koti_.Polku().string());
    Aja(kVarasto);
    AlustaTekstit();
  }
  ~Tekstivarasto() override { AsetaAppPath(""); }
  void Aja(const std::string& sql) const { Tietokanta(AppPath() + "StrVarasto.mdb", Tietokanta::Tapa::Uusi).Aja(sql); }
  void PoistaVarasto() const { std::filesystem::remove(AppPath() + "StrVarasto.mdb"); }
  const Viesti& Viimeinen() const { return viestit_.Naytetyt().back(); }

  Koehakemisto koti_;
  Koeviestit viestit_;
};

TEST_F(Tekstivarasto, TextsAreInTheLanguageOfTheStore) {
  EXPECT_EQ(Teksti(1001), "Uusi");
  EXPECT_EQ(Teksti(1002), "");  // a null text is no error
  EXPECT_EQ(Teksti(1003), "[String 1003 is missing]");
  EXPECT_TRUE(viestit_.Naytetyt().empty());
  Aja("UPDATE Kieli SET Kielitunnus = 'Svenska'");
  AlustaTekstit();
  EXPECT_EQ(Teksti(1001), "Ny");
  EXPECT_EQ(Valintalista("frmTila", "cmbSuuntaus"), std::vector<std::string>{"a"});
}

TEST_F(Tekstivarasto, AMessagesTitleComesFromItsLevel) {
  NaytaVirhe(1008, "5 - 10");
  EXPECT_EQ(Viimeinen().teksti, "Arvo ei ole luku. 5 - 10");
  EXPECT_EQ(Viimeinen().otsikko, "Virhe");
  EXPECT_EQ(Viimeinen().vakavuus, Vakavuus::Virhe);
  NaytaVirhe(1068, "US1");
  EXPECT_EQ(Viimeinen().otsikko, "Huomautus");
  NaytaVirhe(1, "");
  EXPECT_EQ(Viimeinen().otsikko, "");
}

TEST_F(Tekstivarasto, AMissingStoreIsToldAndTheProgramGoesOn) {
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

TEST_F(Tekstivarasto, AnUnknownOrMissingLanguageIsTold) {
  Aja("UPDATE Kieli SET Kielitunnus = 'Norsk'");
  AlustaTekstit();
  EXPECT_EQ(Teksti(1001), "[String 1001 is missing]");
  EXPECT_EQ(viestit_.Esiintymia("Virhe 1040"), 1);
  Aja("DELETE FROM Kieli");
  EXPECT_EQ(HaeKielitunnus(), "");
  EXPECT_EQ(viestit_.Esiintymia("Virhe 1040"), 2);
}

TEST_F(Tekstivarasto, AChoiceListIsInIdOrderWhateverTheLetterCase) {
  const std::vector<std::string> suunnat = {"Pohjoinen", "Itä", "Etelä"};
  EXPECT_EQ(Valintalista("FRMRakenteet", "cmbsuuntaus"), suunnat);
  EXPECT_TRUE(Valintalista("frmTila' OR '1'='1", "cmbSuuntaus").empty());
}

}  // namespace
