// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Kayrakuva.h"

#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <array>
#include <cmath>

#include "kernel/Luvut.h"

namespace {

constexpr double kViivanLeveys = 2.5;
constexpr double kPisteenSade = 4;
constexpr std::array kKatkot = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
constexpr std::array<std::size_t, 4> kVarit = {4, 5, 2, 6};  // of the colours of charts: clear on light and dark

QString Luku(double arvo, const char* kuvio) { return QString::fromStdString(Muotoile(arvo, kuvio)); }

}  // namespace

void Kayrakuva::AsetaKaavio(const Kaaviotiedot& kaavio) {
  double suurin = 0;
  for (const Kaaviosarja& sarja : kaavio.sarjat)
    for (const double arvo : sarja.arvot)
      if (std::isfinite(arvo)) suurin = std::max(suurin, arvo);
  asteikko_ = Asteikko::Sovita(0, suurin);
  Kaaviokuva::AsetaKaavio(kaavio);
}

QStringList Kayrakuva::Nimet() const {
  QStringList nimet;
  for (const Kaaviosarja& sarja : Tiedot().sarjat) nimet << Teksti(sarja.nimi);
  return nimet;
}

QStringList Kayrakuva::Luvut() const {
  QStringList otsikot(Tiedot().nimet.empty() ? QString() : Teksti(Tiedot().nimet.front()));
  for (const QString& nimi : Nimet()) otsikot << nimi + ", " + Teksti(Tiedot().yksikko);
  QStringList rivit(otsikot.join('\t'));
  for (std::size_t i = 0; i < Tiedot().arvot.size(); ++i) {
    QStringList solut(Luku(Tiedot().arvot[i], "0.##"));
    for (const Kaaviosarja& sarja : Tiedot().sarjat)
      solut << (std::isfinite(sarja.arvot[i]) ? Luku(sarja.arvot[i], "0.000") : QString());
    rivit << solut.join('\t');
  }
  return rivit;
}

QSize Kayrakuva::sizeHint() const {
  const int rivi = fontMetrics().height();
  return {24 * rivi + SelitteenLeveys(), 13 * rivi};
}

QRectF Kayrakuva::Kuvaala() const {
  const int rivi = fontMetrics().height();
  return QRectF(rect()).adjusted(asteikko_.LukujenLeveys(fontMetrics()) + rivi, 3 * rivi,
                                 -SelitteenLeveys() - rivi / 2.0, -3 * rivi);
}

double Kayrakuva::X(double paikka) const {
  const auto& paikat = Tiedot().arvot;
  return Kuvaala().left() + (paikka - paikat.front()) / (paikat.back() - paikat.front()) * Kuvaala().width();
}

QPointF Kayrakuva::Piste(std::size_t sarja, std::size_t i) const {
  return {X(Tiedot().arvot[i]), asteikko_.Y(Tiedot().sarjat[sarja].arvot[i], Kuvaala())};
}

QPen Kayrakuva::Kyna(std::size_t sarja) const {
  return {Vari(kVarit[sarja % kVarit.size()]), kViivanLeveys, kKatkot[sarja % kKatkot.size()]};
}

int Kayrakuva::Lahin(const QPointF& kohta) const {
  if (Tiedot().arvot.empty() || !Kuvaala().contains(kohta)) return -1;
  const auto lahin = std::ranges::min_element(Tiedot().arvot, {}, [&](double p) { return std::abs(X(p) - kohta.x()); });
  return static_cast<int>(lahin - Tiedot().arvot.begin());
}

QString Kayrakuva::Seloste(const QPointF& kohta) const {
  const int lahin = Lahin(kohta);
  if (lahin < 0) return {};
  const auto i = static_cast<std::size_t>(lahin);
  QStringList osat(Teksti(Tiedot().nimet.front()) + ": " + Luku(Tiedot().arvot[i], "0.##"));
  for (const Kaaviosarja& sarja : Tiedot().sarjat)
    if (std::isfinite(sarja.arvot[i]))
      osat << Teksti(sarja.nimi) + ": " + Luku(sarja.arvot[i], asteikko_.Kuvio()) + " " + Teksti(Tiedot().yksikko);
  return osat.size() > 1 ? osat.join(QStringLiteral("; ")) : QString();
}

void Kayrakuva::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  if (Tiedot().sarjat.empty()) return;
  asteikko_.Piirra(maalain, Kuvaala(), Teksti(Tiedot().yksikko));
  PiirraAkseli(maalain);
  for (std::size_t s = 0; s < Tiedot().sarjat.size(); ++s) PiirraKayra(maalain, s);
  PiirraKohta(maalain);
  const QRect ala = Kuvaala().toRect();
  PiirraSelite(maalain, QRect(ala.right(), ala.top(), width() - ala.right(), ala.height()));
}

/// Numbers at round tens, and the name of the axis below them.
void Kayrakuva::PiirraAkseli(QPainter& maalain) const {
  constexpr int kVali = 10;
  const QRectF ala = Kuvaala();
  const int rivi = fontMetrics().height();
  const int viimeinen = qFloor(Tiedot().arvot.back() / kVali);
  for (int i = qCeil(Tiedot().arvot.front() / kVali); i <= viimeinen; ++i) {
    const double x = X(i * kVali);
    maalain.drawLine(QPointF(x, ala.bottom()), QPointF(x, ala.bottom() + rivi / 4.0));
    maalain.drawText(QRectF(x - 2 * rivi, ala.bottom() + rivi / 3.0, 4 * rivi, rivi), Qt::AlignCenter,
                     QString::number(i * kVali));
  }
  maalain.drawText(QRectF(ala.left(), ala.bottom() + 3 * rivi / 2.0, ala.width(), rivi), Qt::AlignCenter,
                   Teksti(Tiedot().nimet.front()));
}

void Kayrakuva::PiirraKayra(QPainter& maalain, std::size_t sarja) const {
  const auto& arvot = Tiedot().sarjat[sarja].arvot;
  maalain.save();
  maalain.setPen(Kyna(sarja));
  maalain.setBrush(Kyna(sarja).color());
  for (std::size_t i = 0; i < arvot.size();) {
    QPolygonF osa;
    for (; i < arvot.size() && std::isfinite(arvot[i]); ++i) osa << Piste(sarja, i);
    if (osa.size() == 1) maalain.drawEllipse(osa.front(), kPisteenSade, kPisteenSade);
    maalain.drawPolyline(osa);
    if (osa.isEmpty()) ++i;
  }
  maalain.restore();
}

/// Marks the values that the tool tip tells.
void Kayrakuva::PiirraKohta(QPainter& maalain) const {
  const int lahin = Lahin(Osoitin());
  if (lahin < 0) return;
  const auto i = static_cast<std::size_t>(lahin);
  for (std::size_t s = 0; s < Tiedot().sarjat.size(); ++s)
    if (std::isfinite(Tiedot().sarjat[s].arvot[i])) maalain.drawEllipse(Piste(s, i), kPisteenSade, kPisteenSade);
}

void Kayrakuva::PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const {
  maalain.save();
  maalain.setPen(Kyna(i));
  maalain.drawLine(merkki.left(), merkki.center().y(), merkki.right(), merkki.center().y());
  maalain.restore();
}
