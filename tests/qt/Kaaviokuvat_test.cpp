// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of a machine's week, of its fans' powers, of what a bill consists of and of what measures save one after
// another, as real widgets.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QSet>
#include <limits>

#include "tests/qt/Ikkunatesti.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viikkokuvaus.h"
#include "ui/qt/Kayrakuva.h"
#include "ui/qt/Pinopalkki.h"
#include "ui/qt/Vesiputouskuva.h"
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

Kaaviotiedot Vesiputous() {
  return {.otsikko = "Lämpö",
          .nimet = {"Perustapaus", "Ikkunat", "Valaistus", "Kierto", "Jälkeen"},
          .sarjat = {{"Kulutus", {500, 0, 0, 0, 448}},
                     {"Muutos mallissa", {0, -60, 12.5, 0, 0}},
                     {"Kelluva", {0, 0, 0, -4.5, 0}}},
          .yksikko = "MWh/a"};
}

TEST(Kaaviokuvat, StepsOfAWaterfallTellTheirChangeAndWhereItLeads) {
  Vesiputouskuva kuva;
  kuva.AsetaKaavio(Vesiputous());
  kuva.resize(500, 300);
  EXPECT_EQ(Selosteet(kuva),
            (QSet<QString>{QString(), "Perustapaus: 500,0 MWh/a", "Ikkunat: -60,0 → 440,0 MWh/a",
                           "Valaistus: +12,5 → 452,5 MWh/a", "Kierto: -4,5 → 448,0 MWh/a", "Jälkeen: 448,0 MWh/a"}));
  EXPECT_TRUE(kuva.accessibleName().contains("Kierto -4,5 MWh/a"));
  EXPECT_TRUE(Leikepoyta(kuva).contains("\nIkkunat\t-60,00\t440,00\tMWh/a"));
  TallennaKuva(kuva, "Vesiputous");
  const QImage selkea = kuva.grab().toImage();
  kuva.setEnabled(false);
  EXPECT_NE(kuva.grab().toImage(), selkea) << "paler while its figures are stale";
}

TEST(Kaaviokuvat, AWaterfallOfManyLongNamedStepsFitsALowWindow) {
  Kaaviotiedot pitka = Vesiputous();
  for (int i = 0; i < 26; ++i) {
    pitka.nimet.insert(pitka.nimet.end() - 1, "Ilmanvaihtokoneen TK" + std::to_string(i) + " käyntiaikojen lyhennys");
    for (Kaaviosarja& sarja : pitka.sarjat) sarja.arvot.insert(sarja.arvot.end() - 1, 0);
    pitka.sarjat[1].arvot[pitka.nimet.size() - 2] = -10;
  }
  pitka.sarjat[0].arvot.back() -= 260;
  Vesiputouskuva kuva;
  kuva.AsetaKaavio(pitka);
  kuva.resize(kuva.minimumSizeHint());
  EXPECT_LT(kuva.height(), 480);
  EXPECT_EQ(Selosteet(kuva).size(), 32) << "each row has its tip";
  TallennaKuva(kuva, "VesiputousPitka");
}

TEST(Kaaviokuvat, AChartIsPaintedOnAPageInBlackOnWhiteAtItsScale) {
  Vesiputouskuva kuva;
  kuva.setPalette(QPalette(Qt::white, Qt::black));
  kuva.AsetaKaavio(Vesiputous());
  QImage sivu(1400, 1000, QImage::Format_RGB32);
  sivu.fill(Qt::red);
  QPainter maalain(&sivu);
  kuva.Tulosta(maalain, QRectF(100, 50, 1200, 900), 3);
  maalain.end();
  EXPECT_EQ(sivu.pixel(101, 51), qRgb(255, 255, 255));
  EXPECT_EQ(sivu.pixel(1299, 949), qRgb(255, 255, 255));
  EXPECT_EQ(sivu.pixel(99, 500), qRgb(255, 0, 0)) << "nothing beyond its area";
  EXPECT_EQ(sivu.pixel(700, 951), qRgb(255, 0, 0));
  bool mustaa = false;
  for (int x = 100; x < 1300; ++x) mustaa = mustaa || sivu.pixel(x, 90) == qRgb(0, 0, 0);
  EXPECT_TRUE(mustaa) << "the title";
}

TEST(Kaaviokuvat, EmptyOnesAreDrawnAndBearThePointer) {
  Viikkokuva viikko;
  Kayrakuva kayra;
  Pinopalkki palkki;
  Vesiputouskuva putous;
  for (Kaaviokuva* kuva : std::initializer_list<Kaaviokuva*>{&viikko, &kayra, &palkki, &putous}) {
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
