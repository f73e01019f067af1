// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/clsLumivirtaAsetukset.h"

#include "kernel/Asetusvarasto.h"
#include "kernel/Hakemistot.h"
#include "settings/Asetusavaimet.h"
#include "tests/measures/Asetuskansio.h"
#include "tests/tuki/Koeviestit.h"

namespace {

class AsetuksetTesti : public Asetuskansio {
 protected:
  AsetuksetTesti() {
    AsetaAppPath((koti_ / "ohjelma").string());
    TallennaAsetus(Avain::CurrentUserRealName, "Aino Åberg");
  }
  ~AsetuksetTesti() override {
    AsetaVioittumisilmoitus(nullptr);
    AsetaAppPath("");
  }
  static clsLumivirtaAsetukset Luettu() {
    clsLumivirtaAsetukset asetukset;
    asetukset.HaeRekisteristä();
    return asetukset;
  }

  Koeviestit viestit_;
};

TEST_F(AsetuksetTesti, ACurrencyChangesTheFactorAndTheName) {
  TallennaAsetus(Avain::Valuutta, "1");
  TallennaAsetus(Avain::TotSahko, MiljoonasosinaTekstina(25.5));
  TallennaAsetus(Avain::TotLampo, MiljoonasosinaTekstina(24));
  auto a = Luettu();
  EXPECT_EQ(a.strDefaultCurrencyUnit, "euro");
  EXPECT_DOUBLE_EQ(a.NayttoKerroin(Energialaji::Sahko), 1.255);
  EXPECT_DOUBLE_EQ(a.NayttoKerroin(Energialaji::Lampo), 1.24);
  EXPECT_DOUBLE_EQ(a.NayttoKerroin(Energialaji::Yleinen), 1.22);
  a.ValuuttaTyyppi(8);
  EXPECT_DOUBLE_EQ(a.NayttoKerroin(Energialaji::Vesi), 1936.27 * 1.22);
  a.KaytaKohtTulostuksissaALVHintoja = false;
  EXPECT_EQ(a.NayttoKerroin(Energialaji::Vesi), 1936.27);
}

TEST_F(AsetuksetTesti, MissingAndUnfitValuesGetDefaults) {
  TallennaAsetus(Avain::YleinenALV, "kaksikymmentä");
  TallennaAsetus(Avain::Valuutta, "99");
  TallennaAsetus(Avain::Veroluokka1, "");
  const auto a = Luettu();
  EXPECT_EQ(a.YleinenALV, 22);
  EXPECT_EQ(a.ValuuttaTyyppi(), 0);
  EXPECT_EQ(a.dblSahkoVeroluokka1, 7.021846);
  EXPECT_NEAR(a.SahkoVeroKotitalous, 7.021846, 1e-6);  // 41.75 mk/MWh is tax class 1
  EXPECT_NEAR(a.SahkoVeroTeollisuus, 4.330839, 1e-6);
  EXPECT_EQ(a.TietokannanVersio(), 1);
  TallennaAsetus(Avain::MainLeft, "99999999999");
  EXPECT_EQ(HaeKokonaisluku(Avain::MainLeft), 1000);
}

TEST_F(AsetuksetTesti, ATruthValueIsReadFromOldFormsToo) {
  for (const char* tosi : {"-1", "1", "true", "TOSI"}) {
    TallennaAsetus(Avain::KaytaLVI, tosi);
    EXPECT_TRUE(Luettu().KaytaKohtTulostuksissaALVHintoja) << tosi;
  }
  for (const char* epatosi : {"0", "False", "", "2"}) {
    TallennaAsetus(Avain::KaytaLVI, epatosi);
    EXPECT_FALSE(Luettu().KaytaKohtTulostuksissaALVHintoja) << epatosi;
  }
}

TEST_F(AsetuksetTesti, MillionthsComeBackTheSame) {
  for (const double arvo : {22.0, 7.021846, 4.330839, 0.0, 25.5, 1.000001, 8.2}) {
    TallennaAsetus(Avain::YleinenALV, MiljoonasosinaTekstina(arvo));
    EXPECT_EQ(Luettu().YleinenALV, arvo);
  }
}

TEST_F(AsetuksetTesti, AMovedProgramFindsItsDatabases) {
  const std::string oma = (koti_ / "oma kanta.mdb").string();
  KirjoitaTiedosto(oma, "");
  TallennaAsetus(Avain::Kayttajakohtainen, oma);
  TallennaAsetus(Avain::Vakiokanta, "/ei/ole/Tietokanta_perus.mdb");
  const auto a = Luettu();
  EXPECT_EQ(a.strKayttajanTietokanta, oma);
  EXPECT_EQ(a.strVakioTietokanta, AppPath() + "Rakennekirjasto/Tietokanta_perus.mdb");
  EXPECT_EQ(HaeAsetus("Asetukset_Tietokannat", "Vakiokanta", ""), "/ei/ole/Tietokanta_perus.mdb");
}

TEST_F(AsetuksetTesti, TheNameIsAskedOfTheSystemOnce) {
  EXPECT_EQ(clsLumivirtaAsetukset().strCurrentUserRealName, "Aino Åberg");
  TallennaAsetus(Avain::CurrentUserRealName, "EmptyString");
  const std::string nimi = clsLumivirtaAsetukset().strCurrentUserRealName;
  EXPECT_NE(nimi, "EmptyString");
  EXPECT_NE(nimi, "");
  EXPECT_EQ(HaeAsetus(Avain::CurrentUserRealName), nimi);
}

TEST_F(AsetuksetTesti, StartingLeavesKeysAndReplacesThePathsOfFuelBases) {
  TallennaAsetus(Avain::TotSahko, "24000000");
  TallennaAsetus(Avain::Energia_Vakiokanta, "/vanha/paikka/VakioPolttoainekanta.mdb");
  PaivitaKaynnistyksessa();
  AsetaAppPath((koti_ / "uusi paikka").string());
  PaivitaKaynnistyksessa();
  EXPECT_EQ(HaeAsetus("Asetukset_Kotihakemisto", "Kotihakemisto", ""), AppPath());
  EXPECT_EQ(HaeAsetus("Asetukset_Tietokannat", "Energia_Vakiokanta", ""), AppPath() + "VakioPolttoainekanta.mdb");
  EXPECT_EQ(HaeAsetus("Asetukset_Kustannuslaskenta", "TotSahko", ""), "24000000");
  EXPECT_EQ(HaeAsetus("Asetukset_Kustannuslaskenta", "Veroluokka2", ""), "4330839");
  EXPECT_TRUE(viestit_.Naytetyt().empty());
}

TEST_F(AsetuksetTesti, AStoreThatCantBeWrittenDoesntPreventStarting) {
  std::filesystem::remove_all(AsetusHakemisto());
  KirjoitaTiedosto(AsetusHakemisto(), "tiedosto hakemiston paikalla");
  PaivitaKaynnistyksessa();
  EXPECT_EQ(viestit_.Esiintymia("Asetuksia ei voi tallentaa"), 1);
  EXPECT_EQ(Luettu().YleinenALV, 22);
}

TEST_F(AsetuksetTesti, ADamagedSettingsFileIsTold) {
  KirjoitaTiedosto(AsetusHakemisto() / "asetukset.ini", "roskaa");
  PaivitaKaynnistyksessa();
  EXPECT_EQ(viestit_.Esiintymia("asetukset.ini.vioittunut"), 1);
}

}  // namespace
