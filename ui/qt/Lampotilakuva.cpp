// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Lampotilakuva.h"

#include <QPainter>
#include <algorithm>
#include <numeric>

#include "kernel/Luvut.h"
#include "ui/Lampotilakuvaus.h"

namespace {

constexpr double kKapein = 0.04;  // of the picture's width: also a foil is to be seen
constexpr double kViivanLeveys = 2.5;
constexpr int kNimenLeveys = 11;  // of the longest name in the legend, in heights of the font

QString Asteina(double lampotila) { return QString::fromStdString(Muotoile(lampotila, "0.0")) + QStringLiteral(" °C"); }

}  // namespace

void Lampotilakuva::AsetaKaavio(const Kaaviotiedot& kaavio) {
  const auto n = kaavio.nimet.size();
  const bool kelpaa = kaavio.sarjat.size() == 3 && kaavio.sarjat[kPaksuudet].arvot.size() == n &&
                      kaavio.sarjat[kVastukset].arvot.size() == n &&
                      (kaavio.sarjat[kLampotilat].arvot.empty() || kaavio.sarjat[kLampotilat].arvot.size() == n + 3);
  Kaaviokuva::AsetaKaavio(kelpaa ? kaavio : Kaaviotiedot{kaavio.otsikko, {}});
}

const std::vector<double>& Lampotilakuva::Sarja(std::size_t i) const {
  static const std::vector<double> tyhja;
  return i < Tiedot().sarjat.size() ? Tiedot().sarjat[i].arvot : tyhja;
}

/// One material has one colour wherever it is.
QColor Lampotilakuva::Aineenvari(std::size_t i) const {
  const auto& nimet = Tiedot().nimet;
  return Vari(static_cast<std::size_t>(std::ranges::find(nimet, nimet[i]) - nimet.begin()));
}

QStringList Lampotilakuva::Nimet() const {
  QStringList nimet;
  for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i)
    nimet << fontMetrics().elidedText(Teksti(Tiedot().nimet[i]), Qt::ElideRight, kNimenLeveys * fontMetrics().height());
  return nimet;
}

QStringList Lampotilakuva::Luvut() const {
  if (Tiedot().sarjat.empty()) return {};
  QStringList rivit(QString("\t%1\t%2\t%3")
                        .arg(Teksti(Tiedot().sarjat[kPaksuudet].nimi), Teksti(Tiedot().sarjat[kVastukset].nimi),
                             Teksti(Tiedot().sarjat[kLampotilat].nimi)));
  const auto& lampotilat = Sarja(kLampotilat);
  for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i)
    rivit << QString("%1\t%2\t%3\t%4")
                 .arg(Teksti(Tiedot().nimet[i]), Teksti(Muotoile(Sarja(kPaksuudet)[i], "0.#")),
                      Teksti(Muotoile(Sarja(kVastukset)[i], "0.000")),
                      lampotilat.empty() ? QString() : Teksti(Muotoile(lampotilat[i + 2], "0.0")));
  return rivit;
}

QSize Lampotilakuva::sizeHint() const {
  const int rivi = fontMetrics().height();
  const int selite = static_cast<int>(Tiedot().nimet.size()) * rivi * 3 / 2;
  // As wide as the longest names, as high as seven layers: the window keeps its size from structure to structure.
  return {(18 + kNimenLeveys + 4) * rivi, std::max(14 * rivi, 4 * rivi + selite)};
}

QRectF Lampotilakuva::Kuvaala() const {
  const int rivi = fontMetrics().height();
  return QRectF(rect()).adjusted(rivi, 5 * rivi / 2.0, -SelitteenLeveys(), -rivi);
}

double Lampotilakuva::Ilmaa() const {
  return fontMetrics().horizontalAdvance(Asteina(-88.8)) + fontMetrics().height() / 2.0;
}

std::vector<double> Lampotilakuva::Rajat() const {
  const QRectF ala = Kuvaala();
  const double kapein = kKapein * ala.width();
  const double leveys = ala.width() - 2 * Ilmaa();
  const auto& paksuudet = Sarja(kPaksuudet);
  const double jaettavaa = std::max(0.0, leveys - kapein * static_cast<double>(paksuudet.size()));
  double yhteensa = 0;
  for (const double paksuus : paksuudet) yhteensa += std::max(paksuus, 0.0);
  std::vector<double> rajat{ala.left() + Ilmaa()};
  for (const double paksuus : paksuudet)
    rajat.push_back(rajat.back() + kapein + (yhteensa > 0 ? jaettavaa * std::max(paksuus, 0.0) / yhteensa : 0));
  return rajat;
}

double Lampotilakuva::Y(double lampotila) const {
  const auto [pienin, suurin] = std::ranges::minmax(Sarja(kLampotilat));
  const int rivi = fontMetrics().height();
  const QRectF ala = Kuvaala().adjusted(0, 3 * rivi / 2.0, 0, -2 * rivi);
  return ala.bottom() - (lampotila - pienin) / std::max(suurin - pienin, 1e-9) * ala.height();
}

