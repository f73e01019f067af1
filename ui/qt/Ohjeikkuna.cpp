// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Ohjeikkuna.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "ui/Ohje.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/Vektorikuva.h"

namespace {

constexpr int kSivuRooli = Qt::UserRole;
constexpr int kPuunLeveys = 270, kIkkunanLeveys = 1020, kIkkunanKorkeus = 720;
constexpr qsizetype kOtteenAlku = 40, kOtteenPituus = 120;

QString Q(int tunnus) { return QString::fromStdString(Teksti(tunnus)); }
QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

std::string LueKaikki(const QString& polku) {
  QFile tiedosto(polku);
  return tiedosto.open(QIODevice::ReadOnly) ? tiedosto.readAll().toStdString() : std::string();
}

/// Words of a search, all of which must be on a page.
QStringList Sanat(const QString& haku) { return haku.simplified().split(' ', Qt::SkipEmptyParts); }

bool OnKaikki(const QString& teksti, const QStringList& sanat) {
  return std::ranges::all_of(sanat, [&](const QString& s) { return teksti.contains(s, Qt::CaseInsensitive); });
}

/// What stands on the page around the first of the words.
QString Ote(const QString& teksti, const QString& sana) {
  const qsizetype paikka = std::max<qsizetype>(teksti.indexOf(sana, 0, Qt::CaseInsensitive), 0);
  const qsizetype alku = paikka <= kOtteenAlku ? 0 : teksti.lastIndexOf(' ', paikka - kOtteenAlku) + 1;
  return (alku > 0 ? QStringLiteral("… ") : QString()) + teksti.mid(alku, kOtteenPituus).simplified() +
         QStringLiteral(" …");
}

}  // namespace

Ohjeikkuna::Ohjeikkuna(const QString& kansio)
    : sivukansio_(kansio + "Ohje/"), luettelo_(LueKaikki(kansio + "Lumivirta 2.hlp")) {
  setObjectName("frmOhje");
  setWindowTitle(Q(6101));
  setAttribute(Qt::WA_QuitOnClose, false);
  resize(kIkkunanLeveys, kIkkunanKorkeus);
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
  selain_.setAccessibleName(Q(6101));
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
  const auto lisaa = [&](int teksti, const char* kuvake, const char* nappaimet, const auto& toiminto) {
    QAction* nappi = rivi.addAction(Vektorikuvake(kuvake), Q(teksti), this, toiminto);
    nappi->setShortcut(QKeySequence(nappaimet));
    nappi->setToolTip(Q(teksti).remove('&') + " (" + nappi->shortcut().toString(QKeySequence::NativeText) + ')');
    return nappi;
  };
  QAction* takaisin = lisaa(6102, "Back", "Alt+Left", [this] { selain_.backward(); });
  QAction* eteenpain = lisaa(6103, "Forward", "Alt+Right", [this] { selain_.forward(); });
  lisaa(6104, "Contents", "Alt+Home", [this] { Avaa(kOhjeSisallys); });
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
  puu_.setAccessibleName(Q(6104).remove('&'));
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
  osumat_.setAccessibleName(Q(6109));
  osumat_.setWordWrap(true);
  osumat_.setSpacing(2);
  vasen_.addWidget(&osumat_);
  hakukentta_.setObjectName("haku");
  hakukentta_.setPlaceholderText(Q(6105));
  hakukentta_.setAccessibleName(Q(6105));
  hakukentta_.setToolTip(Q(6108));
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

/// The pages as plain text, read when the first search needs them.
const std::vector<Ohjeikkuna::Sivuteksti>& Ohjeikkuna::Tekstit() {
  if (!tekstit_.empty()) return tekstit_;
  for (const Ohjeluettelo::Rivi& rivi : luettelo_.Rivit()) {
    const QString sivu = Q(rivi.sivu);
    if (sivu.contains('#')) continue;
    QTextDocument asiakirja;
    asiakirja.setHtml(Q(LueKaikki(KokoPolku(sivu))));
    tekstit_.push_back({sivu, Q(rivi.otsikko), asiakirja.toPlainText().remove(QChar::ObjectReplacementCharacter)});
  }
  return tekstit_;
}

void Ohjeikkuna::Hae() {
  const QStringList sanat = Sanat(hakukentta_.text());
  if (sanat.isEmpty()) return LopetaHaku();
  const QSignalBlocker hiljaa(osumat_);
  osumat_.clear();
  int otsikossa = 0;
  for (const Sivuteksti& sivu : Tekstit()) {
    if (!OnKaikki(sivu.teksti, sanat)) continue;
    auto* osuma = new QListWidgetItem(sivu.otsikko + '\n' + Ote(sivu.teksti, sanat.front()));
    osuma->setData(kSivuRooli, sivu.sivu);
    osumat_.insertItem(OnKaikki(sivu.otsikko, sanat) ? otsikossa++ : osumat_.count(), osuma);
  }
  if (osumat_.count() == 0) (new QListWidgetItem(Q(6106), &osumat_))->setFlags(Qt::NoItemFlags);
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
  selain_.find(Sanat(hakukentta_.text()).value(0));
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
