// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/LammitysTaulukko.h"

#include "tests/building/Koerakennus.h"
#include "ventilation/Ulkolampotilat.h"
#include "ventilation/clsKayntiAjat.h"

namespace {

constexpr double kS = 4444;  // the table's own degree days

class LammitysTaulukko : public RakennusTesti {
 protected:
  static double Valilla(int kk, int alkaa, int paattyy, double T = 15) {
    return LammitysKertoimet(Kellonaika{alkaa}, Kellonaika{paattyy}, T, 1, kS)[static_cast<std::size_t>(kk - 1)];
  }
};

TEST_F(LammitysTaulukko, IsLinearBetweenTheSetPointsAndInFlowAndDegreeDays) {
  EXPECT_DOUBLE_EQ(LammitysKerroin(1, 1, 15, 1, kS), 907);
  EXPECT_DOUBLE_EQ(LammitysKerroin(1, 1, 30, 1, kS), 1465);
  EXPECT_DOUBLE_EQ(LammitysKerroin(1, 1, 20, 1, kS), 1093);
  EXPECT_DOUBLE_EQ(LammitysKerroin(12, 24, 15, 2, kS / 2), 714);
  EXPECT_EQ(LammitysKerroin(8, 12, 15, 1, kS), 0);
}

/// Warming 1 m³/s by 15 K more takes 18 kWh in every hour that is colder than 15 °C, so the two tables differ by that
/// throughout the cold months; and the table holds the degree hours of the outdoor temperatures of each season.
TEST_F(LammitysTaulukko, TablesAgreeWithEachOtherAndWithTheOutdoorTemperatures) {
  for (const int kk : {1, 2, 3, 4, 10, 11, 12}) {
    const int paivia = kPaivatKuukaudessa[static_cast<std::size_t>(kk - 1)];
    for (int h = 1; h <= 24; ++h)
      EXPECT_NEAR(LammitysKerroin(kk, h, 30, 1, kS) - LammitysKerroin(kk, h, 15, 1, kS), 18 * paivia, 0.5 * paivia + 1)
          << kk << ". month, hour " << h;
  }
  for (const int jakso : {0, 1, 3}) {
    const Pysyvyys ulkoilma = Ulkolampotilat(jakso);
    double astetunnit = 0, energia = 0;
    for (std::size_t i = 0; i < ulkoilma.tunnit.size(); ++i)
      astetunnit += std::max(0.0, 15.0 - (ulkoilma.alin + static_cast<int>(i))) * ulkoilma.tunnit[i];
    for (int m = 0; m < kKuukausia; ++m)
      if (clsKayntiAjat::MuunnaKuukausiJaksoksi(m) == jakso) energia += Valilla(m + 1, 0, 0);
    EXPECT_NEAR(energia / 1.2, astetunnit, 0.0005 * astetunnit) << "season " << jakso;
  }
}

TEST_F(LammitysTaulukko, ARunningTimeIsTheSumOfItsHoursAndPartHours) {
  // 22:30 to 06:15 in January: half of hour 23, hours 24 and 1 to 6, a quarter of hour 7.
  EXPECT_DOUBLE_EQ(Valilla(1, 22 * 60 + 30, 6 * 60 + 15),
                   883 / 2.0 + 889 + 907 + 910 + 908 + 908 + 908 + 905 + 898 / 4.0);
  EXPECT_DOUBLE_EQ(Valilla(1, 10 * 60 + 15, 10 * 60 + 45), 867 / 2.0) << "within one clock hour";
  EXPECT_DOUBLE_EQ(Valilla(1, 10 * 60 + 45, 10 * 60 + 15), 21009 - 867 / 2.0) << "over midnight to the same clock hour";
  EXPECT_DOUBLE_EQ(Valilla(1, 600, 600), 21009) << "equal times are the whole day";
  EXPECT_DOUBLE_EQ(Valilla(1, 7 * 60, 9 * 60), 895 + 883) << "full hours";
}

TEST_F(LammitysTaulukko, OutOfRangeIsToldAndGivesZero) {
  const struct {
    int kk, h;
    double T;
    int virhe;
  } kTapaukset[] = {{1, 1, 14.99, 1015}, {1, 1, 30.01, 1015}, {1, 1, std::nan(""), 1015}, {1, 0, 15, 1016},
                    {1, 25, 15, 1016},   {0, 1, 15, 1017},    {13, 1, 15, 1017}};
  for (const auto& t : kTapaukset) {
    const std::size_t ennen = viestit.Naytetyt().size();
    EXPECT_EQ(LammitysKerroin(t.kk, t.h, t.T, 1, kS), 0);
    ASSERT_EQ(viestit.Naytetyt().size(), ennen + 1);
    NaytaVirhe(t.virhe);
    EXPECT_EQ(viestit.Naytetyt()[ennen].teksti, viestit.Naytetyt()[ennen + 1].teksti);
  }
  EXPECT_EQ(Valilla(1, -1, 60), 0) << "no time of day";
  EXPECT_EQ(Valilla(1, 0, 1440), 0);
}

}  // namespace
