// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QTreeWidget>

#include "ui/Ohjeluettelo.h"
#include "ui/qt/Ohjehaku.h"

/// The window of the user's guide: contents tree or search results on the left, the page on the right.
/// The program ends when its other windows are closed, whether this one is open or not.
/// Keys: Alt+Left and Alt+Right for the pages read, Alt+Home contents, Ctrl+F search, Ctrl+plus and Ctrl+minus the size
/// of text, Escape leaves the search and then closes.
class Ohjeikkuna : public QMainWindow {
 public:
  /// `kansio` holds the list "Lumivirta 2.hlp" and the folder "Ohje" of its pages.
  explicit Ohjeikkuna(const QString& kansio);

  /// False when the guide's files are missing.
  bool Kelvollinen() const { return !luettelo_.Rivit().empty(); }
  /// Opens the page of the topic; a missing one opens the contents page.
  void Avaa(int aihe);
  void AloitaHaku();
  /// Shows above the modal form, if there is one, and lets the person read while the form waits.
  void Nosta();

 private:
  void LuoTyokalut();
  void LuoPuu();
  void LuoHaku();
  void AvaaSivu(const QString& sivu);
  void SivuVaihtui(const QUrl& osoite);
  void Hae();
  void LopetaHaku();
  void AvaaOsuma(const QListWidgetItem* osuma);
  QString KokoPolku(const QString& sivu) const;

  QString sivukansio_;
  Ohjeluettelo luettelo_;
  Ohjehaku haku_;
  QTextBrowser selain_;
  QStackedWidget vasen_;
  QTreeWidget puu_;
  QListWidget osumat_;
  QLineEdit hakukentta_;
};
