// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QMdiArea>
#include <QPointer>
#include <QSet>
#include <QWidget>
#include <string>

#include "ui/Lomakeikkuna.h"
#include "ui/qt/Ikkunakoko.h"

class Alikehys;
class Dialogikehys;

/// A form as a real window: the widgets that the form file tells, inside a dialog or a window of the main window.
class QtIkkuna : public Lomakeikkuna {
 public:
  /// Takes the outermost widget of the form. Without an area a form that isn't modal has a window of its own.
  QtIkkuna(QWidget* juuri, QMdiArea* alue);
  ~QtIkkuna() override;

  QWidget* Juuri() const { return juuri_; }

  void Otsikko(const std::string& otsikko) override;
  void Nayta() override;
  void NaytaModaalisena() override;
  void Sulje() override;
  bool Aktiivinen() const override;

 private:
  void Viimeistele(const QSet<QChar>& varatutKirjaimet);
  void Aloita();
  void Irrota();
  QWidget* Vanhempi() const;
  void Mahduta();
  Dialogikehys* TeeDialogi();
  Alikehys* TeeAlikehys();

  QPointer<QWidget> juuri_;
  QPointer<QMdiArea> alue_;
  QPointer<Dialogikehys> dialogi_;
  QPointer<Alikehys> alikehys_;
  Ikkunakoko koko_;
};

/// Makes all forms real windows from now on, those that aren't modal inside the area (null: in windows of their own).
void AsetaQtLomakkeet(QMdiArea* alue);
