// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <functional>

class QtListView;

/// Cut, copy and paste on the active control: a text field, the field of a choice list that can be written in, or a
/// list of rows. It stays the active one while the person is in the menus or in another program.
class Leikepoyta : public QObject {
 public:
  /// `muuttui` is called whenever another answer of VoiLeikata, VoiKopioida or VoiLiittaa is possible. Needs the
  /// QApplication.
  explicit Leikepoyta(std::function<void()> muuttui);

  /// Some text of a field that can be written in is selected.
  bool VoiLeikata() const;
  /// Some text of a field is selected, or a list has rows.
  bool VoiKopioida() const;
  /// The clipboard has text, and the control is a field that can be written in or a list that takes rows.
  bool VoiLiittaa() const;
  // These do nothing when they can't be done.
  void Leikkaa() const;
  /// Of a list the selected rows; all when none is.
  void Kopioi() const;
  void Liita() const;

 private:
  void Vaihda(QWidget* ohjain);
  QLineEdit* Kentta() const;
  QLineEdit* Kirjoitettava() const;
  QtListView* Lista() const;

  std::function<void()> muuttui_;
  QPointer<QWidget> ohjain_;
};
