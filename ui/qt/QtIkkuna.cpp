// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/QtIkkuna.h"

#include <Lomaketaulu.h>

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <stdexcept>

#include "kernel/Kirjainkoko.h"
#include "ui/Komento.h"
#include "ui/qt/Kehys.h"
#include "ui/qt/Osoitin.h"
#include "ui/qt/QtOhjain.h"
#include "ui/qt/Vieritysalue.h"
#include "ui/qt/Viimeistely.h"

namespace {

/// The widgets below in the order of the form file.
void KeraaOhjaimet(QWidget& widget, const std::function<void(QWidget&)>& tee) {
  for (QObject* lapsi : widget.children())
    if (auto* w = qobject_cast<QWidget*>(lapsi); w && !w->isWindow()) {
      if (!w->objectName().startsWith(QLatin1String("qt_"))) tee(*w);
      KeraaOhjaimet(*w, tee);
    }
}

/// Letters by which Alt opens the menus of the main window.
QSet<QChar> Valikkokirjaimet(const QWidget& ikkuna) {
  QSet<QChar> kirjaimet;
  const auto* valikkorivi = ikkuna.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  if (!valikkorivi) return kirjaimet;
  for (const QAction* valikko : valikkorivi->actions())
    if (const QKeySequence nappaimet = QKeySequence::mnemonic(valikko->text()); !nappaimet.isEmpty())
      kirjaimet << QChar(nappaimet[0].key()).toLower();
  return kirjaimet;
}

bool OnTaytettava(const Ohjain& ohjain) {
  const bool kentta = ohjain.Tyyppi() == Ohjaintyyppi::TextBox || ohjain.Tyyppi() == Ohjaintyyppi::ComboBox ||
                      (ohjain.Tyyppi() == Ohjaintyyppi::OptionButton && ohjain.Valittu());
  return kentta && !ohjain.Lukittu() && ohjain.Kaytossa() && ohjain.Nakyva();
}

QWidget* TeeJuuri(const std::string& nimi) {
  for (const LomakeRivi& rivi : Lomaketaulu())
    if (SamaNimi(rivi.nimi, nimi)) return rivi.tee(nullptr);
  throw std::logic_error("lomaketta ei ole: " + nimi);
}

/// Lists are made as wide as their columns; on a small screen they scroll.
void KutistaLuettelot(const QWidget& lomake) {
  constexpr QSize kPienin{240, 100};
  for (QTreeView* lista : lomake.findChildren<QTreeView*>()) lista->setMinimumSize(kPienin);
}

}  // namespace

QtIkkuna::QtIkkuna(QWidget* juuri, QMdiArea* alue) : juuri_(juuri), alue_(alue) {
  AsetaTag(juuri->property("Tag").toString().toStdString());
  KeraaOhjaimet(*juuri, [this](QWidget& widget) {
    if (auto ohjain = TeeOhjain(*this, widget)) Lisaa(std::move(ohjain));
  });
  VieritaLomaketta(*juuri);
}

QtIkkuna::~QtIkkuna() {
  Irrota();
  if (juuri_) juuri_->deleteLater();
}

void QtIkkuna::Otsikko(const std::string& otsikko) {
  const QString teksti = QString::fromStdString(otsikko);
  for (QWidget* w : {juuri_.data(), static_cast<QWidget*>(dialogi_), static_cast<QWidget*>(alikehys_)})
    if (w) w->setWindowTitle(teksti);
}

void QtIkkuna::Viimeistele(const QSet<QChar>& varatutKirjaimet) {
  JaaPikakirjaimet(*this, varatutKirjaimet);
  NimeaKentat(*this);
}

