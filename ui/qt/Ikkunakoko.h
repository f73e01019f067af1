// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QSize>
#include <QWidget>

/// The size that the person has given to the window of a form, kept in the settings by the form's name.
class Ikkunakoko {
 public:
  /// Of the window `kehys` that a form of that name is shown in: takes the remembered size, as far as it is no larger
  /// than `enintaan` and no smaller than the form's least. Notes the size that the window begins with.
  void Aloita(QWidget& kehys, const QString& lomake, const QSize& enintaan);
  /// The window is being closed: its size is remembered when the person has changed it.
  void Lopeta(const QWidget& kehys);

 private:
  QString lomake_;
  QSize alussa_;
};
