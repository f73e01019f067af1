// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/frmMain.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <utility>

#include "app/Ikkunapaikka.h"
#include "app/Istunto.h"
#include "app/Sivunasetus.h"
#include "app/Taulukkotulostus.h"
#include "app/Viimeisimmat.h"
#include "kernel/Hakemistot.h"
#include "results/Taulukkovienti.h"
#include "settings/Asetusavaimet.h"
#include "tekstit/paaikkuna.h"
#include "tekstit/viestit.h"
#include "ui/Komento.h"
#include "ui/Lomake.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/qt/QtIkkuna.h"
#include "ui/qt/Vektorikuva.h"

namespace {

constexpr std::size_t kPolkuValikossa = 60;

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

/// A caption without a marked letter gets its first one: the store's text may also be used without a menu.
QString Valikkoteksti(int tunnus) {
  const QString teksti = Q(Teksti(tunnus));
  return teksti.contains('&') ? teksti : '&' + teksti;
}

}  // namespace

frmMain::frmMain(Istunto& istunto)
    : istunto_(istunto), alue_(this), paneeli_(this), leike_([this] { PaivitaKaytossa("mnuEdit"); }) {
  setObjectName("frmMain");
  setCentralWidget(&alue_);
  alue_.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  alue_.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  LuoValikot();
  LuoTyokalut();
  statusBar()->setObjectName("sbStatusBar");  // the first to measure text: the fonts are read meanwhile
  statusBar()->addWidget(&paneeli_, 1);
  tyokalut_->setVisible(HaeTotuus(Avain::TyokaluriviNakyy));
  statusBar()->setVisible(HaeTotuus(Avain::TilariviNakyy));
  connect(menuBar()->findChild<QMenu*>("mnuFile"), &QMenu::aboutToShow, this, &frmMain::PaivitaViimeisimmat);
  connect(&alue_, &QMdiArea::subWindowActivated, this, &frmMain::PaivitaValikot);
  PalautaPaikka(*this);
  AsetaQtLomakkeet(&alue_);
  AsetaPaaikkuna(this);
  AsetaTulostus(VieTaulukkoon);
  AsetaOtsikko({});
  AsetaKomennonJalki([this] { PaivitaValikot(); });
  PaivitaValikot();
}

frmMain::~frmMain() {
  AsetaKomennonJalki({});
  alue_.disconnect(this);
  AsetaTulostus({});
  AsetaPaaikkuna(nullptr);
  AsetaQtLomakkeet(nullptr);
}

void frmMain::AsetaOtsikko(const std::string& teksti) { setWindowTitle(Q(PaaikkunanOtsikko(teksti))); }

void frmMain::AsetaPaneeli(const std::string& teksti) { paneeli_.setText(Q(teksti)); }

void frmMain::TyokalutKaytossa(int maara, bool kaytossa) {
  for (QAction* nappi : tyokalut_->actions())
    if (!nappi->isSeparator() && maara-- > 0) nappi->setEnabled(kaytossa);
}

void frmMain::LuoValikot() {
  for (const Paavalikko& paavalikko : Paavalikot()) {
    QMenu& valikko = LuoValikko(paavalikko);
    for (const Valikkorivi& rivi : Valikkorivit()) {
      if (std::string_view(rivi.valikko) != paavalikko.ohjain) continue;
      *rivi.ohjain ? LuoToiminto(rivi, valikko) : static_cast<void>(valikko.addSeparator());
    }
  }
}

QMenu& frmMain::LuoValikko(const Paavalikko& paavalikko) {
  QMenu& valikko = *menuBar()->addMenu(Valikkoteksti(paavalikko.teksti));
  valikko.setObjectName(paavalikko.ohjain);
  connect(&valikko, &QMenu::aboutToShow, this, &frmMain::PaivitaValikot);
  return valikko;
}

