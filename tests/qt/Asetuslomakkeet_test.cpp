// SPDX-License-Identifier: GPL-3.0-or-later
// The settings, the About window, the browser and the column chart as real windows. With LUMIVIRTA_KUVAT=<folder>
// pictures of the forms are left there.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMimeData>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>

#include "kernel/Luvut.h"
#include "tests/qt/Ikkunatesti.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmAbout.h"
#include "ui/frmKuukausitase.h"
#include "ui/frmOptions.h"
#include "ui/qt/Pylvaikko.h"
#include "ui/qt/Selain.h"
#include "ui/qt/Tietoja.h"

namespace {

/// A year of a school: losses, gains and demand, a summer month with a negative leakage.
Kaaviotiedot Koulukaavio() {
  Kaaviotiedot kaavio{.otsikko = "Koulu, koko rakennus", .nimet = {}, .yksikko = "kWh"};
  for (int m = 0; m < 12; ++m) kaavio.nimet.push_back(Teksti(2940 + m));
  kaavio.sarjat = {
      {"Johtuminen", {98000, 90000, 82000, 56000, 31000, 12000, 6000, 11000, 30000, 52000, 72000, 91000}, 0},
      {"Vuotoilma", {21000, 19000, 17000, 11000, 5000, 900, -1200, 800, 5000, 10000, 15000, 19000}, 0},
      {"Sähkölaitteet", std::vector<double>(12, 15000), 1},
      {"Aurinko", {1500, 4000, 9000, 12000, 16000, 17000, 16500, 13000, 8000, 4000, 1500, 800}, 1},
      {"Lämmöntarve", {102000, 90000, 75000, 40000, 5000, 0, 0, 0, 12000, 43000, 70500, 94200}, Kaaviosarja::kViiva},
  };
  return kaavio;
}

class Asetuslomakkeet : public Ikkunatesti {
 protected:
  Koeviestit viestit;
};

TEST_F(Asetuslomakkeet, AllPagesFitTheScreen) {
  frmOptions lomake;
  lomake.cmbValuutta.Rivit({"mk", "euro"});
  lomake.cmbValuutta.Indeksi(1);
  lomake.optKaytaLVI.Valittu(true);
  lomake.NaytaRahayksikko("euro");
  lomake.AsetaVero(0, 7.021846);
  lomake.txtVakiokanta.Teksti("/home/katselmoija/.local/share/lumivirta/Rakennekirjasto/Tietokanta_perus.mdb");
  lomake.Nayta();
  EXPECT_EQ(lomake.txtVeroluokka1.Teksti(), "7,02");
  EXPECT_EQ(lomake.lblVeroYksikko2.Otsikko(), "euro/MWh");
  auto& sivut = Etsi<QTabWidget>(lomake, "tabAsetukset");
  ASSERT_EQ(sivut.count(), 4);
  for (int i = 0; i < sivut.count(); ++i) {
    sivut.setCurrentIndex(i);
    EXPECT_FALSE(sivut.tabText(i).isEmpty());
    EXPECT_LE(Juuri(lomake).width(), 1000);
    EXPECT_LE(Juuri(lomake).height(), 700);
    TallennaKuva(lomake, QString::number(i));
  }
}

TEST_F(Asetuslomakkeet, AFaultyFieldIsBroughtForthFromAHiddenPage) {
  frmOptions lomake;
  bool hyvaksytty = false;
  lomake.OkKlikattu = [&] { hyvaksytty = true; };
  lomake.Nayta();
  for (const TextBox& kentta : {lomake.txtYleinenALV, lomake.txtTotLampo, lomake.txtTotSahko, lomake.txtTotVesi})
    kentta.Teksti("22");
  lomake.AsetaVero(0, 1);
  lomake.AsetaVero(1, 1);
  lomake.txtTotVesi.Teksti("122");
  lomake.tabAsetukset.Indeksi(3);
  lomake.Ikkuna().KayttajaHyvaksyy();
  EXPECT_FALSE(hyvaksytty);
  EXPECT_EQ(lomake.tabAsetukset.Indeksi(), 0);
  ASSERT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_NE(viestit.Naytetyt()[0].teksti.find("vähintään 0, enintään 100."), std::string::npos);
}

TEST_F(Asetuslomakkeet, TheProgramsDataAreCopied) {
  QTimer::singleShot(0, [] {
    auto& lomake = static_cast<frmAbout&>(*AvoimetLomakkeet().back());
    TallennaKuva(lomake);
    lomake.Etsi("cmdKopioi").KayttajaPainaa();
    lomake.Etsi("cmdSulje").KayttajaPainaa();
  });
  NaytaTietoja();
  const QString teksti = QGuiApplication::clipboard()->text();
  EXPECT_TRUE(teksti.contains(QStringLiteral("SQLite\t3."))) << teksti.toStdString();
  EXPECT_TRUE(teksti.contains(QStringLiteral("Qt\t%1").arg(qVersion())));
  for (const auto& kirjasto : KirjastojenTiedot())
    EXPECT_THAT(kirjasto, testing::Each(testing::Not(testing::IsEmpty())));
}

/// Takes what would go to the desktop's browser.
class Selainvale : public QObject {
  Q_OBJECT
 public:
  Selainvale() {
    QDesktopServices::setUrlHandler("http", this, "Avaa");
    QDesktopServices::setUrlHandler("https", this, "Avaa");
  }
  ~Selainvale() override {
    QDesktopServices::unsetUrlHandler("http");
    QDesktopServices::unsetUrlHandler("https");
  }
  Q_INVOKABLE void Avaa(const QUrl& sivu) { avattu = sivu; }

