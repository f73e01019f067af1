// SPDX-License-Identifier: GPL-3.0-or-later
// The real windows under real events: keyboard, wheel, closing, messages.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "kernel/Virhe.h"
#include "tests/qt/Ikkunatesti.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Komento.h"
#include "ui/Odotus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmJakaumaGraafi.h"
#include "ui/frmLampoYhteenveto.h"
#include "ui/frmNormeeraamatonKulutus.h"
#include "ui/frmPerustiedot.h"
#include "ui/frmTarkennettuLaiteLaskenta.h"
#include "ui/qt/QtViestit.h"

namespace {

class Tapahtumat : public Ikkunatesti {
 protected:
  static void NaytaAktiivisena(Lomake& lomake) {
    lomake.Nayta();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Juuri(lomake).window()));
  }

  /// Runs when the next dialog or box has opened. One that stays open is hidden, so that a fault can't hang the run.
  static void KunAuki(std::function<void(QWidget*)> f) {
    QTimer::singleShot(0, [f = std::move(f)] {
      const QPointer<QWidget> dialogi = QApplication::activeModalWidget();
      ASSERT_TRUE(dialogi && QTest::qWaitForWindowActive(dialogi));
      f(dialogi);
      EXPECT_FALSE(dialogi && dialogi->isVisible());
      if (dialogi) dialogi->hide();
    });
  }

  /// Texts of the boxes that open while `f` runs; each is answered by its default button.
  QStringList Laatikot(const std::function<void()>& f) {
    QStringList tekstit;
    QTimer vahti;
    QObject::connect(&vahti, &QTimer::timeout, [&] {
      auto* laatikko = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!laatikko) return;
      tekstit << laatikko->text();
      QTest::keyClick(laatikko, Qt::Key_Return);
    });
    vahti.start(1);
    f();
    return tekstit;
  }

  QtViestit viestit_;
};

TEST_F(Tapahtumat, TypingAndApprovingByKeyboard) {
  double kk = 0, vuosi = 0;
  KunAuki([](QWidget* dialogi) {
    auto* kuukausi = dialogi->findChild<QLineEdit*>("txtKk_kulutus");
    EXPECT_TRUE(kuukausi->hasFocus());
    QTest::keyClicks(kuukausi, "2,5");
    EXPECT_EQ(dialogi->findChild<QLineEdit*>("txtVuosi_kulutus")->text(), "30,0");
    QTest::keyClick(kuukausi, Qt::Key_Return);
  });
  EXPECT_TRUE(frmNormeeraamatonKulutus().Kysy(kk, vuosi));
  EXPECT_EQ(kk, 2.5);
  KunAuki([](QWidget* dialogi) {
    QTest::keyClick(dialogi->focusWidget(), '9');
    QTest::keyClick(dialogi->focusWidget(), Qt::Key_Escape);
  });
  EXPECT_FALSE(frmNormeeraamatonKulutus().Kysy(kk, vuosi));
  EXPECT_EQ(kk, 2.5);
}

TEST_F(Tapahtumat, ALetterLeadsToTheField) {
  frmPerustiedot lomake;
  NaytaAktiivisena(lomake);
  QTest::keyClick(&Etsi<QLineEdit>(lomake, "txtKohteenNimi"), Qt::Key_B, Qt::AltModifier);
  EXPECT_TRUE(Etsi<QLineEdit>(lomake, "txtBruttoAla").hasFocus());
}

TEST_F(Tapahtumat, TheWheelDoesntChangeAListWithoutFocus) {
  frmPerustiedot lomake;
  lomake.cmbPaikkakunta.Indeksi(5);
  NaytaAktiivisena(lomake);
  auto& lista = Etsi<QComboBox>(lomake, "cmbPaikkakunta");
  const auto rullaa = [&] {
    QWheelEvent rulla(QPointF(5, 5), lista.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&lista, &rulla);
  };
  rullaa();
  EXPECT_EQ(lomake.cmbPaikkakunta.Indeksi(), 5);
  lista.setFocus();
  rullaa();
  EXPECT_EQ(lomake.cmbPaikkakunta.Indeksi(), 6);
}

TEST_F(Tapahtumat, OnlyOneComparisonYearAndItCanBeCleared) {
  frmPerustiedot lomake;
  int tapahtumia = 0;
  lomake.KulutustietoMuuttui = [&] { ++tapahtumia; };
  lomake.optVertailuvuosi[0].Valittu(true);
  NaytaAktiivisena(lomake);
  auto& kolmas = Etsi<QRadioButton>(lomake, "optVertailuvuosi3");
  QTest::mouseClick(&kolmas, Qt::LeftButton, {}, QPoint(8, kolmas.height() / 2));
  EXPECT_EQ(tapahtumia, 1);
  EXPECT_EQ(lomake.Vertailuvuosi(), 2);
  EXPECT_FALSE(Etsi<QRadioButton>(lomake, "optVertailuvuosi1").isChecked());
  lomake.optVertailuvuosi[2].Valittu(false);
  EXPECT_FALSE(Etsi<QRadioButton>(lomake, "optVertailuvuosi3").isChecked());
  EXPECT_EQ(tapahtumia, 1);
}

