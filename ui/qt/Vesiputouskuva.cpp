// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Vesiputouskuva.h"

#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "kernel/Luvut.h"

namespace {

constexpr double kPalkinOsuus = 0.72;   // of the height of a row
constexpr double kNimienOsuus = 0.38;   // of the width, at most
constexpr double kPieninFontti = 0.62;  // of the widget's own
constexpr double kMukavaRivi = 1.7;     // in lines of text
constexpr double kKorkeinRivi = 2.4;
constexpr double kYla = 3.6, kAla = 2.2;  // room above and below the rows, in lines of text
constexpr double kHaalea = 0.35;
constexpr double kViivanVaaleus = 0.16;

}  // namespace

/// A row has its value in one of the series.
Vesiputouskuva::Askel Vesiputouskuva::TeeAskel(std::size_t i, double ennen) const {
  const auto& sarjat = Tiedot().sarjat;
  const bool taso = i == 0 || i + 1 == Tiedot().nimet.size();
  if (taso) return {0, sarjat.front().arvot[i], 0, true};
  Askel askel{ennen, ennen, sarjat.size() > 1 ? 1u : 0u, false};
  for (std::size_t s = 1; s < sarjat.size(); ++s) {
    if (sarjat[s].arvot[i] == 0) continue;
    askel.loppu += sarjat[s].arvot[i];
    askel.sarja = s;
  }
  return askel;
}

void Vesiputouskuva::AsetaKaavio(const Kaaviotiedot& kaavio) {
  Kaaviokuva::AsetaKaavio(kaavio);
  askeleet_.clear();
  double pienin = 0, suurin = 0;
  for (std::size_t i = 0; i < kaavio.nimet.size(); ++i) {
    askeleet_.push_back(TeeAskel(i, askeleet_.empty() ? 0 : askeleet_.back().loppu));
    pienin = std::min(pienin, askeleet_.back().loppu);
    suurin = std::max(suurin, askeleet_.back().loppu);
  }
  asteikko_ = Asteikko::Sovita(pienin, suurin);
  QStringList rivit(Teksti(kaavio.otsikko));
  for (std::size_t i = 0; i < askeleet_.size(); ++i)
    rivit << Teksti(kaavio.nimet[i]) + ' ' + Arvoteksti(askeleet_[i]) + ' ' + Teksti(kaavio.yksikko);
  setAccessibleName(rivit.join(QStringLiteral(", ")));
}

QStringList Vesiputouskuva::Nimet() const {
  QStringList nimet;
  for (const Kaaviosarja& sarja : Tiedot().sarjat) nimet << Teksti(sarja.nimi);
  return nimet;
}

QStringList Vesiputouskuva::Luvut() const {
  QStringList rivit;
  for (std::size_t i = 0; i < askeleet_.size(); ++i)
    rivit << QStringList{Teksti(Tiedot().nimet[i]), Teksti(Muotoile(askeleet_[i].Arvo(), "0.00")),
                         Teksti(Muotoile(askeleet_[i].loppu, "0.00")), Teksti(Tiedot().yksikko)}
                 .join('\t');
  return rivit;
}

QSize Vesiputouskuva::sizeHint() const {
  const int rivi = fontMetrics().height();
  const double rivit = static_cast<double>(std::max<std::size_t>(4, askeleet_.size()));
  return {30 * rivi, qCeil((kYla + kAla + rivit * kMukavaRivi) * rivi)};
}

QSize Vesiputouskuva::minimumSizeHint() const {
  const int rivi = fontMetrics().height();
  return {20 * rivi, qCeil((kYla + kAla + static_cast<double>(askeleet_.size()) * kPieninFontti) * rivi)};
}

/// Changes are often small beside the level: they are told more closely than the scale is.
const char* Vesiputouskuva::Kuvio() const {
  if (asteikko_.vali >= 1000) return "### ##0";
  return asteikko_.vali >= 1 ? "### ##0.0" : asteikko_.Kuvio();
}

QString Vesiputouskuva::Arvoteksti(const Askel& askel) const {
  const QString luku = Teksti(Muotoile(askel.Arvo(), Kuvio()));
  return !askel.taso && askel.Arvo() > 0 ? '+' + luku : luku;
}

