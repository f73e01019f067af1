// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Piirakka.h"

#include <QPainter>
#include <QtMath>
#include <algorithm>

namespace {

constexpr int kYksiAste = 16;  // QPainter counts sixteenths of a degree
constexpr int kKellonHuippu = 90 * kYksiAste;

}  // namespace

QSize Piirakka::sizeHint() const { return Koko(std::max(20, static_cast<int>(Tiedot().nimet.size() + 5) * 3 / 2)); }

/// The legend and its title, and a pie in which the numbers can be read.
QSize Piirakka::minimumSizeHint() const {
  return Koko(std::max(11, static_cast<int>(Tiedot().nimet.size() + 3) * 3 / 2));
}

QSize Piirakka::Koko(int riveja) const {
  const int rivi = fontMetrics().height(), korkeus = riveja * rivi;
  const int otsikko = QFontMetrics(Lihava(font())).horizontalAdvance(Teksti(Tiedot().otsikko)) + 2 * rivi;
  return {std::max(korkeus + SelitteenLeveys(), otsikko), korkeus};
}

void Piirakka::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  const int rivi = fontMetrics().height();
  const QRect kuva = rect().adjusted(rivi, 5 * rivi / 2, -SelitteenLeveys(), -rivi);
  const int sivu = std::max(0, std::min(kuva.width(), kuva.height()));
  PiirraSiivut(maalain, QRectF(kuva.center().x() - sivu / 2.0, kuva.center().y() - sivu / 2.0, sivu, sivu));
  PiirraSelite(maalain, QRect(kuva.right(), kuva.top(), width() - kuva.right(), kuva.height()));
}

void Piirakka::PiirraSiivut(QPainter& maalain, const QRectF& ympyra) const {
  const int rivi = fontMetrics().height();
  const double summa = Summa();
  double alku = 0;  // share of the circle that is painted, clockwise from the top
  for (std::size_t i = 0; i < Tiedot().arvot.size(); ++i) {
    if (Tiedot().arvot[i] <= 0) continue;
    const double osuus = Tiedot().arvot[i] / summa;
    const int alkukulma = kKellonHuippu - qRound(alku * 360 * kYksiAste);
    const int loppukulma = kKellonHuippu - qRound((alku + osuus) * 360 * kYksiAste);
    maalain.setBrush(Vari(i));
    maalain.drawPie(ympyra, alkukulma, loppukulma - alkukulma);
    const double suunta = (alku + osuus / 2) * 2 * M_PI;
    const QPointF paikka = ympyra.center() + QPointF(qSin(suunta), -qCos(suunta)) * ympyra.width() * 0.36;
    maalain.save();
    maalain.setPen(Qt::black);
    if (osuus > 0.03)
      maalain.drawText(QRectF(paikka - QPointF(rivi, rivi), QSizeF(2 * rivi, 2 * rivi)), Qt::AlignCenter, Numero(i));
    maalain.restore();
    alku += osuus;
  }
}
