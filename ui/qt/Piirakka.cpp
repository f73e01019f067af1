// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Piirakka.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <iterator>

namespace {

// Clear of each other also for the colour-blind (Okabe and Ito's set).
constexpr QRgb kVarit[] = {0xE69F00, 0x56B4E9, 0x009E73, 0xF0E442, 0x0072B2, 0xD55E00, 0xCC79A7, 0x999999};
constexpr int kYksiAste = 16;  // QPainter counts sixteenths of a degree
constexpr int kKellonHuippu = 90 * kYksiAste;

QColor Vari(std::size_t i) { return QColor(kVarit[i % std::size(kVarit)]); }

QString Teksti(const std::string& teksti) { return QString::fromStdString(teksti); }

QString Numero(std::size_t i) { return QString::number(i + 1); }

double Summa(const std::vector<double>& arvot) {
  double summa = 0;
  for (const double arvo : arvot) summa += std::max(arvo, 0.0);
  return summa;
}

QFont Lihava(QFont fontti) {
  fontti.setBold(true);
  return fontti;
}

}  // namespace

Piirakka::Piirakka(QWidget* vanhempi) : QWidget(vanhempi) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Piirakka::AsetaKaavio(const Kaaviotiedot& kaavio) {
  kaavio_ = kaavio;
  QStringList rivit(Teksti(kaavio_.otsikko));
  for (const std::string& nimi : kaavio_.nimet) rivit << Teksti(nimi).simplified();
  setAccessibleName(rivit.join(QStringLiteral(", ")));
  updateGeometry();
  update();
}

void Piirakka::KopioiLeikepoydalle() {
  QStringList rivit(Teksti(kaavio_.otsikko));
  for (std::size_t i = 0; i < kaavio_.nimet.size(); ++i)
    rivit << Teksti(kaavio_.nimet[i]).trimmed() + '\t' + QLocale(QLocale::Finnish).toString(kaavio_.arvot[i], 'f', 2);
  auto* tiedot = new QMimeData;
  tiedot->setImageData(grab().toImage());
  tiedot->setText(rivit.join('\n'));
  QGuiApplication::clipboard()->setMimeData(tiedot);
}

int Piirakka::SelitteenLeveys() const {
  int leveys = 0;
  for (const std::string& nimi : kaavio_.nimet)
    leveys = std::max(leveys, fontMetrics().horizontalAdvance(Teksti(nimi)));
  return leveys + 4 * fontMetrics().height();
}

QSize Piirakka::sizeHint() const {
  const int rivi = fontMetrics().height();
  const int korkeus = std::max(20 * rivi, static_cast<int>(kaavio_.nimet.size() + 5) * rivi * 3 / 2);
  const int otsikko = QFontMetrics(Lihava(font())).horizontalAdvance(Teksti(kaavio_.otsikko)) + 2 * rivi;
  return {std::max(korkeus + SelitteenLeveys(), otsikko), korkeus};
}

void Piirakka::paintEvent(QPaintEvent*) {
  QPainter maalain(this);
  maalain.setRenderHint(QPainter::Antialiasing);
  maalain.fillRect(rect(), palette().base());
  maalain.setPen(palette().color(QPalette::Text));
  const int rivi = fontMetrics().height();
  maalain.setFont(Lihava(font()));
  maalain.drawText(rect().adjusted(rivi, rivi / 2, -rivi, 0), Qt::AlignHCenter | Qt::AlignTop, Teksti(kaavio_.otsikko));
  maalain.setFont(font());
  const QRect kuva = rect().adjusted(rivi, 5 * rivi / 2, -SelitteenLeveys(), -rivi);
  const int sivu = std::max(0, std::min(kuva.width(), kuva.height()));
  PiirraSiivut(maalain, QRectF(kuva.center().x() - sivu / 2.0, kuva.center().y() - sivu / 2.0, sivu, sivu));
  PiirraSelite(maalain, QRect(kuva.right(), kuva.top(), width() - kuva.right(), kuva.height()));
}

void Piirakka::PiirraSiivut(QPainter& maalain, const QRectF& ympyra) const {
  const int rivi = fontMetrics().height();
  const double summa = Summa(kaavio_.arvot);
  double alku = 0;  // share of the circle that is painted, clockwise from the top
  for (std::size_t i = 0; i < kaavio_.arvot.size(); ++i) {
    if (kaavio_.arvot[i] <= 0) continue;
    const double osuus = kaavio_.arvot[i] / summa;
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

void Piirakka::PiirraSelite(QPainter& maalain, const QRect& alue) const {
  const int rivi = fontMetrics().height();
  const int vali = rivi * 3 / 2;
  int y = alue.center().y() - static_cast<int>(kaavio_.nimet.size()) * vali / 2;
  for (std::size_t i = 0; i < kaavio_.nimet.size(); ++i, y += vali) {
    const QRect merkki(alue.left() + rivi, y, rivi * 3 / 2, rivi + 2);
    maalain.setBrush(Vari(i));
    maalain.drawRect(merkki);
    maalain.save();
    maalain.setPen(Qt::black);
    maalain.drawText(merkki, Qt::AlignCenter, Numero(i));
    maalain.restore();
    maalain.drawText(merkki.right() + rivi / 2, y + fontMetrics().ascent() + 1, Teksti(kaavio_.nimet[i]));
  }
}