int Vesiputouskuva::Arvoleveys(const QFontMetrics& mitat) const {
  int leveys = 0;
  for (const Askel& askel : askeleet_) leveys = std::max(leveys, mitat.horizontalAdvance(Arvoteksti(askel)));
  return leveys;
}

/// The widget's font or a smaller one.
QFont Vesiputouskuva::Pienempi(double osuus) const {
  QFont fontti = font();
  osuus = std::clamp(osuus, kPieninFontti, 1.0);
  if (fontti.pixelSize() > 0)
    fontti.setPixelSize(std::max(1, qFloor(fontti.pixelSize() * osuus)));
  else
    fontti.setPointSizeF(fontti.pointSizeF() * osuus);
  return fontti;
}

/// Names to the left of the bars, values to the right.
Vesiputouskuva::Asettelu Vesiputouskuva::Sommittele() const {
  const double korkeus = fontMetrics().height();
  const double tila = height() - (kYla + kAla) * korkeus;
  const double rivi = std::min(kKorkeinRivi * korkeus, tila / static_cast<double>(askeleet_.size()));
  const QFont fontti = Pienempi(rivi / korkeus);
  const QFontMetrics mitat(fontti);
  int nimi = 0;
  for (const std::string& n : Tiedot().nimet)
    nimi = std::max(nimi, QFontMetrics(Lihava(fontti)).horizontalAdvance(Teksti(n)));
  const double vasen = std::min<double>(nimi, kNimienOsuus * width()) + 1.5 * korkeus;
  const double oikea = width() - Arvoleveys(QFontMetrics(Lihava(fontti))) - 1.5 * korkeus;
  return {QRectF(QPointF(vasen, kYla * korkeus),
                 QPointF(std::max(vasen + 1, oikea), kYla * korkeus + rivi * static_cast<double>(askeleet_.size()))),
          rivi, fontti};
}

double Vesiputouskuva::X(double arvo, const QRectF& alue) const {
  return alue.left() + (arvo - asteikko_.ala) / (asteikko_.yla - asteikko_.ala) * alue.width();
}

QRectF Vesiputouskuva::Palkki(std::size_t i, const Asettelu& a) const {
  const double y = a.palkit.top() + (static_cast<double>(i) + (1 - kPalkinOsuus) / 2) * a.rivi;
  return QRectF(QPointF(X(askeleet_[i].alku, a.palkit), y),
                QPointF(X(askeleet_[i].loppu, a.palkit), y + kPalkinOsuus * a.rivi))
      .normalized();
}

QString Vesiputouskuva::Seloste(const QPointF& kohta) const {
  if (askeleet_.empty()) return {};
  const Asettelu a = Sommittele();
  const int i = qFloor((kohta.y() - a.palkit.top()) / a.rivi);
  if (i < 0 || i >= static_cast<int>(askeleet_.size())) return {};
  const auto rivi = static_cast<std::size_t>(i);
  const Askel& askel = askeleet_[rivi];
  const QString arvo = Teksti(Tiedot().nimet[rivi]) + QStringLiteral(": ") + Arvoteksti(askel);
  const QString taso = askel.taso ? QString() : QStringLiteral(" → ") + Teksti(Muotoile(askel.loppu, Kuvio()));
  return arvo + taso + ' ' + Teksti(Tiedot().yksikko);
}

void Vesiputouskuva::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  if (askeleet_.empty()) return;
  const Asettelu a = Sommittele();
  if (!isEnabled()) maalain.setOpacity(kHaalea);
  PiirraAsteikko(maalain, a);
  for (std::size_t i = 0; i < askeleet_.size(); ++i) PiirraRivi(maalain, i, a);
  PiirraSelitteet(maalain);
  maalain.setOpacity(1);
}

