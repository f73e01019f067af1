// SPDX-License-Identifier: GPL-3.0-or-later
// The real main window: start, menus, keys, closing.
#include "app/frmMain.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPdfWriter>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <csignal>
#include <filesystem>
#include <functional>

#include "app/Ohjelma.h"
#include "app/Sivunasetus.h"
#include "app/Taulukkotulostus.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsTilat.h"
#include "building/modAlkuarvojaRakennukseen.h"
#include "results/Lomakesivu.h"
#include "settings/Asetusavaimet.h"
#include "settings/Sivuasetukset.h"
#include "tests/app/Koekoti.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/qt/Ikkunatesti.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Lomake.h"
#include "ui/Ohje.h"
#include "ui/qt/QtOhje.h"

namespace fs = std::filesystem;

namespace {

constexpr int kEnintaan = 5000;  // ms

/// A project file of a generated building.
void TeeKohde(const std::string& tiedosto) {
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  AlustaPerustiedot(rakennus.Perustiedot);
  AlustaToteutuneetKulutukset(rakennus.Perustiedot.ToteutuneetKulutukset);
  rakennus.Perustiedot.BruttoAla = 4200;
  rakennus.Perustiedot.Kokonaistilavuus = 17500;
  rakennus.Perustiedot.ValmistumisVuosi = 1965;
  rakennus.Perustiedot.OtaKayttoon(0);
  ASSERT_TRUE(rakennus.Tallenna(tiedosto));
}

QAction& Toiminto(const QMainWindow& ikkuna, const char* nimi) {
  auto* toiminto = ikkuna.findChild<QAction*>(nimi);
  if (!toiminto) throw std::logic_error(nimi);
  return *toiminto;
}

void AvaaValikko(const QMainWindow& ikkuna, const char* nimi) {
  auto* valikko = ikkuna.findChild<QMenu*>(nimi);
  ASSERT_TRUE(valikko) << nimi;
  emit valikko->aboutToShow();
}

class PaaikkunaTesti : public testing::Test {
 protected:
  PaaikkunaTesti() {
    TeeKohde(kohde);
    ikkuna = std::make_unique<frmMain>(istunto);
    ikkuna->show();
  }
  ~PaaikkunaTesti() override {
    istunto.SuljeKohde();
    ikkuna.reset();
  }
  bool Kaytossa(const char* nimi) const { return Toiminto(*ikkuna, nimi).isEnabled(); }

