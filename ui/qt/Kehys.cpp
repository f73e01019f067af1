// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Kehys.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "ui/Lomakeikkuna.h"
#include "ui/qt/Vieritysalue.h"

namespace {

bool OnHyvaksyva(const QKeyEvent& tapahtuma) {
  return (tapahtuma.key() == Qt::Key_Return || tapahtuma.key() == Qt::Key_Enter) &&
         (tapahtuma.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

Dialogikehys::Dialogikehys(Lomakeikkuna& lomake, QWidget* sisalto, QWidget* vanhempi)
    : QDialog(vanhempi, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      lomake_(lomake) {
  auto* asettelu = new QVBoxLayout(this);
  asettelu->setContentsMargins(0, 0, 0, 0);
  asettelu->addWidget(sisalto);
  sisalto->show();
  setWindowTitle(sisalto->windowTitle());
}

void Dialogikehys::Mahduta(const QSize& naytto) {
  // The window manager's frame isn't known before the window is shown: as the toolkit's own style has it.
  const int reuna = 2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  const QSize kehys(reuna, reuna + style()->pixelMetric(QStyle::PM_TitleBarHeight));
  ensurePolished();
  const auto* alue = findChild<QScrollArea*>(QStringLiteral("qt_vieritysalue"));
  const QSize vierittamatta = sizeHint() - alue->sizeHint() + alue->widget()->minimumSizeHint();
  const QSize koko = sizeHint().boundedTo(naytto * 2 / 3).expandedTo(vierittamatta);
  resize(Mahtuva(koko, naytto - kehys));
}

void Dialogikehys::reject() { lomake_.KayttajaPeruuttaa(); }

void Dialogikehys::keyPressEvent(QKeyEvent* tapahtuma) {
  if (tapahtuma->matches(QKeySequence::Print)) return lomake_.KayttajaTulostaa();
  OnHyvaksyva(*tapahtuma) ? lomake_.KayttajaHyvaksyy() : QDialog::keyPressEvent(tapahtuma);
}

Alikehys::Alikehys(Lomakeikkuna& lomake, QWidget* sisalto) : lomake_(&lomake) {
  setWidget(sisalto);
  setWindowTitle(sisalto->windowTitle());
}

void Alikehys::Hylkaa() { lomake_ = nullptr; }

void Alikehys::keyPressEvent(QKeyEvent* tapahtuma) {
  if (lomake_ && OnHyvaksyva(*tapahtuma)) return lomake_->KayttajaHyvaksyy();
  if (lomake_ && tapahtuma->key() == Qt::Key_Escape) return lomake_->KayttajaPeruuttaa();
  QMdiSubWindow::keyPressEvent(tapahtuma);
}

void Alikehys::closeEvent(QCloseEvent* tapahtuma) {
  if (!lomake_) return QMdiSubWindow::closeEvent(tapahtuma);
  tapahtuma->ignore();
  lomake_->KayttajaPeruuttaa();
}
