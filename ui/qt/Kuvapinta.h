// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QWidget>

/// One of the program's own pictures, as large as fits the widget with its proportions kept, in the palette's colour of
/// text.
class Kuvapinta : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  /// Name of the picture, as of Vektorikuva; an unknown or empty one shows nothing.
  void AsetaKuva(const QString& nimi);

 protected:
  void paintEvent(QPaintEvent* tapahtuma) override;

 private:
  QString nimi_;
};