  Koekoti koti;
  std::string kohde = koti.Tiedosto("Koulu.lvt");
  Koeviestit viestit;
  Istunto istunto;
  std::unique_ptr<frmMain> ikkuna;
};

TEST_F(PaaikkunaTesti, EntriesFollowTheObject) {
  for (const char* nimi : {"mnuFileNew", "mnuFileOpen", "mnuFileExit"}) EXPECT_TRUE(Kaytossa(nimi)) << nimi;
  for (const char* nimi : {"mnuFileSave", "mnuFileSaveAs", "mnuPerustiedot", "mnuLampo", "mnuYhteenveto"})
    EXPECT_FALSE(Kaytossa(nimi)) << nimi;
  ASSERT_TRUE(istunto.Avaa(kohde));
  AvaaValikko(*ikkuna, "mnuFile");
  for (const char* nimi : {"mnuFileSave", "mnuFileSaveAs", "mnuPerustiedot", "mnuLampo", "mnuYhteenveto"})
    EXPECT_TRUE(Kaytossa(nimi)) << nimi;

  Toiminto(*ikkuna, "mnuLampo").trigger();
  ASSERT_TRUE(AvoinLomake("frmLampoYhteenveto"));
  EXPECT_FALSE(Kaytossa("mnuLampo")) << "open already";
  AvoinLomake("frmLampoYhteenveto")->Sulje();
  AvaaValikko(*ikkuna, "mnuRakennus");
  EXPECT_TRUE(Kaytossa("mnuLampo"));
  Toiminto(*ikkuna, "mnuYhteenveto").trigger();
  EXPECT_TRUE(AvoinLomake("frmYhteenveto"));
}

TEST_F(PaaikkunaTesti, TheListOfMeasuresOpensAtItsBranchAndNoOtherWindowOverIt) {
  constexpr std::pair<const char*, const char*> kHaarat[] = {
      {"mnuSaastoKokoRakennus", "sKeyKokoKohde"},
      {"mnuEnergianJaVedenhankinta", "sKeyEnergianJaVedenHankinta"},
      {"mnuTilatJaJohtuminen", "sKeyJohtuminen"},
      {"mnuIlmanvaihtokoneet", "sKeyIlmanvaihtokoneet"},
      {"mnuSahkoSaasto", "sKeySahko"},
      {"mnuVesiSaasto", "sKeyVesi"}};
  for (const auto& [ohjain, haara] : kHaarat) EXPECT_FALSE(Kaytossa(ohjain)) << "no object";
  ASSERT_TRUE(istunto.Avaa(kohde));
  for (const auto& [ohjain, haara] : kHaarat) {
    AvaaValikko(*ikkuna, "mnuSaastoToimenpiteet");
    ASSERT_TRUE(Kaytossa(ohjain)) << ohjain;
    Toiminto(*ikkuna, ohjain).trigger();
    Lomake* luettelo = AvoinLomake("frmSaastoToimenpiteet");
    ASSERT_TRUE(luettelo) << ohjain;
    const Ohjain& puu = luettelo->Etsi("lvwKohdentaminen");
    EXPECT_EQ(puu.Lista().Avain(puu.Indeksi()), Tunniste(haara));
    for (const char* nimi :
         {"mnuSaastoKokoRakennus", "mnuLampo", "mnuSahko", "mnuVedenkulutus", "mnuRakennuksen_tilat"})
      EXPECT_FALSE(Kaytossa(nimi)) << nimi;
    luettelo->Sulje();
    AvaaValikko(*ikkuna, "mnuRakennus");
    EXPECT_TRUE(Kaytossa("mnuSahko"));
  }
}

TEST_F(PaaikkunaTesti, EveryEntryHasAFinnishTextALetterAndKeysOfItsOwn) {
  QSet<QKeySequence> nappaimet;
  for (const Valikkorivi& rivi : Valikkorivit()) {
    if (!*rivi.ohjain) continue;
    const QAction& toiminto = Toiminto(*ikkuna, rivi.ohjain);
    EXPECT_FALSE(toiminto.text().contains("missing")) << rivi.ohjain;
    EXPECT_TRUE(toiminto.text().contains('&')) << rivi.ohjain;
    if (toiminto.shortcut().isEmpty()) continue;
    EXPECT_FALSE(nappaimet.contains(toiminto.shortcut())) << rivi.ohjain;
    nappaimet.insert(toiminto.shortcut());
  }
  for (const QMenu* valikko : ikkuna->menuBar()->findChildren<QMenu*>()) {
    QSet<QChar> kirjaimet;
    for (const QAction* toiminto : valikko->actions()) {
      if (toiminto->isSeparator() || !toiminto->isVisible()) continue;
      const QChar kirjain = toiminto->text().at(toiminto->text().indexOf('&') + 1).toLower();
      EXPECT_FALSE(kirjaimet.contains(kirjain)) << toiminto->text().toStdString();
      kirjaimet.insert(kirjain);
    }
  }
}

TEST_F(PaaikkunaTesti, EntriesWithoutAnActionAreNotShown) {
  for (const char* nimi : {"mnuFileClose", "mnuFileSaveAll", "mnuFilePrintPreview", "mnuFileSend",
                           "mnuEditPasteSpecial", "mnuViewRefresh"})
    EXPECT_FALSE(Toiminto(*ikkuna, nimi).isVisible()) << nimi;
  for (const char* nimi : {"mnuFilePrint", "mnuEsikatselu", "mnuWindowNewWindow"}) EXPECT_FALSE(Kaytossa(nimi)) << nimi;
}

TEST_F(PaaikkunaTesti, BarsHaveATickAndAreRemembered) {
  ikkuna->PaivitaValikot();
  for (const char* nimi : {"mnuViewToolbar", "mnuViewStatusBar"}) {
    EXPECT_TRUE(Toiminto(*ikkuna, nimi).isChecked()) << nimi;
    Toiminto(*ikkuna, nimi).trigger();
    EXPECT_FALSE(Toiminto(*ikkuna, nimi).isChecked()) << nimi;
  }
  frmMain uusi(istunto);
  EXPECT_FALSE(uusi.TyokalutNakyvat() || uusi.TilariviNakyy());
}

TEST_F(PaaikkunaTesti, UndoAndRedoNameTheirSteps) {
  ASSERT_TRUE(istunto.Avaa(kohde));
  istunto.Rakennus()->MuuLampo = 5;
  istunto.Rakennus()->Muuttui("Muu lämpö");
  ikkuna->PaivitaValikot();
  EXPECT_EQ(Toiminto(*ikkuna, "mnuEditUndo").text(), "&Kumoa: Muu lämpö");
  EXPECT_TRUE(ikkuna->windowTitle().endsWith(" *"));
  Toiminto(*ikkuna, "mnuEditUndo").trigger();
  EXPECT_EQ(Toiminto(*ikkuna, "mnuEditUndo").text(), "&Kumoa");
  EXPECT_EQ(Toiminto(*ikkuna, "mnuEditRedo").text(), "&Tee uudelleen: Muu lämpö");
  EXPECT_FALSE(ikkuna->windowTitle().endsWith(" *"));
  EXPECT_FALSE(Kaytossa("mnuEditUndo"));
}

TEST_F(PaaikkunaTesti, TheModelDisablesTheFirstButtons) {
  ASSERT_TRUE(istunto.Avaa(kohde));
  ikkuna->PaivitaValikot();
  ikkuna->TyokalutKaytossa(2, false);
  EXPECT_FALSE(Kaytossa("mnuFileNew") || Kaytossa("mnuFileOpen"));
  EXPECT_TRUE(Kaytossa("mnuFileSave"));
  ikkuna->TyokalutKaytossa(8, false);
  EXPECT_FALSE(Kaytossa("mnuHelpContents")) << "separators don't count";
}

QImage Kuva(const QAction& toiminto) { return toiminto.icon().pixmap(24).toImage(); }

TEST_F(PaaikkunaTesti, EveryToolHasAPictureOfItsOwnThatFollowsTheTheme) {
  const auto& rivi = *ikkuna->findChild<QToolBar*>("tbToolBar");
  QList<QImage> kuvat;
  for (const QAction* nappi : rivi.actions())
    if (!nappi->isSeparator()) kuvat << Kuva(*nappi);
  for (const QImage& kuva : kuvat) EXPECT_EQ(kuvat.count(kuva), 1);
  const QPalette vaalea = QApplication::palette();
  QPalette tumma = vaalea;
  tumma.setColor(QPalette::ButtonText, Qt::white);
  QApplication::setPalette(tumma);
  EXPECT_NE(Kuva(Toiminto(*ikkuna, "mnuFileNew")), kuvat.front());
  QApplication::setPalette(vaalea);
}

/// The forms inside the main window, as the person uses the clipboard in them.
class Leikepoytatesti : public PaaikkunaTesti {
 protected:
  void SetUp() override {
    ikkuna->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(ikkuna.get()));
    ASSERT_TRUE(istunto.Avaa(kohde));
    ikkuna->PaivitaValikot();
    QGuiApplication::clipboard()->clear();
  }
  template <class W>
  W& Ohjain(const char* valikko, const char* nimi) const {
    Toiminto(*ikkuna, valikko).trigger();
    W& ohjain = *ikkuna->findChild<W*>(nimi);
    ohjain.setFocus();
    return ohjain;
  }
  void PainaTyokalua(const char* nimi) const {
    const auto& rivi = *ikkuna->findChild<QToolBar*>("tbToolBar");
    QTest::mouseClick(rivi.widgetForAction(&Toiminto(*ikkuna, nimi)), Qt::LeftButton);
  }
  /// "LKP": which of cut, copy and paste can be done.
  std::string Voi() const {
    return std::string(Kaytossa("mnuEditCut") ? "L" : "") + (Kaytossa("mnuEditCopy") ? "K" : "") +
           (Kaytossa("mnuEditPaste") ? "P" : "");
  }
  static std::string Leikepoyta() { return QGuiApplication::clipboard()->text().toStdString(); }
};

