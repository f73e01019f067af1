// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <fstream>

#include "kernel/Hakemistot.h"
#include "kernel/Virhe.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"

namespace {

/// Weather files in a directory of the test's own.
class SaaTesti : public testing::Test {
 protected:
  SaaTesti() : entinen_(AppPath()) { AsetaAppPath(hakemisto.Polku().string()); }
  ~SaaTesti() override { AsetaAppPath(entinen_); }

  static std::string Kuukausi(int m) {
    return std::to_string(m) + ", " + std::to_string(m - 6) + ".5, 36, 72, 18, 21.6, 7.2";
  }
  static std::string Loppu(const std::string& mitoitus = "-26 °C (vyöhyke I)") {
    return "\n\n\nKoesää\n\n\n" + mitoitus + "\n\n\n3959\nylimääräinen rivi\n";
  }
  void Kirjoita(const std::string& sisalto) {
    std::ofstream(hakemisto / "SaaVyohyke1.txt", std::ios::binary) << sisalto;
  }

  Koehakemisto hakemisto;

 private:
  std::string entinen_;
};

TEST_F(SaaTesti, MegajoulesBecomeKilowattHoursAndLinesMayStandInAnyOrder) {
  std::string tiedosto = "kk,lampotila,...\n";
  for (int m = 12; m >= 1; --m) tiedosto += Kuukausi(m) + "\n";
  Kirjoita(tiedosto + Loppu());
  clsSaa saa;
  saa.AsetaSaaPaikkakunta(1);
  EXPECT_EQ(saa.Keskilampotila(0), -5.5);
  EXPECT_EQ(saa.Keskilampotila(11), 6.5);
  EXPECT_DOUBLE_EQ(saa.AuringonSateily(3, kVaakasuora), 10);
  EXPECT_DOUBLE_EQ(saa.AuringonSateily(3, kEtela), 20);
  EXPECT_DOUBLE_EQ(saa.AuringonSateily(3, kIta), 5);
  EXPECT_DOUBLE_EQ(saa.AuringonSateily(3, kLansi), 6);
  EXPECT_DOUBLE_EQ(saa.AuringonSateily(3, kPohjoinen), 2);
  EXPECT_EQ(saa.Nimi, "Koesää");
  EXPECT_EQ(saa.LammMitoitusUlkolampotila, -26);
  EXPECT_EQ(saa.NormVuodenLammTarveLuku, 3959);
  EXPECT_EQ(saa.SaaFileNimi, "SaaVyohyke1.txt");
  EXPECT_THROW(saa.Keskilampotila(12), std::out_of_range);
  EXPECT_THROW(saa.AuringonSateily(0, 5), std::out_of_range);
  EXPECT_THROW(saa.AuringonSateily(-1, 0), std::out_of_range);
}

TEST_F(SaaTesti, WindowsFilesOfOldMachinesRead) {
  std::string tiedosto = "otsikko\r\n";
  for (int m = 1; m <= 12; ++m) tiedosto += Kuukausi(m) + "\r\n";
  Kirjoita(tiedosto + "\r\n\r\n\r\nEtel\xE4-Suomi\r\n\r\n\r\nei lukua\r\n\r\n\r\n3959\r\n");
  clsSaa saa;
  saa.AsetaSaaPaikkakunta(1);
  EXPECT_EQ(saa.Nimi, "Etelä-Suomi");
  EXPECT_EQ(saa.LammMitoitusUlkolampotila, 0);
}

TEST_F(SaaTesti, AFaultyLineIsNamedAndWhatWasReadStays) {
  std::string tiedosto = "otsikko\n";
  for (int m = 1; m <= 3; ++m) tiedosto += Kuukausi(m) + "\n";
  Kirjoita(tiedosto + "4, lämmin, 1, 2, 3, 4, 5\n");
  clsSaa saa;
  try {
    saa.AsetaSaaPaikkakunta(1);
    FAIL() << "a line without numbers was taken";
  } catch (const Virhe& virhe) {
    EXPECT_EQ(virhe.Lahde(), "clsSaa:AsetaSaaPaikkakunta Method");
    EXPECT_NE(virhe.SyynKuvaus().find("SaaVyohyke1.txt, rivi 5"), std::string::npos) << virhe.SyynKuvaus();
  }
  EXPECT_EQ(saa.Keskilampotila(2), -3.5) << "the third month had been read";
  EXPECT_THROW(saa.LueSaaTiedosto("EiOle.txt"), Virhe);
  Kirjoita("otsikko\n" + Kuukausi(1) + ", 8\n");
  EXPECT_THROW(saa.AsetaSaaPaikkakunta(1), Virhe) << "an eighth field, as for the solar calculator";
}

TEST_F(RakennusTesti, LocalitiesOutsideTheListChangeNothingAndCopiesCarryNoTables) {
  clsSaa& saa = rakennus->Saa;
  const std::string tiedosto = saa.SaaFileNimi;
  saa.AsetaSaaPaikkakunta(16);
  saa.AsetaSaaPaikkakunta(-1);
  EXPECT_EQ(saa.SaaFileNimi, tiedosto);
  const auto kopio = saa.Kopioi();
  EXPECT_EQ(kopio->Keskilampotila(0), 0);
  EXPECT_EQ(kopio->InstanssiId, saa.InstanssiId);
  const double tammikuu = saa.Keskilampotila(0);
  kopio->Kopioi(saa);
  EXPECT_EQ(saa.Keskilampotila(0), tammikuu) << "writing a copy back keeps the live tables";
}

}  // namespace
