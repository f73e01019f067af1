// SPDX-License-Identifier: GPL-3.0-or-later
// Rules that every form must keep, on the real windows.
#include <Lomaketaulu.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTabWidget>
#include <algorithm>
#include <functional>

#include "tests/qt/Ikkunatesti.h"
#include "ui/qt/Kehys.h"

namespace {

/// A form without its class: what its file and the text store make of it.
class Paljas : public Lomake {
 public:
  explicit Paljas(const std::string& nimi) : Lomake(nimi) {}
};

class Lomakkeet : public Ikkunatesti, public testing::WithParamInterface<std::string> {
 protected:
  Lomakkeet() {
    lomake_.Nayta();
    QCoreApplication::processEvents();
  }

  /// Widgets of the type that bear a control name, in the order of the form file.
  template <class W>
  QList<W*> Lapset() const {
    QList<W*> lapset = juuri_->findChildren<W*>();
    lapset.removeIf([](const W* w) { return w->objectName().startsWith("qt_") || !w->isVisible(); });
    return lapset;
  }

  QWidgetList Kentat() const {
    QWidgetList kentat;
    for (QLineEdit* kentta : Lapset<QLineEdit>()) kentat << kentta;
    for (QComboBox* kentta : Lapset<QComboBox>()) kentat << kentta;
    return kentat;
  }

  /// Looks at every page of the tab controls, those on a page of another one too.
  void KullakinSivulla(const std::function<void()>& katso, const QSet<QTabWidget*>& kaydyt = {}) {
    for (QTabWidget* sivut : Lapset<QTabWidget>()) {
      if (kaydyt.contains(sivut)) continue;
      for (int i = 0; i < sivut->count(); ++i) {
        sivut->setCurrentIndex(i);
        KullakinSivulla(katso, kaydyt + QSet{sivut});
      }
      return;
    }
    katso();
  }

  void TarkistaOtsikot() const {
    QWidgetList otsikot;
    for (QLabel* otsikko : Lapset<QLabel>()) otsikot << otsikko;
    for (QAbstractButton* nappi : Lapset<QAbstractButton>()) otsikot << nappi;
    for (const QWidget* otsikko : otsikot) {
      EXPECT_GE(otsikko->width(), otsikko->sizeHint().width()) << otsikko->objectName().toStdString();
      EXPECT_GE(otsikko->height(), otsikko->minimumSizeHint().height()) << otsikko->objectName().toStdString();
    }
    for (QGroupBox* kehys : Lapset<QGroupBox>())
      EXPECT_GE(kehys->width(), kehys->minimumSizeHint().width()) << kehys->objectName().toStdString();
  }