TEST_F(Leikepoytatesti, ToolsAndMenusWorkOnTheFieldAndLeaveItTheFocus) {
  auto& kentta = Ohjain<QLineEdit>("mnuLampo", "txtMuuLampo");
  auto poistuttu = std::make_shared<int>(0);
  AvoinLomake("frmLampoYhteenveto")->Etsi("txtMuuLampo").Poistuttu = [poistuttu] { ++*poistuttu; };
  kentta.setText("12,5");
  EXPECT_EQ(Voi(), "");
  kentta.selectAll();
  EXPECT_EQ(Voi(), "LK");
  PainaTyokalua("mnuEditCopy");
  EXPECT_EQ(Leikepoyta(), "12,5");
  EXPECT_EQ(Voi(), "LKP");

  QTest::mouseClick(ikkuna->menuBar(), Qt::LeftButton, {},
                    ikkuna->menuBar()->actionGeometry(ikkuna->findChild<QMenu*>("mnuEdit")->menuAction()).center());
  ASSERT_TRUE(QApplication::activePopupWidget());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_L);
  EXPECT_EQ(kentta.text(), "");

  ikkuna->menuBar()->setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(Voi(), "P");
  Toiminto(*ikkuna, "mnuEditPaste").trigger();
  kentta.setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(kentta.text(), "12,5");
  EXPECT_EQ(*poistuttu, 0) << "the field is still being edited";
}

