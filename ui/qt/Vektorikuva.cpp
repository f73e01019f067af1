// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Vektorikuva.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

QPixmap Piirra(const QByteArray& lahde, int sivu) {
  QPixmap kuva(sivu, sivu);
  kuva.fill(Qt::transparent);
  QPainter maalain(&kuva);
  QSvgRenderer(lahde).render(&maalain);
  return kuva;
}

}  // namespace

QByteArray Vektorikuva(const QString& nimi, const QColor& teksti) {
  QFile tiedosto(":/kuvat/" + nimi + ".svg");
  if (!tiedosto.open(QIODevice::ReadOnly)) return {};
  return tiedosto.readAll().replace("currentColor", teksti.name().toLatin1());
}

QIcon Vektorikuvake(const QString& nimi, const QPalette& varit) {
  QIcon kuvake;
  const std::pair<QIcon::Mode, QPalette::ColorGroup> tilat[] = {{QIcon::Normal, QPalette::Active},
                                                                {QIcon::Disabled, QPalette::Disabled}};
  for (const auto& [tila, ryhma] : tilat) {
    const QByteArray lahde = Vektorikuva(nimi, varit.color(ryhma, QPalette::ButtonText));
    if (lahde.isEmpty()) return {};
    for (const int sivu : {16, 24, 32, 48, 64}) kuvake.addPixmap(Piirra(lahde, sivu), tila);
  }
  return kuvake;
}
