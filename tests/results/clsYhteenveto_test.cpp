// SPDX-License-Identifier: GPL-3.0-or-later
// The yearly summary, by figures worked out by hand, and its window.
#include "results/clsYhteenveto.h"

#include <algorithm>
#include <cmath>

#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "results/Lampoyhteenveto.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/building/Koerakennus.h"
#include "ui/Lomakekaannos.h"

namespace {

class YhteenvetoTesti : public RakennusTesti {
 protected:
  /// A school that used 300 MWh of heat, 50 MWh of electricity and 700 m³ of water; heat is billed 40 €/MWh and
  /// 500 €/a, electricity 80 €/MWh, water 2 €/m³. Heat emits 180 kg/MWh by boilers of 90 %.
  YhteenvetoTesti() {
    LuoKoulu();
    tiedot.BruttoAla = 1000;
    tiedot.Kokonaistilavuus = 4000;
    clsToteutunutKulutus& vuosi = tiedot.ToteutuneetKulutukset.Item(2);
    for (clsToteutunutKulutus& muu : tiedot.ToteutuneetKulutukset) muu.KaytaVertailuVuotena = &muu == &vuosi;
    vuosi.Lampo = 300;
    vuosi.Sahko = 50;
    vuosi.Vesi = 700;
    vuosi.LammTarveLuku = 2 * tiedot.NormVuodenLammTarveLuku;
    tiedot.LammKulVakioOsuus.VuosiOsuus = 100;
    LisaaMuoto(tiedot.LammonHankinta, clsTariffi::LampoTariffi, 40).Perusmaksu = 500;
    LisaaMuoto(tiedot.SahkonHankinta, clsTariffi::SahkoMyyntiTariffi, 80);
    tiedot.LammonHankinta.Energiamuodot.Item(1).Hyotysuhde = 90;
    clsVesitariffi& vesi = rakennus->Vesitariffit.LisaaTariffi();
    vesi.PuhdasVesi().Hinta = 2;
    vesi.PuhdasVesi().Kulutusosuus = 100;
    clsEnergiamuoto& vesimuoto = tiedot.VedenHankinta.LisaaMuoto();
    vesimuoto.MyyntiTariffiSkey = vesi.sKey;
    vesimuoto.OsuusNettotarpeesta = 100;
    vesimuoto.IlmastonLampeneminenCO2ekv(999);
    Asetukset().ValuuttaTyyppi(1);
    Asetukset().KaytaKohtTulostuksissaALVHintoja = false;
  }
  ~YhteenvetoTesti() override { Asetukset().HaeRekisteristä(); }

  clsTariffi& LisaaMuoto(clsEnergianHankinta& hankinta, clsTariffi::Laji laji, double hinta) const {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Maksu(1).Hinta = hinta;
    tariffi.Maksu(1).Kulutusosuus = 100;
    clsEnergiamuoto& muoto = hankinta.LisaaMuoto();
    muoto.OsuusNettotarpeesta = 100;
    muoto.Hyotysuhde = 100;
    muoto.MyyntiTariffiSkey = tariffi.sKey;
    muoto.IlmastonLampeneminenCO2ekv(180);
    return tariffi;
  }
  clsYhteenveto Lue() const {
    clsYhteenveto yhteenveto;
    yhteenveto.LueDataluokka(*rakennus);
    return yhteenveto;
  }
  static double Arvo(clsYhteenveto& y, std::string_view nimi) {
    return clsYhteenveto::kLuokka.TulosNimella(nimi).Arvo({y});
  }
  static bool Huomauttaa(const clsYhteenveto& y, std::string_view mista) {
    return std::ranges::any_of(y.Huomautukset,
                               [&](const std::string& h) { return h.find(mista) != std::string::npos; });
  }

