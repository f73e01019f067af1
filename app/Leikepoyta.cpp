// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Leikepoyta.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "ui/Lomake.h"
#include "ui/qt/QtListView.h"

namespace {

bool OnValikko(const QWidget* w) { return qobject_cast<const QMenuBar*>(w) || qobject_cast<const QMenu*>(w); }

/// The text field of the control, or nothing.
QLineEdit* Tekstikentta(QWidget* ohjain) {
  const auto* lista = qobject_cast<QComboBox*>(ohjain);
  return lista ? lista->lineEdit() : qobject_cast<QLineEdit*>(ohjain);
}

bool OnTekstia() { return !QGuiApplication::clipboard()->text().isEmpty(); }

}  // namespace

Leikepoyta::Leikepoyta(std::function<void()> muuttui) : muuttui_(std::move(muuttui)) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* uusi) {
    if (uusi && !OnValikko(uusi)) Vaihda(uusi);
  });
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] { muuttui_(); });
}

void Leikepoyta::Vaihda(QWidget* ohjain) {
  if (const QLineEdit* entinen = Tekstikentta(ohjain_)) entinen->disconnect(this);
  ohjain_ = ohjain;
  if (const QLineEdit* kentta = Tekstikentta(ohjain))
    connect(kentta, &QLineEdit::selectionChanged, this, [this] { muuttui_(); });
  muuttui_();
}

QLineEdit* Leikepoyta::Kentta() const { return ohjain_ && ohjain_->isVisible() ? Tekstikentta(ohjain_) : nullptr; }

QLineEdit* Leikepoyta::Kirjoitettava() const {
  QLineEdit* kentta = Kentta();
  return kentta && !kentta->isReadOnly() ? kentta : nullptr;
}

QtListView* Leikepoyta::Lista() const {
  const Lomake* lomake = AktiivinenLomake();
  if (!lomake || !ohjain_) return nullptr;
  for (const auto& ohjain : lomake->Ohjaimet())
    if (auto* lista = dynamic_cast<QtListView*>(ohjain.get()); lista && lista->Widget() == ohjain_) return lista;
  return nullptr;
}

bool Leikepoyta::VoiLeikata() const { return Kirjoitettava() && Kirjoitettava()->hasSelectedText(); }

bool Leikepoyta::VoiKopioida() const {
  return Kentta() ? Kentta()->hasSelectedText() : Lista() && !Lista()->Rivit().empty();
}

bool Leikepoyta::VoiLiittaa() const { return OnTekstia() && (Kirjoitettava() || (Lista() && Lista()->Liitetty)); }

void Leikepoyta::Leikkaa() const {
  if (VoiLeikata()) Kirjoitettava()->cut();
}

void Leikepoyta::Kopioi() const {
  if (!VoiKopioida()) return;
  Kentta() ? Kentta()->copy() : Lista()->KopioiValitut();
}

void Leikepoyta::Liita() const {
  if (!VoiLiittaa()) return;
  Kirjoitettava() ? Kirjoitettava()->paste() : Lista()->Liita();
}
