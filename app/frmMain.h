// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <vector>

#include "app/Leikepoyta.h"
#include "app/Valikkotaulu.h"
#include "ui/Paaikkuna.h"

class Istunto;
class Ohjain;

/// The main window: what the auditor can open, by menus and tool bar, and the area of the forms. Its commands are the
/// rows of Valikkotaulu.h. Makes the forms real windows in its area and is the main window of the model for its life.
class frmMain : public QMainWindow, public Paaikkuna {
 public:
  explicit frmMain(Istunto& istunto);
  ~frmMain() override;

  Istunto& Kohteet() const { return istunto_; }

  void AsetaOtsikko(const std::string& teksti) override;
  void TyokalutKaytossa(int maara, bool kaytossa) override;
  /// Text of the first panel of the status bar.
  void AsetaPaneeli(const std::string& teksti);
  /// Enables the entries by the present object and forms: when a menu opens and after each command.
  void PaivitaValikot();

  /// The clipboard, on the control that has the focus.
  const Leikepoyta& Leike() const { return leike_; }
  /// Asks for the page of sheets and prints, which the settings keep.
  void mnuFilePageSetup_Click();
  /// Shows on a preview how the sheets of the active form come on paper; prints from there.
  void mnuEsikatselu_Click();
  bool TyokalutNakyvat() const;
  bool TilariviNakyy() const;
  void mnuViewToolbar_Click();
  void mnuViewStatusBar_Click();
  bool IkkunoitaAuki() const;
  void mnuWindowCascade_Click();
  /// The open windows side by side, each as high (Horizontal) or as wide (Vertical) as the area.
  void JaaIkkunat(Qt::Orientation suunta);
  void mnuWindowArrangeIcons_Click();
  /// The print button of the form that has the person's attention, if it has one that can be pressed.
  static Ohjain* Tulostusnappi();
  static void mnuFilePrint_Click();

  /// Closes the window once the command has come to its end.
  void mnuFileExit_Click();
  /// The person's session at the desktop ends. True when the program may end; its place is then stored.
  bool IstuntoPaattyy();

 protected:
  void closeEvent(QCloseEvent* tapahtuma) override;

 private:
  struct Toiminto {
    const Valikkorivi& rivi;
    QAction& toiminto;
  };
  void LuoValikot();
  QMenu& LuoValikko(const Paavalikko& valikko);
  /// The latest files at the end of the File menu, before Exit.
  void PaivitaViimeisimmat();
  void LuoToiminto(const Valikkorivi& rivi, QMenu& valikko);
  void LuoTyokalut();
  /// Enables the entries of the top menu; of all when it is "".
  void PaivitaKaytossa(std::string_view valikko);
  void Paivita(const Toiminto& toiminto) const;
  void PaataMuokkaus();
  void Suorita(const Valikkorivi& rivi);
  bool QueryUnload(bool istuntoPaattyy);
  void MDIForm_Unload();

  Istunto& istunto_;
  QMdiArea alue_;
  QLabel paneeli_;
  QToolBar* tyokalut_ = nullptr;
  std::vector<Toiminto> toiminnot_;
  std::vector<QAction*> viimeisimmat_;
  Leikepoyta leike_;
};
