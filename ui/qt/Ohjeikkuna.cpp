// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Ohjeikkuna.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QScreen>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "tekstit/ohje.h"
#include "ui/Ohje.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/Vektorikuva.h"

namespace {

constexpr int kSivuRooli = Qt::UserRole, kSanaRooli = Qt::UserRole + 1;
constexpr int kPuunLeveys = 270, kIkkunanLeveys = 1020, kIkkunanKorkeus = 720;

QString Q(Tekstinumero tunnus) { return QString::fromStdString(Teksti(tunnus)); }
QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

std::string LueKaikki(const QString& polku) {
  QFile tiedosto(polku);
  return tiedosto.open(QIODevice::ReadOnly) ? tiedosto.readAll().toStdString() : std::string();
}

}  // namespace

Ohjeikkuna::Ohjeikkuna(const QString& kansio)
    : sivukansio_(kansio + "Ohje/"),
      luettelo_(LueKaikki(kansio + "Lumivirta 2.hlp")),
      haku_(luettelo_, [this](const QString& sivu) { return LueKaikki(KokoPolku(sivu)); }) {
  setObjectName("frmOhje");
  setWindowTitle(Q(tekstit::kKayttoopas));
  setAttribute(Qt::WA_QuitOnClose, false);
  const QSize reunat(20, 60);  // what the window manager's frame takes
  resize(QSize(kIkkunanLeveys, kIkkunanKorkeus).boundedTo(screen()->availableSize() - reunat));
  LuoPuu();
  LuoHaku();
  LuoTyokalut();
  auto* jakaja = new QSplitter(this);
  jakaja->addWidget(&vasen_);
  jakaja->addWidget(&selain_);
  jakaja->setSizes({kPuunLeveys, kIkkunanLeveys - kPuunLeveys});
  jakaja->setStretchFactor(1, 1);
  setCentralWidget(jakaja);
  selain_.setObjectName("sivu");
  selain_.setAccessibleName(Q(tekstit::kKayttoopas));
  selain_.setOpenExternalLinks(true);
  selain_.document()->setDocumentMargin(14);
  connect(&selain_, &QTextBrowser::sourceChanged, this, &Ohjeikkuna::SivuVaihtui);
}

/// Buttons and keys of the window.
void Ohjeikkuna::LuoTyokalut() {
  QToolBar& rivi = *addToolBar(windowTitle());
  rivi.setMovable(false);
  rivi.setContextMenuPolicy(Qt::PreventContextMenu);
  rivi.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const auto lisaa = [&](Tekstinumero teksti, const char* kuvake, const char* nappaimet, const auto& toiminto) {
    QAction* nappi = rivi.addAction(Vektorikuvake(kuvake), Q(teksti), this, toiminto);
    nappi->setShortcut(QKeySequence(nappaimet));
    nappi->setToolTip(Q(teksti).remove('&') + " (" + nappi->shortcut().toString(QKeySequence::NativeText) + ')');
    return nappi;
  };
  QAction* takaisin = lisaa(tekstit::kTakaisin, "Back", "Alt+Left", [this] { selain_.backward(); });
  QAction* eteenpain = lisaa(tekstit::kEteenpain, "Forward", "Alt+Right", [this] { selain_.forward(); });
  lisaa(tekstit::kOppaanSisallys, "Contents", "Alt+Home", [this] { Avaa(kOhjeSisallys); });
  for (QAction* nappi : {takaisin, eteenpain}) nappi->setEnabled(false);
  connect(&selain_, &QTextBrowser::backwardAvailable, takaisin, &QAction::setEnabled);
  connect(&selain_, &QTextBrowser::forwardAvailable, eteenpain, &QAction::setEnabled);
  rivi.addSeparator();
  rivi.addWidget(&hakukentta_);

  const auto nappain = [this](const QKeySequence& nappaimet, const auto& toiminto) {
    auto* lisatty = new QAction(this);
    lisatty->setShortcut(nappaimet);
    connect(lisatty, &QAction::triggered, this, toiminto);
    addAction(lisatty);
  };
  nappain(QKeySequence::Find, [this] { AloitaHaku(); });
  nappain(QKeySequence::ZoomIn, [this] { selain_.zoomIn(); });
  nappain(QKeySequence::ZoomOut, [this] { selain_.zoomOut(); });
  nappain(Qt::Key_Escape, [this] { vasen_.currentWidget() == &osumat_ ? LopetaHaku() : static_cast<void>(close()); });
}

void Ohjeikkuna::LuoPuu() {
  puu_.setObjectName("sisallys");
  puu_.setHeaderHidden(true);
  puu_.setAccessibleName(Q(tekstit::kOppaanSisallys).remove('&'));
  std::vector<QTreeWidgetItem*> ylemmat{puu_.invisibleRootItem()};
  for (const Ohjeluettelo::Rivi& rivi : luettelo_.Rivit()) {
    const auto taso = static_cast<std::size_t>(std::clamp(rivi.taso, 0, static_cast<int>(ylemmat.size()) - 1));
    ylemmat.resize(taso + 1);
    auto* solmu = new QTreeWidgetItem(ylemmat.back(), {Q(rivi.otsikko)});
    solmu->setData(0, kSivuRooli, Q(rivi.sivu));
    solmu->setToolTip(0, Q(rivi.otsikko));
    solmu->setExpanded(rivi.taso == 0);
    ylemmat.push_back(solmu);
  }
  connect(&puu_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* solmu) {
    if (solmu) AvaaSivu(solmu->data(0, kSivuRooli).toString());
  });
  vasen_.addWidget(&puu_);
}