  clsPerustiedot& tiedot = rakennus->Perustiedot;
};

TEST_F(YhteenvetoTesti, TotalsAndSpecificFiguresByHand) {
  clsYhteenveto y = Lue();
  EXPECT_EQ(y.Vertailuvuosi, tiedot.ToteutuneetKulutukset.KulutusTietojenViimVuosi - 1);
  const std::pair<const char*, double> odotetut[] = {
      {"YhtLammitysenergiaKulutus", 200},     // (300 − 100) / 2 + 100
      {"YhtLammitysenergiaKustannus", 8500},  // 200 × 40 + 500
      {"YhtLammitysenergiaCO2paasto", 40},    // 180 / 0.9 × 200 / 1000
      {"YhtSahkoKulutus", 50},
      {"YhtSahkoKustannus", 4000},
      {"YhtSahkoCO2Paasto", 9},
      {"YhtVesiKulutus", 700},
      {"YhtVesiKustannus", 1400},
      {"YhtVesiCO2Paasto", 0},  // whatever its form says
      {"TunLammitysenergiaOminaiskulutus1", 0.05},
      {"TunLammitysenergiaOminaiskulutus2", 0.2},
      {"TunLammitysenergiaOminaiskustannus1", 2.125},
      {"TunLammitysenergiaOminaiskustannus2", 8.5},
      {"TunLammitysenergiaCO2Paasto1", 0.01},
      {"TunLammitysenergiaCO2Paasto2", 0.04},
      {"TunSahkoenergiaOminaiskulutus2", 0.05},
      {"TunSahkoenergiaOminaiskustannus1", 1},
      {"TunSahkoenergiaCO2Paasto2", 0.009},
      {"TunVesiOminaiskulutus1", 0.175},
      {"TunVesiOminaiskustannus2", 1.4},
      {"TunVesiCO2Paasto1", 0},
  };
  for (const auto& [nimi, odotettu] : odotetut) EXPECT_NEAR(Arvo(y, nimi), odotettu, 1e-9) << nimi;
  // Calculated: losses are in the gross use already, so that the emissions are of what is bought.
  const double brutto = rakennus->VuotuinenBruttoLampoEnergia();
  EXPECT_DOUBLE_EQ(Arvo(y, "LaskettuLammitysenergiaKulutus"), brutto);
  EXPECT_NEAR(Arvo(y, "LaskettuLammitysenergiaKustannus"), 40 * brutto + 500, 1e-6);
  EXPECT_NEAR(Arvo(y, "LaskettuLammitysenergiaCO2Paasto"), 0.18 * brutto, 1e-9);
  EXPECT_TRUE(y.Huomautukset.empty());

  Asetukset().KaytaKohtTulostuksissaALVHintoja = true;
  Asetukset().dblLampoALV = 24;
  Asetukset().dblCurrencyConvCoeff = 2;
  y = Lue();
  EXPECT_NEAR(Arvo(y, "YhtLammitysenergiaKustannus"), 8500 * 1.24 * 2, 1e-9);
  EXPECT_NEAR(Arvo(y, "LaskettuLammitysenergiaKustannus"), (40 * brutto + 500) * 1.24 * 2, 1e-6);
  EXPECT_NEAR(Arvo(y, "YhtLammitysenergiaCO2paasto"), 40, 1e-9);
}

TEST_F(YhteenvetoTesti, ASpecificFigureWithoutItsDivisorKeepsItsFormerValue) {
  clsYhteenveto y = Lue();
  tiedot.BruttoAla = 0;
  tiedot.Kokonaistilavuus = -1;
  tiedot.ToteutuneetKulutukset.Item(2).Vesi = 1400;
  y.LueDataluokka(*rakennus);
  EXPECT_EQ(y.YhtVesiKulutus.yhteensa, 1400);
  EXPECT_EQ(y.YhtVesiKulutus.neliolle, 0.7);
  EXPECT_EQ(y.YhtVesiKulutus.kuutiolle, 0.175);
  EXPECT_TRUE(Huomauttaa(y, "Bruttoala on 0"));
  EXPECT_TRUE(Huomauttaa(y, "Kokonaistilavuus on 0"));
}

TEST_F(YhteenvetoTesti, WhatIsMissingIsToldAndTheRestComputed) {
  tiedot.ToteutuneetKulutukset.Item(2).LammTarveLuku = 0;
  clsYhteenveto y = Lue();
  EXPECT_EQ(y.YhtLammitysenergiaKulutus.yhteensa, 0);
  EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "error 1050";
  EXPECT_TRUE(Huomauttaa(y, "puuttuu lämmitystarveluku"));

  tiedot.ToteutuneetKulutukset.Item(2).KaytaVertailuVuotena = false;
  tiedot.LammonHankinta.Energiamuodot.Tyhjenna();
  tiedot.SahkonHankinta.Energiamuodot.Item(1).MyyntiTariffiSkey = "poistettu";
  y = Lue();
  EXPECT_EQ(y.Vertailuvuosi, 0);
  EXPECT_EQ(y.YhtSahkoKulutus.yhteensa, 0);
  EXPECT_EQ(y.YhtSahkoCO2Paasto.yhteensa, 0);
  EXPECT_TRUE(std::isnan(y.YhtSahkoKustannus.yhteensa));
  EXPECT_THROW(Arvo(y, "YhtSahkoKustannus"), std::runtime_error);
  EXPECT_THROW(Arvo(y, "LaskettuSahkoKustannus"), std::runtime_error);
  EXPECT_EQ(Arvo(y, "LaskettuSahkoKulutus"), rakennus->VuotuinenBruttoSahkoEnergia());
  EXPECT_TRUE(Huomauttaa(y, "Vertailuvuotta ei ole valittu"));
  EXPECT_TRUE(Huomauttaa(y, "Lämmön hankinta: tariffia ei ole"));
  EXPECT_TRUE(Huomauttaa(y, "Sähkön hankinta: kustannusta ei voi laskea: avainta ei ole: poistettu"));
}

TEST_F(YhteenvetoTesti, TheWindowShowsTheFiguresAndFollowsCommitsAndCurrency) {
  rakennus->NaytaYhteenvetoDlg();
  const Ikkunaton& lomake = ikkunat.Ikkuna("frmYhteenveto");
  clsYhteenveto y = Lue();
  for (const Tulos& tulos : clsYhteenveto::kLuokka.Tulokset())
    if (tulos.laji == Tuloslaji::Vuosi) {
      EXPECT_EQ(lomake.Teksti("txt" + std::string(tulos.nimi)), Muotoile(tulos.Arvo({y}), tulos.kuvio)) << tulos.nimi;
    }
  EXPECT_EQ(lomake.Teksti("txtYhtLammitysenergiaKustannus"), "8 500");
  EXPECT_EQ(lomake.Teksti("txtSummaKustannus"), "13 900,00");
  EXPECT_EQ(lomake.Teksti("txtSummaOminaiskustannus1"), "3,48") << "2,13 + 1,00 + 0,35, as they are shown";
  EXPECT_EQ(lomake.Teksti("txtKaavionPaasto"), "49");
  const Kaaviotiedot& kaavio = lomake.Etsi("chtKustannukset").Kaavio();
  EXPECT_EQ(kaavio.otsikko, "Kustannusten jakauma");
  EXPECT_EQ(kaavio.nimet, (std::vector<std::string>{"Lämpö", "Sähkö", "Vesi"}));
  EXPECT_EQ(kaavio.arvot, (std::vector<double>{8500, 4000, 1400}));
  EXPECT_NE(lomake.Teksti("lblPerusteet").find("ilman arvonlisäveroa"), std::string::npos);
  EXPECT_TRUE(lomake.Etsi("txtTunLammitysenergiaOminaiskulutus2").Vihje().ends_with("200,00 kWh/m²,a"));

  tiedot.ToteutuneetKulutukset.Item(2).Vesi = 800;
  tiedot.SahkonHankinta.Energiamuodot.Item(1).MyyntiTariffiSkey = "poistettu";
  tiedot.BruttoAla = 0;
  rakennus->Muuttui("Perustiedot");
  EXPECT_EQ(lomake.Teksti("txtYhtVesiKustannus"), "1 600");
  EXPECT_EQ(lomake.Teksti("txtYhtSahkoKustannus"), "---");
  EXPECT_EQ(lomake.Teksti("txtSummaKustannus"), "---");
  EXPECT_TRUE(lomake.Etsi("chtKustannukset").Kaavio().arvot.empty());
  EXPECT_FALSE(lomake.Etsi("cmdKustannuskaavio").Kaytossa());
  EXPECT_EQ(lomake.Teksti("txtTunVesiOminaiskulutus2"), "") << "no area";
  EXPECT_TRUE(lomake.Etsi("lblHuomautukset").Nakyva());
  EXPECT_TRUE(viestit.Naytetyt().empty()) << "the window tells it";

  Asetukset().ValuuttaTyyppi(0);
  PaivitaRahat();
  EXPECT_EQ(lomake.Teksti("txtYhtVesiKustannus"), "9 513") << "1600 × 5.94573";
  EXPECT_NE(lomake.Teksti("lblPerusteet").find("(1 € = 5,94573 mk)"), std::string::npos);
}

TEST_F(YhteenvetoTesti, TheHeatSummarysResultsAreTheWindowsFigures) {
  rakennus->MuuLampo = 12.5;
  rakennus->NaytaLampoYhteenvetoDlg();
  const Ikkunaton& lomake = ikkunat.Ikkuna("frmLampoYhteenveto");
  for (const Tulos& tulos : LampoyhteenvedonTulokset())
    EXPECT_NEAR(LueLuku(lomake.Teksti(std::string(tulos.nimi))).value(), tulos.Arvo({*rakennus}), 0.03) << tulos.nimi;
}

}  // namespace
