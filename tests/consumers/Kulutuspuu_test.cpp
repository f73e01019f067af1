// SPDX-License-Identifier: GPL-3.0-or-later
// The trees of consumers: rebuilding, sums, and what moves where.
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Virhe.h"
#include "tests/building/Koerakennus.h"
#include "ventilation/clsIVKoneet.h"

namespace {

template <class Puu>
double Rivi(const Puu& puu, const Tunniste& avain) {
  return puu.ListaItem(avain).Vuosikulutus;
}

template <class Puu>
std::vector<std::string> Lapset(const Puu& puu, const Tunniste& avain) {
  std::vector<std::string> nimet;
  for (const auto* rivi : puu.Lapset(avain)) nimet.push_back(rivi->NimiTeksti);
  return nimet;
}

using Nimet = std::vector<std::string>;

class SahkopuuTesti : public RakennusTesti {
 protected:
  SahkopuuTesti() { puu.LuoKiinteatRivit(); }

  /// A device of so many megawatt-hours a year.
  clsSahkonKulutusryhma& Laite(const char* nimi, const Tunniste& vanhempi, double kulutus) {
    clsSahkonKulutusryhma& ryhma = puu.LisaaRyhma(vanhempi, true);
    ryhma.KulutusRyhma = nimi;
    ryhma.LaskentatapaEnergiapohjainen(true);
    ryhma.LaskentatapaEnergiapohjainenIndex = 0;
    ryhma.SyötettyKulutus = kulutus;
    return ryhma;
  }
  clsTila& SahkolammitettyTila() {
    clsTila& tila = LisaaTila(300, 100);
    tila.TilanNimi = "Varasto";
    tila.TilanHenkilomaara = 2;
    tila.Sahkolammitys = true;
    return tila;
  }

