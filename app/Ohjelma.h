// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QTimer>
#include <memory>

#include "app/Istunto.h"
#include "app/Lopetussignaali.h"
#include "app/frmMain.h"
#include "ui/frmSplash.h"
#include "ui/qt/Kirjastoyhteys.h"
#include "ui/qt/QtOhje.h"
#include "ui/qt/QtViestit.h"

/// One run of the window program: what is read and shown at its start, and its ends. Needs a QApplication.
class Ohjelma {
 public:
  /// Reads texts and settings, makes the main window, and lets the start go on when events are handled.
  Ohjelma();
  ~Ohjelma();
  Ohjelma(const Ohjelma&) = delete;
  Ohjelma& operator=(const Ohjelma&) = delete;

  frmMain& Paaikkuna() { return *paaikkuna_; }
  Istunto& Kohteet() { return istunto_; }
  /// Shows the main window; unless the person opens what an interrupted run left, the start window asks for the first
  /// choice.
  void Nayta();
  /// SIGTERM: an unsaved object is first written aside, since the question may never be answered.
  void Lopeta();

 private:
  void Lataa();
  void NaytaAlkuikkuna();
  void ValitseAlku(bool uusi);

  QtViestit viestit_;
  QtOhje ohje_;
  std::unique_ptr<Kirjastoyhteys> kirjastot_;
  QTimer hiljainenHetki_;
  std::unique_ptr<frmSplash> frmSplash_;
  Istunto istunto_;
  std::unique_ptr<frmMain> paaikkuna_;
  Lopetussignaali lopetussignaali_;
  bool lopetetaan_ = false;
};

/// Draws the main window as it is after the start, with the heat summary of the project file `avattava` unless that is
/// empty, into the picture file `kuva`. No one is asked anything: messages go to the standard error. Gives the
/// program's exit code, 0 when the picture was made.
int KuvaaPaaikkuna(const std::string& kuva, const std::string& avattava);
