// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Asteikko.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <array>
#include <cmath>

#include "kernel/Luvut.h"

namespace {

constexpr int kViivojenVaaleus = 40;  // of 255
constexpr double kVara = 1.05;        // beyond the values
constexpr const char* kViivanKuvio = "### ##0.###";

QString Teksti(double arvo, const char* kuvio) { return QString::fromStdString(Muotoile(arvo, kuvio)); }

}  // namespace

Asteikko Asteikko::Sovita(double pienin, double suurin) {
  pienin = std::min(pienin, 0.0);
  suurin = std::max(suurin, 0.0);
  if (pienin == suurin) suurin = 1;
  const double vali = (suurin - pienin) / 5;
  const double kymmen = std::pow(10, std::floor(std::log10(vali)));
  const std::array kertoimet = {1.0, 2.0, 5.0, 10.0};
  const double askel =
      kymmen * *std::ranges::find_if(kertoimet, [&](double k) { return k == 10 || k * kymmen >= vali; });
  return {pienin * kVara, suurin * kVara, askel};
}

double Asteikko::Y(double arvo, const QRectF& alue) const {
  return alue.bottom() - (arvo - ala) / (yla - ala) * alue.height();
}

const char* Asteikko::Kuvio() const {
  struct Raja {
    double vali;
    const char* kuvio;
  };
  constexpr Raja kRajat[] = {{10, "### ##0"}, {1, "### ##0.0"}, {0.1, "0.00"}};
  for (const Raja& raja : kRajat)
    if (vali >= raja.vali) return raja.kuvio;
  return "0.000";
}

int Asteikko::LukujenLeveys(const QFontMetrics& mitat) const {
  int leveys = 0;
  for (const double arvo : {ala, yla, vali}) leveys = std::max(leveys, mitat.horizontalAdvance(Teksti(arvo, Kuvio())));
  return leveys;
}

void Asteikko::Piirra(QPainter& maalain, const QRectF& alue, const QString& yksikko) const {
  const int rivi = maalain.fontMetrics().height();
  const auto kirjoita = [&](double y, const QString& teksti) {
    maalain.drawText(QRectF(0, y, alue.left() - rivi / 2.0, rivi), Qt::AlignRight | Qt::AlignVCenter, teksti);
  };
  const QColor vari = maalain.pen().color();
  QColor himmea = vari;
  himmea.setAlpha(kViivojenVaaleus);
  kirjoita(alue.top() - 3 * rivi / 2.0, yksikko);
  const int viimeinen = qFloor(yla / vali);
  for (int i = qCeil(ala / vali); i <= viimeinen; ++i) {
    const double y = Y(i * vali, alue);
    kirjoita(y - rivi / 2.0, Teksti(i * vali, kViivanKuvio));
    maalain.setPen(i == 0 ? vari : himmea);
    maalain.drawLine(QPointF(alue.left(), y), QPointF(alue.right(), y));
    maalain.setPen(vari);
  }
}