  Paljas lomake_{GetParam()};
  QWidget* juuri_ = &Juuri(lomake_);
};

std::vector<std::string> KaikkiLomakkeet() {
  std::vector<std::string> nimet;
  for (const LomakeRivi& rivi : Lomaketaulu()) nimet.emplace_back(rivi.nimi);
  return nimet;
}

std::string Nimi(const QWidget* widget) { return widget->objectName().toStdString(); }

QPoint Paikka(const QWidget* widget) { return widget->mapTo(widget->window(), QPoint(0, widget->height() / 2)); }

/// Reading order: from the top down, on one line from left to right.
bool LuetaanEnnen(const QWidget* x, const QWidget* y) {
  const QPoint a = Paikka(x), b = Paikka(y);
  const bool samaRivi = std::abs(a.y() - b.y()) < x->height() / 2;
  return samaRivi ? a.x() < b.x() : a.y() < b.y();
}

/// The widget begins a column to the right of all that has been read.
bool AlkaaPalsta(const QWidgetList& luetut, const QWidget* seuraava) {
  return std::ranges::all_of(luetut, [&](const QWidget* w) {
    return w->mapTo(w->window(), QPoint(w->width(), 0)).x() <= Paikka(seuraava).x();
  });
}

QString Pikakirjain(const QString& otsikko) {
  const QString ilman = QString(otsikko).remove(QStringLiteral("&&"));
  const auto paikka = ilman.indexOf('&');
  return paikka < 0 ? QString() : ilman.mid(paikka + 1, 1).toLower();
}

/// Has Enter or Escape instead of a letter.
bool OnVastausnappi(const QWidget* nappi) {
  return QStringList{"cmdOk", "cmdPeruuta", "cmdSulje", "cmdJatka"}.contains(nappi->objectName());
}

bool OnKirjaimia(const QString& teksti) {
  return std::ranges::any_of(teksti, [](QChar merkki) { return merkki.isLetter(); });
}

TEST_P(Lomakkeet, AllTextsHaveARowInTheStore) {
  EXPECT_FALSE(lomake_.Otsikko().empty());
  EXPECT_EQ(lomake_.Otsikko().find("[String"), std::string::npos);
  for (const auto& ohjain : lomake_.Ohjaimet())
    for (const std::string& teksti : {ohjain->Teksti(), ohjain->Vihje()})
      EXPECT_EQ(teksti.find("[String"), std::string::npos) << ohjain->Nimi() << ": " << teksti;
}

TEST_P(Lomakkeet, EveryFieldHasANameAndEveryCaptionAField) {
  for (const QWidget* kentta : Kentat()) {
    EXPECT_FALSE(kentta->accessibleName().isEmpty()) << Nimi(kentta);
    EXPECT_FALSE(kentta->toolTip().isEmpty()) << Nimi(kentta);
  }
  for (const QRadioButton* nappi : Lapset<QRadioButton>())
    EXPECT_FALSE(nappi->text().isEmpty() && nappi->accessibleName().isEmpty()) << Nimi(nappi);
  for (const QLabel* otsikko : Lapset<QLabel>()) {
    const bool nimeaa = otsikko->text().endsWith(':') && !otsikko->buddy();
    EXPECT_TRUE(!nimeaa || otsikko->alignment().testFlag(Qt::AlignRight))
        << Nimi(otsikko) << ": otsikolla ei ole kenttää";
  }
}

/// Captions that should have a letter.
QStringList Kirjaimelliset(const QList<QLabel*>& nimiot, const QList<QAbstractButton*>& napit) {
  QStringList otsikot;
  for (const QLabel* nimio : nimiot)
    if (nimio->buddy() && !nimio->buddy()->property("readOnly").toBool()) otsikot << nimio->text();
  for (const QAbstractButton* nappi : napit)
    if (!OnVastausnappi(nappi) && OnKirjaimia(nappi->text())) otsikot << nappi->text();
  return otsikot;
}

TEST_P(Lomakkeet, EachVisibleOneHasItsOwnLetter) {
  KullakinSivulla([this] {
    QSet<QString> varatut, kaikki;
    QStringList ilman;
    for (const QString& otsikko : Kirjaimelliset(Lapset<QLabel>(), Lapset<QAbstractButton>())) {
      const QString kirjain = Pikakirjain(otsikko);
      EXPECT_FALSE(varatut.contains(kirjain)) << otsikko.toStdString();
      if (kirjain.isEmpty())
        ilman << otsikko;
      else
        varatut << kirjain;
      for (const QChar merkki : otsikko)
        if (merkki.isLetter()) kaikki << merkki.toLower();
    }
    EXPECT_TRUE(ilman.isEmpty() || varatut == kaikki) << "kirjaimia olisi: " << ilman.join(", ").toStdString();
  });
}

TEST_P(Lomakkeet, InsideTheMainWindowMenusKeepTheirLetters) {
  QMainWindow paaikkuna;
  auto* alue = new QMdiArea;
  paaikkuna.setCentralWidget(alue);
  for (const char* valikko : {"&Tiedosto", "&Muokkaa", "&Näytä", "&Rakennus", "S&äästö"})
    paaikkuna.menuBar()->addMenu(valikko);
  paaikkuna.show();
  AsetaQtLomakkeet(alue);
  Paljas lomake(GetParam());
  lomake.Nayta();
  juuri_ = &Juuri(lomake);
  KullakinSivulla([this] {
    for (const QString& otsikko : Kirjaimelliset(Lapset<QLabel>(), Lapset<QAbstractButton>())) {
      const QString kirjain = Pikakirjain(otsikko);
      EXPECT_FALSE(!kirjain.isEmpty() && QStringLiteral("tmnrä").contains(kirjain)) << otsikko.toStdString();
    }
  });
}

TEST_P(Lomakkeet, TheTabKeyGoesInReadingOrder) {
  QWidgetList jarjestys;
  for (QWidget* w = juuri_->nextInFocusChain(); w != juuri_; w = w->nextInFocusChain())
    if (juuri_->isAncestorOf(w) && w->isVisible() && (w->focusPolicy() & Qt::TabFocus) && !w->focusProxy())
      jarjestys << w;
  EXPECT_FALSE(jarjestys.isEmpty());
  for (qsizetype i = 1; i < jarjestys.size(); ++i)
    EXPECT_TRUE(LuetaanEnnen(jarjestys[i - 1], jarjestys[i]) || AlkaaPalsta(jarjestys.first(i), jarjestys[i]))
        << Nimi(jarjestys[i - 1]) << " -> " << Nimi(jarjestys[i]);
}

TEST_P(Lomakkeet, NoCaptionIsClipped) { TarkistaOtsikot(); }

/// Screens as the toolkit measures them, in pixels of the desktop's scale: 1366 x 768 at 125 % and 1920 x 1080 at
/// 200 %. What doesn't fit scrolls, and each field can be reached; the buttons stay in view.
TEST_P(Lomakkeet, FitsASmallScreenWithItsButtonsInView) {
  auto* kehys = dynamic_cast<Dialogikehys*>(juuri_->window());
  ASSERT_NE(kehys, nullptr);
  for (const QSize naytto : {QSize(1092, 614), QSize(960, 540)}) {
    kehys->Mahduta(naytto);
    QCoreApplication::processEvents();
    EXPECT_LT(kehys->width(), naytto.width());
    EXPECT_LT(kehys->height(), naytto.height());
    TarkistaOtsikot();
    for (QPushButton* nappi : juuri_->findChildren<QPushButton*>(Qt::FindDirectChildrenOnly))
      if (nappi->isVisible()) {
        EXPECT_EQ(nappi->visibleRegion().boundingRect(), nappi->rect()) << Nimi(nappi);
      }
    KullakinSivulla([this] {
      for (QWidget* kentta : Kentat()) {
        kentta->setFocus();
        QCoreApplication::processEvents();
        EXPECT_FALSE(kentta->isEnabled() && kentta->visibleRegion().isEmpty()) << Nimi(kentta);
      }
    });
  }
}

INSTANTIATE_TEST_SUITE_P(Kaikki, Lomakkeet, ::testing::ValuesIn(KaikkiLomakkeet()),
                         [](const auto& tieto) { return tieto.param; });

}  // namespace