  clsSahkonKulutusryhmat& puu = rakennus->SahkonKulutusryhmat;
};

TEST_F(SahkopuuTesti, TitlesSumTheirRowsAndAnEmptyOneIsZero) {
  Laite("Luokat", "sKeyValaistus", 3);
  Laite("Käytävät", "sKeyValaistus", 2);
  Laite("Keittiö", puu.LisaaNimike("Ruokala").sKey, 7);
  puu.LisaaNimike("Tyhjä").Vuosikulutus = 9;
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(Rivi(puu, "sKeyValaistus"), 5);
  EXPECT_EQ(Rivi(puu, "sKeyMuuSahko"), 0);
  EXPECT_EQ(Rivi(puu, "sKeySahkoYhteensa"), 12);
  EXPECT_EQ(Lapset(puu, "sKeySahkoYhteensa"), (Nimet{"Tyhjä", "Ruokala", "Muu sähkö", "LVI-sähkö", "Valaistus"}))
      << "the newest title stands first";
  EXPECT_EQ(puu.Lapset("sKeySahkoYhteensa").front()->Vuosikulutus, 0);
  EXPECT_EQ(puu.ListaItem(puu.Item(1).sKey).Laskentatapa, "Tarkennettu");
}

TEST_F(SahkopuuTesti, MovedRowsComeAfterTheDevicesInTheOrderOfTheirModules) {
  const clsTila& tila = SahkolammitettyTila();
  clsIVKone& kone = rakennus->IVKoneet.Add("kone");
  kone.KoneenTunnus = "TK01";
  rakennus->VedenKulutusryhmat.LKVTiedot.Sahkolammitys = true;
  rakennus->VedenKulutusryhmat.ProsessiVedenTiedot.Sahkolammitys = true;
  rakennus->VedenKulutusryhmat.LKVKiertoVirtaama = 0.1;
  Laite("Pumppu", "sKeyLVISahko", 1);
  puu.PaivitaKulutusRyhmatJaLaitteet();
  puu.ListaItem(tila.sKey).Collapsed = true;
  puu.PaivitaKulutusRyhmatJaLaitteet();  // moved rows are made anew, not twice
  EXPECT_EQ(Lapset(puu, "sKeyLVISahko"),
            (Nimet{"Pumppu", "Varasto", "TK01", "Lämpimän käyttöveden sähkölämmitys", "Prosessiveden sähkölämmitys"}));
  EXPECT_DOUBLE_EQ(Rivi(puu, "sKeyLkvSahko"), 18.3522);
  EXPECT_EQ(Rivi(puu, "sKeyProsessivesiSahko"), 0);
  EXPECT_TRUE(puu.ListaItem(tila.sKey).Collapsed) << "the display state stays";
}

TEST_F(SahkopuuTesti, TheTotalDiffersFromTheTreeByControlLossesAndMovedRowsWithDevices) {
  clsTila& tila = SahkolammitettyTila();
  Laite("Luokat", "sKeyValaistus", 3);
  puu.PaivitaKulutusRyhmatJaLaitteet();
  const double saatohaviot = tila.VuotuisetSaatohaviot();
  EXPECT_GT(saatohaviot, 0);
  EXPECT_DOUBLE_EQ(Rivi(puu, "sKeySahkoYhteensa") + saatohaviot, puu.Vuosikulutus());
  Laite("Lisälämmitin", tila.sKey, 4);
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(Rivi(puu, tila.sKey), 4) << "the sum of what hangs under it, in place of its own figure";
  EXPECT_DOUBLE_EQ(puu.Vuosikulutus() - Rivi(puu, "sKeySahkoYhteensa"),
                   saatohaviot + tila.VuotuinenLampoEnergianTarve());
}

TEST_F(SahkopuuTesti, ADeviceWhoseRowWentHangsUnderBuildingServices) {
  clsTila& tila = SahkolammitettyTila();
  puu.PaivitaKulutusRyhmatJaLaitteet();
  const Tunniste laite = Laite("Lisälämmitin", tila.sKey, 4).sKey;
  tila.Sahkolammitys = false;
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(puu.ListaItem(laite).Parent, Tunniste("sKeyLVISahko"));
  EXPECT_EQ(Rivi(puu, "sKeySahkoYhteensa"), 4);
  tila.Sahkolammitys = true;  // the row comes back, the device stays
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(puu.ListaItem(laite).Parent, Tunniste("sKeyLVISahko"));
}

TEST_F(SahkopuuTesti, ADamagedTreeIsMendedAndNothingVanishes) {
  const Tunniste a = Laite("Kehässä", "sKeyValaistus", 1).sKey, b = Laite("Toinen", "sKeyValaistus", 2).sKey;
  puu.ListaItem(a).Parent = b;
  puu.ListaItem(b).Parent = a;
  puu.Add("rivitön").KulutusRyhma = "Rivitön";
  puu.AddListaItem("ryhmätön", "sKeyValaistus", 0, "Ryhmätön", 100);
  puu.AddListaItem("n", "x", 1, "Nimike");
  puu.RemoveListaItem("sKeyMuuSahko");
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(Lapset(puu, "sKeyLVISahko"), (Nimet{"Kehässä", "Toinen", "Rivitön"}));
  EXPECT_EQ(Lapset(puu, "sKeySahkoYhteensa"), (Nimet{"LVI-sähkö", "Valaistus", "Nimike", "Muu sähkö"}));
  EXPECT_EQ(Rivi(puu, "sKeySahkoYhteensa"), 3);
}

TEST_F(SahkopuuTesti, AFailingFigureLeavesTheRowsAsTheyWere) {
  SahkolammitettyTila();
  Laite("Luokat", "sKeyValaistus", 3);
  puu.PaivitaKulutusRyhmatJaLaitteet();
  const int riveja = puu.CountListaItems();
  rakennus->Tilat.Item(1).TilanHenkilomaara = std::numeric_limits<double>::infinity();
  rakennus->Tilat.Item(1).Sisalampotila = std::numeric_limits<double>::infinity();
  EXPECT_THROW(puu.PaivitaKulutusRyhmatJaLaitteet(), Virhe);
  EXPECT_EQ(puu.CountListaItems(), riveja);
}

TEST_F(SahkopuuTesti, OnlyDevicesMoveAndTheyComeLast) {
  const Tunniste a = Laite("A", "sKeyValaistus", 1).sKey, b = Laite("B", "sKeyLVISahko", 1).sKey;
  const Tunniste nimike = puu.LisaaNimike("Ruokala").sKey;
  EXPECT_TRUE(puu.VoiSiirtaa(a, "sKeyMuuSahko"));
  EXPECT_TRUE(puu.VoiSiirtaa(a, b)) << "beside the other device";
  EXPECT_FALSE(puu.VoiSiirtaa(a, "sKeyValaistus")) << "where it is";
  EXPECT_FALSE(puu.VoiSiirtaa(a, "sKeySahkoYhteensa"));
  EXPECT_FALSE(puu.VoiSiirtaa(nimike, "sKeyLVISahko"));
  puu.Siirra(a, b);
  EXPECT_EQ(Lapset(puu, "sKeyLVISahko"), (Nimet{"Uusi kulutusryhmä", "Uusi kulutusryhmä"}));
  EXPECT_EQ(puu.Lapset("sKeyLVISahko").back()->sKey, a);
  puu.Siirra(a, "sKeySahkoYhteensa");
  EXPECT_EQ(puu.ListaItem(a).Parent, Tunniste("sKeyLVISahko"));
}

TEST_F(SahkopuuTesti, AMeasureFindsTheNodeOfAGroupAboveIt) {
  const clsTila& tila = SahkolammitettyTila();
  puu.PaivitaKulutusRyhmatJaLaitteet();
  const struct {
    Tunniste vanhempi, solmu;
  } kTapaukset[] = {{"sKeyValaistus", "sKeyValaistus"},
                    {"sKeyMuuSahko", "sKeyMuuSahko"},
                    {tila.sKey, "sKeyLVISahko"},
                    {puu.LisaaNimike("Oma").sKey, "sKeyMuuSahko"}};
  for (const auto& [vanhempi, solmu] : kTapaukset)
    EXPECT_EQ(puu.ToimenpiteidenSolmu(Laite("Laite", vanhempi, 1).sKey), solmu) << vanhempi.Teksti();
}

TEST_F(SahkopuuTesti, TheFingerprintSeesTheTreeButNotItsDisplayNorItsSums) {
  SahkolammitettyTila();
  const Tunniste laite = Laite("Pumppu", "sKeyLVISahko", 1).sKey;
  puu.PaivitaKulutusRyhmatJaLaitteet();
  const auto ennen = rakennus->Sormenjalki();
  puu.ListaItem("sKeyLVISahko").Collapsed = true;
  puu.ListaItem(laite).Visible = false;
  puu.ListaItem("sKeySahkoYhteensa").Vuosikulutus = 5;
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(rakennus->Sormenjalki(), ennen);
  puu.Siirra(laite, "sKeyMuuSahko");
  EXPECT_NE(rakennus->Sormenjalki(), ennen);
}

class VesipuuTesti : public RakennusTesti {
 protected:
  VesipuuTesti() {
    puu.LuoKiinteatRivit();
    suihkut = Kulutus("Suihkut", "sKeyNormaaliVesi");
    pesula = Kulutus("Pesula", "sKeyProsessivesi");
  }
  /// 146 m³/a at 55 °C, all of it hot.
  Tunniste Kulutus(const char* nimi, const Tunniste& vanhempi) {
    clsVedenKulutusryhma& ryhma = puu.LisaaRyhma(vanhempi, true);
    ryhma.KulutusRyhma = puu.ListaItem(ryhma.sKey).NimiTeksti = nimi;
    ryhma.LaskentaperusteNumber = 20;
    ryhma.Laskentayksikko = 10;
    ryhma.KayttokuvausKertaaD = 2;
    ryhma.KayttokuvausDpA = 365;
    ryhma.VedenKayttolampotila = 55;
    ryhma.LampimanVedenOsuus = 100;
    return ryhma.sKey;
  }

