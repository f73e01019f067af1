// SPDX-License-Identifier: GPL-3.0-or-later
// The first model that is generated from the basic data.
#include <cmath>

#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Virhe.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/building/Koerakennus.h"

namespace {

using AlkuarvotTesti = RakennusTesti;

TEST_F(AlkuarvotTesti, WallAreaFollowsThePlanShape) {
  clsTila& tila = LisaaTila(6000, 2000);  // two storeys of 1000 m², 6 m in all
  EXPECT_NEAR(LaskeUlkoseinaAla(tila, 0, 1, 2), 4 * std::sqrt(1000.0) * 6, 1e-9);
  EXPECT_NEAR(LaskeUlkoseinaAla(tila, 1, 0.5, 2), 3 * std::sqrt(2000.0) * 6, 1e-9);
  EXPECT_NEAR(LaskeUlkoseinaAla(tila, 2, 0.5, 2), 4 * std::sqrt(1000 / 0.75) * 6, 1e-9);
  EXPECT_NEAR(LaskeUlkoseinaAla(tila, 3, 0.5, 2), 5.5 * std::sqrt(1000.0) * 6, 1e-9);
  EXPECT_NEAR(LaskeUlkoseinaAla(tila, 4, 0.5, 2), 4 * std::sqrt(1000 / 1.5) * 6, 1e-9);
  EXPECT_EQ(LaskeUlkoseinaAla(tila, 5, 0.5, 2), 0);
  EXPECT_TRUE(viestit.Naytetyt().empty());
  EXPECT_EQ(LaskeUlkoseinaAla(tila, 1, 0.5, 0), 0);
  EXPECT_EQ(LaskeUlkoseinaAla(tila, 1, 0, 2), 0);
  EXPECT_EQ(viestit.Naytetyt().size(), 2u) << "errors 1022 and 1023";
  tila.BruttoAla = 0;
  EXPECT_THROW(LaskeUlkoseinaAla(tila, 1, 0.5, 2), Virhe);
}

TEST_F(AlkuarvotTesti, ASchoolTakesShapeFromItsBasicData) {
  LuoKoulu();
  EXPECT_TRUE(viestit.Naytetyt().empty());
  EXPECT_TRUE(rakennus->Perustiedot.OletusarvotLaskettu);
  EXPECT_FALSE(rakennus->Tallennettu);
  ASSERT_EQ(rakennus->Tilat.Count(), 1);
  const clsTila& tila = rakennus->Tilat.Item(1);
  EXPECT_EQ(tila.TilanHenkilomaara, 420);
  ASSERT_EQ(tila.Rakenteet.Count(), 7);
  // Perimeter of a 1 : 2 rectangle of 1400 m² is 158.745 m, height 17500 / 4200 a storey; less 12 % windows, 1 % doors.
  const double seinat = 3 * std::sqrt(2800.0) * (17500.0 / 4200) * 3 - 0.13 * 4200;
  EXPECT_NEAR(tila.Rakenteet.UlkoSeinienAla(), seinat, 0.05);
  EXPECT_NEAR(tila.Rakenteet.IkkunoidenAla(), 504, 1e-9);
  EXPECT_EQ(tila.Rakenteet.YlaPohjienAla(), 1400);
  const clsRakenne& etela = tila.Rakenteet.Item(3);
  EXPECT_EQ(etela.SuuntausID, kEtela);
  EXPECT_EQ(etela.PintaAla, 201.6);  // 40 % of the windows, one decimal
  EXPECT_EQ(etela.U_arvo(), 2.8) << "windows of before 1976";
  EXPECT_TRUE(etela.RakenneRatkaisu->OnIkkuna);
  EXPECT_NEAR(tila.Rakenteet.Item(1).U_arvo(), 0.81, 0.005) << "brick wall of before 1969, from its layers";
  EXPECT_TRUE(tila.Rakenteet.Item(1).LaskeU_arvoMateriaaleista);
  EXPECT_FALSE(etela.LaskeU_arvoMateriaaleista) << "a window's U is given";
  EXPECT_EQ(tila.Rakenteet.Item(6).TyyppiID, kMaa);
  EXPECT_EQ(tila.Rakenteet.Item(7).TyyppiID, kUlkoilma);
}

TEST_F(AlkuarvotTesti, TreesOfConsumersAndMeasuresStand) {
  LuoKoulu();
  const auto& sahko = rakennus->SahkonKulutusryhmat;
  ASSERT_EQ(sahko.CountListaItems(), 4);
  EXPECT_EQ(sahko.ListaItem(4).sKey, Tunniste("sKeyValaistus"));
  EXPECT_EQ(sahko.ListaItem("sKeyLVISahko").Parent, Tunniste("sKeySahkoYhteensa"));

  const auto& vesi = rakennus->VedenKulutusryhmat;
  ASSERT_EQ(vesi.Count(), 3);
  EXPECT_EQ(vesi.Item(2).KulutusRyhma, "Keittiö");
  EXPECT_EQ(vesi.Item(2).VedenTiedot.LamminLampotila, 55);
  EXPECT_EQ(vesi.ListaItem(vesi.Item(2).sKey).Parent, Tunniste("sKeyNormaaliVesi"));

  const auto& toimenpiteet = rakennus->Saastotoimenpiteet;
  EXPECT_EQ(toimenpiteet.CountListaItems(), 14);
  EXPECT_EQ(toimenpiteet.ListaItem(14).sKey, Tunniste("sKeyProsessiVesi"));
  EXPECT_EQ(toimenpiteet.ListaItem(14).Parent, Tunniste("sKeyVesi"));
  ASSERT_EQ(rakennus->ToimenpiteidenJarjestelija.ValitutToimenpiteet.Count(), 1);
  EXPECT_EQ(rakennus->ToimenpiteidenJarjestelija.ValitutToimenpiteet.Item(1).Nimi, "Valitut yhteensä");
}

TEST_F(AlkuarvotTesti, NoStoreysAndNoHeatedAreaStillGiveAModel) {
  rakennus->Perustiedot.KerrostenLukumaara = 0;
  rakennus->Perustiedot.ValmistumisVuosi = 1985;
  rakennus->Perustiedot.OtaKayttoon(kHelsinki);
  EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "error 1022";
  const clsRakenteet& rakenteet = rakennus->Tilat.Item(1).Rakenteet;
  EXPECT_EQ(rakenteet.UlkoSeinienAla(), 0);
  EXPECT_EQ(rakenteet.AlapohjienAla(), 500);

  clsRakennus kylma;
  AsetaGlobaaliRakennus(&kylma);
  kylma.Perustiedot.BruttoAla = 100;
  kylma.Perustiedot.KylmanAlanOsuus = 100;
  kylma.Perustiedot.KylmanTilavuudenOsuus = 100;
  kylma.Perustiedot.ValmistumisVuosi = 1985;
  kylma.Perustiedot.OtaKayttoon(0);
  EXPECT_EQ(viestit.Naytetyt().size(), 2u) << "height of a space without area: shown, and the wall is 0";
  EXPECT_EQ(kylma.Tilat.Item(1).Rakenteet.UlkoSeinienAla(), 0);
  EXPECT_EQ(kylma.Tilat.Item(1).Rakenteet.Count(), 7);
}

TEST_F(AlkuarvotTesti, AYearWithoutDefaultsLeavesTheTableUValues) {
  rakennus->Perustiedot.ValmistumisVuosi = 0;
  rakennus->Perustiedot.OtaKayttoon(kHelsinki);
  EXPECT_EQ(viestit.Esiintymia(Teksti(9164)), 1);
  const clsRakenteet& rakenteet = rakennus->Tilat.Item(1).Rakenteet;
  for (const clsRakenne& rakenne : rakenteet) EXPECT_FALSE(rakenne.RakenneRatkaisu);
  EXPECT_EQ(rakenteet.Item(1).U_arvo(), 0.29);
  EXPECT_EQ(rakenteet.Item(7).U_arvo(), 0.22);
}

TEST_F(AlkuarvotTesti, AMissingLibraryEntryIsNamed) {
  clsTila& tila = LisaaTila();
  Rakennekirjasto kirjasto(Asetukset().strKayttajanTietokanta, Asetukset().strVakioTietokanta);
  clsRakenne& ikkuna = tila.Rakenteet.Add("i");
  LuoRakenne(ikkuna, {"Ikkuna", Rakennelaji::Ikkuna, kEtela, 12.34, 1.8, "EIOLE"}, &kirjasto);
  EXPECT_EQ(ikkuna.RakenneRatkaisu->Nimi, "Puuttuvan IDn: EIOLE rakenne");
  EXPECT_EQ(ikkuna.U_arvo(), 1.8);
  EXPECT_EQ(ikkuna.PintaAla, 12.3);
  EXPECT_GT(ikkuna.AurinkoKuorma(4), 0) << "a missing window still lets the sun in";
}

TEST_F(AlkuarvotTesti, AnUnreadableLibraryIsToldBeforeTheModelIsMade) {
  const TilanLahtotiedot koulu{.tilavuus = 17500, .ala = 4200, .kayttotarkoituskoodi = 51, .vuosi = 1965};
  EXPECT_TRUE(VahvistaRakennekirjasto(koulu));
  EXPECT_TRUE(viestit.Naytetyt().empty());

  Asetukset().strKayttajanTietokanta = "/ei/ole/oma.mdb";
  EXPECT_TRUE(VahvistaRakennekirjasto(koulu));
  EXPECT_EQ(viestit.Esiintymia("/ei/ole/oma.mdb"), 1);
  clsTilat tilat;
  LuoTilat(tilat, koulu);
  EXPECT_NEAR(tilat.Item(1).Rakenteet.Item(1).U_arvo(), 0.81, 0.005) << "the standard one serves alone";
  EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "told once";

  Asetukset().strVakioTietokanta = "/ei/ole/vakio.mdb";
  for (const Vastaus vastaus : {Vastaus::Ei, Vastaus::Kylla}) {
    viestit.AsetaSeuraavaVastaus(vastaus);
    EXPECT_EQ(VahvistaRakennekirjasto(koulu), vastaus == Vastaus::Kylla);
  }
  EXPECT_EQ(viestit.Esiintymia("/ei/ole/vakio.mdb"), 2);
  Asetukset().HaeRekisteristä();
}

}  // namespace
