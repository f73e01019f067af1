// SPDX-License-Identifier: GPL-3.0-or-later
// The settings dialog and the auditors' dialog, driven as a person would, without a screen.
#include "building/Yhteiset.h"
#include "building/clsRakennus.h"
#include "kernel/Hakemistot.h"
#include "settings/Asetusavaimet.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tests/measures/Asetuskansio.h"
#include "tests/tuki/Koeviestit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ui/Ikkunaton.h"
#include "ui/Lomakekaannos.h"
#include "ui/Ohjaimet.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmOptions.h"

namespace {

class Asetusdialogit : public Asetuskansio {
 protected:
  Asetusdialogit() {
    AlustaTekstit();
    TallennaAsetus(Avain::CurrentUserRealName, "Aino Åberg");
  }
  ~Asetusdialogit() override {
    AsetaRahayksikko("€");
    AsetaVioittumisilmoitus(nullptr);
  }

  clsLumivirtaAsetukset Muokkaa(Ikkunattomat::Kasikirjoitus kasikirjoitus) {
    clsLumivirtaAsetukset asetukset;
    asetukset.HaeRekisteristä();
    ikkunat_.KunNaytetaan("frmOptions", std::move(kasikirjoitus));
    asetukset.NaytaKayttoliittyma();
    return asetukset;
  }
  std::string Ini() const { return LueTiedosto(koti_ / "config" / "lumivirta" / "asetukset.ini"); }

