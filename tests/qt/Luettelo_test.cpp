// SPDX-License-Identifier: GPL-3.0-or-later
// Lists under the person's hands: sorting, choosing, copying, pasting; the dialogs of spaces and structures filled.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include "tests/qt/Ikkunatesti.h"
#include "ui/Kenttatarkistus.h"
#include "ui/frmRakenteet.h"
#include "ui/frmTila.h"
#include "ui/frmTilaYhteenveto.h"
#include "ui/qt/QtViestit.h"

namespace {

class Luettelotesti : public Ikkunatesti {
 protected:
  static void Nayta(Lomake& lomake) {
    lomake.Nayta();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Juuri(lomake).window()));
  }
  static void Napsauta(QTreeView& lista, int rivi, Qt::KeyboardModifiers muunnin = {}) {
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, muunnin,
                      lista.visualRect(lista.model()->index(rivi, 0)).center());
    QCoreApplication::processEvents();
  }
  static void NapsautaOtsikkoa(QTreeView& lista, int sarake) {
    QHeaderView& otsikot = *lista.header();
    QTest::mouseClick(otsikot.viewport(), Qt::LeftButton, {},
                      QPoint(otsikot.sectionViewportPosition(sarake) + 10, otsikot.height() / 2));
  }
  static QStringList Sarake(const QTreeView& lista, int sarake) {
    QStringList solut;
    for (QModelIndex i = lista.model()->index(0, sarake); i.isValid(); i = lista.indexBelow(i).siblingAtColumn(sarake))
      solut << i.data().toString();
    return solut;
  }
  static QString Valittu(const QTreeView& lista) { return lista.currentIndex().siblingAtColumn(0).data().toString(); }
  static QString Leikepoyta() { return QGuiApplication::clipboard()->text(); }

  QtViestit viestit_;
};

class Tilaluettelo : public Luettelotesti {
 protected:
  Tilaluettelo() {
    lomake_.luettelo.Aseta(
        {.sisalto =
             [] {
               return Luettelosisalto{
                   {{{"Öljyvarasto", "90"}, "öljyvarasto"}, {{"Sali", "1 000"}, "sali"}, {{"Aula", "200"}, "aula"}},
                   {"Yhteensä", "1 290"}};
             },
         .nimi = [](const Tunniste& avain) { return avain.Teksti(); },
         .lisaa = [this] { return tehty_ += "+", Tunniste(); },
         .muokkaa = [this](const Tunniste& avain) { tehty_ += avain.Teksti() + " "; },
         .poista = [this](const Tunniste& avain) { tehty_ += "-" + avain.Teksti(); }});
    lomake_.luettelo.Nayta();
    lomake_.txtTotSahkoKuormaPros.Teksti("0");
    lomake_.PaivitaKentat();
    Nayta(lomake_);
  }
  QTreeView& Lista() { return Etsi<QTreeView>(lomake_, "lvwTilat"); }

  frmTilaYhteenveto lomake_;
  std::string tehty_;
};

TEST_F(Tilaluettelo, ClickingAHeadingSortsAndTheSumStaysLast) {
  NapsautaOtsikkoa(Lista(), 0);
  EXPECT_EQ(Sarake(Lista(), 0), QStringList({"Aula", "Sali", "Öljyvarasto", "Yhteensä"}));
  EXPECT_EQ(lomake_.lvwTilat.Indeksi(), 0);
  EXPECT_EQ(Valittu(Lista()), "Öljyvarasto") << "the chosen row moves with its number";
  NapsautaOtsikkoa(Lista(), 1);
  NapsautaOtsikkoa(Lista(), 1);
  EXPECT_EQ(Sarake(Lista(), 1), QStringList({"1 000", "200", "90", "1 290"}));
  Napsauta(Lista(), 0);
  EXPECT_EQ(lomake_.lvwTilat.Indeksi(), 1);
  Napsauta(Lista(), 3);
  EXPECT_NE(lomake_.lvwTilat.Indeksi(), 3) << "the sums can't be chosen";
  QTest::keyClick(&Lista(), Qt::Key_End);
  EXPECT_EQ(Valittu(Lista()), "Öljyvarasto");
  lomake_.lvwTilat.Rivit({{"A", "1"}, {"B", "2"}});
  EXPECT_EQ(Sarake(Lista(), 1), QStringList({"2", "1", "1 290"})) << "new rows are sorted as the former were";
}

