// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue of typical devices and water uses, and picking from it without a screen.
#include "consumers/Kulutusluettelo.h"

#include "consumers/clsSahkonKulutusryhma.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "tests/building/Koerakennus.h"

namespace {

constexpr int kToimistokoodi = 31;

class KulutusluetteloTesti : public RakennusTesti {
 protected:
  KulutusluetteloTesti() {
    const auto& koodit = clsRakennus::KayttoTarkoitusKoodit;
    rakennus->Perustiedot.KayttoTarkoitusID =
        static_cast<std::int16_t>(std::ranges::find(koodit, kToimistokoodi) - koodit.begin());
    rakennus->Perustiedot.Kayttotarkoitus = "Toimistorakennus";
  }
  template <class Ryhma>
  bool Poimi(Ryhma& ryhma, const Ikkunattomat::Kasikirjoitus& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmKulutusluettelo", kasikirjoitus);
    return PoimiLuettelosta(ryhma);
  }
  static std::vector<std::string> Nimet(const Ikkunaton& lomake) {
    std::vector<std::string> nimet;
    for (const auto& rivi : lomake.Etsi("lvwRivit").Rivit()) nimet.push_back(rivi.front());
    return nimet;
  }
};

TEST_F(KulutusluetteloTesti, EveryRowMakesAGroupThatGivesItsConsumption) {
  for (const Sahkolaite& laite : LueSahkolaitteet(kToimistokoodi)) {
    clsSahkonKulutusryhma ryhma;
    ryhma.LaskentatapaEnergiapohjainen(true);
    ryhma.LaskentatapaEnergiapohjainenIndex = 0;  // typed before
    TaytaRyhma(laite, ryhma);
    EXPECT_EQ(ryhma.Vuosikulutus(), 0) << "the person gives the number of units";
    ryhma.LaskentayksikkoNumber = 10;
    const double wh = laite.Arvo * 10 * laite.TuntiaVrk * laite.VrkVuosi * laite.Tasauskerroin;
    EXPECT_NEAR(ryhma.Vuosikulutus(), wh / (laite.Tehopohjainen() ? 1e6 : 1e3), 1e-9 * wh) << laite.Nimi;
    EXPECT_FALSE(ryhma.Laskentayksikko.empty()) << laite.Nimi;
  }
  for (const Vedenkaytto& kaytto : LueVedenkaytot(kToimistokoodi)) {
    clsVedenKulutusryhma ryhma;
    TaytaRyhma(kaytto, ryhma);
    ryhma.Laskentayksikko = 1;
    // one unit of anything: a drop a day to a car wash
    EXPECT_TRUE(ryhma.VedenKulutus() > 0.01 && ryhma.VedenKulutus() < 2000) << kaytto.Nimi;
    EXPECT_GE(ryhma.VedenLammityksenEnergia(), 0) << kaytto.Nimi;
    EXPECT_TRUE(ryhma.LampimanVedenOsuus >= 0 && ryhma.LampimanVedenOsuus <= 100) << kaytto.Nimi;
  }
}

TEST_F(KulutusluetteloTesti, ADeviceIsFoundByAnEverydayWordAndFillsTheGroup) {
  clsSahkonKulutusryhma ryhma;
  ryhma.LaskentayksikkoNumber = 12;
  EXPECT_TRUE(Poimi(ryhma, [](Ikkunaton& lomake) {
    EXPECT_EQ(lomake.Kohdistettu(), "txtHaku");
    EXPECT_EQ(Nimet(lomake).front(), "Toimistorakennus") << "the use type's own first";
    lomake.KayttajaKirjoittaa("txtHaku", "läppäri");
    EXPECT_EQ(Nimet(lomake), (std::vector<std::string>{"Toimistorakennus", "Työpiste, kannettava ja näytöt"}));
    EXPECT_NE(lomake.Teksti("lblSelite").find("40–140 W/laite. Sähkö lämmittää tiloja."), std::string::npos);
    lomake.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(ryhma.KulutusRyhma, "Työpiste, kannettava ja näytöt");
  EXPECT_TRUE(ryhma.LaskentatapaTehopohjainen() && ryhma.EnergiaHyodynnetaanLammityksessa);
  EXPECT_EQ(ryhma.LaskentaperusteID, 1);
  EXPECT_EQ(ryhma.LaskentaperusteStr + " " + ryhma.Laskentayksikko, "W/laite laitteita");
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 12 * 80 * 8 * 230 * 0.7 / 1e6);
}

TEST_F(KulutusluetteloTesti, AnUnusualDeviceStandsUnderOtherUseTypesAndKeepsItsOwnUnit) {
  clsSahkonKulutusryhma ryhma;
  EXPECT_TRUE(Poimi(ryhma, [](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtHaku", "lehmä");
    EXPECT_EQ(Nimet(lomake).front(), "Muiden käyttötarkoitusten");
    lomake.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(ryhma.LaskentaperusteStr, "kWh/vapaa yksikkö,a");
  EXPECT_EQ(ryhma.Laskentayksikko, "lehmää");
  EXPECT_EQ(ryhma.LaskentatapaEnergiapohjainenIndex, 2);
}

TEST_F(KulutusluetteloTesti, OnlyARowCanBePickedAndCancelChangesNothing) {
  clsVedenKulutusryhma ryhma;
  ryhma.KulutusRyhma = "Oma";
  EXPECT_FALSE(Poimi(ryhma, [](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtHaku", "avaruusalus");
    EXPECT_TRUE(Nimet(lomake).empty());
    EXPECT_FALSE(lomake.Etsi("cmdOk").Kaytossa());
    lomake.KayttajaKirjoittaa("txtHaku", "");
    lomake.KayttajaValitsee("lvwRivit", "Kaikille yhteiset");
    EXPECT_FALSE(lomake.Etsi("cmdOk").Kaytossa());
    lomake.Etsi("lvwRivit").KayttajaPainaa();  // a double click on the heading
    EXPECT_TRUE(lomake.Auki());
    lomake.KayttajaPainaa("cmdPeruuta");
  }));
  EXPECT_EQ(ryhma.KulutusRyhma, "Oma");
  EXPECT_EQ(ryhma.LaskentaperusteNumber, 0);
}

TEST_F(KulutusluetteloTesti, TheShareOfHotWaterFollowsTheGroupsOwnWater) {
  const std::pair<clsVedenKulutusryhma::Tyyppi, double> kOsuudet[] = {{clsVedenKulutusryhma::Kayttovesi, 66},
                                                                      {clsVedenKulutusryhma::Prosessivesi, 51}};
  rakennus->VedenKulutusryhmat.ProsessiVedenTiedot.LamminLampotila = 70;
  for (const auto& [tyyppi, osuus] : kOsuudet) {
    clsVedenKulutusryhma& ryhma = rakennus->VedenKulutusryhmat.Add({}, tyyppi);
    EXPECT_TRUE(Poimi(ryhma, [](Ikkunaton& lomake) {
      lomake.KayttajaKirjoittaa("txtHaku", "suihku");
      lomake.KayttajaValitsee("lvwRivit", "Suihkukerta");
      lomake.Etsi("lvwRivit").KayttajaPainaa();
    }));
    EXPECT_EQ(ryhma.VedenKayttolampotila, 38);
    EXPECT_EQ(ryhma.LampimanVedenOsuus, osuus);  // 33 K of 50 K and of 65 K
    EXPECT_EQ(ryhma.KulutusRyhmaTyyppi, tyyppi);
    ryhma.Laskentayksikko = 2;
    EXPECT_DOUBLE_EQ(ryhma.VedenKulutus(), 36.5);
  }
}

}  // namespace
