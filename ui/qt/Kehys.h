// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QDialog>
#include <QMdiSubWindow>

class Lomakeikkuna;

/// Window of a form of its own. Enter and Escape press the form's approving and cancelling buttons, as does the
/// window's close button: the form, not the window, decides whether it closes.
class Dialogikehys : public QDialog {
 public:
  Dialogikehys(Lomakeikkuna& lomake, QWidget* sisalto, QWidget* vanhempi);
  /// Takes the size that its contents ask for, but no more than two thirds of a screen of this size, unless they need
  /// more; and never more than the screen has.
  void Mahduta(const QSize& naytto);
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* tapahtuma) override;

 private:
  Lomakeikkuna& lomake_;
};

/// The same inside the main window.
class Alikehys : public QMdiSubWindow {
 public:
  Alikehys(Lomakeikkuna& lomake, QWidget* sisalto);
  /// Lets the next closing through: the form has decided.
  void Hylkaa();

 protected:
  void keyPressEvent(QKeyEvent* tapahtuma) override;
  void closeEvent(QCloseEvent* tapahtuma) override;

 private:
  Lomakeikkuna* lomake_;
};