TEST_F(Tilaluettelo, ASortedHeadingFitsWithItsArrowAndOthersGetTheirRoomBack) {
  const auto leveydet = [this] {
    QList<int> kaikki;
    for (int s = 0; s < Lista().model()->columnCount(); ++s) kaikki << Lista().columnWidth(s);
    return kaikki;
  };
  NapsautaOtsikkoa(Lista(), 0);
  const QList<int> alussa = leveydet();
  for (int s = 1; s < Lista().model()->columnCount(); ++s) {
    NapsautaOtsikkoa(Lista(), s);
    EXPECT_GE(Lista().columnWidth(s), Lista().header()->sectionSizeHint(s)) << s;
  }
  EXPECT_FALSE(Lista().horizontalScrollBar()->isVisible());
  NapsautaOtsikkoa(Lista(), 0);
  EXPECT_EQ(leveydet(), alussa);
}

TEST_F(Tilaluettelo, SumAndLockedFieldsTakeTheThemesColours) {
  const auto vari = [this] { return Lista().model()->index(3, 0).data(Qt::ForegroundRole).value<QBrush>().color(); };
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

TEST_F(Tilaluettelo, ChosenRowsOrAllGoToTheClipboard) {
  Napsauta(Lista(), 0);
  Napsauta(Lista(), 1, Qt::ShiftModifier);
  QTest::keyClick(&Lista(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Leikepoyta().startsWith("Tila\tTilavuus (m³)\t")) << Leikepoyta().toStdString();
  EXPECT_TRUE(Leikepoyta().endsWith("\nÖljyvarasto\t90\nSali\t1000\n")) << Leikepoyta().toStdString();
  Lista().clearSelection();
  QTest::keyClick(&Lista(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(Leikepoyta().endsWith("Aula\t200\nYhteensä\t1290\n")) << Leikepoyta().toStdString();
}

TEST_F(Tilaluettelo, EnterAndDoubleClickEditAndDontClose) {
  Napsauta(Lista(), 1);
  QTest::keyClick(&Lista(), Qt::Key_Return);
  EXPECT_EQ(tehty_, "sali ");
  EXPECT_TRUE(lomake_.Auki());
  Napsauta(Lista(), 2);
  QTest::mouseDClick(Lista().viewport(), Qt::LeftButton, {}, Lista().visualRect(Lista().model()->index(2, 0)).center());
  EXPECT_EQ(tehty_, "sali aula ");
  EXPECT_EQ(lomake_.lvwTilat.Indeksi(), 2);
}

TEST_F(Tilaluettelo, InsertAddsAndDeleteAsksByName) {
  QTest::keyClick(&Lista(), Qt::Key_Insert);
  EXPECT_EQ(tehty_, "+");
  QString kysymys;
  QTimer::singleShot(0, [&] {
    QWidget* laatikko = QApplication::activeModalWidget();
    for (const QLabel* osa : laatikko->findChildren<QLabel*>()) kysymys += osa->text();
    for (QPushButton* nappi : laatikko->findChildren<QPushButton*>())
      if (QString(nappi->text()).remove('&') == "Kyllä") nappi->click();
  });
  QTest::keyClick(&Lista(), Qt::Key_Delete);
  EXPECT_TRUE(kysymys.contains("öljyvarasto")) << kysymys.toStdString();
  EXPECT_EQ(tehty_, "+-öljyvarasto");
}

/// The same list as a tree: what comes with a row, and what the person does to it.
class Puuluettelo : public Tilaluettelo {
 protected:
  Puuluettelo() { lomake_.lvwTilat.Tayta(Sisalto()); }
  static Luettelosisalto Sisalto() {
    return {{{{"Koulu", "1 200"}, "koulu", {}, {.lihava = true}},
             {{"Sali", "1 000"}, "sali", "koulu", {.siirrettava = true, .muokattavat = {1}}},
             {{"Aula", "200"}, "aula", "koulu", {.merkitys = Merkitys::Huomio, .merkitty = 1, .selite = "Liian pieni"}},
             {{"Muut", "90"}, "muut", {}, {.suljettu = true}},
             {{"Varasto", "90"}, "varasto", "muut"}},
            {"Yhteensä", "1 290"}};
  }
  QModelIndex Paikka(const char* nimi, int sarake = 0) {
    const auto loydetyt = Lista().model()->match(Lista().model()->index(0, 0), Qt::DisplayRole, QString(nimi), 1,
                                                 Qt::MatchExactly | Qt::MatchRecursive);
    return loydetyt.isEmpty() ? QModelIndex() : loydetyt[0].siblingAtColumn(sarake);
  }
};

TEST_F(Puuluettelo, BranchesOpenByKeysAndStayWhenFilled) {
  EXPECT_EQ(Sarake(Lista(), 0), QStringList({"Koulu", "Sali", "Aula", "Muut", "Yhteensä"}));
  TallennaKuva(lomake_, "_puu");
  Lista().setCurrentIndex(Paikka("Muut"));
  QTest::keyClick(&Lista(), Qt::Key_Right);
  EXPECT_EQ(Sarake(Lista(), 0), QStringList({"Koulu", "Sali", "Aula", "Muut", "Varasto", "Yhteensä"}));
  QTest::keyClick(&Lista(), Qt::Key_K);
  EXPECT_EQ(lomake_.lvwTilat.Valittu(), Tunniste("koulu")) << "a letter takes to the row";
  QTest::keyClick(&Lista(), Qt::Key_Left);
  Luettelosisalto sisalto = Sisalto();
  sisalto.rivit.push_back({{"Uusi", "1"}, "uusi", "muut"});
  lomake_.lvwTilat.Tayta(std::move(sisalto));
  EXPECT_EQ(Sarake(Lista(), 0), QStringList({"Koulu", "Muut", "Varasto", "Uusi", "Yhteensä"}));
  EXPECT_EQ(Valittu(Lista()), "Koulu");
}

TEST_F(Puuluettelo, AMeaningShowsAsAMarkAndInWordsNotByColourOnly) {
  const QModelIndex aula = Paikka("Aula", 1);
  EXPECT_FALSE(aula.data(Qt::DecorationRole).value<QIcon>().isNull());
  EXPECT_EQ(aula.data(Qt::AccessibleDescriptionRole), "Liian pieni");
  EXPECT_EQ(aula.data(Qt::ToolTipRole), "Liian pieni");
  EXPECT_TRUE(aula.data(Qt::ForegroundRole).isValid());
  EXPECT_FALSE(aula.siblingAtColumn(0).data(Qt::ForegroundRole).isValid()) << "the other cells are ordinary";
  EXPECT_TRUE(Paikka("Koulu").data(Qt::FontRole).value<QFont>().bold());
}

TEST_F(Puuluettelo, ACellIsEditedByF2AndTheProgramDecidesWhatItShows) {
  lomake_.lvwTilat.KunMuokataan([this](int rivi, int sarake, const std::string& teksti) {
    lomake_.lvwTilat.Rivi(rivi, {"Sali", std::to_string(sarake) + "/" + teksti});
  });
  Lista().setCurrentIndex(Paikka("Sali"));
  QTest::keyClick(&Lista(), Qt::Key_F2);
  auto* muokkain = Lista().findChild<QLineEdit*>();
  ASSERT_TRUE(muokkain);
  muokkain->selectAll();
  QTest::keyClicks(muokkain, "950");
  QTest::keyClick(muokkain, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Paikka("Sali", 1).data(), "1/950");
  EXPECT_FALSE(Paikka("Aula", 1).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(Puuluettelo, ARowIsDraggedUnderAnAllowedRow) {
  Tunniste siirretty, kohde;
  const Luettelo& lista = lomake_.lvwTilat.Kohde().Lista();
  lomake_.lvwTilat.KunSiirretaan([&](int, int ylempi) { return lista.Avain(ylempi) == Tunniste("muut"); },
                                 [&](int rivi, int ylempi) {
                                   siirretty = lista.Avain(rivi);
                                   kohde = lista.Avain(ylempi);
                                 });
  Lista().setCurrentIndex(Paikka("Sali"));
  QAbstractItemModel& malli = *Lista().model();
  const std::unique_ptr<QMimeData> data(malli.mimeData({Paikka("Sali")}));
  EXPECT_FALSE(malli.dropMimeData(data.get(), Qt::MoveAction, -1, -1, Paikka("Aula")));
  EXPECT_TRUE(malli.dropMimeData(data.get(), Qt::MoveAction, -1, -1, Paikka("Muut")));
  QCoreApplication::processEvents();
  EXPECT_EQ(siirretty, Tunniste("sali"));
  EXPECT_EQ(kohde, Tunniste("muut"));
  EXPECT_FALSE(Paikka("Aula").flags().testFlag(Qt::ItemIsDragEnabled));
}

TEST_F(Tilaluettelo, RowsAreOrderedByDraggingAndByKeysAndTickedByTheSpaceBar) {
  lomake_.lvwTilat.Tayta({{{{"Kaikki", "9"}, "kaikki"},
                           {{"Sali", "1"}, "sali", {}, {.siirrettava = true, .rasti = false}},
                           {{"Aula", "2"}, "aula", {}, {.siirrettava = true, .rasti = true}}}});
  lomake_.lvwTilat.KunJarjestetaan(
      [](int, int edellinen) { return edellinen >= 0; },
      [&](int rivi, int edellinen) { tehty_ += std::to_string(rivi) + ">" + std::to_string(edellinen) + " "; });
  lomake_.lvwTilat.KunRastitetaan(
      [&](int rivi, bool rasti) { tehty_ += std::to_string(rivi) + (rasti ? "x " : "- "); });
  QAbstractItemModel& malli = *Lista().model();
  Lista().setCurrentIndex(malli.index(2, 0));
  const std::unique_ptr<QMimeData> data(malli.mimeData({malli.index(2, 0)}));
  EXPECT_FALSE(malli.canDropMimeData(data.get(), Qt::MoveAction, 0, 0, {})) << "the first row stays first";
  EXPECT_FALSE(malli.canDropMimeData(data.get(), Qt::MoveAction, 2, 0, {})) << "it stands there already";
  EXPECT_TRUE(malli.dropMimeData(data.get(), Qt::MoveAction, 1, 0, {}));
  QCoreApplication::processEvents();
  for (const auto nappi : {Qt::Key_Up, Qt::Key_Down}) QTest::keyClick(&Lista(), nappi, Qt::ControlModifier);
  QTest::keyClick(&Lista(), Qt::Key_Space);
  Lista().setCurrentIndex(malli.index(1, 0));
  for (const auto nappi : {Qt::Key_Up, Qt::Key_Down}) QTest::keyClick(&Lista(), nappi, Qt::ControlModifier);
  EXPECT_TRUE(malli.setData(malli.index(1, 0), Qt::Checked, Qt::CheckStateRole));
  EXPECT_EQ(tehty_, "2>0 2>0 2- 1>2 1x ");
  EXPECT_EQ(malli.index(2, 0).data(Qt::CheckStateRole), Qt::Checked);
  EXPECT_FALSE(malli.index(0, 0).data(Qt::CheckStateRole).isValid());
  NapsautaOtsikkoa(Lista(), 0);
  EXPECT_FALSE(malli.canDropMimeData(data.get(), Qt::MoveAction, 1, 0, {})) << "a sorted list has no order of its own";
}

TEST_F(Puuluettelo, TheNameColumnTakesTheRoomAndNarrowsLast) {
  int muut = 0;
  for (int s = 1; s < Lista().model()->columnCount(); ++s) muut += Lista().columnWidth(s);
  EXPECT_EQ(Lista().columnWidth(0), Lista().viewport()->width() - muut);
}

class Rakenneluettelo : public Luettelotesti {
 protected:
  Rakenneluettelo() {
    lomake_.luettelo.Aseta(
        {.sisalto =
             [] {
               return Luettelosisalto{{{{"Seinä", "Ulkoseinä", "12"}, "s"}, {{"Ovi", "Ovi", "2"}, "o"}}};
             },
         .liita =
             [this](const Taulukko& rivit) {
               liitetyt_ = rivit;
               return Tunniste();
             },
         .valittu = [this] { ++valintoja_; },
         .otaKentat = [this] { return TarkistaLukukentat(lomake_); }});
    lomake_.luettelo.Nayta();
    lomake_.luettelo.Valitse("s");
    valintoja_ = 0;
    for (const auto& ohjain : lomake_.Ohjaimet())
      if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti("1");
    lomake_.PaivitaKentat({.valittu = true});
  }
  QTreeView& Lista() { return Etsi<QTreeView>(lomake_, "lvwRakenteet"); }

  frmRakenteet lomake_;
  int valintoja_ = 0;
  Taulukko liitetyt_;
};

TEST_F(Rakenneluettelo, AFaultyFieldRestoresTheChoice) {
  Nayta(lomake_);
  Napsauta(Lista(), 1);
  EXPECT_EQ(valintoja_, 1);
  auto& ala = Etsi<QLineEdit>(lomake_, "txtRakenneala");
  ala.setFocus();
  QTest::keyClicks(&ala, "x");
  QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  Napsauta(Lista(), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(valintoja_, 1);
  EXPECT_EQ(Valittu(Lista()), "Ovi");
  const QModelIndexList valitut = Lista().selectionModel()->selectedRows();
  ASSERT_EQ(valitut.size(), 1);
  EXPECT_EQ(valitut[0].row(), 1) << "what is shown as chosen is what the fields tell of";
}

TEST_F(Rakenneluettelo, PastedRowsComeToTheForm) {
  Nayta(lomake_);
  QGuiApplication::clipboard()->setText("Nimi\tPinta-ala\r\nSeinä\t1 200,5\r\n");
  QTest::keyClick(&Lista(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(liitetyt_, (Taulukko{{"Nimi", "Pinta-ala"}, {"Seinä", "1 200,5"}}));
}

TEST_F(Rakenneluettelo, AClosedPageDoesntOpenAndAnOpenedFormKeepsItsPage) {
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
