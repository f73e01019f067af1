// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtListView.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace {

constexpr auto kRivinValinta = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;

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

QtListView::QtListView(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QTreeView& lista)
    : QtOhjain(ikkuna, std::move(kuvaus), &lista), lista_(lista), malli_(*this, lista), leveydet_(lista, *this) {
  Asetukset();
  Kuuntele();
}

/// The widget outlives the control a moment.
QtListView::~QtListView() {
  if (Widget()) lista_.setModel(nullptr);
}

void QtListView::Asetukset() {
  auto* tyyli = new Ilmavasti(QApplication::style()->name());
  tyyli->setParent(&lista_);
  for (QWidget* osa : std::initializer_list<QWidget*>{&lista_, lista_.header()}) osa->setStyle(tyyli);
  lista_.setModel(&malli_);
  lista_.setRootIsDecorated(false);
  lista_.setUniformRowHeights(true);
  lista_.setAllColumnsShowFocus(true);
  lista_.setSelectionMode(QAbstractItemView::ExtendedSelection);
  lista_.setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
  lista_.setExpandsOnDoubleClick(false);
  lista_.setDragDropMode(QAbstractItemView::InternalMove);
  lista_.setDragEnabled(true);
  lista_.header()->setSectionsClickable(lista_.property("Lajiteltava") != QVariant(false));
}

void QtListView::Kuuntele() {
  connect(lista_.selectionModel(), &QItemSelectionModel::currentRowChanged, this, &QtListView::RiviValittu);
  connect(&lista_, &QTreeView::doubleClicked, this, &QtListView::RiviaPainettu);
  for (const auto& [merkki, auki] : {std::pair{&QTreeView::expanded, true}, {&QTreeView::collapsed, false}})
    connect(&lista_, merkki, this, [this, auki = auki](const QModelIndex& paikka) {
      if (!hiljaa_) KayttajaAvaa(malli_.Rivi(paikka), auki);
    });
  connect(lista_.header(), &QHeaderView::sectionClicked, this, [this](int sarake) { KayttajaLajittelee(sarake); });
  lista_.installEventFilter(this);
}

bool QtListView::KopioiLeikepoydalle() {
  QGuiApplication::clipboard()->setText(QString::fromStdString(RivitTekstina({})));
  return true;
}

void QtListView::KopioiValitut() const {
  QGuiApplication::clipboard()->setText(QString::fromStdString(RivitTekstina(ValitutRivit())));
}

void QtListView::Liita() { KayttajaLiittaa(QGuiApplication::clipboard()->text().toStdString()); }

/// The main window's menu has the same keys: the list asks for them first.
bool QtListView::eventFilter(QObject* kohde, QEvent* tapahtuma) {
  const bool esto = tapahtuma->type() == QEvent::ShortcutOverride;
  if (!esto && tapahtuma->type() != QEvent::KeyPress) return QtOhjain::eventFilter(kohde, tapahtuma);
  const auto& nappain = static_cast<const QKeyEvent&>(*tapahtuma);
  if (!esto) return Nappain(nappain);
  if (OnOmaNappain(nappain)) tapahtuma->accept();
  return OnOmaNappain(nappain);
}