void frmMain::LuoToiminto(const Valikkorivi& rivi, QMenu& valikko) {
  QAction& toiminto = *valikko.addAction(Valikkoteksti(rivi.teksti), this, [this, &rivi] { Suorita(rivi); });
  toiminto.setObjectName(rivi.ohjain);
  toiminto.setShortcut(QKeySequence(rivi.nappaimet));
  toiminto.setVisible(rivi.nakyva);
  toiminto.setCheckable(rivi.rasti != nullptr);
  toiminnot_.push_back({rivi, toiminto});
}

/// The buttons of each menu are a group.
void frmMain::LuoTyokalut() {
  tyokalut_ = addToolBar(Q(Teksti(tekstit::kOhjelmanNimi)));
  tyokalut_->setObjectName("tbToolBar");
  tyokalut_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  tyokalut_->setMovable(false);
  tyokalut_->setContextMenuPolicy(Qt::PreventContextMenu);
  std::string_view ryhma;
  for (const auto& [rivi, toiminto] : toiminnot_) {
    if (!*rivi.tyokalu) continue;
    if (!ryhma.empty() && ryhma != rivi.valikko) tyokalut_->addSeparator();
    ryhma = rivi.valikko;
    const QString nappaimet = toiminto.shortcut().toString(QKeySequence::NativeText);
    toiminto.setToolTip(Q(Teksti(rivi.tyokaluvihje)) + (nappaimet.isEmpty() ? nappaimet : " (" + nappaimet + ')'));
    toiminto.setIcon(Vektorikuvake(rivi.tyokalu));
    tyokalut_->addAction(&toiminto);
  }
}

void frmMain::PaivitaViimeisimmat() {
  auto& valikko = *menuBar()->findChild<QMenu*>("mnuFile");
  auto* lopeta = findChild<QAction*>("mnuFileExit");
  for (QAction* vanha : std::exchange(viimeisimmat_, {})) delete vanha;
  for (const std::string& tiedosto : ViimeisimmatTiedostot()) {
    const QString numero = QString::number(viimeisimmat_.size() + 1);
    auto* toiminto =
        new QAction('&' + numero + "  " + Q(LyhennaPolku(tiedosto, kPolkuValikossa)).replace('&', "&&"), this);
    connect(toiminto, &QAction::triggered, this,
            [this, tiedosto] { SuoritaKomento([&] { istunto_.AvaaViimeisin(tiedosto); }); });
    valikko.insertAction(lopeta, toiminto);
    viimeisimmat_.push_back(toiminto);
  }
  if (!viimeisimmat_.empty()) viimeisimmat_.push_back(valikko.insertSeparator(lopeta));
}

void frmMain::PaivitaValikot() { PaivitaKaytossa({}); }

void frmMain::PaivitaKaytossa(std::string_view valikko) {
  for (const Toiminto& t : toiminnot_)
    if (valikko.empty() || valikko == t.rivi.valikko) Paivita(t);
}

void frmMain::Paivita(const Toiminto& t) const {
  t.toiminto.setEnabled(!t.rivi.kaytossa || t.rivi.kaytossa(*this));
  if (t.rivi.rasti) t.toiminto.setChecked(t.rivi.rasti(*this));
  if (!t.rivi.tarkenne) return;
  const QString tarkenne = Q(t.rivi.tarkenne(*this)).replace('&', "&&");
  t.toiminto.setText(Valikkoteksti(t.rivi.teksti) + (tarkenne.isEmpty() ? tarkenne : ": " + tarkenne));
}

/// As when the person leaves the field that has the focus: what has been written there is taken into the model.
void frmMain::PaataMuokkaus() {
  QWidget* kentta = QApplication::focusWidget();
  if (!kentta || !isAncestorOf(kentta)) return;
  kentta->clearFocus();
  kentta->setFocus();
}

void frmMain::Suorita(const Valikkorivi& rivi) {
  if (std::string_view(rivi.valikko) != "mnuEdit" || rivi.tarkenne) PaataMuokkaus();
  SuoritaKomento([&] { rivi.toiminto(*this); });
}

void frmMain::mnuFilePageSetup_Click() { KysySivunAsetukset(*this); }

void frmMain::mnuEsikatselu_Click() {
  if (const Lomake* lomake = AktiivinenLomake()) EsikatseleSivut(KohteenSivut(*lomake), *this);
}

