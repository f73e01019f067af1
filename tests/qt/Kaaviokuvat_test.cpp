// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of a machine's week, of its fans' powers and of what a bill consists of, as real widgets.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QSet>
#include <limits>

#include "ui/Tekstivarasto.h"
#include "ui/Viikkokuvaus.h"
#include "ui/qt/Kayrakuva.h"
#include "ui/qt/Pinopalkki.h"
#include "ui/qt/Viikkokuva.h"

namespace {

/// All that the tool tips of a chart tell.
QSet<QString> Selosteet(const Kaaviokuva& kuva) {
  QSet<QString> selosteet;
  for (int x = 0; x < kuva.width(); x += 2)
    for (int y = 0; y < kuva.height(); y += 5) selosteet << kuva.Seloste(QPointF(x, y));
  return selosteet;
}

QString Leikepoyta(Kaaviokuva& kuva) {
  kuva.KopioiLeikepoydalle();
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
  return QGuiApplication::clipboard()->text();
}

TEST(Kaaviokuvat, EveryPeriodOfTheWeekTellsItsTime) {
  Viikkokuva kuva;
  kuva.AsetaKaavio(
      Viikkokuvaus("Joulu-helmikuu", {{5, {380}, {1065}, 100}, {5, {1065}, {380}, 50}, {2, {0}, {0}, 40}}));
  kuva.resize(500, 200);
  const auto selosteet = Selosteet(kuva);
  EXPECT_TRUE(selosteet.contains(QStringLiteral("ma 06:20–17:45: 100 %")));
  EXPECT_TRUE(selosteet.contains(QStringLiteral("la 00:00–06:20: 90 %")));
  EXPECT_TRUE(selosteet.contains(QStringLiteral("su 00:00–24:00: 40 %")));
  EXPECT_EQ(selosteet.size(), 2 + 4 * 3 + 2 + 1 + 1) << "every bar can be pointed at, and the empty ground";
  EXPECT_TRUE(kuva.accessibleName().contains("90 %")) << "the legend has each flow";
  const QStringList rivit = Leikepoyta(kuva).split('\n');
  EXPECT_EQ(rivit.size(), 2 + 17);
  EXPECT_EQ(rivit[2], QStringLiteral("ma\t06:20\t17:45\t100,0"));
}

TEST(Kaaviokuvat, PointsOfACurveTellTheirValuesAndGapsAreEmpty) {
  constexpr double kEi = std::numeric_limits<double>::quiet_NaN();
  Kayrakuva kuva;
  kuva.AsetaKaavio({.otsikko = "Tehot",
                    .nimet = {"Ilmavirta, %"},
                    .arvot = {30, 50, 70, 100},
                    .sarjat = {{"Tulo", {0.25, 0.75, kEi, 2}}, {"Poisto", {kEi, 0.5, kEi, kEi}}},
                    .yksikko = "kW"});
  kuva.resize(600, 250);
  const QSet<QString> odotetut{QString(), QStringLiteral("Ilmavirta, %: 30; Tulo: 0,25 kW"),
                               QStringLiteral("Ilmavirta, %: 50; Tulo: 0,75 kW; Poisto: 0,50 kW"),
                               QStringLiteral("Ilmavirta, %: 100; Tulo: 2,00 kW")};
  EXPECT_EQ(Selosteet(kuva), odotetut);
  EXPECT_TRUE(Leikepoyta(kuva).endsWith(QStringLiteral("\n70\t\t\n100\t2,000\t")));
}

TEST(Kaaviokuvat, PartsOfABarTellTheirValuesAndShares) {
  Pinopalkki kuva;
  Kaaviotiedot lasku{.otsikko = "Vuosilasku",
                     .nimet = {"Energia", "Teho", "Hyvitys", "Vero"},
                     .arvot = {600, 0, -5, 200},
                     .yksikko = "€/a"};
  kuva.AsetaKaavio(lasku);
  kuva.resize(400, 250);
  EXPECT_EQ(Selosteet(kuva), (QSet<QString>{QString(), QStringLiteral("Energia: 600,00 €/a (75,0 %)"),
                                            QStringLiteral("Vero: 200,00 €/a (25,0 %)")}));
  EXPECT_TRUE(kuva.accessibleName().contains(QStringLiteral("Hyvitys -5,00 €/a")));
  EXPECT_TRUE(Leikepoyta(kuva).contains(QStringLiteral("\nVero\t200,00\t€/a")));
  lasku.taysi = 1000;
  kuva.AsetaKaavio(lasku);
  EXPECT_TRUE(Selosteet(kuva).contains(QStringLiteral("Energia: 600,00 €/a (60,0 %)")))
      << "the missing part stays open";
  const auto pohjalla = [&] {
    return kuva.Seloste(QPointF(3 * kuva.fontMetrics().height(), kuva.height() - 1.5 * kuva.fontMetrics().height()));
  };
  EXPECT_EQ(pohjalla(), "");
  lasku.taysi = 700;
  kuva.AsetaKaavio(lasku);
  EXPECT_EQ(pohjalla(), QStringLiteral("Vero: 200,00 €/a (25,0 %)")) << "more than the whole fills the bar";
  kuva.grab();
}

TEST(Kaaviokuvat, EmptyOnesAreDrawnAndBearThePointer) {
  Viikkokuva viikko;
  Kayrakuva kayra;
  Pinopalkki palkki;
  for (Kaaviokuva* kuva : std::initializer_list<Kaaviokuva*>{&viikko, &kayra, &palkki}) {
    kuva->resize(300, 150);
    kuva->grab();
    EXPECT_EQ(Selosteet(*kuva), QSet<QString>{QString()});
  }
  viikko.AsetaKaavio(Viikkokuvaus("", {}));
  kayra.AsetaKaavio({.otsikko = "", .nimet = {"x"}, .arvot = {30, 100}, .sarjat = {}, .yksikko = "kW"});
  viikko.grab();
  kayra.grab();
  EXPECT_EQ(Selosteet(viikko), QSet<QString>{QString()});
  EXPECT_EQ(Selosteet(kayra), QSet<QString>{QString()});
}

}  // namespace