TEST_F(Leikepoytatesti, SavingAndClosingTakeWhatIsStillBeingWritten) {
  Ohjain<QCheckBox>("mnuRakennuksen_tilat", "chkKaytaTotSahkoKuormia").click();
  auto& osuus = *ikkuna->findChild<QLineEdit*>("txtTotSahkoKuormaPros");
  osuus.setFocus();
  const auto kirjoita = [&](const char* luku) {
    osuus.selectAll();
    QTest::keyClicks(&osuus, luku);
  };
  const clsTilat& tilat = istunto.Rakennus()->Tilat;
  kirjoita("50");
  PainaTyokalua("mnuFileSave");
  EXPECT_EQ(tilat.TotSahkoKuormaPros, 50);
  EXPECT_TRUE(istunto.Rakennus()->Tallennettu);
  EXPECT_TRUE(osuus.hasFocus());
  kirjoita("55");
  QTest::keyClick(&osuus, Qt::Key_T, Qt::AltModifier);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_T);
  EXPECT_EQ(tilat.TotSahkoKuormaPros, 55);
  kirjoita("60");
  viestit.AsetaSeuraavaVastaus(Vastaus::Peruuta);
  EXPECT_FALSE(ikkuna->close()) << "there is something to be saved";
  EXPECT_EQ(tilat.TotSahkoKuormaPros, 60);
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  EXPECT_TRUE(ikkuna->close());
}

TEST_F(Leikepoytatesti, AFieldThatCannotBeWrittenInIsCopiedOnlyAndAListTakesRows) {
  QGuiApplication::clipboard()->setText("1");
  auto& summa = Ohjain<QLineEdit>("mnuLampo", "txtYhteensa");
  summa.selectAll();
  EXPECT_EQ(Voi(), "K");
  Ohjain<QTreeView>("mnuRakennuksen_tilat", "lvwTilat");
  EXPECT_EQ(Voi(), "KP");
  PainaTyokalua("mnuEditCopy");
  EXPECT_EQ(Leikepoyta().substr(0, 5), "Tila\t");
  AvoinLomake("frmTilaYhteenveto")->Sulje();
  AvoinLomake("frmLampoYhteenveto")->Sulje();
  ikkuna->PaivitaValikot();
  EXPECT_EQ(Voi(), "") << "what was active is gone";
}