bool frmMain::TyokalutNakyvat() const { return !tyokalut_->isHidden(); }
bool frmMain::TilariviNakyy() const { return !statusBar()->isHidden(); }

void frmMain::mnuViewToolbar_Click() {
  tyokalut_->setVisible(!TyokalutNakyvat());
  TallennaAsetus(Avain::TyokaluriviNakyy, TotuusTekstina(TyokalutNakyvat()));
}

void frmMain::mnuViewStatusBar_Click() {
  statusBar()->setVisible(!TilariviNakyy());
  TallennaAsetus(Avain::TilariviNakyy, TotuusTekstina(TilariviNakyy()));
}

bool frmMain::IkkunoitaAuki() const { return !alue_.subWindowList().isEmpty(); }
void frmMain::mnuWindowCascade_Click() { alue_.cascadeSubWindows(); }
void frmMain::JaaIkkunat(Qt::Orientation suunta) {
  const auto ikkunat = alue_.subWindowList();
  const QSize tila = alue_.viewport()->size();
  const int n = static_cast<int>(ikkunat.size());
  const bool vierekkain = suunta == Qt::Horizontal;
  for (int i = 0; i < n; ++i) {
    ikkunat[i]->showNormal();
    ikkunat[i]->setGeometry(vierekkain ? tila.width() * i / n : 0, vierekkain ? 0 : tila.height() * i / n,
                            vierekkain ? tila.width() / n : tila.width(),
                            vierekkain ? tila.height() : tila.height() / n);
  }
}

/// Minimised windows in a row along the lower edge.
void frmMain::mnuWindowArrangeIcons_Click() {
  int x = 0;
  for (QMdiSubWindow* ikkuna : alue_.subWindowList()) {
    if (!ikkuna->isMinimized()) continue;
    ikkuna->move(x, alue_.viewport()->height() - ikkuna->height());
    x += ikkuna->width();
  }
}

Ohjain* frmMain::Tulostusnappi() {
  const Lomake* lomake = AktiivinenLomake();
  if (!lomake) return nullptr;
  for (const auto& ohjain : lomake->Ohjaimet())
    if (ohjain->Nimi() == "cmdTulosta" && ohjain->Kaytossa() && ohjain->Nakyva()) return ohjain.get();
  return nullptr;
}

void frmMain::mnuFilePrint_Click() {
  const Ohjain* nappi = Tulostusnappi();
  if (nappi && nappi->Klikattu) nappi->Klikattu();
}

void frmMain::mnuFileExit_Click() { QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection); }

bool frmMain::QueryUnload(bool istuntoPaattyy) {
  PaataMuokkaus();
  bool saa = false;
  SuoritaKomento([&] { saa = istunto_.QueryUnload(istuntoPaattyy); });
  return saa;
}

bool frmMain::IstuntoPaattyy() {
  if (!QueryUnload(true)) return false;
  MDIForm_Unload();
  return true;
}

/// Stores the place and closes the forms; one that doesn't go is told of.
void frmMain::MDIForm_Unload() {
  SuoritaKomento([this] {
    TallennaPaikka(*this);
    SuljeLomakkeet();
    for (const QMdiSubWindow* ikkuna : alue_.subWindowList())
      if (ikkuna->isVisible() && ikkuna->widget())
        Ilmoita(Teksti(tekstit::kRoikkuvaLomake) + " '" + ikkuna->widget()->objectName().toStdString() + "', '" +
                ikkuna->windowTitle().toStdString() + "' " + Teksti(tekstit::kJaaRoikkumaan));
  });
}

/// The window system may ask for closing while a calculation lets the windows paint.
void frmMain::closeEvent(QCloseEvent* tapahtuma) {
  tapahtuma->ignore();
  if (KomentoKaynnissa()) return ViestitNyt().AsetaPaneeli(Teksti(tekstit::kLaskentaKesken));
  if (!QueryUnload(false)) return;
  MDIForm_Unload();
  tapahtuma->accept();
}