TEST_F(Tapahtumat, CompletionShowsWhenTheFieldIsLeft) {
  frmLampoYhteenveto lomake;
  lomake.MuuLampoMuuttui = [&](double arvo) { lomake.txtMuuLampo.arvo.Luku(arvo, "### ##0.00"); };
  NaytaAktiivisena(lomake);
  auto& kentta = Etsi<QLineEdit>(lomake, "txtMuuLampo");
  QTest::keyClicks(&kentta, "1234.5");
  EXPECT_EQ(kentta.text(), "1234.5");
  QTest::keyClick(&kentta, Qt::Key_Tab);
  EXPECT_EQ(kentta.text(), "1 234,50");
}

TEST_F(Tapahtumat, OneWhoCancelsIsNotAskedOfHalfTypedFields) {
  for (const bool hiirella : {false, true}) {
    frmPerustiedot lomake;
    int huomautuksia = 0;
    lomake.KulutustietoMuuttui = [&] { ++huomautuksia; };
    lomake.PeruutaKlikattu = [&] { lomake.Sulje(); };
    KunAuki([&](QWidget* dialogi) {
      auto& kentta = Etsi<QLineEdit>(lomake, "txtLampo1");
      kentta.setFocus();
      QTest::keyClick(&kentta, 'x');
      if (hiirella)
        QTest::mouseClick(&Etsi<QPushButton>(lomake, "cmdPeruuta"), Qt::LeftButton);
      else
        QTest::keyClick(dialogi, Qt::Key_Escape);
    });
    lomake.NaytaModaalisena();
    QCoreApplication::processEvents();
    EXPECT_EQ(huomautuksia, 0) << (hiirella ? "hiirellä" : "Escillä");
  }
}

TEST_F(Tapahtumat, AFactorThatIsNoNumberCanNotBeLeft) {
  frmTarkennettuLaiteLaskenta lomake;
  lomake.Yksikot(true);
  lomake.optLaskentatapa[0].Valittu(true);
  lomake.Taytetty();
  NaytaAktiivisena(lomake);
  auto& kentta = Etsi<QLineEdit>(lomake, "txtLaskentaYksikoidenMaara");
  for (const bool hiirella : {false, true}) {
    AsetaTarkistuksenKello(nullptr);
    kentta.setFocus();
    kentta.selectAll();
    QTest::keyClicks(&kentta, "12x");
    const QStringList laatikot = Laatikot([&] {
      if (hiirella)
        QTest::mouseClick(&Etsi<QLineEdit>(lomake, "txtTasauskerroin"), Qt::LeftButton);
      else
        QTest::keyClick(&kentta, Qt::Key_Tab);
    });
    EXPECT_EQ(laatikot.size(), 1) << laatikot.join('\n').toStdString();
    kentta.window()->activateWindow();  // this platform leaves it to us
    ASSERT_TRUE(QTest::qWaitForWindowActive(kentta.window()));
    EXPECT_TRUE(kentta.hasFocus());
    EXPECT_EQ(kentta.selectedText(), "12x");
  }
}

TEST_F(Tapahtumat, AModelessFormIsInsideTheMainWindowAndClosesItself) {
  QMainWindow paaikkuna;
  auto* alue = new QMdiArea;
  paaikkuna.setCentralWidget(alue);
  paaikkuna.show();
  AsetaQtLomakkeet(alue);
  frmLampoYhteenveto yhteenveto;
  frmPerustiedot perustiedot;
  yhteenveto.Nayta();
  perustiedot.Nayta();
  ASSERT_EQ(alue->subWindowList().size(), 2);
  EXPECT_EQ(AktiivinenLomake(), &perustiedot);
  yhteenveto.Nayta();
  EXPECT_EQ(alue->subWindowList().size(), 2);
  EXPECT_EQ(AktiivinenLomake(), &yhteenveto);
  int peruttu = 0;
  perustiedot.PeruutaKlikattu = [&] { ++peruttu; };
  alue->subWindowList().at(1)->close();
  EXPECT_EQ(peruttu, 1);
  EXPECT_TRUE(perustiedot.Auki()) << "lomake itse päättää sulkemisesta";
  alue->subWindowList().at(0)->close();
  EXPECT_FALSE(yhteenveto.Auki());
  yhteenveto.Nayta();
  EXPECT_TRUE(yhteenveto.Aktiivinen());
  SuljeLomakkeet();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(alue->subWindowList().isEmpty());
}

TEST_F(Tapahtumat, EqualMessagesAreJoinedAtTheCommandsEnd) {
  EXPECT_EQ(Laatikot([] {
              SuoritaKomento([] {
                for (int i = 0; i < 3; ++i) Ilmoita("Jako nollalla");
                Ilmoita("Muu");
                EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
              });
            }),
            QStringList({"Jako nollalla\n\n(Sama ilmoitus tuli 3 kertaa.)", "Muu"}));
}