TEST_F(Leikepoytatesti, WhatAFormCommitsCanBeUndoneByItsKeyAtOnce) {
  Ohjain<QPushButton>("mnuRakennuksen_tilat", "cmdKopioiTila").click();
  ASSERT_EQ(istunto.Rakennus()->Tilat.Count(), 2);
  auto& luettelo = *ikkuna->findChild<QTreeView*>("lvwTilat");
  luettelo.setFocus();
  QTest::keyClick(&luettelo, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(istunto.Rakennus()->Tilat.Count(), 1);
}

TEST_F(PaaikkunaTesti, ThePlaceIsKeptInTwips) {
  EXPECT_EQ(ikkuna->size(), QSize(814, 634)) << "12210 by 9510";
  ikkuna->resize(700, 500);
  ikkuna->move(40, 60);
  ikkuna->close();
  EXPECT_EQ(HaeAsetus(Avain::MainLeft), "600");
  EXPECT_EQ(HaeAsetus(Avain::MainHeight), "7500");
  frmMain uusi(istunto);
  EXPECT_EQ(uusi.size(), QSize(700, 500));
  TallennaAsetus(Avain::MainLeft, "900000");
  frmMain ulkona(istunto);
  EXPECT_TRUE(QRect(0, 0, 800, 800).contains(ulkona.pos())) << "a place off the screens is ignored";
}

/// Does once what a person does when a modal window of the right kind is open; `tee` says whether it was.
void KunAukeaa(std::function<bool(QWidget&)> tee) {
  auto* ajastin = new QTimer(qApp);
  QObject::connect(ajastin, &QTimer::timeout, qApp, [ajastin, tee = std::move(tee)] {
    QWidget* ikkuna = QApplication::activeModalWidget();
    if (!ikkuna || !ikkuna->isVisible() || !tee(*ikkuna)) return;
    ajastin->stop();
    ajastin->deleteLater();
  });
  ajastin->start(10);
}

bool Paina(QPushButton* nappi) {
  if (nappi) QTest::mouseClick(nappi, Qt::LeftButton);
  return nappi != nullptr;
}

TEST_F(PaaikkunaTesti, TheChosenPageIsKeptUnlessCancelled) {
  TallennaSivuasetukset({.vaaka = false});
  for (const bool hyvaksytaan : {false, true}) {
    KunAukeaa([&](QWidget& dialogi) {
      EXPECT_EQ(dialogi.windowTitle(), "Page Setup");
      dialogi.findChild<QRadioButton*>("landscape")->click();
      const auto nappi = hyvaksytaan ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
      return Paina(dialogi.findChild<QDialogButtonBox*>()->button(nappi));
    });
    ikkuna->mnuFilePageSetup_Click();
    EXPECT_EQ(HaeSivuasetukset(), Sivuasetukset{.vaaka = hyvaksytaan});
  }
}

TEST_F(PaaikkunaTesti, TheActiveFormGoesToASheetAsItLooks) {
  TallennaAsetus(Avain::Taulukkokansio, fs::path(kohde).parent_path().string());
  ASSERT_TRUE(istunto.Avaa(kohde));
  istunto.Rakennus()->MuuLampo = 5;  // no two figures are the same
  ikkuna->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(ikkuna.get()));
  ikkuna->PaivitaValikot();
  Toiminto(*ikkuna, "mnuLampo").trigger();
  const Lomake& yhteenveto = *AvoinLomake("frmLampoYhteenveto");
  const Taulukkosivu sivu = Lomakesivu(yhteenveto, 970, 360);
  const auto solu = [&](const char* ohjain) {
    const std::string& teksti = yhteenveto.Etsi(ohjain).Teksti();
    return std::ranges::find_if(sivu.solut, [&](const auto& s) { return SolunTeksti(s.second.sisalto) == teksti; })
        ->first;
  };
  for (const auto& [otsikko, arvo] :
       {std::pair{"lblTilojenLammitys", "txtTilojenLammitys"}, {"lblYhteensa", "txtYhteensa"}}) {
    EXPECT_EQ(solu(otsikko).first, solu(arvo).first) << "figures stand on the rows of their captions";
    EXPECT_EQ(solu(arvo).second, solu("lblArvo").second) << "and under their heading";
  }
  Toiminto(*ikkuna, "mnuRakennuksen_tilat").trigger();
  ikkuna->PaivitaValikot();
  ASSERT_TRUE(Kaytossa("mnuFilePrint"));
  Toiminto(*ikkuna, "mnuFilePrint").trigger();
  ASSERT_EQ(viestit.Avatut().size(), 1u);
  EXPECT_EQ(fs::path(viestit.Avatut().front()).parent_path(), fs::path(kohde).parent_path());
  QTest::keyClick(ikkuna->findChild<QTreeView*>(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(viestit.Avatut().size(), 2u);
}

TEST_F(PaaikkunaTesti, TheActiveFormIsShownAsItComesOnPaper) {
  ASSERT_TRUE(istunto.Avaa(kohde));
  ikkuna->PaivitaValikot();
  Toiminto(*ikkuna, "mnuRakennuksen_tilat").trigger();
  ikkuna->PaivitaValikot();
  ASSERT_TRUE(Kaytossa("mnuEsikatselu"));
  bool nahty = false;
  KunAukeaa([&](QWidget& dialogi) {
    EXPECT_EQ(dialogi.windowTitle(), "Tulostuksen esikatselu");
    TallennaKuva(dialogi, "esikatselu");
    nahty = dialogi.findChild<QPrintPreviewWidget*>()->pageCount() == 1;
    return dialogi.close();
  });
  Toiminto(*ikkuna, "mnuEsikatselu").trigger();
  EXPECT_TRUE(nahty);
}

TEST(Taulukkotulostus, EachSheetTakesThePagesThatItsRowsNeed) {
  const Koehakemisto kansio;
  const QString tiedosto = QString::fromStdString((kansio / "taulukot.pdf").string());
  Taulukkosivu pitka{.nimi = "Pitkä", .otsikko = "Koulu – Pitkä", .otsikkoriveja = 1};
  for (int rivi = 1; rivi <= 101; ++rivi) pitka.solut[{rivi, 1}] = {"Rivi " + std::to_string(rivi)};
  Taulukkosivu levea{.nimi = "Leveä", .otsikko = ""};
  for (int sarake = 1; sarake <= 60; ++sarake) levea.solut[{1, sarake}] = {Taulukkoluku{sarake * 1e6, "### ##0.00"}};
  int sivuja = 0;
  {
    QPdfWriter laite(tiedosto);
    laite.setPageLayout(Sivuna({.vaaka = false}));
    sivuja = TulostaSivut({pitka, levea}, laite);
  }
  // 297 mm less margins of 40 mm is 728 points, of which 44 are title and page number: 48 rows of 14 points, one of
  // them the heading.
  EXPECT_EQ(sivuja, 3 + 1);
  QFile pdf(tiedosto);
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_EQ(pdf.readAll().count("/Type /Page\n"), sivuja);
}

TEST(Sivunasetus, ThePageIsTheSameInTheSettingsAndInTheToolkit) {
  for (const char* paperi : {"A4", "A3", "A5", "Letter"}) {
    const Sivuasetukset sivu{.paperi = paperi, .vaaka = false, .vasen = 11, .yla = 12, .oikea = 13, .ala = 14};
    EXPECT_EQ(Asetuksina(Sivuna(sivu)), sivu);
  }
  EXPECT_EQ(Sivuna({.paperi = "kirjekuori"}).pageSize().id(), QPageSize::A4);
}

TEST(Ohjelma, TheStartWindowLeadsToTheBasicDataOfANewObject) {
  const Koekoti koti;
  Ohjelma ohjelma;
  EXPECT_TRUE(AvoinLomake("frmSplash")) << "shown while the program loads";
  EXPECT_FALSE(ohjelma.Paaikkuna().isVisible());
  KunAukeaa([](QWidget& ikkuna) { return Paina(ikkuna.findChild<QPushButton*>("cmdJatka")); });
  QString otsikko;
  KunAukeaa([&](QWidget& ikkuna) {
    otsikko = ohjelma.Paaikkuna().windowTitle();
    return Paina(ikkuna.findChild<QPushButton*>("cmdPeruuta"));
  });
  ASSERT_TRUE(QTest::qWaitFor([&] { return otsikko == "Lumivirta - Uusi"; }, kEnintaan));
  EXPECT_TRUE(ohjelma.Paaikkuna().isVisible());
  EXPECT_EQ(ohjelma.Kohteet().Rakennus(), nullptr) << "cancelled";
  EXPECT_EQ(ohjelma.Paaikkuna().windowTitle(), "Lumivirta");
  EXPECT_EQ(ViestitNyt().Paneeli(), "Valmis!");
  EXPECT_EQ(HaeAsetus(Avain::Kotihakemisto), AppPath());
}

TEST_F(PaaikkunaTesti, AnOpenGuideDoesNotKeepTheProgramRunning) {
  QtOhje ohje;
  AvaaOhje(kOhjeSisallys);
  QApplication::setQuitOnLastWindowClosed(true);
  QTimer::singleShot(0, ikkuna.get(), &QWidget::close);
  QTimer vartija;
  vartija.callOnTimeout([] { QApplication::exit(1); });
  vartija.start(kEnintaan);
  EXPECT_EQ(QApplication::exec(), 0);
  QApplication::setQuitOnLastWindowClosed(false);
}

TEST(Ohjelma, TerminationRescuesTheObjectBeforeItAsks) {
  const Koekoti koti;
  TeeKohde(koti.Tiedosto("Koulu.lvt"));
  Ohjelma ohjelma;
  KunAukeaa([](QWidget& ikkuna) {
    QTest::keyClick(&ikkuna, Qt::Key_Escape);
    return true;
  });
  ASSERT_TRUE(QTest::qWaitFor([] { return !AvoinLomake("frmSplash"); }, kEnintaan));
  EXPECT_EQ(ohjelma.Kohteet().Rakennus(), nullptr) << "the choice was left to the menus";

  ASSERT_TRUE(ohjelma.Kohteet().Avaa(koti.Tiedosto("Koulu.lvt")));
  ohjelma.Kohteet().Rakennus()->MuuLampo = 5;
  ohjelma.Kohteet().Rakennus()->Muuttui("Muu lämpö");
  const auto palautuksia = [] {
    return std::ranges::count_if(fs::directory_iterator(AppPath()), [](const auto& tiedosto) {
      return tiedosto.path().filename().string().starts_with("~palautus");
    });
  };
  bool talteen = false;
  KunAukeaa([&](QWidget& ikkuna) {
    talteen = palautuksia() == 1;
    return Paina(ikkuna.findChild<QPushButton*>());
  });
  std::raise(SIGTERM);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !ohjelma.Kohteet().Rakennus(); }, kEnintaan)) << "saved and closed";
  EXPECT_TRUE(talteen) << "written before the question";
  EXPECT_TRUE(QTest::qWaitFor([&] { return palautuksia() == 0; }, kEnintaan));
}

TEST(Ohjelma, ThePictureShowsTheHeatSummary) {
  const Koekoti koti;
  TeeKohde(koti.Tiedosto("Koulu.lvt"));
  const std::string tyhja = koti.Tiedosto("tyhjä.png"), kuva = koti.Tiedosto("kuva.png");
  EXPECT_EQ(KuvaaPaaikkuna(tyhja, ""), 0);
  EXPECT_EQ(KuvaaPaaikkuna(kuva, koti.Tiedosto("Koulu.lvt")), 0);
  EXPECT_NE(QImage(QString::fromStdString(kuva)), QImage(QString::fromStdString(tyhja)));
  EXPECT_EQ(KuvaaPaaikkuna(koti.Tiedosto("ei/ole.png"), ""), 1);
}

}  // namespace
