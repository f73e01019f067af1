// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ventilation/Koekone.h"

namespace {

class clsKayntiAjatTesti : public KoneTesti {
 protected:
  static constexpr Lammitystarveluku S{4444};
  clsIVKone& kone = LisaaKone();
  clsKayntiAjat& ajat = kone.KayntiAikaYleistiedot;
};

TEST_F(clsKayntiAjatTesti, HoursOfOneRun) {
  clsKayntiAika aika;
  EXPECT_EQ(aika.KayntiTunnit(), 24) << "equal times";
  aika.Alkaa.minuutit = 22 * 60 + 30;
  aika.Paattyy.minuutit = 6 * 60 + 15;
  EXPECT_EQ(aika.KayntiTunnit(), 7.75);
  EXPECT_TRUE(viestit.Naytetyt().empty());
  aika.Alkaa.minuutit = 3000;
  EXPECT_EQ(aika.KayntiTunnit(), 0);
  aika.Alkaa.minuutit = -2000;
  EXPECT_EQ(aika.KayntiTunnit(), 0);
  ASSERT_EQ(viestit.Naytetyt().size(), 2u);
  EXPECT_EQ(viestit.Naytetyt()[0].teksti, "Yksittäinen käyntiaikaero pienempi kuin nolla!");
  EXPECT_EQ(viestit.Naytetyt()[1].teksti, "Yksittäinen käyntiaikaero suurempi kuin 1 vrk!");
}

TEST_F(clsKayntiAjatTesti, SevenRunsAWeekAreTheWholeMonthAndFiveAreFiveSevenths) {
  Kayta(kone, {{7, 0, 0}});
  EXPECT_DOUBLE_EQ(ajat.KayntiAikaPerKuukausi(1, 0, 0, 100), 28 * 24);
  const double taysi = ajat.LammonTarvePerKuukausi(1, 1, S);
  EXPECT_DOUBLE_EQ(taysi, 19960);  // set-point 16 less 1 K in the fan: the table's February at 15 °C
  Kayta(kone, {{5, 0, 0}});
  EXPECT_DOUBLE_EQ(ajat.KayntiAikaPerKuukausi(1, 0, 0, 100), 28 * 24 * 5 / 7.0);
  EXPECT_DOUBLE_EQ(ajat.LammonTarvePerKuukausi(1, 1, S), taysi * 5 / 7);
  Kayta(kone, {{5, 0, 0, 60}});
  EXPECT_DOUBLE_EQ(ajat.LammonTarvePerKuukausi(2, 1, S), taysi * 5 / 7 * 2 * 0.6);
  EXPECT_EQ(ajat.KayntiAikaPerKuukausi(1, 0, 61, 100), 0) << "outside the limits of the flow";
  Kayta(kone, {{0, 0, 0, 60}});
  EXPECT_EQ(ajat.LammonTarvePerKuukausi(2, 1, S), 0);
}

TEST_F(clsKayntiAjatTesti, YearRoundAndInFourQuartersIsTheSame) {
  Kayta(kone, Toimistoajat());
  std::vector<double> vuosittain, neljanneksittain;
  const auto laske = [this](std::vector<double>& luvut) {
    for (int m = 0; m < kKuukausia; ++m)
      luvut.insert(luvut.end(), {ajat.KayntiAikaPerKuukausi(m, ajat.KayntiaikojenSyottotapaID, 0, 100),
                                 ajat.LammonTarvePerKuukausi(3, m, S), ajat.LtoEnergiaPerKuukausi(3, m, 21, 55, S)});
  };
  laske(vuosittain);
  ajat.KayntiaikojenSyottotapaID = 1;
  EXPECT_EQ(ajat.LammonTarvePerKuukausi(3, 0, S), 0) << "the year-round periods don't count now";
  for (int jakso = 0; jakso < 4; ++jakso) Kayta(kone, Toimistoajat(), jakso);
  laske(neljanneksittain);
  EXPECT_EQ(vuosittain, neljanneksittain);
  EXPECT_GT(vuosittain[2], 0);
  Kayta(kone, {});
  std::vector<double> ilmanVuosittaisia;
  laske(ilmanVuosittaisia);
  EXPECT_EQ(ilmanVuosittaisia, neljanneksittain) << "nor do they when they are emptied";
}

TEST_F(clsKayntiAjatTesti, TooColdASupplyIsToldAndCountsNothing) {
  Kayta(kone, {{7, 0, 0}});
  ajat.Item("1KokoVuosi").dTPuhallin = 2;
  EXPECT_EQ(ajat.LammonTarvePerKuukausi(1, 0, S), 0);
  NaytaVirhe(1015, "tuloilman lämpötila 16,0 °C, puhaltimen lämpeneminen 2,0 °C");
  ASSERT_EQ(viestit.Naytetyt().size(), 2u);
  EXPECT_EQ(viestit.Naytetyt()[0].teksti, viestit.Naytetyt()[1].teksti);
}

/// A cold store with a joined machine: its exhaust can't be computed, which is not the supply's fault.
TEST_F(clsKayntiAjatTesti, TooColdASpaceIsToldWithItsMachine) {
  clsTila& tila = LisaaTila(3600);
  tila.TilanNimi = "Varasto";
  tila.Sisalampotila = 15.9;
  kone.KoneenTunnus = "TK01";
  kone.LiittyyTilaansKey = tila.sKey;
  Kayta(kone, {{7, 0, 0}});
  EXPECT_NEAR(tila.VuotuinenLampoEnergianTarve(), 0, 1e-9) << "the supply air at 16 °C is a gain";
  ASSERT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_TRUE(viestit.Naytetyt()[0].teksti.ends_with("tilan sisälämpötila 15,9 °C, puhaltimen lämpeneminen 1,0 °C"));
  EXPECT_EQ(viestit.Naytetyt()[0].kohde, "TK01");
}

// Figures of a plain sum over the outdoor temperatures in a spreadsheet.
TEST_F(clsKayntiAjatTesti, SeasonalEfficiencyOfRecovery) {
  EXPECT_NEAR(clsKayntiAika::LtoEnergiaHyotySuhde(16, 50, 21, 3), 71.45920066611157, 1e-11);
  EXPECT_NEAR(clsKayntiAika::LtoEnergiaHyotySuhde(18, 60, 21, 0), 67.11657789248258, 1e-11);
  EXPECT_NEAR(clsKayntiAika::LtoEnergiaHyotySuhde(16, 10, 16, 3), 10, 1e-11)
      << "exhaust at the set-point: the efficiency";
  EXPECT_EQ(clsKayntiAika::LtoEnergiaHyotySuhde(16, 5.01, 21, 2), 100) << "in summer all";
  EXPECT_EQ(clsKayntiAika::LtoEnergiaHyotySuhde(16, 5, 21, 2), 0);
  EXPECT_EQ(viestit.Naytetyt().size(), 0u);
  EXPECT_EQ(clsKayntiAika::LtoEnergiaHyotySuhde(14.9, 50, 21, 0), 0);
  EXPECT_EQ(clsKayntiAika::LtoEnergiaHyotySuhde(16, 50, 21, clsKayntiAika::KokoVuosi), 0);
  EXPECT_EQ(viestit.Naytetyt().size(), 2u);
}

TEST_F(clsKayntiAjatTesti, RecoveredHeatNeverExceedsTheHeatingThatItReplaces) {
  for (const double Tsp : {16.0, 18.0, 23.0, 30.0}) {
    kone.SisaanpuhallusLampotila(Tsp);
    Kayta(kone, Toimistoajat());
    for (const double Tp : {15.0, 21.0, 28.0})
      for (const double lto : {0.002, 4.0, 55.0, 100.0, 180.0})
        for (int m = 0; m < kKuukausia; ++m) {
          const double talteen = ajat.LtoEnergiaPerKuukausi(2, m, Tp, lto, S);
          EXPECT_GE(talteen, 0);
          EXPECT_LE(talteen, ajat.LammonTarvePerKuukausi(2, m, S) * (1 + 1e-12));
        }
  }
  EXPECT_EQ(ajat.LtoEnergiaPerKuukausi(2, 6, 21, 0.001, S), 0) << "no recovery at all, nor in summer";
}

}  // namespace