void Ohjeikkuna::LuoHaku() {
  osumat_.setObjectName("osumat");
  osumat_.setAccessibleName(Q(tekstit::kHaunTulokset));
  osumat_.setWordWrap(true);
  osumat_.setSpacing(2);
  vasen_.addWidget(&osumat_);
  hakukentta_.setObjectName("haku");
  hakukentta_.setPlaceholderText(Q(tekstit::kEtsiOppaasta));
  hakukentta_.setAccessibleName(Q(tekstit::kEtsiOppaasta));
  hakukentta_.setToolTip(Q(tekstit::kOppaanHakuohje));
  hakukentta_.setClearButtonEnabled(true);
  connect(&hakukentta_, &QLineEdit::textChanged, this, &Ohjeikkuna::Hae);
  connect(&hakukentta_, &QLineEdit::returnPressed, this, [this] { osumat_.setFocus(); });
  connect(&osumat_, &QListWidget::currentItemChanged, this, &Ohjeikkuna::AvaaOsuma);
}

QString Ohjeikkuna::KokoPolku(const QString& sivu) const { return sivukansio_ + sivu.section('#', 0, 0); }

void Ohjeikkuna::Avaa(int aihe) {
  const Ohjeluettelo::Rivi* rivi = luettelo_.Aihe(aihe);
  if (!rivi) return;
  const QString sivu = Q(rivi->sivu);
  AvaaSivu(QFileInfo::exists(KokoPolku(sivu)) ? sivu : Q(luettelo_.Rivit().front().sivu));
  selain_.setFocus();
}

void Ohjeikkuna::AvaaSivu(const QString& sivu) {
  QUrl osoite = QUrl::fromLocalFile(KokoPolku(sivu));
  osoite.setFragment(sivu.section('#', 1));
  if (selain_.source() != osoite) selain_.setSource(osoite);
}

/// The tree follows the reader: the row of the section, else of the page.
void Ohjeikkuna::SivuVaihtui(const QUrl& osoite) {
  const QString sivu = osoite.fileName(), osa = sivu + '#' + osoite.fragment();
  QTreeWidgetItem* loytynyt = nullptr;
  for (QTreeWidgetItemIterator it(&puu_); *it; ++it) {
    const QString oma = (*it)->data(0, kSivuRooli).toString();
    if (oma == osa || (oma == sivu && !loytynyt)) loytynyt = *it;
  }
  const QSignalBlocker hiljaa(puu_);
  puu_.setCurrentItem(loytynyt);
}

void Ohjeikkuna::Hae() {
  if (hakukentta_.text().trimmed().isEmpty()) return LopetaHaku();
  const QSignalBlocker hiljaa(osumat_);
  osumat_.clear();
  for (const Ohjehaku::Osuma& osuma : haku_.Hae(hakukentta_.text())) {
    auto* rivi = new QListWidgetItem(osuma.otsikko + '\n' + osuma.ote, &osumat_);
    rivi->setData(kSivuRooli, osuma.sivu);
    rivi->setData(kSanaRooli, osuma.sana);
  }
  if (osumat_.count() == 0) (new QListWidgetItem(Q(tekstit::kEiOsumia), &osumat_))->setFlags(Qt::NoItemFlags);
  vasen_.setCurrentWidget(&osumat_);
}

void Ohjeikkuna::LopetaHaku() {
  vasen_.setCurrentWidget(&puu_);
  const QSignalBlocker hiljaa(hakukentta_);
  hakukentta_.clear();
  selain_.setFocus();
}

/// Opens the page at the first place of the first word, marked.
void Ohjeikkuna::AvaaOsuma(const QListWidgetItem* osuma) {
  if (!osuma || osuma->data(kSivuRooli).isNull()) return;
  AvaaSivu(osuma->data(kSivuRooli).toString());
  selain_.moveCursor(QTextCursor::Start);
  selain_.find(osuma->data(kSanaRooli).toString());
}

void Ohjeikkuna::AloitaHaku() {
  hakukentta_.setFocus(Qt::ShortcutFocusReason);
  hakukentta_.selectAll();
}

void Ohjeikkuna::Nosta() {
  const QWidget* isanta = QApplication::activeModalWidget();
  QWindow* const ylla = isanta ? isanta->windowHandle() : nullptr;
  winId();
  if (windowHandle()->transientParent() != ylla) {
    hide();
    windowHandle()->setTransientParent(ylla);
  }
  isMinimized() ? showNormal() : show();
  raise();
  activateWindow();
}
