// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Vieritysalue.h"

#include <QApplication>
#include <QBoxLayout>
#include <QScrollBar>
#include <QStyle>
#include <stdexcept>

namespace {

constexpr QSize kPienin{240, 80};

/// A widget or a layout with its stretch, from one layout to the end of another.
void Siirra(QBoxLayout& mista, int paikka, QBoxLayout& minne) {
  const int venyma = mista.stretch(paikka);
  QLayoutItem* osa = mista.takeAt(paikka);
  if (QLayout* asettelu = osa->layout()) {
    asettelu->setParent(nullptr);
    minne.addLayout(asettelu, venyma);
  } else if (QWidget* widget = osa->widget()) {
    minne.addWidget(widget, venyma, osa->alignment());
    delete osa;
  } else {
    minne.addItem(osa);
    minne.setStretch(minne.count() - 1, venyma);
  }
}

}  // namespace

/// The toolkit itself follows the tab key only. A click doesn't scroll: what it hit would slip away.
Vieritysalue::Vieritysalue() {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* nyt) {
    if (nyt && isAncestorOf(nyt) && QApplication::mouseButtons() == Qt::NoButton) ensureWidgetVisible(nyt);
  });
}

QSize Vieritysalue::sizeHint() const {
  QSize koko = widget()->sizeHint();
  const QLayout* asettelu = widget()->layout();
  if (asettelu->hasHeightForWidth()) koko.setHeight(asettelu->totalHeightForWidth(koko.width()));
  return koko;
}

QSize Vieritysalue::minimumSizeHint() const { return kPienin.boundedTo(widget()->minimumSizeHint()); }

void VieritaLomaketta(QWidget& juuri) {
  auto* rivit = qobject_cast<QBoxLayout*>(juuri.layout());
  if (!rivit) throw std::logic_error("lomakkeella ei ole rivejä: " + juuri.objectName().toStdString());
  auto* alue = new Vieritysalue;
  alue->setObjectName(QStringLiteral("qt_vieritysalue"));
  alue->setFrameShape(QFrame::NoFrame);
  alue->setFocusPolicy(Qt::NoFocus);
  alue->setWidgetResizable(true);
  auto* sisalto = new QWidget;
  sisalto->setObjectName(QStringLiteral("qt_sisalto"));
  auto* asettelu = new QVBoxLayout(sisalto);
  asettelu->setContentsMargins(0, 0, 0, 0);
  asettelu->setSpacing(rivit->spacing());
  alue->setWidget(sisalto);
  rivit->insertWidget(rivit->count() - 1, alue,
                      1);  // in its window before the rows move: the order of the tab key stays
  while (rivit->count() > 2) Siirra(*rivit, 0, *asettelu);
}

QSize Mahtuva(const QSize& koko, const QSize& tila) {
  const int palkki = QScrollBar(Qt::Vertical).sizeHint().width();
  const QSize palkit(koko.height() > tila.height() ? palkki : 0, koko.width() > tila.width() ? palkki : 0);
  return (koko + palkit).boundedTo(tila);
}
