// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/building/Koerakennus.h"

namespace {

using clsRakenneTesti = RakennusTesti;

TEST_F(clsRakenneTesti, OutdoorWallLosesByDegreeHours) {
  clsTila& tila = LisaaTila();
  const clsRakenne& seina = LisaaRakenne(tila, Rakennelaji::Ulkoseina, 200, 0.28);
  // January of zone I is -3.97 °C: (21 + 3.97) × 200 × 0.28 × 31 × 24 / 1000 = 1040.35008 kWh.
  EXPECT_NEAR(seina.LampoHaviot(21, 0), 1040.35008, 1e-9);
  // A room colder than July gains: kept negative.
  EXPECT_LT(seina.LampoHaviot(10, 6), 0);
}

TEST_F(clsRakenneTesti, BoundaryDecidesWallsRoofsAndFloorsOnly) {
  clsTila& tila = LisaaTila();
  const double suora = LisaaRakenne(tila, Rakennelaji::Ylapohja, 50, 0.4).LampoHaviot(21, 1);
  clsRakenne& puskuri = LisaaRakenne(tila, Rakennelaji::Ylapohja, 50, 0.4);
  puskuri.TyyppiID = kPuskuritila;
  EXPECT_NEAR(puskuri.LampoHaviot(21, 1), 0.8 * suora, 1e-9);
  puskuri.TyyppiID = kHuonelampoinenTila;
  EXPECT_EQ(puskuri.LampoHaviot(21, 1), 0);
  puskuri.TyyppiID = 4;
  EXPECT_EQ(puskuri.LampoHaviot(21, 1), 0);

  clsRakenne& ikkuna = LisaaRakenne(tila, Rakennelaji::Ikkuna, 50, 0.4);
  for (const std::int32_t rajoittuminen : {kUlkoilma, kPuskuritila, kMaa, kHuonelampoinenTila}) {
    ikkuna.TyyppiID = rajoittuminen;
    EXPECT_NEAR(ikkuna.LampoHaviot(21, 1), suora, 1e-9) << "a window conducts plainly, boundary " << rajoittuminen;
  }
  for (const std::int32_t tyyppi : {5, 6, 7, 8, -1})
    EXPECT_EQ(LisaaRakenne(tila, tyyppi, 50, 0.4).LampoHaviot(21, 1), 0) << "kind " << tyyppi;
}

TEST_F(clsRakenneTesti, GroundLossGoesByAreaAndRoomTemperature) {
  clsTila& tila = LisaaTila();
  clsRakenne& lattia = LisaaRakenne(tila, Rakennelaji::Alapohja, 100, 0.36);
  lattia.TyyppiID = kMaa;
  EXPECT_EQ(lattia.LampoHaviot(17.1, 1), 250);  // 2.5 kWh/m² in February
  EXPECT_EQ(lattia.LampoHaviot(17, 1), 180);    // exactly 17: the band below
  EXPECT_NEAR(lattia.LampoHaviot(12, 1), 110, 1e-9);
  EXPECT_NEAR(lattia.LampoHaviot(5, 1), 110, 1e-9);
  lattia.U_arvo(2.0);
  EXPECT_EQ(lattia.LampoHaviot(21, 1), 250) << "U plays no part";
  EXPECT_TRUE(viestit.Naytetyt().empty());
  EXPECT_EQ(lattia.LampoHaviot(4.9, 1), 0);
  EXPECT_EQ(lattia.LampoHaviot(4.9, 2), 0);
  EXPECT_EQ(viestit.Esiintymia(Teksti(9212)), 2) << "the message comes each time it is met";
}

TEST_F(clsRakenneTesti, TwelveMonthsAtOnceAreTheMonthsOneByOne) {
  clsTila& tila = LisaaTila();
  LisaaRakenne(tila, Rakennelaji::Ulkoseina, 123.4, 0.27);
  LisaaRakenne(tila, Rakennelaji::Ylapohja, 55.5, 0.31).TyyppiID = kPuskuritila;
  LisaaRakenne(tila, Rakennelaji::Alapohja, 77.7, 0.36).TyyppiID = kMaa;
  LisaaIkkuna(tila, 12.3, kEtela);
  LisaaRakenne(tila, Rakennelaji::Valipohja, 500, 1);
  const Kuukausitaulu vuosi = tila.Rakenteet.LampoHaviot(21.3);
  for (int m = 0; m < kKuukausia; ++m)
    EXPECT_EQ(vuosi[static_cast<std::size_t>(m)], tila.Rakenteet.LampoHaviot(21.3, m)) << "month " << m;
}

TEST_F(clsRakenneTesti, SolarGainFollowsRadiationAreaAndFactors) {
  clsTila& tila = LisaaTila();
  clsRakenne& ikkuna = LisaaIkkuna(tila, 10, kEtela);
  ikkuna.HorisVarjostus.Varjostuskulma = 0;
  // Unshaded: I × A × 0.9 g × F_frame × F_curtain.
  const double odotettu = rakennus->Saa.AuringonSateily(4, kEtela) * 10 * 0.9 * 0.70 * 0.75 * 0.75;
  EXPECT_NEAR(ikkuna.AurinkoKuorma(4), odotettu, 1e-4);
  ikkuna.MitatoiAurinkokuormat();
  ikkuna.HorisVarjostus.Varjostuskulma = 30;
  EXPECT_LT(ikkuna.AurinkoKuorma(4), odotettu);

  clsTila& toinen = LisaaTila(5000, 3000);
  clsRakenne& sama = LisaaIkkuna(toinen, 10, kEtela);
  sama.HorisVarjostus.Varjostuskulma = 30;
  for (int m = 0; m < kKuukausia; ++m) EXPECT_EQ(sama.AurinkoKuorma(m), ikkuna.AurinkoKuorma(m)) << "other space";
  EXPECT_EQ(LisaaRakenne(tila, Rakennelaji::Ulkoseina, 10, 1).AurinkoKuorma(4), 0);
}

TEST_F(clsRakenneTesti, TwelveReadsServeFromOneRunAndThenItIsStale) {
  clsTila& tila = LisaaTila();
  clsRakenne& ikkuna = LisaaIkkuna(tila, 10, kEtela);
  const double ennen = ikkuna.AurinkoKuorma(5);
  ikkuna.PintaAla = 20;
  EXPECT_EQ(ikkuna.AurinkoKuorma(5), ennen) << "from the cache";
  ikkuna.AurinkoKuorma(11);
  EXPECT_NEAR(ikkuna.AurinkoKuorma(5), 2 * ennen, 1e-9) << "the twelfth month ended the cache";
  ikkuna.PintaAla = 10;
  tila.AurKuormatTilassaUpToDate(false);
  EXPECT_NEAR(ikkuna.AurinkoKuorma(5), ennen, 1e-9) << "the space's invalidation reaches the window";
}

}  // namespace
