// SPDX-License-Identifier: GPL-3.0-or-later
// The user's guide as it is built, in its window. With LUMIVIRTA_KUVAT=<folder> a picture of each page is left there.
#include "ui/qt/Ohjeikkuna.h"
#include "tests/tuki/Lahdekoodi.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "kernel/Hakemistot.h"
#include "tests/qt/Ikkunatesti.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Ohje.h"
#include "ui/frmNormeeraamatonKulutus.h"
#include "ui/qt/QtOhje.h"

namespace {

QString Koti() { return QString::fromStdString(AppPath()); }

QString Lue(const QString& polku) {
  QFile tiedosto(polku);
  EXPECT_TRUE(tiedosto.open(QIODevice::ReadOnly)) << polku.toStdString();
  return QString::fromUtf8(tiedosto.readAll());
}

Ohjeluettelo Luettelo() { return Ohjeluettelo(Lue(Koti() + "Lumivirta 2.hlp").toStdString()); }

QStringList Loydot(const QString& teksti, const char* kuvio) {
  QStringList loydot;
  for (const auto& osuma : QRegularExpression(kuvio).globalMatch(teksti)) loydot << osuma.captured(1);
  return loydot;
}

template <class W>
W* Osa(QWidget& ikkuna, const char* nimi) {
  W* osa = ikkuna.findChild<W*>(nimi);
  EXPECT_NE(osa, nullptr) << nimi;
  return osa;
}

class Opas : public ::testing::Test {
 protected:
  void SetUp() override {
    ikkuna_.show();
    QCoreApplication::processEvents();
  }
  std::string Sivu() const { return selain_->source().fileName().toStdString(); }

