// SPDX-License-Identifier: GPL-3.0-or-later
// Logic of the dialogs, without windows.
#include <gtest/gtest.h>

#include "tests/tuki/Koeviestit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ui/Ikkunaton.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmJakaumaGraafi.h"
#include "ui/frmLammonTuotonJaJaonHaviot.h"
#include "ui/frmLampoYhteenveto.h"
#include "ui/frmNormeeraamatonKulutus.h"
#include "ui/frmPerustiedot.h"

namespace {

class Dialogit : public ::testing::Test {
 protected:
  Dialogit() {
    AlustaTekstit();
    AsetaTarkistuksenKello(nullptr);
  }

  Koeviestit viestit_;
  Ikkunattomat ikkunattomat_{Lahdekoodi("ui/forms")};
};

class Perustiedot : public Dialogit {
 protected:
  Perustiedot() {
    for (std::size_t i = 0; i < 3; ++i)
      for (const TextBox& kentta :
           {lomake_.txtLammTarveLuku[i], lomake_.txtLampo[i], lomake_.txtSahko[i], lomake_.txtVesi[i]})
        kentta.Teksti("0");
    lomake_.optVertailuvuosi[0].Valittu(true);
    lomake_.KulutustietoMuuttui = [this] { ++kulutuksia_; };
  }

  Ikkunaton& Ikkuna() { return ikkunattomat_.Ikkuna("frmPerustiedot"); }

