// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Pinopalkki.h"

#include <QPainter>
#include <algorithm>

#include "kernel/Luvut.h"

namespace {

constexpr int kLeveys = 4;  // of the bar, in lines of text

}  // namespace

QSize Pinopalkki::sizeHint() const {
  const int rivi = fontMetrics().height();
  const int otsikko = QFontMetrics(Lihava(font())).horizontalAdvance(Teksti(Tiedot().otsikko)) + 2 * rivi;
  return {std::max((kLeveys + 1) * rivi + SelitteenLeveys(), otsikko),
          std::max(10 * rivi, static_cast<int>(Tiedot().nimet.size() + 3) * rivi * 3 / 2)};
}

QRectF Pinopalkki::Palkki() const {
  const int rivi = fontMetrics().height();
  return {1.0 * rivi, 2.0 * rivi, 1.0 * kLeveys * rivi, std::max(0.0, height() - 3.0 * rivi)};
}

double Pinopalkki::Koko() const { return std::max(Summa(), Tiedot().taysi); }

std::vector<QRectF> Pinopalkki::Osat() const {
  const QRectF palkki = Palkki();
  double y = palkki.top();
  std::vector<QRectF> osat;
  for (const double arvo : Tiedot().arvot) {
    const double korkeus = arvo > 0 ? arvo / Koko() * palkki.height() : 0;
    osat.emplace_back(palkki.left(), y, palkki.width(), korkeus);
    y += korkeus;
  }
  return osat;
}

QString Pinopalkki::Seloste(const QPointF& kohta) const {
  const auto osat = Osat();
  for (std::size_t i = 0; i < osat.size(); ++i)
    if (osat[i].contains(kohta))
      return QStringLiteral("%1: %2 %3 (%4 %)")
          .arg(Teksti(Tiedot().nimet[i]), Teksti(Muotoile(Tiedot().arvot[i], "### ##0.00")), Teksti(Tiedot().yksikko),
               Teksti(Muotoile(Tiedot().arvot[i] / Koko() * 100, "0.0")));
  return {};
}

void Pinopalkki::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  const QRectF palkki = Palkki();
  maalain.drawRect(palkki);
  PiirraOsat(maalain);
  if (const double taysi = Tiedot().taysi; taysi > 0 && taysi < Summa()) {
    const double y = palkki.top() + taysi / Summa() * palkki.height();
    const double yli = fontMetrics().height() / 2.0;
    maalain.drawLine(QPointF(palkki.left() - yli, y), QPointF(palkki.right() + yli, y));
  }
  PiirraSelite(maalain, QRectF(palkki.right(), palkki.top(), width() - palkki.right(), palkki.height()).toRect());
}

void Pinopalkki::PiirraOsat(QPainter& maalain) const {
  maalain.save();
  const auto osat = Osat();
  for (std::size_t i = 0; i < osat.size(); ++i) {
    if (osat[i].isEmpty()) continue;
    maalain.setPen(QPen(palette().color(QPalette::Text), osat[i].contains(Osoitin()) ? 2 : 0.5));
    maalain.setBrush(Vari(i));
    maalain.drawRect(osat[i]);
    maalain.setPen(Qt::black);
    if (osat[i].height() > fontMetrics().height()) maalain.drawText(osat[i], Qt::AlignCenter, Numero(i));
  }
  maalain.restore();
}