/// Upright lines, their numbers above them, the unit above the names.
void Vesiputouskuva::PiirraAsteikko(QPainter& maalain, const Asettelu& a) const {
  const int rivi = fontMetrics().height();
  const QColor vari = maalain.pen().color();
  QColor himmea = vari;
  himmea.setAlphaF(kViivanVaaleus);
  const double y = a.palkit.top() - 1.2 * rivi;
  maalain.drawText(QRectF(rivi / 2.0, y, a.palkit.left() - rivi, rivi), Qt::AlignLeft | Qt::AlignVCenter,
                   Teksti(Tiedot().yksikko));
  double vapaa = 0;  // where the next number may begin
  for (int i = qCeil(asteikko_.ala / asteikko_.vali); i <= qFloor(asteikko_.yla / asteikko_.vali); ++i) {
    const double x = X(i * asteikko_.vali, a.palkit);
    maalain.setPen(i == 0 ? vari : himmea);
    maalain.drawLine(QPointF(x, a.palkit.top()), QPointF(x, a.palkit.bottom()));
    maalain.setPen(vari);
    const QString luku = Teksti(Muotoile(i * asteikko_.vali, "### ##0.###"));
    const double puolikas = fontMetrics().horizontalAdvance(luku) / 2.0;
    if (x - puolikas < vapaa) continue;
    maalain.drawText(QRectF(x - puolikas, y, 2 * puolikas + 1, rivi), Qt::AlignCenter, luku);
    vapaa = x + puolikas + rivi / 2.0;
  }
}

void Vesiputouskuva::PiirraRivi(QPainter& maalain, std::size_t i, const Asettelu& a) const {
  const double y = a.palkit.top() + static_cast<double>(i) * a.rivi;
  const double vali = fontMetrics().height() / 2.0;
  maalain.setFont(askeleet_[i].taso ? Lihava(a.fontti) : a.fontti);
  const QRectF nimi(vali, y, a.palkit.left() - 2 * vali, a.rivi);
  maalain.drawText(nimi, Qt::AlignLeft | Qt::AlignVCenter,
                   maalain.fontMetrics().elidedText(Teksti(Tiedot().nimet[i]), Qt::ElideRight, qFloor(nimi.width())));
  maalain.drawText(QRectF(a.palkit.right() + vali, y, width() - a.palkit.right() - 2 * vali, a.rivi),
                   Qt::AlignRight | Qt::AlignVCenter, Arvoteksti(askeleet_[i]));
  maalain.setFont(font());
  PiirraPalkki(maalain, i, a);
}

/// The bar, and the line that leads from its end to the next row.
void Vesiputouskuva::PiirraPalkki(QPainter& maalain, std::size_t i, const Asettelu& a) const {
  const QRectF palkki = Palkki(i, a);
  const Askel& askel = askeleet_[i];
  const bool osoitettu = QRectF(0, palkki.top(), width(), palkki.height()).contains(Osoitin());
  maalain.save();
  maalain.setPen(QPen(palette().color(QPalette::Text), osoitettu ? 2 : 0.5));
  maalain.setBrush(Vari(askel.sarja));
  maalain.drawRect(palkki);
  if (!askel.taso && askel.Arvo() > 0) {
    maalain.setBrush(QBrush(Qt::black, Qt::BDiagPattern));
    maalain.drawRect(palkki);
  }
  if (i + 1 < askeleet_.size()) {
    const double x = X(askel.loppu, a.palkit);
    maalain.setPen(QPen(palette().color(QPalette::Text), 0.5, Qt::DotLine));
    maalain.drawLine(QPointF(x, palkki.bottom()), QPointF(x, Palkki(i + 1, a).top()));
  }
  maalain.restore();
}

/// The names of the series in one line at the bottom, in smaller letters when they don't fit.
void Vesiputouskuva::PiirraSelitteet(QPainter& maalain) const {
  const QStringList nimet = Nimet();
  const int rivi = fontMetrics().height();
  const int tarve = fontMetrics().horizontalAdvance(nimet.join(QString())) + 3 * rivi * static_cast<int>(nimet.size());
  maalain.setFont(Pienempi(static_cast<double>(width()) / tarve));
  double x = rivi / 2.0;
  for (qsizetype s = 0; s < nimet.size(); ++s) {
    const double koko = maalain.fontMetrics().height();
    const QRectF merkki(x, height() - 1.5 * koko, koko, koko);
    maalain.save();
    maalain.setBrush(Vari(static_cast<std::size_t>(s)));
    maalain.drawRect(merkki);
    maalain.restore();
    maalain.drawText(QPointF(x + 1.4 * koko, merkki.top() + maalain.fontMetrics().ascent()), nimet[s]);
    x += 2.4 * koko + maalain.fontMetrics().horizontalAdvance(nimet[s]);
  }
  maalain.setFont(font());
}
