// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtComboBox.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>
#include <QTimer>

#include "ui/Hakuvalinta.h"

namespace {

constexpr int kNakyviaOsumia = 12;

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

}  // namespace

/// Lists the hits under the field; the list itself finds the row of the one that is picked, by its name.
class Hakutaydennys : public QCompleter {
 public:
  explicit Hakutaydennys(QComboBox& lista) : QCompleter(&lista) {
    setModel(&osumat_);
    setCompletionMode(UnfilteredPopupCompletion);
    setMaxVisibleItems(kNakyviaOsumia);
  }

  void Nayta(const QStringList& nimet) {
    osumat_.setStringList(nimet);
    if (nimet.isEmpty()) return popup()->hide();
    popup()->setMinimumWidth(popup()->sizeHintForColumn(0) + 2 * popup()->frameWidth());
    complete();
  }

 private:
  QStringListModel osumat_;
};

QtComboBox::QtComboBox(Lomakeikkuna& ikkuna, Ohjainkuvaus kuvaus, QComboBox& lista)
    : QtOhjain(ikkuna, std::move(kuvaus), &lista), lista_(lista) {
  connect(&lista, &QComboBox::activated, this, [this](int indeksi) {
    KayttajaValitsee(indeksi);
    PalautaTeksti();
  });
  lista.setFocusPolicy(Qt::StrongFocus);
  lista.installEventFilter(this);
}

/// The wheel scrolls the form, it doesn't change a list that happens to lie under the pointer.
bool QtComboBox::eventFilter(QObject* kohde, QEvent* tapahtuma) {
  if (Haettava() && KasitteleHaku(*tapahtuma)) return true;
  if (tapahtuma->type() != QEvent::Wheel || lista_.hasFocus()) return QtOhjain::eventFilter(kohde, tapahtuma);
  tapahtuma->ignore();
  return true;
}

void QtComboBox::NaytaPiirre(Piirre piirre) {
  if (piirre == Piirre::Rivit) NaytaRivit();
  if (piirre != Piirre::Indeksi && piirre != Piirre::Rivit) return;
  lista_.setCurrentIndex(Indeksi());
  PalautaTeksti();
}

void QtComboBox::NaytaRivit() {
  lista_.clear();
  bool sanoja = false;
  for (const auto& rivi : Rivit()) {
    lista_.addItem(Q(rivi.front()));
    sanoja |= !Solu(rivi, 1).empty();
  }
  if (sanoja && !Haettava()) TeeHaettavaksi();
}

void QtComboBox::TeeHaettavaksi() {
  lista_.setEditable(true);
  lista_.setInsertPolicy(QComboBox::NoInsert);
  taydennys_ = new Hakutaydennys(lista_);
  lista_.setCompleter(taydennys_);
  connect(lista_.lineEdit(), &QLineEdit::textEdited, this, [this](const QString& teksti) {
    QStringList nimet;
    for (const int rivi : EtsiValinnat(Rivit(), teksti.toStdString())) nimet << lista_.itemText(rivi);
    taydennys_->Nayta(nimet);
  });
  connect(lista_.lineEdit(), &QLineEdit::returnPressed, this, [this] { ValitseParas(); });
}

/// Something else stands in the field than the name of the chosen row.
bool QtComboBox::Kirjoitettu() const { return lista_.currentText() != lista_.itemText(Indeksi()); }

void QtComboBox::ValitseParas() {
  const QString haku = lista_.currentText().trimmed();
  const auto osumat = haku.isEmpty() || !Kirjoitettu() ? std::vector<int>() : EtsiValinnat(Rivit(), haku.toStdString());
  if (!osumat.empty()) {
    lista_.setCurrentIndex(osumat.front());
    KayttajaValitsee(osumat.front());
  }
  PalautaTeksti();
}

void QtComboBox::PalautaTeksti() {
  if (!Haettava()) return;
  taydennys_->popup()->hide();
  lista_.setEditText(lista_.itemText(Indeksi()));
  lista_.lineEdit()->setCursorPosition(0);
  if (lista_.hasFocus()) lista_.lineEdit()->selectAll();
}

/// Keys and focus of the field. True when the event has been dealt with: Enter and Esc end the search, not the dialog.
bool QtComboBox::KasitteleHaku(QEvent& tapahtuma) {
  if (tapahtuma.type() == QEvent::FocusOut) {
    const Qt::FocusReason syy = static_cast<QFocusEvent&>(tapahtuma).reason();
    if (syy != Qt::PopupFocusReason && syy != Qt::ActiveWindowFocusReason) PalautaTeksti();
  }
  if (tapahtuma.type() == QEvent::FocusIn && static_cast<QFocusEvent&>(tapahtuma).reason() == Qt::MouseFocusReason)
    QTimer::singleShot(0, lista_.lineEdit(), &QLineEdit::selectAll);
  if (tapahtuma.type() != QEvent::KeyPress || !Kirjoitettu()) return false;
  const int nappain = static_cast<QKeyEvent&>(tapahtuma).key();
  if (nappain == Qt::Key_Return || nappain == Qt::Key_Enter)
    ValitseParas();
  else if (nappain == Qt::Key_Escape)
    PalautaTeksti();
  else
    return false;
  return true;
}
