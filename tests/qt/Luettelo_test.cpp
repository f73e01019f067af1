// SPDX-License-Identifier: GPL-3.0-or-later
// Lists under the person's hands: sorting, choosing, copying, pasting; the dialogs of spaces and structures filled.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>

#include "tests/qt/Ikkunatesti.h"
#include "ui/frmRakenteet.h"
#include "ui/frmTila.h"
#include "ui/frmTilaYhteenveto.h"
#include "ui/qt/QtViestit.h"

namespace {

class Luettelo : public Ikkunatesti {
 protected:
  static void Nayta(Lomake& lomake) {
    lomake.Nayta();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Juuri(lomake).window()));
  }
  static void Napsauta(QTreeWidget& lista, int rivi, Qt::KeyboardModifiers muunnin = {}) {
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, muunnin,
                      lista.visualItemRect(lista.topLevelItem(rivi)).center());
    QCoreApplication::processEvents();
  }
  static void NapsautaOtsikkoa(QTreeWidget& lista, int sarake) {
    QHeaderView& otsikot = *lista.header();
    QTest::mouseClick(otsikot.viewport(), Qt::LeftButton, {},
                      QPoint(otsikot.sectionViewportPosition(sarake) + 10, otsikot.height() / 2));
  }
  static QStringList Sarake(const QTreeWidget& lista, int sarake) {
    QStringList solut;
    for (int i = 0; i < lista.topLevelItemCount(); ++i) solut << lista.topLevelItem(i)->text(sarake);
    return solut;
  }
  static QString Leikepoyta() { return QGuiApplication::clipboard()->text(); }

  QtViestit viestit_;
};

class Tilaluettelo : public Luettelo {
 protected:
  Tilaluettelo() {
    lomake_.lvwTilat.Rivit({{"Öljyvarasto", "90"}, {"Sali", "1 000"}, {"Aula", "200"}});
    lomake_.lvwTilat.Summarivi({"Yhteensä", "1 290"});
    lomake_.lvwTilat.Indeksi(0);
    lomake_.txtTotSahkoKuormaPros.Teksti("0");
    lomake_.PaivitaNapit(false);
    Nayta(lomake_);
  }
  QTreeWidget& Lista() { return Etsi<QTreeWidget>(lomake_, "lvwTilat"); }

  frmTilaYhteenveto lomake_;
};

TEST_F(Tilaluettelo, OtsikonNapsautusLajitteleeJaSummaPysyyViimeisena) {
  NapsautaOtsikkoa(Lista(), 0);
  EXPECT_EQ(Sarake(Lista(), 0), QStringList({"Aula", "Sali", "Öljyvarasto", "Yhteensä"}));
  EXPECT_EQ(lomake_.lvwTilat.Indeksi(), 0);
  EXPECT_EQ(Lista().currentItem()->text(0), "Öljyvarasto") << "the chosen row moves with its number";
  NapsautaOtsikkoa(Lista(), 1);
  NapsautaOtsikkoa(Lista(), 1);
  EXPECT_EQ(Sarake(Lista(), 1), QStringList({"1 000", "200", "90", "1 290"}));
  Napsauta(Lista(), 0);
  EXPECT_EQ(lomake_.lvwTilat.Indeksi(), 1);
  Napsauta(Lista(), 3);
  EXPECT_NE(lomake_.lvwTilat.Indeksi(), 3) << "the sums can't be chosen";
  QTest::keyClick(&Lista(), Qt::Key_End);
  EXPECT_EQ(Lista().currentItem()->text(0), "Öljyvarasto");
  lomake_.lvwTilat.Rivit({{"A", "1"}, {"B", "2"}});
  EXPECT_EQ(Sarake(Lista(), 1), QStringList({"2", "1", "1 290"})) << "new rows are sorted as the former were";
}

TEST_F(Tilaluettelo, LajiteltuOtsikkoMahtuuNuolineenJaMuutSaavatTilansaTakaisin) {
  const auto leveydet = [this] {
    QList<int> kaikki;
    for (int s = 0; s < Lista().columnCount(); ++s) kaikki << Lista().columnWidth(s);
    return kaikki;
  };
  NapsautaOtsikkoa(Lista(), 0);
  const QList<int> alussa = leveydet();
  for (int s = 1; s < Lista().columnCount(); ++s) {
    NapsautaOtsikkoa(Lista(), s);
    EXPECT_GE(Lista().columnWidth(s), Lista().header()->sectionSizeHint(s)) << s;
  }
  EXPECT_FALSE(Lista().horizontalScrollBar()->isVisible());
  NapsautaOtsikkoa(Lista(), 0);
  EXPECT_EQ(leveydet(), alussa);
}