TEST_F(Tapahtumat, AnErrorInACommandShowsAndThePointerComesBack) {
  viestit_.AsetaPaneeli("Valmis!");
  const QStringList laatikot = Laatikot([] {
    SuoritaKomento([] {
      const Odotus odotus("Lasketaan");
      EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
      NostaVirhe("clsTilat:Laske Method", "levy on täynnä");
    });
  });
  ASSERT_EQ(laatikot.size(), 1);
  EXPECT_TRUE(laatikot[0].startsWith(QString::fromStdString(Teksti(9999))) && laatikot[0].contains("levy on täynnä"))
      << laatikot[0].toStdString();
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(viestit_.Paneeli(), "Valmis!");
}

TEST_F(Tapahtumat, AQuestionsButtonsAreFinnishAndTheHourglassGivesWay) {
  QStringList napit;
  KunAuki([&](QWidget* laatikko) {
    for (const QAbstractButton* nappi : laatikko->findChildren<QPushButton*>()) napit << nappi->text().remove('&');
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    QTest::keyClick(laatikko, Qt::Key_Escape);
  });
  const Odotus odotus;
  EXPECT_EQ(viestit_.Nayta({"Tallennetaanko?", "Kohde", Vakavuus::Kysymys, Napit::KyllaEiPeruuta, Vastaus::Kylla}),
            Vastaus::Peruuta);
  napit.sort();
  EXPECT_EQ(napit, QStringList({"Ei", "Kyllä", "Peruuta"}));
  EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Tapahtumat, AChartIsCopiedAsPictureAndNumbers) {
  KunAuki([](QWidget* dialogi) {
    QTest::mouseClick(dialogi->findChild<QPushButton*>("cmdKopioi"), Qt::LeftButton);
    QTest::keyClick(dialogi, Qt::Key_Escape);
  });
  frmJakaumaGraafi().NaytaJakauma("Koulu", {"Tilat", "Muu lämpö"}, {30, 10}, "MWh/a");
  const QMimeData* tiedot = QGuiApplication::clipboard()->mimeData();
  EXPECT_TRUE(tiedot->hasImage());
  EXPECT_TRUE(tiedot->text().contains("Tilat  (75 %)\t30,00")) << tiedot->text().toStdString();
}

TEST_F(Tapahtumat, AChoiceIsFoundByWritingEverydayWords) {
  frmPerustiedot lomake;
  lomake.cmbKayttotarkoitus.Indeksi(0);
  int muutoksia = 0, ok = 0;
  lomake.cmbKayttotarkoitus.KunMuuttuu([&] { ++muutoksia; });
  lomake.OkKlikattu = [&] { ++ok; };
  NaytaAktiivisena(lomake);
  auto& lista = Etsi<QComboBox>(lomake, "cmbKayttotarkoitus");
  lista.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&lista, "koulu");
  const auto* osumat = lista.completer()->popup();
  ASSERT_TRUE(osumat->isVisible());
  EXPECT_GT(osumat->model()->rowCount(), 3);
  TallennaKuva(*lista.completer()->popup(), "cmbKayttotarkoitus osumat");
  QTest::keyClick(lista.completer()->popup(), Qt::Key_Return);
  EXPECT_EQ(lomake.cmbKayttotarkoitus.Teksti(), "Yleissivistävän oppilaitoksen rakennus") << "the best hit";
  EXPECT_EQ(lista.currentText(), "Yleissivistävän oppilaitoksen rakennus");
  EXPECT_FALSE(osumat->isVisible());
  EXPECT_EQ(muutoksia, 1);

  QTest::keyClicks(&lista, "koulu");
  QTest::keyClick(lista.completer()->popup(), Qt::Key_Down);
  QTest::keyClick(lista.completer()->popup(), Qt::Key_Down);
  const QString toinen = osumat->model()->index(1, 0).data().toString();
  QTest::keyClick(lista.completer()->popup(), Qt::Key_Return);
  EXPECT_EQ(lomake.cmbKayttotarkoitus.Teksti(), toinen.toStdString()) << "the hit that the arrows reached";
  EXPECT_EQ(muutoksia, 2);

  const auto alku = lista.currentText();
  QTest::keyClicks(&lista, "zzz");
  EXPECT_FALSE(osumat->isVisible());
  QTest::keyClick(&lista, Qt::Key_Return);
  EXPECT_EQ(lista.currentText(), alku) << "nothing found: the choice stands";
  QTest::keyClicks(&lista, "halli");
  QTest::keyClick(lista.completer()->popup(), Qt::Key_Escape);
  QTest::keyClick(&lista, Qt::Key_Escape);
  EXPECT_EQ(lista.currentText(), alku);
  QTest::keyClicks(&lista, "halli");
  QTest::keyClick(lista.completer()->popup(), Qt::Key_Escape);
  QTest::keyClick(&lista, Qt::Key_Tab);
  EXPECT_EQ(lista.currentText(), alku) << "leaving the field chooses nothing";
  EXPECT_EQ(muutoksia, 2);
  EXPECT_EQ(ok, 0) << "Enter in the search doesn't accept the dialog";
}

}  // namespace
