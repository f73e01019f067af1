// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Tasehaarukka.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "tests/building/Koerakennus.h"
#include "tests/tuki/Arpa.h"

namespace {

using clsTilaTesti = RakennusTesti;

TEST_F(clsTilaTesti, AnEmptySpaceLosesOnlyItsLeakage) {
  clsTila& tila = LisaaTila(3600);
  tila.Vuotoilmanvaihto = 0.1;
  EXPECT_EQ(tila.JohtumisHaviot(0), 0);
  // 3600 × 0.1 / 3600 = 0.1 m³/s; 0.1 × 1.2 × 1.006 × (21 + 3.97) × 31 × 24 = 2242.7...
  EXPECT_NEAR(tila.IVHaviotTilassa(0), 0.1 * 1.2 * 1.006 * 24.97 * 744, 1e-9);
  EXPECT_EQ(tila.LampoHaviot(0), tila.IVHaviotTilassa(0));
  tila.Sisalampotila = 5;
  EXPECT_LT(tila.IVHaviotTilassa(6), 0) << "a month warmer than the room is not cut to zero";
}

TEST_F(clsTilaTesti, NaturalVentilationReplacesLeakage) {
  clsTila& tila = LisaaTila(3600);
  const double vuoto = tila.IVHaviotTilassa(0);
  tila.PainovoimainenIlmanvaihto = true;
  EXPECT_NEAR(tila.IVHaviotTilassa(0) / vuoto, 0.45 / 0.1, 1e-12);
}

TEST_F(clsTilaTesti, PersonsHeatEvenlyOverTheMonths) {
  clsTila& tila = LisaaTila();
  tila.TilanHenkilomaara = 10;
  // 10 × 95.3454545454548 W × 2200 h = 2097.6 kWh a year.
  EXPECT_NEAR(tila.HenkiloKuorma(1), 2097.6 / 12, 1e-6);
  EXPECT_NEAR(tila.VuotuinenHenkiloKuorma(), 2.0976, 1e-9);
}

TEST_F(clsTilaTesti, GainsCountUpToTheLosses) {
  clsTila& tila = LisaaTila(1000);
  LisaaRakenne(tila, Rakennelaji::Ulkoseina, 100, 0.3);
  tila.PaivitaSahkoOmKuorma();
  EXPECT_EQ(tila.IdeaalinenHyvaksiKayttoAste(0), 0) << "no gains";
  EXPECT_EQ(tila.LampoEnergianTarve(0), tila.LampoHaviot(0));
  tila.TilanHenkilomaara = 1000;
  const double haviot = tila.LampoHaviot(6);
  ASSERT_GT(haviot, 0);
  EXPECT_NEAR(tila.HyodynnetytLampoKuormat(6), haviot, 1e-9);
  EXPECT_NEAR(tila.LampoEnergianTarve(6), 0, 1e-9);
  tila.Sisalampotila = 10;
  EXPECT_LT(tila.IdeaalinenHyvaksiKayttoAste(6), 0) << "negative losses give a negative ratio";
}

TEST_F(clsTilaTesti, YearlyDemandAloneIsScaledToTheLocality) {
  clsTila& tila = LisaaTila(1000);
  double kuukaudet = 0;
  for (int m = 0; m < kKuukausia; ++m) kuukaudet += tila.LampoEnergianTarve(m);
  const double P = rakennus->Perustiedot.NormVuodenLammTarveLuku, S = rakennus->Saa.NormVuodenLammTarveLuku;
  EXPECT_EQ(P, 4366);
  EXPECT_NEAR(tila.VuotuinenLampoEnergianTarve(), kuukaudet * P / S / 1000, 1e-9);
  EXPECT_NEAR(tila.VuotuisetLampoHaviot(), kuukaudet / 1000, 1e-9) << "other yearly sums aren't scaled";
  rakennus->Saa.NormVuodenLammTarveLuku = 0;
  EXPECT_EQ(tila.VuotuinenLampoEnergianTarve(), 0);
  EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "error 1044";
}

TEST_F(clsTilaTesti, WithoutDegreeDaysOnlyTheDemandIsZero) {
  clsTila& tila = LisaaTila(1000);
  LisaaRakenne(tila, Rakennelaji::Ulkoseina, 100, 0.3);
  LisaaIkkuna(tila, 10, kEtela);
  tila.TilanHenkilomaara = 20;
  const auto luvut = [&] {
    const Tasehaarukka haarukka(*rakennus);
    return std::vector{tila.VuotuisetJohtumisHaviot(), tila.VuotuinenAurinkoKuorma(), tila.VuotuisetSaatohaviot(),
                       rakennus->VuotuisetLampoHaviot(), rakennus->VuotuisetHyodynnetytLampoKuormat()};
  };
  const std::vector<double> oikeat = luvut();
  for (const double puuttuva : {0.0, -100.0}) {
    rakennus->Saa.NormVuodenLammTarveLuku = puuttuva;
    EXPECT_EQ(luvut(), oikeat);
    EXPECT_EQ(rakennus->VuotuinenLampoEnergianTarveTilat(), 0);
  }
}

TEST_F(clsTilaTesti, ControlLossesAreTheUnsavedShareOfUtilisedGains) {
  clsTila& tila = LisaaTila(1000);
  tila.TilanHenkilomaara = 20;
  tila.Saatohyotysuhde = 60;
  EXPECT_NEAR(tila.VuotuisetSaatohaviot(), 0.4 * tila.VuotuisetHyodynnetytLampoKuormat(), 1e-12);
  tila.Saatohyotysuhde = 110;
  EXPECT_LT(tila.VuotuisetSaatohaviot(), 0) << "not limited";
}

TEST_F(clsTilaTesti, ElectricLoadComesFromGroupsOrFromTheMeasuredYear) {
  clsTila& tila = LisaaTila(0, 200);
  clsSahkonKulutusryhma& oma = rakennus->SahkonKulutusryhmat.Add("oma");
  oma.LaskentatapaEnergiapohjainen(true);
  oma.LaskentatapaEnergiapohjainenIndex = 0;
  oma.SyötettyKulutus = 12;  // MWh/a, 1000 kWh a month
  oma.EnergiaHyodynnetaanLammityksessa = true;
  oma.LiittyyTilaansKey = tila.sKey;
  tila.PaivitaSahkoOmKuorma();
  EXPECT_NEAR(tila.SahkoKuorma(3), 1000, 1e-9);
  oma.LiittyyTilaansKey = {};
  tila.PaivitaSahkoOmKuorma();
  EXPECT_NEAR(tila.SahkoKuorma(3), 200, 1e-9) << "the space's share of the gross area, 200 of 1000 m²";

  AlustaToteutuneetKulutukset(rakennus->Perustiedot.ToteutuneetKulutukset);
  rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Sahko = 60;
  rakennus->Tilat.KaytaTotSahkoKuormia = true;
  rakennus->Tilat.TotSahkoKuormaPros = 50;
  tila.PaivitaSahkoOmKuorma();
  EXPECT_NEAR(tila.SahkoKuorma(3), 2500, 1e-9);  // 50 % of 60 MWh over twelve months

  tila.BruttoAla = 0;
  tila.PaivitaSahkoOmKuorma();
  EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "error 1029, the load stays";
}

TEST_F(clsTilaTesti, UtilisedGainsNeverExceedGainsNorPositiveLosses) {
  Arpa arpa;
  const auto luku = [&arpa](double alku, double loppu) { return arpa.Luku(alku, loppu); };
  for (int kerta = 0; kerta < 20; ++kerta) {
    clsTila& tila = LisaaTila(luku(0, 5000), luku(1, 2000));
    tila.Sisalampotila = luku(5, 25);
    tila.TilanHenkilomaara = luku(0, 200);
    for (int i = 0; i < 5; ++i) LisaaIkkuna(tila, luku(0, 80), static_cast<int>(luku(0, 5)));
    LisaaRakenne(tila, Rakennelaji::Ulkoseina, luku(0, 500), luku(0.1, 1));
    for (int m = 0; m < kKuukausia; ++m) {
      const double kuormat =
          tila.SahkoKuorma(m) + tila.AurinkoKuorma(m) + tila.HenkiloKuorma(m) + tila.IVKoneLampoKuorma(m);
      const double hyodynnetty = tila.HyodynnetytLampoKuormat(m);
      const double haviot = tila.LampoHaviot(m);
      EXPECT_LE(hyodynnetty, kuormat * (1 + 1e-12));
      if (haviot > 0) {
        EXPECT_LE(hyodynnetty, haviot * (1 + 1e-12));
      }
    }
  }
}

TEST_F(clsTilaTesti, ACopyStartsWithStaleCaches) {
  clsTila& tila = LisaaTila(1000);
  LisaaRakenne(tila, Rakennelaji::Ulkoseina, 100, 0.3);
  tila.PaivitaJohtumishaviot();
  tila.PaivitaIVHaviotTilassa();
  tila.PaivitaAurKuormatTilassa();
  const double ennen = tila.LampoHaviot(0);
  const auto kopio = tila.Kopioi();
  EXPECT_FALSE(kopio->JohtumishaviotUpToDate() || kopio->IVHaviotTilassaUpToDate() ||
               kopio->IVKuormatTilassaUpToDate() || kopio->AurKuormatTilassaUpToDate());
  kopio->Rakenteet.Item(1).PintaAla = 50;
  EXPECT_LT(kopio->LampoHaviot(0), ennen);
  kopio->Kopioi(tila);
  EXPECT_FALSE(tila.JohtumishaviotUpToDate()) << "writing back makes the target's caches stale";
  EXPECT_EQ(tila.LampoHaviot(0), kopio->LampoHaviot(0));
}

}  // namespace
