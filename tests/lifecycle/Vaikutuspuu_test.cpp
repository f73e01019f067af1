// SPDX-License-Identifier: GPL-3.0-or-later
// Environmental impact of the materials in the structures and of the energy bought.
#include "lifecycle/Vaikutuspuu.h"

#include "building/Hankintalaskelma.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tests/measures/Koemuunnelma.h"

namespace {

constexpr std::size_t kUusiutuva = 1, kIlmasto = kIlmastonLampeneminen;

class Vaikutukset : public Muunneltava {
 protected:
  Vaikutuspuu Puu(std::optional<int> pitoaika = {}) { return {*rakennus, aineet, pitoaika}; }
  /// A wall of 100 m² without layers in place of all structures.
  Rakenneratkaisu& Seina() {
    rakennus->IVKoneet.Tyhjenna();
    rakennus->Tilat.Tyhjenna();
    clsRakenne& rakenne = LisaaRakenne(LisaaTila(900), Rakennelaji::Ulkoseina, 100, 0.3);
    rakenne.RakenneRatkaisu.Luo().Nimi = "Sandwich";
    return *rakenne.RakenneRatkaisu;
  }
  static clsRakennekerros& Kerros(Rakenneratkaisu& seina, float paksuus, Materiaali aine) {
    clsRakennekerros& kerros = seina.Kerrokset.LisaaKerros();
    kerros.Paksuus = paksuus;
    kerros.Materiaali = std::move(aine);
    return kerros;
  }

  Materiaalivaikutukset aineet{Asetukset().strVakioTietokanta};
};

TEST_F(Vaikutukset, TheMaterialsOfAWallByHand) {
  Rakenneratkaisu& seina = Seina();
  Kerros(seina, 200, {2, 2400, 1, "Elementin sisäkuori", "bet2400"});
  clsRakennekerros& villa = Kerros(seina, 150, {0.035f, 30, 1.03f, "Mineraalivilla 0,035"});
  villa.Yhtenainen = false;
  villa.LisamateriaalinOsuus = 10;
  villa.Lisamateriaali = {0.13f, 500, 1.6f, "Puu, havupuu 500"};
  Kerros(seina, 13, {0.2f, 1000, 1, "Taikalevy"}).UArvoon = false;

  const Vaikutuspuu puu = Puu();
  const Vaikutuspuu::Solmu& solmu = *puu.Etsi("US1:Sandwich");
  const double betoni = 0.2 * 2400 * 100, villaa = 0.15 * 0.9 * 30 * 100, puuta = 0.15 * 0.1 * 500 * 100, levya = 1300;
  const double massa = betoni + villaa + puuta + levya;
  EXPECT_NEAR(solmu.materiaalit.massa, massa, 1e-2);
  EXPECT_NEAR(*solmu.materiaalit.arvot[kIlmasto], betoni * 0.116 + villaa * 1.08 + puuta * 0.0735, 1e-2)
      << "by the identifier, else by the exact name";
  EXPECT_NEAR(*solmu.materiaalit.arvot[kUusiutuva], puuta * 21.7, 1e-1);
  EXPECT_NEAR(solmu.materiaalit.massaIlmanArvoa[kUusiutuva], massa - puuta, 1e-2) << "not known isn't nought";
  EXPECT_NEAR(*puu.Materiaalit().OsuusIlmanTietoja(), levya / massa, 1e-6);
  ASSERT_EQ(puu.Materiaalit().aineet.size(), 4u);
  EXPECT_NEAR(puu.Materiaalit().aineet[2].massa, puuta, 1e-3);
  EXPECT_EQ(puu.Etsi("Tila2"), nullptr);
  EXPECT_EQ(puu.Etsi("Sah"), puu.Etsi("sah"));
  EXPECT_EQ(puu.Etsi("sah")->nimi, "Sähkö ja kaasu");
}

TEST_F(Vaikutukset, StructuresWithoutLayersAreToldAsArea) {
  Seina();
  EXPECT_DOUBLE_EQ(Puu().Materiaalit().alaIlmanKerroksia, 100);
  EXPECT_FALSE(Puu().Materiaalit().OsuusIlmanTietoja());
  EXPECT_EQ(Puu().Materiaalit().arvot, Vaikutusarvot{});
}

TEST_F(Vaikutukset, OfEnergyAreThoseOfWhatIsBoughtByForm) {
  clsEnergiamuoto& muoto = rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1);
  muoto.OsuusNettotarpeesta = 100;
  muoto.IlmastonLampeneminenCO2ekv(183);
  muoto.UusiutuvaEnergia(500);
  const auto lampo = LaskeHankinta(*rakennus, clsEnergianHankinta::Lampo);
  const auto sahko = LaskeHankinta(*rakennus, clsEnergianHankinta::Sahko);
  const Vaikutuspuu puu = Puu(25);
  ASSERT_GT(lampo.paasto, 0);
  EXPECT_NEAR(*puu.Osto().vuodessa[kIlmasto], 1000 * (lampo.paasto + sahko.paasto), 1e-6);
  EXPECT_NEAR(*puu.Etsi("Lammm")->osto->vuodessa[kIlmasto], 1000 * lampo.paasto, 1e-6);
  EXPECT_NEAR(*puu.OstoPitoaikana(puu.Solmut().front())[kIlmasto], 25000 * (lampo.paasto + sahko.paasto), 1e-4);
  EXPECT_FALSE(puu.Etsi("Vesi")->osto) << "water has no values";
  const Vaikutuspuu ilman = Puu();
  EXPECT_EQ(ilman.Yhteensa(ilman.Solmut().front()), Vaikutusarvot{}) << "no total without a period";
}

TEST_F(Vaikutukset, EveryKindAddsUpOverTheNodes) {
  const Vaikutuspuu puu = Puu(30);
  ASSERT_GT(puu.Materiaalit().massa, 0);
  for (const Vaikutuspuu::Solmu& solmu : puu.Solmut()) {
    if (solmu.lapset.empty()) continue;
    Vaikutusarvot summa{};
    double massa = 0;
    for (const int lapsi : solmu.lapset) {
      massa += puu.Solmut()[lapsi].materiaalit.massa;
      const Vaikutusarvot osa = puu.Yhteensa(puu.Solmut()[lapsi]);
      for (std::size_t i = 0; i < summa.size(); ++i)
        if (osa[i]) summa[i] = summa[i].value_or(0) + *osa[i];
    }
    const Vaikutusarvot arvot = puu.Yhteensa(solmu);
    EXPECT_NEAR(solmu.materiaalit.massa, massa, 1e-6 * massa);
    for (std::size_t i = 0; i < summa.size(); ++i) {
      ASSERT_EQ(arvot[i].has_value(), summa[i].has_value());
      EXPECT_NEAR(arvot[i].value_or(0), summa[i].value_or(0), 1e-9 * std::abs(summa[i].value_or(0))) << solmu.nimi << i;
    }
  }
}

}  // namespace
