// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Kuvapinta.h"

#include <QPainter>
#include <QSvgRenderer>

#include "ui/qt/Vektorikuva.h"

void Kuvapinta::AsetaKuva(const QString& nimi) {
  nimi_ = nimi;
  update();
}

// The colour is asked at each painting, which the toolkit orders when the palette changes.
void Kuvapinta::paintEvent(QPaintEvent*) {
  QSvgRenderer kuva(Vektorikuva(nimi_, palette().color(QPalette::WindowText)));
  kuva.setAspectRatioMode(Qt::KeepAspectRatio);
  QPainter maalain(this);
  kuva.render(&maalain);
}