  frmPerustiedot lomake_;
  int kulutuksia_ = 0;
};

TEST_F(Perustiedot, SpecificConsumptionsFollowYearVolumeAndArea) {
  Ikkuna().KayttajaKirjoittaa("txtKokonaistilavuus", "4 000");
  Ikkuna().KayttajaKirjoittaa("txtLampo1", "200");
  Ikkuna().KayttajaKirjoittaa("txtLampo2", "300");
  Ikkuna().KayttajaKirjoittaa("txtVesi1", "50");
  EXPECT_EQ(kulutuksia_, 3);
  EXPECT_EQ(lomake_.txtLampoKuutioille.Teksti(), "50,0");  // 200 MWh / 4000 m³
  EXPECT_EQ(lomake_.txtVesiKuutioille.Teksti(), "12,5");   // 50 m³ / 4000 m³ in dm³
  EXPECT_EQ(lomake_.txtLampoNelioille.Teksti(), "");       // no area yet
  Ikkuna().KayttajaPainaa("optVertailuvuosi2");
  EXPECT_EQ(kulutuksia_, 4);
  EXPECT_EQ(lomake_.Vertailuvuosi(), 1);
  EXPECT_EQ(lomake_.txtLampoKuutioille.Teksti(), "75,0");
}

TEST_F(Perustiedot, AHalfTypedNumberIsToldWhenTheFieldIsLeft) {
  lomake_.txtKulutusTietojenViimVuosi.Teksti("2025");
  lomake_.NaytaVuodet();
  Ikkuna().KayttajaKirjoittaa("txtSahko1", "");
  Ikkuna().KayttajaKirjoittaa("txtSahko1", "-");
  EXPECT_EQ(kulutuksia_, 0);
  EXPECT_TRUE(viestit_.Naytetyt().empty());
  Ikkuna().KayttajaPoistuu("txtSahko1");
  EXPECT_EQ(viestit_.Esiintymia("Sähkö (MWh/a), 2025."), 1);
  Ikkuna().KayttajaKirjoittaa("txtSahko1", "15");
  Ikkuna().KayttajaPoistuu("txtSahko1");
  EXPECT_EQ(kulutuksia_, 1);
  EXPECT_EQ(viestit_.Naytetyt().size(), 1u);
}

class Vakioosuus : public Dialogit {
 protected:
  bool Kysy(const Ikkunattomat::Kasikirjoitus& kasikirjoitus) {
    ikkunattomat_.KunNaytetaan("frmNormeeraamatonKulutus", kasikirjoitus);
    return frmNormeeraamatonKulutus().Kysy(kk_, vuosi_);
  }
  double kk_ = 1.26, vuosi_ = 15.12;
};

TEST_F(Vakioosuus, TheFieldsFollowEachOther) {
  EXPECT_TRUE(Kysy([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtKk_kulutus", "2,5");
    EXPECT_EQ(l.Teksti("txtVuosi_kulutus"), "30,0");
    l.KayttajaKirjoittaa("txtKk_kulutus", "x");
    EXPECT_EQ(l.Teksti("txtVuosi_kulutus"), "30,0");
    l.KayttajaKirjoittaa("txtVuosi_kulutus", "20");
    l.KayttajaPoistuu("txtKk_kulutus");
    EXPECT_EQ(l.Teksti("txtKk_kulutus"), "1,7");
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(vuosi_, 20);
  EXPECT_DOUBLE_EQ(kk_, 20 / 12.0);
}

TEST_F(Vakioosuus, UnchangedStaysExactAndCancelledAsItWas) {
  EXPECT_TRUE(Kysy([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKk_kulutus"), "1,3");
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(kk_, 1.26);
  EXPECT_FALSE(Kysy([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtKk_kulutus", "9");
    l.KayttajaPainaa("cmdPeruuta");
  }));
  EXPECT_EQ(kk_, 1.26);
  EXPECT_EQ(vuosi_, 15.12);
  EXPECT_FALSE(Kysy([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtKk_kulutus", "-1");
    l.KayttajaPainaa("cmdOk");
    EXPECT_TRUE(l.Auki());
    l.KayttajaPainaa("cmdPeruuta");
  }));
  EXPECT_EQ(viestit_.Esiintymia("vähintään 0"), 1);
}

class Lampoyhteenveto : public Dialogit {
 protected:
  Lampoyhteenveto() {
    lomake_.BruttoAla = 1000;
    lomake_.Kokonaistilavuus = 4000;
    lomake_.KohteenNimi = "Koulu";
    lomake_.txtTilojenLammitys.arvo.Teksti("1 200,00");
    lomake_.txtIlmanvaihtokoneet.arvo.Teksti("300,50");
    lomake_.txtKayttoVedenLammitys.arvo.Teksti("80,25");
    lomake_.txtProsessiVedenLammitys.arvo.Teksti("19,25");
    lomake_.txtMuuLampo.arvo.Teksti("0,00");
    lomake_.txtToteutunutKulutus.arvo.Teksti("1 700,00");
    lomake_.txtSaatoHaviot.Teksti("160,00000000");
    lomake_.txtLammonTuotonHaviot.Teksti("40,12345678");
    lomake_.Laske();
  }
  Ikkunaton& Ikkuna() { return ikkunattomat_.Ikkuna("frmLampoYhteenveto"); }
  frmLampoYhteenveto lomake_;
};

TEST_F(Lampoyhteenveto, SumsDifferenceAndSpecificValues) {
  EXPECT_EQ(lomake_.txtVedenLammitysYht.arvo.Teksti(), "99,50");
  EXPECT_EQ(lomake_.txtYhteensa.arvo.Teksti(), "1 600,00");
  EXPECT_EQ(lomake_.txtHaviot.arvo.Teksti(), "100,00");
  EXPECT_EQ(lomake_.txtHaviotYhteensa.arvo.Teksti(), "200,12");
  EXPECT_EQ(lomake_.txtYhteensa.nelioille.Teksti(), "1600,00");  // kWh/m²
  EXPECT_EQ(lomake_.txtYhteensa.kuutioille.Teksti(), "400,00");
  lomake_.BruttoAla = 0;
  lomake_.txtToteutunutKulutus.arvo.Teksti("0,00");
  lomake_.Laske();
  EXPECT_EQ(lomake_.txtToteutunutKulutus.nelioille.Teksti(), "1700,00");  // stays, no division
  EXPECT_EQ(lomake_.txtToteutunutKulutus.kuutioille.Teksti(), "0,00");
}

TEST_F(Lampoyhteenveto, OtherHeatChangesTheSumAndAFaultyOneBlocksOk) {
  double muu = -1;
  int okeja = 0;
  lomake_.MuuLampoMuuttui = [&](double arvo) { muu = arvo; };
  lomake_.OkKlikattu = [&] { ++okeja; };
  Ikkuna().KayttajaKirjoittaa("txtMuuLampo", "1 000,5");
  EXPECT_EQ(muu, -1) << "not before the field is left";
  EXPECT_EQ(lomake_.txtYhteensa.arvo.Teksti(), "2 600,50");
  EXPECT_EQ(lomake_.txtHaviot.arvo.Teksti(), "-900,50");
  Ikkuna().KayttajaPoistuu("txtMuuLampo");
  EXPECT_EQ(muu, 1000.5);
  Ikkuna().KayttajaKirjoittaa("txtMuuLampo", "1 000,5x");
  Ikkuna().KayttajaPainaa("cmdOk");
  EXPECT_EQ(okeja, 0);
  EXPECT_EQ(viestit_.Naytetyt().size(), 1u);
  EXPECT_TRUE(Ikkuna().TekstiValittu());
  Ikkuna().KayttajaKirjoittaa("txtMuuLampo", "0");
  Ikkuna().KayttajaPainaa("cmdOk");
  EXPECT_EQ(muu, 0);
  EXPECT_EQ(okeja, 1);
}

TEST_F(Lampoyhteenveto, TheLossesOpenAndChangeByTheirFormulas) {
  ikkunattomat_.KunNaytetaan("frmLammonTuotonJaJaonHaviot", [](Ikkunaton& l) {
    // Net heat Y = 1600 − 100 = 1500.
    EXPECT_EQ(l.Teksti("txtSaatoHaviot"), "160,00");
    EXPECT_EQ(l.Teksti("txtLammonTuotonHaviot"), "40,12");
    EXPECT_EQ(l.Teksti("txtHaviotYhteensa"), "200,12");
    EXPECT_EQ(l.Teksti("txtHyotysuhdeSaato"), "90,0");         // (1 − 160/1600) × 100
    EXPECT_EQ(l.Teksti("txtHyotysuhdeLammonTuotto"), "97,5");  // (1 − 40,12/1600) × 100
    EXPECT_EQ(l.Teksti("txtHyotysuhdeYhteensa"), "88,2");      // 1500 / 1700,12
    l.KayttajaKirjoittaa("txtSaatoHaviot", "500");
    EXPECT_EQ(l.Teksti("txtHyotysuhdeSaato"), "75,0");         // 1500 / 2000
    EXPECT_EQ(l.Teksti("txtHyotysuhdeLammonTuotto"), "97,5");  // not edited
    EXPECT_EQ(l.Teksti("txtHaviotYhteensa"), "540,12");
    EXPECT_EQ(l.Teksti("txtHyotysuhdeYhteensa"), "73,5");
    l.KayttajaKirjoittaa("txtSaatoHaviot", "5OO");
    EXPECT_EQ(l.Teksti("txtHyotysuhdeSaato"), "75,0");
    l.KayttajaPainaa("cmdSulje");
  });
  Ikkuna().KayttajaPainaa("Command4");
  EXPECT_TRUE(viestit_.Naytetyt().empty());
}

TEST_F(Dialogit, LossesHaveNoEfficiencyUnlessTheSumIsPositive) {
  ikkunattomat_.KunNaytetaan("frmLammonTuotonJaJaonHaviot", [](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtHyotysuhdeSaato"), "0,0");
    EXPECT_EQ(l.Teksti("txtHyotysuhdeLammonTuotto"), "0,0");
    l.KayttajaKirjoittaa("txtSaatoHaviot", "0");
    l.KayttajaPainaa("cmdSulje");
  });
  frmLammonTuotonJaJaonHaviot().NaytaHaviot(0, 0, 0, 0);
  EXPECT_TRUE(viestit_.Naytetyt().empty());
}

TEST_F(Lampoyhteenveto, TheChartHasCaptionsWithoutColonsAndShares) {
  ikkunattomat_.KunNaytetaan("frmJakaumaGraafi", [](Ikkunaton& l) {
    const Kaaviotiedot& kaavio = l.Etsi("chtReport").Kaavio();
    EXPECT_EQ(kaavio.otsikko, "Koulu");
    ASSERT_EQ(kaavio.nimet.size(), 4u) << "nothing of other heat";
    EXPECT_EQ(kaavio.nimet[0], "Tilojen lämmitys  (75 %) ");
    EXPECT_EQ(kaavio.arvot, (std::vector<double>{1200, 300.5, 80.25, 19.25}));
    EXPECT_EQ(kaavio.yksikko, "MWh/a");
    l.KayttajaPainaa("cmdSulje");
  });
  Ikkuna().KayttajaPainaa("cmdNaytaGraafi");
}

}  // namespace
