// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Rakenneratkaisu.h"

#include <gtest/gtest.h>

namespace {

constexpr double kTarkkuus = 1e-6;  // figures are held in single precision

clsRakennekerros& LisaaKerros(Rakenneratkaisu& ratkaisu, float paksuus_mm, float lambda) {
  clsRakennekerros& kerros = ratkaisu.Kerrokset.LisaaKerros();
  kerros.Paksuus = paksuus_mm;
  kerros.Materiaali.Lambda = lambda;
  return kerros;
}

Rakenneratkaisu Ratkaisu(std::string_view tyyppi, float paksuus_mm = 0, float lambda = 0) {
  Rakenneratkaisu ratkaisu;
  ratkaisu.Rakennetyyppi = tyyppi;
  if (paksuus_mm > 0) LisaaKerros(ratkaisu, paksuus_mm, lambda);
  return ratkaisu;
}

double U(const Rakenneratkaisu& ratkaisu) { return ratkaisu.LaskeU_arvo().value_or(-1); }

}  // namespace

TEST(Rakenneratkaisu, LayersThatCountAddTheirResistances) {
  auto seina = Ratkaisu("Ulkoseinä", 13, 0.25F);  // 0.052 m²K/W
  LisaaKerros(seina, 200, 0.04F);                 // 5
  LisaaKerros(seina, 40, 0).Lammonvastus = 0.18F;
  LisaaKerros(seina, 130, 0.65F).UArvoon = false;  // cladding behind a ventilated gap
  EXPECT_NEAR(U(seina), 1 / (0.13 + 0.052 + 5 + 0.18 + 0.04), kTarkkuus);
}

TEST(Rakenneratkaisu, StudsWeakenTheInsulationByTheirShare) {
  auto seina = Ratkaisu("Ulkoseinä", 200, 0.04F);
  clsRakennekerros& runko = seina.Kerrokset.Item(1);
  runko.Lisamateriaali.Lambda = 0.12F;
  runko.LisamateriaalinOsuus = 10;
  EXPECT_NEAR(U(seina), 1 / 5.17, kTarkkuus);  // homogeneous: the second material stands by only
  runko.Yhtenainen = false;
  // R' = 1 / (0.9/5.17 + 0.1/1.836667) = 4.375852, R'' = 0.17 + 0.2/0.048 = 4.336667
  EXPECT_NEAR(U(seina), 2 / (4.375852 + 4.336667), kTarkkuus);
}

TEST(Rakenneratkaisu, SurfaceResistancesDefaultByKindWhenBothAreZero) {
  for (const auto& [tyyppi, R] :
       {std::pair{"Ulkoseinä", 1.17}, {"Yläpohja", 1.14}, {"Alapohja", 1.21}, {"KevytValiseinä", 1.26}, {"", 1.17}})
    EXPECT_NEAR(U(Ratkaisu(tyyppi, 100, 0.1F)), 1 / R, kTarkkuus) << tyyppi;

  auto seina = Ratkaisu("Ulkoseinä", 100, 0.1F);
  seina.PintavastusSisa = 0.5F;  // the outer one is 0 on purpose then
  EXPECT_NEAR(U(seina), 1 / 1.5, kTarkkuus);
}

TEST(Rakenneratkaisu, WithoutAResistingLayerThereIsNoU) {
  EXPECT_FALSE(Ratkaisu("Ulkoseinä", 100, 0).LaskeU_arvo());
  auto seina = Ratkaisu("Ulkoseinä", 100, 0.1F);
  seina.Kerrokset.Item(1).UArvoon = false;
  EXPECT_FALSE(seina.LaskeU_arvo());
}

TEST(Rakenneratkaisu, GivenUStandsBeforeTheLayersAndStatedUBehindThem) {
  auto ratkaisu = Ratkaisu("Ulkoseinä", 100, 0.1F);
  ratkaisu.U_arvo = 0.5F;
  EXPECT_NEAR(ratkaisu.VoimassaolevaU_arvo().value(), 1 / 1.17, kTarkkuus);
  ratkaisu.U_arvoAnnettu = true;
  EXPECT_EQ(ratkaisu.VoimassaolevaU_arvo(), 0.5);
  ratkaisu.U_arvo = 0;
  EXPECT_FALSE(ratkaisu.VoimassaolevaU_arvo());

  auto kerrokseton = Ratkaisu("Ovi");
  EXPECT_FALSE(kerrokseton.VoimassaolevaU_arvo());
  kerrokseton.U_arvo = 1.5F;
  EXPECT_EQ(kerrokseton.VoimassaolevaU_arvo(), 1.5);
}

TEST(Rakenneratkaisu, MassAndThicknessFollowTheLayers) {
  auto seina = Ratkaisu("Ulkoseinä", 100, 1);
  seina.Kerrokset.Item(1).Materiaali.Tiheys = 2400;  // 240 kg/m²
  clsRakennekerros& runko = LisaaKerros(seina, 200, 0.04F);
  runko.Yhtenainen = false;
  runko.Materiaali.Tiheys = 30;
  runko.Lisamateriaali.Tiheys = 500;
  runko.LisamateriaalinOsuus = 10;  // 0.2 m × (27 + 50) = 15.4 kg/m²
  seina.PaivitaKerrossummat();
  EXPECT_FLOAT_EQ(seina.KerrostenMassaYht, 255.4F);
  EXPECT_FLOAT_EQ(seina.Paksuus, 300);

  auto ovi = Ratkaisu("Ovi");
  ovi.Paksuus = 60;
  ovi.PaivitaKerrossummat();
  EXPECT_EQ(ovi.Paksuus, 60);
}

TEST(Rakenneratkaisu, MovingInwardsSwapsWithTheNeighbourAndKeepsKeys) {
  auto seina = Ratkaisu("Ulkoseinä", 1, 1);
  LisaaKerros(seina, 2, 1);
  LisaaKerros(seina, 3, 1);
  const Tunniste ulommainen = seina.Kerrokset.Item(3).sKey;
  seina.Kerrokset.SiirraSisaanpain(3);
  EXPECT_EQ(seina.Kerrokset.Item(2).Paksuus, 3);
  EXPECT_EQ(seina.Kerrokset.Item(2).sKey, ulommainen);
  EXPECT_EQ(seina.Kerrokset.Item(3).Paksuus, 2);
  seina.Kerrokset.SiirraSisaanpain(1);
  EXPECT_EQ(seina.Kerrokset.Item(1).Paksuus, 1);
  EXPECT_THROW(seina.Kerrokset.SiirraSisaanpain(4), std::out_of_range);
}

TEST(Rakenneratkaisu, StubNamesWhatIsMissing) {
  const auto seina = PuuttuvaRakenneratkaisu("US99", Rakennelaji::Ulkoseina);
  EXPECT_EQ(seina.Nimi, "Puuttuvan IDn: US99 rakenne");
  ASSERT_EQ(seina.Kerrokset.Count(), 1);
  EXPECT_FALSE(seina.VoimassaolevaU_arvo());
  EXPECT_TRUE(PuuttuvaRakenneratkaisu("X", Rakennelaji::Ikkuna).OnIkkuna);
}
