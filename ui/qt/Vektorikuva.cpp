// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Vektorikuva.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

class Kuvakemoottori : public QIconEngine {
 public:
  explicit Kuvakemoottori(QString nimi) : nimi_(std::move(nimi)) {}

  void paint(QPainter* maalain, const QRect& alue, QIcon::Mode tila, QIcon::State) override {
    const auto ryhma = tila == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    QSvgRenderer(Vektorikuva(nimi_, QGuiApplication::palette().color(ryhma, QPalette::ButtonText)))
        .render(maalain, alue);
  }
  /// The base class paints on white.
  QPixmap pixmap(const QSize& koko, QIcon::Mode tila, QIcon::State asento) override {
    QPixmap kuva(koko);
    kuva.fill(Qt::transparent);
    QPainter maalain(&kuva);
    paint(&maalain, kuva.rect(), tila, asento);
    return kuva;
  }
  QIconEngine* clone() const override { return new Kuvakemoottori(nimi_); }

 private:
  QString nimi_;
};

}  // namespace

QByteArray Vektorikuva(const QString& nimi, const QColor& teksti) {
  QFile tiedosto(":/kuvat/" + nimi + ".svg");
  if (!tiedosto.open(QIODevice::ReadOnly)) return {};
  return tiedosto.readAll().replace("currentColor", teksti.name().toLatin1());
}

QIcon Vektorikuvake(const QString& nimi) { return QIcon(new Kuvakemoottori(nimi)); }
