// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtListView.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace {

constexpr int kRivinumero = Qt::UserRole;  // of a display row: the number of the row, -1 for the sums
constexpr int kLeveinSarake = 40;          // at first, in letters
constexpr int kKapeinNimi = 16;            // of the first column, when the others need the room

QString Q(std::string_view teksti) { return QString::fromUtf8(teksti.data(), static_cast<qsizetype>(teksti.size())); }

bool OnOmaNappain(const QKeyEvent& tapahtuma) {
  return tapahtuma.matches(QKeySequence::Copy) || tapahtuma.matches(QKeySequence::Paste);
}

/// Air around the cells: a column of numbers ends where one of texts begins.
class Ilmavasti : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric mitta, const QStyleOption* option, const QWidget* widget) const override {
    return mitta == PM_FocusFrameHMargin || mitta == PM_HeaderMargin ? kSivuille
                                                                     : QProxyStyle::pixelMetric(mitta, option, widget);
  }
  QSize sizeFromContents(ContentsType tyyppi, const QStyleOption* option, const QSize& koko,
                         const QWidget* widget) const override {
    const QSize sisalto = QProxyStyle::sizeFromContents(tyyppi, option, koko, widget);
    return tyyppi == CT_ItemViewItem ? sisalto + QSize(0, kKorkeutta) : sisalto;
  }

 private:
  static constexpr int kSivuille = 4, kKorkeutta = 2;
};

}  // namespace

QtListView::QtListView(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QTreeWidget& lista)
    : QtOhjain(ikkuna, std::move(kuvaus), &lista), lista_(lista) {
  for (int s = 0; s < lista.columnCount(); ++s)
    tasaukset_.push_back(Qt::Alignment(lista.headerItem()->textAlignment(s)));
  auto* tyyli = new Ilmavasti(QApplication::style()->name());
  tyyli->setParent(&lista);
  for (QWidget* osa : std::initializer_list<QWidget*>{&lista, lista.header()}) osa->setStyle(tyyli);
  lista.setRootIsDecorated(false);
  lista.setUniformRowHeights(true);
  lista.setAllColumnsShowFocus(true);
  lista.setSelectionMode(QAbstractItemView::ExtendedSelection);
  const bool lajiteltava = lista.property("Lajiteltava") != QVariant(false);
  lista.header()->setSectionsClickable(lajiteltava);
  connect(&lista, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* rivi) { RiviValittu(rivi); });
  connect(&lista, &QTreeWidget::itemDoubleClicked, this, [this] {
    if (Indeksi() >= 0) KayttajaPainaa();
  });
  connect(lista.header(), &QHeaderView::sectionClicked, this, [this](int sarake) { KayttajaLajittelee(sarake); });
  lista.installEventFilter(this);
}

bool QtListView::KopioiLeikepoydalle() {
  QGuiApplication::clipboard()->setText(Q(RivitTekstina({})));
  return true;
}

void QtListView::KopioiValitut() const { QGuiApplication::clipboard()->setText(Q(RivitTekstina(ValitutRivit()))); }

void QtListView::Liita() { KayttajaLiittaa(QGuiApplication::clipboard()->text().toStdString()); }

/// The main window's menu has the same keys: the list asks for them first. The sums have the colour of the theme.
bool QtListView::eventFilter(QObject* kohde, QEvent* tapahtuma) {
  if (tapahtuma->type() == QEvent::PaletteChange) NaytaSummarivi();
  const bool esto = tapahtuma->type() == QEvent::ShortcutOverride;
  if (!esto && tapahtuma->type() != QEvent::KeyPress) return QtOhjain::eventFilter(kohde, tapahtuma);
  const auto& nappain = static_cast<const QKeyEvent&>(*tapahtuma);
  if (!esto) return Nappain(nappain);
  if (OnOmaNappain(nappain)) tapahtuma->accept();
  return OnOmaNappain(nappain);
}

