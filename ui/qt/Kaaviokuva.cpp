// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Kaaviokuva.h"

#include <QClipboard>
#include <QFontInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QToolTip>
#include <algorithm>
#include <iterator>

namespace {

constexpr QRgb kVarit[] = {0xE69F00, 0x56B4E9, 0x009E73, 0xF0E442,
                           0x0072B2, 0xD55E00, 0xCC79A7, 0x999999};  // Okabe, Ito

}  // namespace

Kaaviokuva::Kaaviokuva(QWidget* vanhempi) : QWidget(vanhempi) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
}

QColor Kaaviokuva::Vari(std::size_t i) { return QColor(kVarit[i % std::size(kVarit)]); }

QFont Kaaviokuva::Lihava(QFont fontti) {
  fontti.setBold(true);
  return fontti;
}

void Kaaviokuva::AsetaKaavio(const Kaaviotiedot& kaavio) {
  kaavio_ = kaavio;
  QStringList osat(Teksti(kaavio_.otsikko));
  for (const QString& nimi : Nimet()) osat << nimi.simplified();
  setAccessibleName(osat.join(QStringLiteral(", ")));
  updateGeometry();
  update();
}

void Kaaviokuva::KopioiLeikepoydalle() {
  auto* tiedot = new QMimeData;
  tiedot->setImageData(grab().toImage());
  tiedot->setText((QStringList(Teksti(kaavio_.otsikko)) + Luvut()).join('\n'));
  QGuiApplication::clipboard()->setMimeData(tiedot);
}

bool Kaaviokuva::TallennaKuva(const std::string& tiedosto) { return grab().save(Teksti(tiedosto)); }

void Kaaviokuva::paintEvent(QPaintEvent*) {
  QPainter maalain(this);
  Piirra(maalain);
}

// A font in pixels has its size from the painter's scale alone, whatever the resolution of the device.
void Kaaviokuva::Tulosta(QPainter& maalain, const QRectF& alue, double mittakaava) {
  QFont fontti = font();
  fontti.setPixelSize(QFontInfo(fontti).pixelSize());
  setFont(fontti);
  QPalette varit(Qt::black, Qt::white);
  setPalette(varit);
  resize((alue.size() / mittakaava).toSize());
  QResizeEvent koko(size(), size());
  resizeEvent(&koko);  // a hidden widget isn't told
  maalain.save();
  maalain.translate(alue.topLeft());
  maalain.scale(mittakaava, mittakaava);
  Piirra(maalain);
  maalain.restore();
}

void Kaaviokuva::mouseMoveEvent(QMouseEvent* tapahtuma) {
  osoitin_ = tapahtuma->position();
  QToolTip::showText(tapahtuma->globalPosition().toPoint(), Seloste(osoitin_), this);
  update();
}

void Kaaviokuva::leaveEvent(QEvent*) {
  osoitin_ = {-1, -1};
  update();
}

int Kaaviokuva::SelitteenLeveys() const {
  int leveys = 0;
  for (const QString& nimi : Nimet()) leveys = std::max(leveys, fontMetrics().horizontalAdvance(nimi));
  return leveys + 4 * fontMetrics().height();
}

void Kaaviokuva::PiirraPohja(QPainter& maalain) const {
  const int rivi = fontMetrics().height();
  maalain.setRenderHint(QPainter::Antialiasing);
  maalain.fillRect(rect(), palette().base());
  maalain.setPen(palette().color(QPalette::Text));
  maalain.setFont(Lihava(font()));
  maalain.drawText(rect().adjusted(rivi, rivi / 2, -rivi, 0), Qt::AlignHCenter | Qt::AlignTop, Teksti(kaavio_.otsikko));
  maalain.setFont(font());
}

void Kaaviokuva::PiirraSelite(QPainter& maalain, const QRect& alue) const {
  const int rivi = fontMetrics().height();
  const int vali = rivi * 3 / 2;
  const QStringList nimet = Nimet();
  int y = alue.center().y() - static_cast<int>(nimet.size()) * vali / 2;
  for (qsizetype i = 0; i < nimet.size(); ++i, y += vali) {
    const QRect merkki(alue.left() + rivi, y, rivi * 3 / 2, rivi + 2);
    PiirraMerkki(maalain, merkki, static_cast<std::size_t>(i));
    maalain.drawText(merkki.right() + rivi / 2, y + fontMetrics().ascent() + 1, nimet[i]);
  }
}

void Kaaviokuva::PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const {
  maalain.save();
  maalain.setBrush(Vari(i));
  maalain.drawRect(merkki);
  maalain.setPen(Qt::black);
  maalain.drawText(merkki, Qt::AlignCenter, Numero(i));
  maalain.restore();
}