  clsVedenKulutusryhmat& puu = rakennus->VedenKulutusryhmat;
  Tunniste suihkut, pesula;
};

TEST_F(VesipuuTesti, RebuildingIsNoChangeOfTheObject) {
  const auto ennen = rakennus->Sormenjalki();
  puu.PaivitaKulutusRyhmatJaLaitteet();
  for (const Tunniste& avain : {suihkut, pesula})
    EXPECT_EQ(puu.ListaItem(avain).NimiTeksti, puu.Item(avain).KulutusRyhma);
  EXPECT_EQ(rakennus->Sormenjalki(), ennen);
}

TEST_F(VesipuuTesti, WaterHotWaterAndHeatAreSummedEachByItself) {
  constexpr double kLampo = 146 * 4.19 * 50 / 3.6 / 1000;
  puu.LKVKiertoVirtaama = 0.1;
  puu.Item(pesula).LampimanVedenOsuus = 50;
  puu.PaivitaKulutusRyhmatJaLaitteet();
  const clsVesiListaItem& juuri = puu.ListaItem("sKeyVesiYhteensa");
  EXPECT_DOUBLE_EQ(juuri.KvVuosikulutus, 292);
  EXPECT_DOUBLE_EQ(juuri.LkvVuosikulutus, 219);
  EXPECT_DOUBLE_EQ(juuri.Vuosikulutus, 2 * kLampo + 18.3522);
  EXPECT_DOUBLE_EQ(Rivi(puu, "sKeyLkvKierto"), 18.3522) << "a leaf that keeps its figure";
  EXPECT_DOUBLE_EQ(puu.RivienVedenKulutus(), 292);
  EXPECT_TRUE(puu.ListaItem(pesula).OnProsessiVesi);
}

TEST_F(VesipuuTesti, AMovedGroupTakesTheKindOfItsNewTitleAndKeepsItsUseTemperature) {
  puu.LKVTiedot.KylmanLampotila = 8;
  const Tunniste oma = puu.LisaaNimike("Autopesu").sKey;
  EXPECT_FALSE(puu.VoiSiirtaa(suihkut, "sKeyLkvKierto"));
  puu.Siirra(suihkut, oma);
  EXPECT_TRUE(puu.Item(suihkut).OnProsessivesi()) << "under a title of the person's own water is process water";
  EXPECT_EQ(puu.Item(suihkut).VedenTiedot.LamminLampotila, 70);
  EXPECT_EQ(puu.Item(suihkut).VedenKayttolampotila, 55);
  EXPECT_EQ(puu.ToimenpiteidenSolmu(puu.Item(suihkut)), Tunniste("sKeyProsessiVesi"));
  puu.Siirra(suihkut, "sKeyNormaaliVesi");
  EXPECT_EQ(puu.Item(suihkut).VedenTiedot.KylmanLampotila, 8);
  EXPECT_EQ(puu.ToimenpiteidenSolmu(puu.Item(suihkut)), Tunniste("sKeyNormaaliVesi"));
}

TEST_F(VesipuuTesti, OrphansGoUnderTheirKind) {
  for (const Tunniste& avain : {suihkut, pesula}) puu.ListaItem(avain).Parent = "poistettu";
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(puu.ListaItem(suihkut).Parent, Tunniste("sKeyNormaaliVesi"));
  EXPECT_EQ(puu.ListaItem(pesula).Parent, Tunniste("sKeyProsessivesi"));
}

TEST_F(VesipuuTesti, TheShareFollowsTheTemperaturesAndTellsWhatIsOutsideItsLimits) {
  puu.LKVTiedot.KylmanLampotila = 10;
  puu.LKVTiedot.LamminLampotila = 58;
  EXPECT_TRUE(puu.VesitiedotMuuttuivat().empty());
  EXPECT_EQ(puu.Item(suihkut).LampimanVedenOsuus, 94) << "(55 − 10) / 48 in whole per cents";
  EXPECT_EQ(puu.Item(pesula).LampimanVedenOsuus, 77) << "process water has temperatures of its own";
  puu.LKVTiedot.LamminLampotila = 50;
  const auto rajanYli = puu.VesitiedotMuuttuivat();
  ASSERT_EQ(rajanYli.size(), 1u);
  EXPECT_EQ(rajanYli.front(), &puu.Item(suihkut));
  EXPECT_EQ(puu.Item(suihkut).LampimanVedenOsuus, 113) << "kept";
  puu.LKVTiedot.KylmanLampotila = 50;
  EXPECT_TRUE(puu.VesitiedotMuuttuivat().empty());
  EXPECT_EQ(puu.Item(suihkut).LampimanVedenOsuus, 0);
  EXPECT_EQ(puu.Item(suihkut).VedenKayttolampotila, 55) << "the use temperature is what stays";
}

TEST_F(VesipuuTesti, DomesticTemperaturesCanBeGivenToEveryGroup) {
  puu.LKVTiedot.LamminLampotila = 60;
  puu.LKVTiedot.Sahkolammitys = true;
  puu.PaivitaVedenTiedotKulutusryhmiin();
  EXPECT_EQ(puu.Item(pesula).VedenTiedot.LamminLampotila, 60);
  EXPECT_TRUE(puu.Item(pesula).VedenTiedot.Sahkolammitys);
  puu.PaivitaKulutusRyhmatJaLaitteet();
  EXPECT_EQ(puu.Item(pesula).VedenTiedot.LamminLampotila, 70) << "rebuilding gives its kind's back";
}

}  // namespace