bool QtListView::Nappain(const QKeyEvent& tapahtuma) {
  const bool enter = tapahtuma.key() == Qt::Key_Return || tapahtuma.key() == Qt::Key_Enter;
  if (enter && Indeksi() >= 0)
    KayttajaPainaa();
  else if (tapahtuma.matches(QKeySequence::Copy))
    KopioiValitut();
  else if (tapahtuma.matches(QKeySequence::Paste))
    Liita();
  else
    return false;
  return true;
}

/// A form may refuse the row and go back to the former one. The toolkit is still selecting then: the choice is shown
/// afterwards.
void QtListView::RiviValittu(const QTreeWidgetItem* rivi) {
  const int valittu = rivi ? rivi->data(0, kRivinumero).toInt() : -1;
  KayttajaValitsee(valittu);
  if (Indeksi() == valittu) return;
  QTimer::singleShot(0, this, [this] {
    const QSignalBlocker esto(lista_);
    lista_.setCurrentItem(RivinPaikka(Indeksi()), 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  });
}

void QtListView::NaytaPiirre(Piirre piirre) {
  const QSignalBlocker esto(lista_);
  if (piirre == Piirre::Osat) NaytaOtsikot();
  if (piirre == Piirre::Rivit) NaytaRivit();
  if (piirre == Piirre::Indeksi || piirre == Piirre::Rivit) NaytaIndeksi();
}

void QtListView::NaytaOtsikot() {
  QStringList otsikot;
  for (const Osa& sarake : Osat()) otsikot << Q(sarake.otsikko);
  lista_.setHeaderLabels(otsikot);
}

/// Display rows are reused: the form may fill the list while the person is choosing a row.
void QtListView::NaytaRivit() {
  const auto rivia = static_cast<int>(Jarjestys().size()) + (Summarivi().empty() ? 0 : 1);
  while (lista_.topLevelItemCount() > rivia) delete lista_.takeTopLevelItem(rivia);
  while (lista_.topLevelItemCount() < rivia) lista_.addTopLevelItem(new QTreeWidgetItem);
  for (int s = 0; s < lista_.columnCount(); ++s) lista_.headerItem()->setTextAlignment(s, Tasaus(s));
  int paikka = 0;
  for (const int rivi : Jarjestys()) {
    lista_.topLevelItem(paikka)->setData(0, kRivinumero, rivi);
    NaytaRivi(paikka++, Rivit()[static_cast<std::size_t>(rivi)]);
  }
  NaytaSummarivi();
  lista_.header()->setSortIndicatorShown(Lajiteltu().sarake >= 0);
  lista_.header()->setSortIndicator(Lajiteltu().sarake, Lajiteltu().laskeva ? Qt::DescendingOrder : Qt::AscendingOrder);
  if (rivia > 0) MitoitaSarakkeet();
  if (Lajiteltu().sarake >= 0) SovitaNuoli(Lajiteltu().sarake);
}

void QtListView::NaytaRivi(int paikka, const std::vector<std::string>& solut) {
  QTreeWidgetItem& rivi = *lista_.topLevelItem(paikka);
  rivi.setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
  for (int s = 0; s < lista_.columnCount(); ++s) {
    const QString teksti = Q(Solu(solut, static_cast<std::size_t>(s)));
    rivi.setText(s, teksti);
    rivi.setToolTip(s, teksti);
    rivi.setTextAlignment(s, Tasaus(s));
    rivi.setData(s, Qt::FontRole, {});
    rivi.setData(s, Qt::ForegroundRole, {});
  }
}

void QtListView::NaytaSummarivi() {
  const int paikka = static_cast<int>(Jarjestys().size());
  QTreeWidgetItem* rivi = lista_.topLevelItem(paikka);
  if (Summarivi().empty() || !rivi) return;
  NaytaRivi(paikka, Summarivi());
  QFont lihava = lista_.font();
  lihava.setBold(true);
  rivi->setData(0, kRivinumero, -1);
  rivi->setFlags(Qt::NoItemFlags);
  for (int s = 0; s < lista_.columnCount(); ++s) {
    rivi->setFont(s, lihava);
    rivi->setForeground(s, lista_.palette().brush(QPalette::Active, QPalette::Text));
  }
}

Qt::Alignment QtListView::Tasaus(int sarake) const {
  const auto s = static_cast<std::size_t>(sarake);
  return (OnLukusarake(Rivit(), s) ? Qt::AlignRight : tasaukset_[s]) | Qt::AlignVCenter;
}

void QtListView::NaytaIndeksi() {
  QTreeWidgetItem* rivi = RivinPaikka(Indeksi());
  if (lista_.currentItem() != rivi || (rivi && !rivi->isSelected()))
    lista_.setCurrentItem(rivi, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// Once for the first rows, and once more for the first sums, which are longer and bold; then the widths are the
/// person's.
void QtListView::MitoitaSarakkeet() {
  if (mitoitettu_ && (summatMitoitettu_ || Summarivi().empty())) return;
  mitoitettu_ = true;
  summatMitoitettu_ = !Summarivi().empty();
  const int merkki = lista_.fontMetrics().averageCharWidth();
  for (int s = 0; s < lista_.columnCount(); ++s) {
    lista_.resizeColumnToContents(s);
    lista_.setColumnWidth(s, std::min(lista_.columnWidth(s), kLeveinSarake * merkki));
  }
  KavennaNimi();
}

/// Room for the heading with the arrow; the column that had it before gives its room back.
void QtListView::SovitaNuoli(int sarake) {
  if (nuoli_.sarake >= 0) lista_.setColumnWidth(nuoli_.sarake, lista_.columnWidth(nuoli_.sarake) - nuoli_.lisa);
  lista_.setColumnWidth(0, lista_.columnWidth(0) + nuoli_.nimesta);
  const int lisa = std::max(lista_.header()->sectionSizeHint(sarake) - lista_.columnWidth(sarake), 0);
  const int nimi = lista_.columnWidth(0);
  lista_.setColumnWidth(sarake, lista_.columnWidth(sarake) + lisa);
  if (sarake > 0) KavennaNimi();
  nuoli_ = {sarake, lisa, sarake > 0 ? nimi - lista_.columnWidth(0) : 0};
}

/// Width that the columns need. The last one is drawn wider, to the end of the list.
int QtListView::Tarve() const {
  const int viimeinen = lista_.columnCount() - 1;
  const int sisalto = static_cast<const QAbstractItemView&>(lista_).sizeHintForColumn(viimeinen);
  int tarve = std::max(sisalto, lista_.header()->sectionSizeHint(viimeinen));
  for (int s = 0; s < viimeinen; ++s) tarve += lista_.columnWidth(s);
  return tarve;
}

/// The first column gives room to the others, as far as it can.
void QtListView::KavennaNimi() {
  const int merkki = lista_.fontMetrics().averageCharWidth();
  const int tilaa = std::max(lista_.viewport()->width(), lista_.minimumWidth() - 2 * lista_.frameWidth());
  const int kapein = std::min(lista_.columnWidth(0), kKapeinNimi * merkki);
  if (const int ylitys = Tarve() - tilaa; ylitys > 0)
    lista_.setColumnWidth(0, std::max(lista_.columnWidth(0) - ylitys, kapein));
}

QTreeWidgetItem* QtListView::RivinPaikka(int indeksi) const {
  for (int i = 0; i < lista_.topLevelItemCount() && indeksi >= 0; ++i)
    if (lista_.topLevelItem(i)->data(0, kRivinumero).toInt() == indeksi) return lista_.topLevelItem(i);
  return nullptr;
}

std::vector<int> QtListView::ValitutRivit() const {
  std::vector<int> rivit;
  for (const QTreeWidgetItem* rivi : lista_.selectedItems()) rivit.push_back(rivi->data(0, kRivinumero).toInt());
  return rivit;
}