  Ohjeikkuna ikkuna_{Koti()};
  QTextBrowser* selain_ = Osa<QTextBrowser>(ikkuna_, "sivu");
  QTreeWidget* puu_ = Osa<QTreeWidget>(ikkuna_, "sisallys");
  QListWidget* osumat_ = Osa<QListWidget>(ikkuna_, "osumat");
  QLineEdit* haku_ = Osa<QLineEdit>(ikkuna_, "haku");
};

TEST(OppaanSisalto, EachTopicOfAFormHasItsPage) {
  const Ohjeluettelo luettelo = Luettelo();
  QStringList rivit = Lue(QString::fromStdString(Lahdekoodi("data/ohjeet.csv"))).split('\n', Qt::SkipEmptyParts);
  rivit.removeFirst();
  QList<int> aiheet{kOhjeSisallys, kOhjeTervetuloa};
  for (const QString& rivi : rivit)
    for (const QString& aihe : rivi.split(',').mid(1))
      if (!aihe.isEmpty()) aiheet << aihe.toInt();
  EXPECT_GT(aiheet.size(), 40);
  for (const int aihe : aiheet) EXPECT_EQ(std::ranges::count(luettelo.Aihe(aihe)->aiheet, aihe), 1) << "aihe " << aihe;
}

TEST(OppaanSisalto, LinksAndPicturesExist) {
  const QDir kansio(Koti() + "Ohje");
  const QStringList sivut = kansio.entryList({"*.html"});
  EXPECT_GT(sivut.size(), 20);
  for (const QString& sivu : sivut) {
    const QString teksti = Lue(kansio.filePath(sivu));
    for (const QString& linkki : Loydot(teksti, "<a href=\"([^\"]+)\"")) {
      const QString kohde = linkki.startsWith('#') ? sivu : linkki.section('#', 0, 0), ankkuri = linkki.section('#', 1);
      ASSERT_TRUE(kansio.exists(kohde)) << sivu.toStdString() << ": " << linkki.toStdString();
      if (!ankkuri.isEmpty()) {
        EXPECT_TRUE(Lue(kansio.filePath(kohde)).contains("<a name=\"" + ankkuri + '"')) << linkki.toStdString();
      }
    }
    for (const QString& kuva : Loydot(teksti, "<img src=\"([^\"]+)\""))
      EXPECT_FALSE(QImage(kansio.filePath(kuva)).isNull()) << sivu.toStdString() << ": " << kuva.toStdString();
    for (const char* jaannos : {"**", "](", "{aihe"})
      EXPECT_FALSE(teksti.contains(jaannos)) << sivu.toStdString() << ": muotoilu jäi tekstiin: " << jaannos;
  }
}

TEST_F(Opas, ATopicOpensAndTheTreeFollows) {
  ikkuna_.Avaa(33);
  EXPECT_EQ(Sivu(), "rakenteet.html");
  EXPECT_EQ(selain_->source().fragment(), "rakennekerrokset");
  ASSERT_NE(puu_->currentItem(), nullptr);
  EXPECT_EQ(puu_->currentItem()->text(0), "Rakennekerrokset");
  ikkuna_.Avaa(987654);
  EXPECT_EQ(Sivu(), "sisallys.html");
}

TEST_F(Opas, KeysLeadFromPageToPage) {
  ikkuna_.activateWindow();
  ikkuna_.Avaa(kOhjeTervetuloa);
  puu_->setFocus();
  QTest::keyClick(puu_, Qt::Key_Down);
  QTest::keyClick(puu_, Qt::Key_Down);
  const QString toinen = selain_->source().toString();
  EXPECT_NE(toinen, selain_->historyUrl(-1).toString());
  QTest::keyClick(&ikkuna_, Qt::Key_Left, Qt::AltModifier);
  QTest::keyClick(&ikkuna_, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Sivu(), "tervetuloa.html");
  QTest::keyClick(&ikkuna_, Qt::Key_Right, Qt::AltModifier);
  QTest::keyClick(&ikkuna_, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(selain_->source().toString(), toinen);
  QTest::keyClick(&ikkuna_, Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Sivu(), "sisallys.html");
}

TEST_F(Opas, SearchFindsPagesWithAllWordsInAnyForm) {
  ikkuna_.Avaa(kOhjeSisallys);
  QTest::keyClicks(haku_, QStringLiteral("NORMIT vakio-os"));
  ASSERT_GT(osumat_->count(), 1);
  EXPECT_TRUE(osumat_->isVisible());
  for (int i = 0; i < osumat_->count(); ++i) {
    osumat_->setCurrentRow(i);
    EXPECT_TRUE(selain_->toPlainText().contains("normit", Qt::CaseInsensitive));
    EXPECT_TRUE(selain_->toPlainText().contains("vakio-os", Qt::CaseInsensitive));
    EXPECT_EQ(selain_->textCursor().selectedText().toLower(), "normit");
  }
  haku_->setText(QStringLiteral("kulutuksen normitus"));
  osumat_->setCurrentRow(0);
  EXPECT_EQ(Sivu(), "normitus.html") << "otsikon osuma on ensimmäisenä";
  haku_->setText(QStringLiteral("kylmäsilloitta"));  // a form that no page has
  ASSERT_NE(osumat_->item(0)->flags(), Qt::NoItemFlags);
  osumat_->setCurrentRow(0);
  EXPECT_TRUE(selain_->textCursor().selectedText().startsWith(QStringLiteral("kylmäsil"), Qt::CaseInsensitive));
  haku_->setText(QStringLiteral("xyzzy"));
  EXPECT_EQ(osumat_->count(), 1);
  EXPECT_EQ(osumat_->item(0)->flags(), Qt::NoItemFlags);
  QTest::keyClick(&ikkuna_, Qt::Key_Escape);
  EXPECT_TRUE(puu_->isVisible());
  QTest::keyClick(&ikkuna_, Qt::Key_Escape);
  EXPECT_FALSE(ikkuna_.isVisible());
}

TEST_F(Opas, EveryPageFitsTheWindow) {
  const Ohjeluettelo luettelo = Luettelo();
  for (const Ohjeluettelo::Rivi& rivi : luettelo.Rivit()) {
    if (rivi.sivu.find('#') != std::string::npos) continue;
    selain_->setSource(QUrl::fromLocalFile(Koti() + "Ohje/" + QString::fromStdString(rivi.sivu)));
    QCoreApplication::processEvents();
    EXPECT_LE(selain_->document()->size().width(), selain_->viewport()->width()) << rivi.sivu;
    TallennaKuva(ikkuna_, "ohje_" + QString::fromStdString(rivi.sivu));
  }
}

QWidget* Oppaanikkuna() {
  for (QWidget* ikkuna : QApplication::topLevelWidgets())
    if (ikkuna->objectName() == QLatin1String("frmOhje")) return ikkuna;
  return nullptr;
}

TEST(OhjeenAvaus, F1InADialogOpensItsPageAndTheGuideCanBeUsed) {
  AsetaQtLomakkeet(nullptr);
  QtOhje ohje;
  QString sivu;
  bool luettavissa = false;
  QTimer::singleShot(0, [&] {
    ASSERT_TRUE(QTest::qWaitForWindowActive(QApplication::activeModalWidget()));
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F1);
    QWidget* opas = Oppaanikkuna();
    ASSERT_NE(opas, nullptr);
    sivu = Osa<QTextBrowser>(*opas, "sivu")->source().fileName();
    auto* haku = Osa<QLineEdit>(*opas, "haku");
    const QPoint paikka = haku->mapTo(opas, haku->rect().center());
    QTest::mouseClick(opas->windowHandle(), Qt::LeftButton, Qt::NoModifier, paikka);
    luettavissa = haku->hasFocus();
    AvoimetLomakkeet().back()->Etsi("cmdPeruuta").KayttajaPainaa();
  });
  double kk = 1, vuosi = 12;
  EXPECT_FALSE(frmNormeeraamatonKulutus().Kysy(kk, vuosi));
  EXPECT_EQ(sivu.toStdString(), "vakioosuus.html");
  EXPECT_TRUE(luettavissa) << "odottava valintaikkuna estää oppaan käytön";
  EXPECT_TRUE(Oppaanikkuna()->isVisible()) << "opas jää auki valintaikkunan sulkeuduttua";
  AsetaLomakesovitin(nullptr);
}

TEST(OhjeenAvaus, AMissingGuideIsTold) {
  const std::string koti = AppPath();
  const QTemporaryDir tyhja;
  AsetaAppPath(tyhja.path().toStdString());
  {
    const Koeviestit viestit;
    QtOhje ohje;
    AvaaOhje(kOhjeTervetuloa);
    ASSERT_EQ(viestit.Naytetyt().size(), 1u);
    EXPECT_NE(viestit.Naytetyt()[0].teksti.find("Lumivirta 2.hlp"), std::string::npos);
    EXPECT_EQ(Oppaanikkuna(), nullptr);
  }
  AsetaAppPath(koti);
}

}  // namespace