/// Marks the button that Enter presses and takes the person to the first field to be filled, in a window inside the
/// main window to its list if it has one. In the frame, since the toolkit would choose by itself.
void QtIkkuna::Aloita() {
  for (const char* nimi : {"cmdSulje", "cmdJatka", "cmdOk"})
    if (auto* nappi = juuri_->findChild<QPushButton*>(nimi)) nappi->setDefault(true);
  if (alikehys_)
    if (auto* luettelo = juuri_->findChild<QTreeView*>()) return luettelo->setFocus(Qt::TabFocusReason);
  for (const auto& ohjain : Ohjaimet())
    if (OnTaytettava(*ohjain)) return static_cast<QtOhjain&>(*ohjain).Widget()->setFocus(Qt::TabFocusReason);
}

/// The window that a dialog lies over: the modal one that is shown, else the main window. Not merely the active one: a
/// dialog that has just been closed may still be that, and would take its children along when it goes.
QWidget* QtIkkuna::Vanhempi() const {
  if (QWidget* modaalinen = QApplication::activeModalWidget()) return modaalinen;
  return alue_ ? alue_->window() : nullptr;
}

Dialogikehys* QtIkkuna::TeeDialogi() {
  Irrota();
  Viimeistele({});
  dialogi_ = new Dialogikehys(*this, juuri_, Vanhempi());
  dialogi_->Mahduta(dialogi_->screen()->availableSize());
  Aloita();
  return dialogi_;
}

Alikehys* QtIkkuna::TeeAlikehys() {
  Viimeistele(Valikkokirjaimet(*alue_->window()));
  alikehys_ = new Alikehys(*this, juuri_);
  alue_->addSubWindow(alikehys_);
  Aloita();
  return alikehys_;
}

/// A new window as large as its contents, but wholly inside the area: then its lists scroll, and if that isn't enough,
/// the form.
void QtIkkuna::Mahduta() {
  const QRect alue = alue_->viewport()->rect();
  const QSize koko = alikehys_->sizeHint();
  if (koko != koko.boundedTo(alue.size())) KutistaLuettelot(*juuri_);
  alikehys_->resize(Mahtuva(koko, alue.size()));
  koko_.Aloita(*alikehys_, juuri_->objectName(), alue.size());
  if (!alue.contains(alikehys_->geometry())) alikehys_->move(alue.topLeft());
}

void QtIkkuna::Nayta() {
  if (alue_ && !dialogi_) {
    const bool uusi = !alikehys_;
    if (uusi) TeeAlikehys();
    alikehys_->show();
    juuri_->show();
    if (uusi) Mahduta();
    return alue_->setActiveSubWindow(alikehys_);
  }
  if (!dialogi_) TeeDialogi();
  dialogi_->show();
  dialogi_->raise();
}

void QtIkkuna::NaytaModaalisena() {
  NaytaOdottavatViestit();
  const NormaaliOsoitin osoitin;
  TeeDialogi();
  koko_.Aloita(*dialogi_, juuri_->objectName(), dialogi_->screen()->availableSize());
  dialogi_->exec();
  Irrota();
}

void QtIkkuna::Sulje() {
  if (dialogi_ && dialogi_->isModal())
    dialogi_->done(0);
  else
    Irrota();
}

/// Takes the form out of its frame and drops the frame.
void QtIkkuna::Irrota() {
  if (QWidget* kehys = dialogi_ ? static_cast<QWidget*>(dialogi_) : alikehys_) koko_.Lopeta(*kehys);
  if (juuri_) {
    juuri_->hide();
    juuri_->setParent(nullptr);
  }
  if (dialogi_) {
    dialogi_->hide();
    dialogi_->deleteLater();
  }
  if (alikehys_) {
    alikehys_->Hylkaa();
    alikehys_->close();
    alikehys_->deleteLater();
  }
  dialogi_ = nullptr;
  alikehys_ = nullptr;
}

bool QtIkkuna::Aktiivinen() const {
  if (dialogi_) return dialogi_->isActiveWindow();
  return alikehys_ && alue_ && alue_->activeSubWindow() == alikehys_;
}

void AsetaQtLomakkeet(QMdiArea* alue) {
  AsetaLomakesovitin([alue = QPointer<QMdiArea>(alue)](const std::string& nimi) {
    return std::make_unique<QtIkkuna>(TeeJuuri(nimi), alue);
  });
}
