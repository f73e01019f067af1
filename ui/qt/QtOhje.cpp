// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtOhje.h"

#include <QApplication>
#include <QKeyEvent>

#include "kernel/Hakemistot.h"
#include "tekstit/ohje.h"
#include "tekstit/viestit.h"
#include "ui/Komento.h"
#include "ui/Tekstivarasto.h"
#include "ui/Viestit.h"
#include "ui/qt/Ohjeikkuna.h"

QtOhje::QtOhje() {
  AsetaOhjenaytto(this);
  qApp->installEventFilter(this);
}

QtOhje::~QtOhje() { AsetaOhjenaytto(nullptr); }

/// The window; nothing, which is told, when the guide's files are missing. They are looked for anew each time.
Ohjeikkuna* QtOhje::Ikkuna() {
  if (!ikkuna_) ikkuna_ = std::make_unique<Ohjeikkuna>(QString::fromStdString(AppPath()));
  if (ikkuna_->Kelvollinen()) return ikkuna_.get();
  ikkuna_.reset();
  Ilmoita(Teksti(tekstit::kOpasPuuttuu) + "\n" + AppPath() + "Lumivirta 2.hlp", Teksti(tekstit::kHuomautus),
          Vakavuus::Varoitus);
  return nullptr;
}

void QtOhje::Avaa(int aihe) {
  Ohjeikkuna* ikkuna = Ikkuna();
  if (!ikkuna) return;
  ikkuna->Avaa(aihe);
  ikkuna->Nosta();
}

void QtOhje::AvaaHaku() {
  Ohjeikkuna* ikkuna = Ikkuna();
  if (!ikkuna) return;
  ikkuna->Avaa(kOhjeSisallys);
  ikkuna->Nosta();
  ikkuna->AloitaHaku();
}

/// A key goes first to the window of the system and then to the widget; only the widget's counts.
bool QtOhje::eventFilter(QObject* kohde, QEvent* tapahtuma) {
  if (tapahtuma->type() != QEvent::KeyPress || !kohde->isWidgetType()) return false;
  const auto* nappain = static_cast<QKeyEvent*>(tapahtuma);
  if (nappain->key() != Qt::Key_F1 || nappain->modifiers() != Qt::NoModifier) return false;
  SuoritaKomento([] { AvaaLomakkeenOhje(); });
  return true;
}