bool QtListView::Nappain(const QKeyEvent& tapahtuma) {
  const int nappi = tapahtuma.key();
  const bool ilman = tapahtuma.modifiers() == Qt::NoModifier;
  const bool siirto = (tapahtuma.modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier && Jarjestetty;
  if ((nappi == Qt::Key_Return || nappi == Qt::Key_Enter) && Indeksi() >= 0)
    KayttajaPainaa();
  else if (tapahtuma.matches(QKeySequence::Copy))
    KopioiValitut();
  else if (tapahtuma.matches(QKeySequence::Paste))
    Liita();
  else if (nappi == Qt::Key_Insert && ilman && Lisattava)
    KayttajaLisaa();
  else if (nappi == Qt::Key_Delete && ilman && Poistettava)
    KayttajaPoistaa();
  else if (nappi == Qt::Key_Space && Indeksi() >= 0 && Lista().Piirteet(Indeksi()).rasti)
    KayttajaRastittaa(Indeksi());
  else if (siirto && (nappi == Qt::Key_Up || nappi == Qt::Key_Down))
    KayttajaJarjestaa(nappi == Qt::Key_Up);
  else
    return nappi == Qt::Key_F2 && MuokkaaSolua();
  return true;
}

/// Begins the editing of the current cell, or of the first one of its row that can be written in.
bool QtListView::MuokkaaSolua() {
  const QModelIndex nykyinen = lista_.currentIndex();
  if (Indeksi() < 0 || Lista().Piirteet(Indeksi()).muokattavat.empty()) return false;
  if (!Lista().Muokattava(Indeksi(), nykyinen.column()))
    lista_.setCurrentIndex(nykyinen.siblingAtColumn(Lista().Piirteet(Indeksi()).muokattavat.front()));
  lista_.edit(lista_.currentIndex());
  return true;
}

/// A form may refuse the row and go back to the former one. The toolkit is still selecting then: the choice is shown
/// afterwards.
void QtListView::RiviValittu(const QModelIndex& paikka) {
  if (hiljaa_) return;
  const int valittu = malli_.Rivi(paikka);
  KayttajaValitsee(valittu);
  if (Indeksi() != valittu) QTimer::singleShot(0, this, [this] { NaytaPiirre(Piirre::Indeksi); });
}

/// A cell that can be written in is being edited now.
void QtListView::RiviaPainettu(const QModelIndex& paikka) {
  if (Indeksi() >= 0 && !Lista().Muokattava(malli_.Rivi(paikka), paikka.column())) KayttajaPainaa();
}

void QtListView::NaytaPiirre(Piirre piirre) {
  const QScopedValueRollback esto(hiljaa_, true);
  switch (piirre) {
    case Piirre::Osat:
      malli_.OtsikotMuuttuivat();
      return leveydet_.Sarakkeet();
    case Piirre::Rivit:
      return NaytaRivit();
    case Piirre::Summat:
      malli_.SummatMuuttuivat();
      return leveydet_.MittaaRivi(Lista().Maara());
    case Piirre::Avattu:
      return NaytaHaarat();
    case Piirre::Indeksi:
      return NaytaIndeksi();
    default:
      return;
  }
}

void QtListView::PaivitaRivi(int rivi) {
  if (!Widget()) return;
  malli_.RiviMuuttui(rivi);
  leveydet_.MittaaRivi(rivi);
}

/// The list stays scrolled where the person had it, unless the chosen row would lie outside.
void QtListView::NaytaRivit() {
  const int vieritys = lista_.verticalScrollBar()->value();
  malli_.RivitVaihtuivat();
  lista_.setRootIsDecorated(Lista().OnPuu());
  NaytaHaarat();
  NaytaIndeksi();
  NaytaLajittelu();
  leveydet_.Mittaa();
  if (vieritys == 0 || Indeksi() < 0) return;
  lista_.verticalScrollBar()->setValue(vieritys);
  lista_.scrollTo(lista_.currentIndex());
}

void QtListView::NaytaHaarat() {
  if (!Lista().OnPuu()) return;
  for (int rivi = 0; rivi < Lista().Maara(); ++rivi)
    if (!Lista().Alemmat(rivi).empty()) lista_.setExpanded(malli_.Paikka(rivi), !Lista().Suljettu(rivi));
}

void QtListView::NaytaLajittelu() {
  const Lajittelu& lajittelu = Lista().Lajiteltu();
  lista_.header()->setSortIndicatorShown(lajittelu.sarake >= 0);
  lista_.header()->setSortIndicator(lajittelu.sarake, lajittelu.laskeva ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void QtListView::NaytaIndeksi() {
  const QModelIndex paikka = malli_.Paikka(Indeksi());
  const bool sama = malli_.Rivi(lista_.currentIndex()) == Indeksi();
  if (!sama || (paikka.isValid() && !lista_.selectionModel()->isSelected(paikka)))
    lista_.selectionModel()->setCurrentIndex(paikka, kRivinValinta);
}

std::vector<int> QtListView::ValitutRivit() const {
  std::vector<int> rivit;
  for (const QModelIndex& paikka : lista_.selectionModel()->selectedRows()) rivit.push_back(malli_.Rivi(paikka));
  return rivit;
}