  QUrl avattu;
};

TEST_F(Asetuslomakkeet, OnlyAWebPageOpensInTheBrowser) {
  const Selainvale selain;
  NaytaWWW("www.esimerkki.fi/katselmus");
  EXPECT_EQ(selain.avattu.toString(), "http://www.esimerkki.fi/katselmus");
  EXPECT_TRUE(viestit.Naytetyt().empty());
  for (const char* osoite : {"about:blank", "", "file:///etc/passwd", "http://", "mailto:a@b.fi"}) NaytaWWW(osoite);
  EXPECT_EQ(viestit.Naytetyt().size(), 5u);
  EXPECT_EQ(selain.avattu.host(), "www.esimerkki.fi");
}

TEST_F(Asetuslomakkeet, AChartTellsItsPartsValueAndIsSavedAsAPicture) {
  frmKuukausitase lomake;
  Taulukko rivit;
  for (int termi = 0; termi < 12; ++termi) {
    std::vector<std::string> rivi(12, Muotoile(12345 + 9876 * termi, "### ##0"));
    rivi.insert(rivi.begin(), Teksti(2960 + termi));
    rivi.push_back(Muotoile(1234567, "### ##0"));
    rivit.push_back(std::move(rivi));
  }
  const std::vector<std::string> tarve = rivit.back();
  rivit.pop_back();
  lomake.lvwTase.Rivit(rivit);
  lomake.lvwTase.Summarivi(tarve);
  lomake.lblNormitus.Otsikko("Vuoden lämmöntarve paikkakunnalle normitettuna: 123 456 kWh × 4 719 °Cd / 4 444 °Cd");
  lomake.chtTase.Kaavio(Koulukaavio());
  lomake.Nayta();
  QCoreApplication::processEvents();
  auto* kaavio = &Etsi<Pylvaikko>(lomake, "chtTase");
  QSet<QString> selosteet;
  for (int x = 0; x < kaavio->width(); x += 2)
    for (int y = 0; y < kaavio->height(); y += 2) selosteet << kaavio->Seloste(QPointF(x, y));
  EXPECT_TRUE(selosteet.contains(Teksti(2940).c_str() + QStringLiteral(", Johtuminen: 98 000 kWh")));
  EXPECT_TRUE(selosteet.contains(Teksti(2946).c_str() + QStringLiteral(", Vuotoilma: -1 200 kWh")));
  EXPECT_TRUE(selosteet.contains(Teksti(2944).c_str() + QStringLiteral(", Lämmöntarve: 5 000 kWh")));
  TallennaKuva(lomake);
  EXPECT_EQ(selosteet.size(), 12 * 5 + 1) << "every part can be pointed at, and the empty ground";

  lomake.cmdKopioiKuva.Kohde().KayttajaPainaa();
  EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("Johtuminen\t98000,0\t90000,0")));

  QTemporaryDir kansio;
  const QString tiedosto = kansio.filePath("tase");
  viestit.AsetaSeuraavaTiedosto(tiedosto.toStdString());
  lomake.cmdTallennaKuva.Kohde().KayttajaPainaa();
  EXPECT_EQ(QImage(tiedosto + ".png").size(), kaavio->size());
  viestit.AsetaSeuraavaTiedosto("/ei/ole/tase.png");
  lomake.cmdTallennaKuva.Kohde().KayttajaPainaa();
  EXPECT_NE(viestit.Naytetyt().back().teksti.find("/ei/ole/tase.png"), std::string::npos);
}

TEST_F(Asetuslomakkeet, AChartShowsZerosAndNothingWithoutError) {
  frmKuukausitase lomake;
  lomake.Nayta();
  lomake.chtTase.Kaavio({});
  Juuri(lomake).grab();
  lomake.chtTase.Kaavio({.otsikko = "Nollat", .nimet = {"a", "b"}, .sarjat = {{"x", {0, 0}, 0}}, .yksikko = "kWh"});
  Juuri(lomake).grab();
  EXPECT_EQ(Etsi<Pylvaikko>(lomake, "chtTase").Seloste(QPointF(100, 100)), "");
}

}  // namespace

#include "Asetuslomakkeet_test.moc"