  Koeviestit viestit_;
  Ikkunattomat ikkunat_{Lahdekoodi("ui/forms")};
};

TEST_F(Asetusdialogit, OkWithoutEditsLeavesTheStoreByteForByte) {
  TallennaAsetus(Avain::TotSahko, "22123456");
  TallennaAsetus(Avain::Veroluokka1, "7021846");
  TallennaAsetus(Avain::Vakiokanta, "/siirretty/Tietokanta_perus.mdb");
  const std::string ennen = Ini();
  Muokkaa([](Ikkunaton& lomake) {
    EXPECT_EQ(lomake.Teksti("txtTotSahko"), "22,123456");
    EXPECT_EQ(lomake.Teksti("txtVeroluokka1"), "41,75") << "7,021846 euros in marks";
    EXPECT_EQ(lomake.Teksti("txtVakiokanta"), AppPath() + "Rakennekirjasto/Tietokanta_perus.mdb");
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(Ini(), ennen);
}

TEST_F(Asetusdialogit, OkWritesTheStoreAndTheObjectReadsIt) {
  const auto a = Muokkaa([](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtYleinenALV", "25.5");
    lomake.KayttajaKirjoittaa("txtTotVesi", "24");
    lomake.KayttajaPainaa("optIlmanLVI");
    lomake.KayttajaValitsee("cmbValuutta", "euro");
    lomake.KayttajaKirjoittaa("txtVeroluokka2", "6,3");
    lomake.KayttajaKirjoittaa("txtOletusosoite", "https://esimerkki.fi");
    lomake.KayttajaKirjoittaa("txtSah1", "Eero Sähkö");
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(a.YleinenALV, 25.5);
  EXPECT_EQ(a.dblVesiALV, 24);
  EXPECT_FALSE(a.KaytaKohtTulostuksissaALVHintoja);
  EXPECT_EQ(HaeAsetus(Avain::IlmanLVI), "-1");
  EXPECT_EQ(a.strDefaultCurrencyUnit, "euro");
  EXPECT_EQ(HaeAsetus(Avain::Veroluokka2), "6300000");
  EXPECT_EQ(HaeAsetus(Avain::Veroluokka1), "7021846") << "shown in two currencies, never rounded";
  EXPECT_EQ(a.strWWWOsoite, "https://esimerkki.fi");
  EXPECT_EQ(HaeAsetus(Avain::Sah1), "Eero Sähkö");
}

TEST_F(Asetusdialogit, TheCurrencyChangesUnitsAndTaxesAtOnceAndCancelLeavesEverything) {
  const std::string ennen = Ini();
  const auto a = Muokkaa([](Ikkunaton& lomake) {
    EXPECT_EQ(lomake.Teksti("lblVeroYksikko1"), "mk/MWh");
    lomake.KayttajaValitsee("cmbValuutta", "ITL");
    EXPECT_EQ(lomake.Teksti("lblVeroYksikko1"), "ITL/MWh");
    EXPECT_EQ(lomake.Teksti("txtVeroluokka1"), "13 596,19");
    lomake.KayttajaKirjoittaa("txtVeroluokka2", "1936,27");
    lomake.KayttajaPoistuu("txtVeroluokka2");
    lomake.KayttajaValitsee("cmbValuutta", "euro");
    EXPECT_EQ(lomake.Teksti("txtVeroluokka1"), "7,02");
    EXPECT_EQ(lomake.Teksti("txtVeroluokka2"), "1,00") << "what was typed is converted too";
    lomake.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_EQ(a.strDefaultCurrencyUnit, "mk");
  EXPECT_EQ(Ini(), ennen);
}

TEST_F(Asetusdialogit, BadNumbersAndMissingFilesAreRefused) {
  Muokkaa([this](Ikkunaton& lomake) {
    lomake.KayttajaKirjoittaa("txtVeroluokka1", "paljon");
    lomake.KayttajaPainaa("cmdOk");
    EXPECT_EQ(lomake.Kohdistettu(), "txtVeroluokka1");
    lomake.KayttajaKirjoittaa("txtVeroluokka1", "40");
    viestit_.AsetaSeuraavaTiedosto("/ei/ole/kanta.mdb");
    lomake.KayttajaPainaa("cmdSelaaKayttajakohtainen");
    lomake.KayttajaPainaa("cmdOk");
    EXPECT_EQ(lomake.Kohdistettu(), "txtKayttajakohtainen");
    EXPECT_NE(viestit_.Naytetyt().back().teksti.find("/ei/ole/kanta.mdb"), std::string::npos);
    EXPECT_TRUE(lomake.Auki());
    KirjoitaTiedosto(koti_ / "oma.mdb", "");
    viestit_.AsetaSeuraavaTiedosto((koti_ / "oma.mdb").string());
    lomake.KayttajaPainaa("cmdSelaaKayttajakohtainen");
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(HaeAsetus(Avain::Kayttajakohtainen), (koti_ / "oma.mdb").string());
}

TEST_F(Asetusdialogit, AFormThatShowsAmountsFollowsWhileItIsOpen) {
  frmOptions hinnat;  // any form with "mkTagi" in a caption
  int taytetty = 0;
  hinnat.RahatMuuttuivat = [&] { ++taytetty; };
  hinnat.lblVeroYksikko1.Otsikko("mk/MWh");
  hinnat.Nayta();
  Muokkaa([](Ikkunaton& lomake) {
    lomake.KayttajaValitsee("cmbValuutta", "euro");
    lomake.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(taytetty, 1);
  EXPECT_EQ(hinnat.lblVeroYksikko1.Otsikko(), "euro/MWh");
}

TEST_F(Asetusdialogit, AuditorsOfTheBuildingAreEditedAndTheOwnDefaultsCanBeFetched) {
  TallennaAsetus(Avain::LVI1, "Aino Åberg");
  TallennaAsetus(Avain::Sah4, "09 123");
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  clsKatselmoijienTiedot& tiedot = rakennus.KatselmoijienTiedot;
  tiedot.LVIKatselmoija.Nimi = "Entinen";
  tiedot.LVIKatselmoija.Puhelin = "040";
  rakennus.Tallennettu = true;
  const auto vaihda = [](Ikkunaton& lomake, const char* nappi) {
    EXPECT_EQ(lomake.Teksti("txtLVI1"), "Entinen");
    lomake.KayttajaPainaa("cmdHaeOmat");
    EXPECT_EQ(lomake.Teksti("txtLVI1"), "Aino Åberg");
    lomake.KayttajaKirjoittaa("txtSah5", "eero@esimerkki.fi");
    lomake.KayttajaPainaa(nappi);
  };
  ikkunat_.KunNaytetaan("frmKatselmoijienTiedot", [&](Ikkunaton& lomake) { vaihda(lomake, "cmdPeruuta"); });
  tiedot.NaytaKayttoliittyma();
  EXPECT_EQ(tiedot.LVIKatselmoija.Nimi, "Entinen");
  EXPECT_TRUE(rakennus.Tallennettu);
  ikkunat_.KunNaytetaan("frmKatselmoijienTiedot", [&](Ikkunaton& lomake) { vaihda(lomake, "cmdOk"); });
  tiedot.NaytaKayttoliittyma();
  EXPECT_EQ(tiedot.LVIKatselmoija.Nimi, "Aino Åberg");
  EXPECT_EQ(tiedot.LVIKatselmoija.Puhelin, "");
  EXPECT_EQ(tiedot.SahkoKatselmoija.Faksi, "09 123");
  EXPECT_EQ(tiedot.SahkoKatselmoija.Sahkoposti, "eero@esimerkki.fi");
  EXPECT_FALSE(rakennus.Tallennettu);
}

}  // namespace