std::vector<QPointF> Lampotilakuva::Viiva() const {
  const auto& lampotilat = Sarja(kLampotilat);
  if (lampotilat.empty()) return {};
  std::vector<double> kohdat = Rajat();
  const double ilma = Ilmaa() / 3;
  kohdat.insert(kohdat.begin(), kohdat.front() - ilma);
  kohdat.push_back(kohdat.back() + ilma);
  std::vector<QPointF> pisteet{{Kuvaala().left(), Y(lampotilat.front())}};
  for (std::size_t i = 0; i < kohdat.size(); ++i) pisteet.emplace_back(kohdat[i], Y(lampotilat[i]));
  pisteet.emplace_back(Kuvaala().right(), Y(lampotilat.back()));
  return pisteet;
}

void Lampotilakuva::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  if (Tiedot().nimet.empty()) return;
  PiirraKerrokset(maalain);
  PiirraNollaviiva(maalain);
  PiirraLampotilat(maalain);
  PiirraReunat(maalain);
  const QRect ala = Kuvaala().toRect();
  PiirraSelite(maalain, QRect(ala.right(), ala.top(), width() - ala.right(), ala.height()));
}

void Lampotilakuva::PiirraKerrokset(QPainter& maalain) const {
  const QRectF ala = Kuvaala();
  const auto rajat = Rajat();
  maalain.save();
  for (std::size_t i = 0; i + 1 < rajat.size(); ++i) {
    const QRectF kerros(rajat[i], ala.top(), rajat[i + 1] - rajat[i], ala.height());
    maalain.setBrush(Vastustaa(i) ? QBrush(Aineenvari(i)) : QBrush(Aineenvari(i), Qt::BDiagPattern));
    maalain.drawRect(kerros);
    maalain.save();
    if (Vastustaa(i)) maalain.setPen(Qt::black);
    maalain.drawText(kerros.adjusted(-9, 0, 9, -2), Qt::AlignHCenter | Qt::AlignBottom, Numero(i));
    maalain.restore();
  }
  maalain.restore();
}

void Lampotilakuva::PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const {
  maalain.save();
  maalain.setBrush(Vastustaa(i) ? QBrush(Aineenvari(i)) : QBrush(Aineenvari(i), Qt::BDiagPattern));
  maalain.drawRect(merkki);
  if (Vastustaa(i)) maalain.setPen(Qt::black);
  maalain.drawText(merkki, Qt::AlignCenter, Numero(i));
  maalain.restore();
}

void Lampotilakuva::PiirraReunat(QPainter& maalain) const {
  if (Tiedot().reunat.size() != 2) return;
  maalain.drawText(Kuvaala(), Qt::AlignLeft | Qt::AlignBottom, Teksti(Tiedot().reunat[0]));
  maalain.drawText(Kuvaala(), Qt::AlignRight | Qt::AlignBottom, Teksti(Tiedot().reunat[1]));
}

/// Freezing point, where the temperature passes it.
void Lampotilakuva::PiirraNollaviiva(QPainter& maalain) const {
  const auto& lampotilat = Sarja(kLampotilat);
  if (lampotilat.empty() || std::ranges::min(lampotilat) >= 0 || std::ranges::max(lampotilat) <= 0) return;
  const QRectF ala = Kuvaala();
  maalain.save();
  maalain.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
  maalain.drawLine(QPointF(ala.left(), Y(0)), QPointF(ala.right(), Y(0)));
  maalain.restore();
  maalain.drawText(QRectF(ala.left(), Y(0), ala.width(), fontMetrics().height()), Qt::AlignRight,
                   QStringLiteral("0 °C"));
}

void Lampotilakuva::PiirraLampotilat(QPainter& maalain) const {
  const auto pisteet = Viiva();
  if (pisteet.empty()) return;
  const int pisteita = static_cast<int>(pisteet.size());
  maalain.save();
  maalain.setPen(QPen(palette().color(QPalette::Base), kViivanLeveys + 3));
  maalain.drawPolyline(pisteet.data(), pisteita);
  maalain.setPen(QPen(palette().color(QPalette::Text), kViivanLeveys));
  maalain.drawPolyline(pisteet.data(), pisteita);
  maalain.restore();
  PiirraAsteet(maalain, pisteet);
}

/// The air's temperatures at the edges; those of the surfaces and of the layers' borders where they fit. Inside is on
/// the left.
void Lampotilakuva::PiirraAsteet(QPainter& maalain, const std::vector<QPointF>& pisteet) const {
  const QRectF ala = Kuvaala();
  const double rivi = fontMetrics().height();
  const auto& lampotilat = Sarja(kLampotilat);
  maalain.drawText(QRectF(ala.left(), pisteet.front().y() - 1.5 * rivi, ala.width(), rivi), Qt::AlignLeft,
                   Asteina(lampotilat.front()));
  maalain.drawText(QRectF(ala.left(), pisteet.back().y() + rivi / 3, ala.width(), rivi), Qt::AlignRight,
                   Asteina(lampotilat.back()));
  double vapaa = ala.left() + Ilmaa();
  for (std::size_t i = 2; i + 2 < pisteet.size(); ++i) {
    const QString asteet = QString::fromStdString(Muotoile(lampotilat[i - 1], "0.0"));
    const double leveys = fontMetrics().horizontalAdvance(asteet) + rivi / 2;
    const QRectF paikka(pisteet[i].x() + 2, pisteet[i].y() - rivi - 3, leveys, rivi);
    if (paikka.left() < vapaa || paikka.right() > ala.right() - Ilmaa() / 2) continue;
    vapaa = paikka.right();
    maalain.fillRect(paikka, palette().color(QPalette::Base));
    maalain.drawText(paikka, Qt::AlignCenter, asteet);
  }
}
