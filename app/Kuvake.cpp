// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Kuvake.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

constexpr const char* kSvg = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 64 64">
<rect x="2" y="2" width="60" height="60" rx="12" fill="#2b6cb0"/>
<path d="M14 33v19a2 2 0 0 0 2 2h32a2 2 0 0 0 2-2V33L32 18z" fill="#f6ad55"/>
<path d="M27 54V42h10v12z" fill="#9c4221"/>
<path d="M32 8 6 32c-2 2 1 6 4 5 3-1 4 2 7 0s4 1 7-2 5 2 8-1 5 4 8 1 4 4 7 2 4 1 7 0 6-3 4-5z" fill="#fff"/>
</svg>)";

QPixmap Piirra(int sivu) {
  QPixmap kuva(sivu, sivu);
  kuva.fill(Qt::transparent);
  QPainter maalain(&kuva);
  QSvgRenderer(QByteArray(kSvg)).render(&maalain);
  return kuva;
}

}  // namespace

QIcon Ohjelmakuvake() {
  QIcon kuvake;
  for (const int sivu : {16, 24, 32, 48, 64, 128}) kuvake.addPixmap(Piirra(sivu));
  return kuvake;
}