TEST_F(Tilaluettelo, TeemanVaihtuessaSummaJaLukitutKentatSaavatSenVarit) {
  const auto vari = [this] { return Lista().topLevelItem(3)->foreground(0).color(); };
  frmTila tila;
  Nayta(tila);
  QLineEdit& lukittu = Etsi<QLineEdit>(tila, "txtAikavakio");
  ASSERT_TRUE(lukittu.isReadOnly());
  const QPalette entinen = QApplication::palette();
  for (const Qt::GlobalColor tausta : {Qt::black, Qt::white}) {
    const QColor teksti = tausta == Qt::black ? Qt::white : Qt::black;
    QApplication::setPalette(
        QPalette(teksti, tausta, Qt::gray, Qt::gray, Qt::gray, teksti, Qt::gray, Qt::gray, tausta));
    QCoreApplication::processEvents();
    EXPECT_EQ(vari(), teksti);
    EXPECT_EQ(lukittu.palette().color(QPalette::Base), QColor(tausta));
  }
  QApplication::setPalette(entinen);
}

TEST_F(Tilaluettelo, ValitutRivitTaiKaikkiLeikepoydalle) {
  Napsauta(Lista(), 0);
  Napsauta(Lista(), 1, Qt::ShiftModifier);
  QTest::keyClick(&Lista(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Leikepoyta().startsWith("Tila\tTilavuus (m³)\t")) << Leikepoyta().toStdString();
  EXPECT_TRUE(Leikepoyta().endsWith("\nÖljyvarasto\t90\nSali\t1000\n")) << Leikepoyta().toStdString();
  Lista().clearSelection();
  QTest::keyClick(&Lista(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Leikepoyta().endsWith("Aula\t200\nYhteensä\t1290\n")) << Leikepoyta().toStdString();
}

TEST_F(Tilaluettelo, EnterJaKaksoisnapsautusMuokkaavatEivatkaSulje) {
  int muokattu = 0;
  lomake_.MuokkaaKlikattu = [&] { ++muokattu; };
  Napsauta(Lista(), 1);
  QTest::keyClick(&Lista(), Qt::Key_Return);
  EXPECT_EQ(muokattu, 1);
  EXPECT_TRUE(lomake_.Auki());
  Napsauta(Lista(), 2);
  QTest::mouseDClick(Lista().viewport(), Qt::LeftButton, {}, Lista().visualItemRect(Lista().topLevelItem(2)).center());
  EXPECT_EQ(muokattu, 2);
  EXPECT_EQ(lomake_.lvwTilat.Indeksi(), 2);
}

class Rakenneluettelo : public Luettelo {
 protected:
  Rakenneluettelo() {
    lomake_.lvwRakenteet.Rivit({{"Seinä", "Ulkoseinä", "12"}, {"Ovi", "Ovi", "2"}});
    lomake_.ValitseRakenne(0);
    for (const auto& ohjain : lomake_.Ohjaimet())
      if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti("1");
    lomake_.PaivitaKentat({.valittu = true});
  }
  QTreeWidget& Lista() { return Etsi<QTreeWidget>(lomake_, "lvwRakenteet"); }

  frmRakenteet lomake_;
};

TEST_F(Rakenneluettelo, VirheellinenKenttaPalauttaaValinnan) {
  Nayta(lomake_);
  int valintoja = 0;
  lomake_.RakenneValittu = [&] { ++valintoja; };
  Napsauta(Lista(), 1);
  EXPECT_EQ(valintoja, 1);
  auto& ala = Etsi<QLineEdit>(lomake_, "txtRakenneala");
  ala.setFocus();
  QTest::keyClicks(&ala, "x");
  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  Napsauta(Lista(), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(valintoja, 1);
  EXPECT_EQ(Lista().currentItem()->text(0), "Ovi");
  EXPECT_EQ(Lista().selectedItems().size(), 1);
  EXPECT_TRUE(Lista().topLevelItem(1)->isSelected()) << "what is shown as chosen is what the fields tell of";
}

TEST_F(Rakenneluettelo, LiitetytRivitTulevatLomakkeelle) {
  Nayta(lomake_);
  Taulukko rivit;
  lomake_.RivitLiitetty = [&](const Taulukko& liitetyt) { rivit = liitetyt; };
  QGuiApplication::clipboard()->setText("Nimi\tPinta-ala\r\nSeinä\t1 200,5\r\n");
  QTest::keyClick(&Lista(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(rivit, (Taulukko{{"Nimi", "Pinta-ala"}, {"Seinä", "1 200,5"}}));
}

TEST_F(Rakenneluettelo, SuljettuSivuEiAukeaJaAuetessaanSailyttaaSivun) {
  Nayta(lomake_);
  auto& sivut = Etsi<QTabWidget>(lomake_, "tabRakenne");
  EXPECT_FALSE(sivut.isTabEnabled(2));
  lomake_.PaivitaKentat({.valittu = true, .ikkuna = true});
  EXPECT_TRUE(sivut.isTabEnabled(2));
  EXPECT_TRUE(Etsi<QWidget>(lomake_, "cmbSuuntaus").isVisible());
  lomake_.tabRakenne.Indeksi(2);
  EXPECT_EQ(sivut.currentIndex(), 2);
  lomake_.PaivitaKentat({.valittu = true});
  EXPECT_EQ(sivut.currentIndex(), 0) << "no one is left on a closed page";
}

}  // namespace
