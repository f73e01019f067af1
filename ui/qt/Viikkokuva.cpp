// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Viikkokuva.h"

#include <QPainter>
#include <algorithm>

#include "kernel/Kellonajat.h"
#include "kernel/Luvut.h"
#include "ui/Viikkokuvaus.h"

namespace {

constexpr int kMinuuttejaVuorokaudessa = 1440, kMinuuttejaTunnissa = 60;
constexpr int kTuntivali = 3;           // between the lines of the hours
constexpr double kTaysiVirta = 100;     // %
constexpr int kViivojenVaaleus = 60;    // of 255
constexpr double kVaalein = 0.35;       // opacity of the smallest flow
constexpr double kPaivienVali = 0.15;   // of a day's height, left free above its bars
constexpr std::size_t kSelitteita = 7;  // rows of the legend that have room
constexpr std::size_t kPalkinVari = 4;  // of the colours of charts: blue

QString Prosentteina(double virta) { return QString::fromStdString(Muotoile(virta, "0.#") + " %"); }

}  // namespace

void Viikkokuva::AsetaKaavio(const Kaaviotiedot& kaavio) {
  virrat_ = kaavio.sarjat.size() > kVirrat ? kaavio.sarjat[kVirrat].arvot : std::vector<double>();
  std::ranges::sort(virrat_, std::greater());
  virrat_.erase(std::ranges::unique(virrat_).begin(), virrat_.end());
  suurin_ = virrat_.empty() ? kTaysiVirta : std::max(kTaysiVirta, virrat_.front());
  if (virrat_.size() > kSelitteita) virrat_.resize(kSelitteita);
  Kaaviokuva::AsetaKaavio(kaavio);
}

QStringList Viikkokuva::Nimet() const {
  QStringList nimet;
  for (const double virta : virrat_) nimet << Prosentteina(virta);
  return nimet;
}

QString Viikkokuva::Aika(std::size_t sarja, std::size_t jakso) const {
  return Teksti(KellonaikaTekstina({static_cast<std::int32_t>(Arvo(sarja, jakso))}));
}

QStringList Viikkokuva::Luvut() const {
  QStringList otsikot;
  for (const Kaaviosarja& sarja : Tiedot().sarjat) otsikot << Teksti(sarja.nimi);
  QStringList rivit(otsikot.join('\t'));
  for (std::size_t i = 0; i < Jaksoja(); ++i)
    rivit << QStringList{Teksti(Tiedot().nimet[static_cast<std::size_t>(Arvo(kPaivat, i))]), Aika(kAlut, i),
                         Aika(kLoput, i), Teksti(Muotoile(Arvo(kVirrat, i), "0.0"))}
                 .join('\t');
  return rivit;
}

QSize Viikkokuva::sizeHint() const {
  const int rivi = fontMetrics().height();
  return {18 * rivi + SelitteenLeveys(), 12 * rivi};
}

QRectF Viikkokuva::Kuvaala() const {
  const int rivi = fontMetrics().height();
  int nimi = 0;
  for (const std::string& paiva : Tiedot().nimet) nimi = std::max(nimi, fontMetrics().horizontalAdvance(Teksti(paiva)));
  return QRectF(rect()).adjusted(nimi + rivi, 2 * rivi, -SelitteenLeveys(), -3 * rivi / 2.0);
}

std::vector<QRectF> Viikkokuva::Vyot() const {
  const QRectF ala = Kuvaala();
  const double minuutti = ala.width() / kMinuuttejaVuorokaudessa;
  const double paiva = ala.height() / static_cast<double>(std::max<std::size_t>(1, Tiedot().nimet.size()));
  std::vector<QRectF> vyot;
  for (std::size_t i = 0; i < Jaksoja(); ++i)
    vyot.emplace_back(ala.left() + Arvo(kAlut, i) * minuutti, ala.top() + Arvo(kPaivat, i) * paiva,
                      (Arvo(kLoput, i) - Arvo(kAlut, i)) * minuutti, paiva);
  return vyot;
}

QRectF Viikkokuva::Palkki(const QRectF& vyo, double virta) const {
  return vyo.adjusted(0, vyo.height() * (1 - (1 - kPaivienVali) * virta / suurin_), 0, 0);
}

QColor Viikkokuva::Savy(double virta) const {
  QColor vari = Vari(kPalkinVari);
  vari.setAlphaF(static_cast<float>(kVaalein + (1 - kVaalein) * virta / suurin_));
  return vari;
}

QString Viikkokuva::Seloste(const QPointF& kohta) const {
  const auto vyot = Vyot();
  for (std::size_t i = 0; i < vyot.size(); ++i)
    if (vyot[i].contains(kohta))
      return QStringLiteral("%1 %2–%3: %4")
          .arg(Teksti(Tiedot().nimet[static_cast<std::size_t>(Arvo(kPaivat, i))]), Aika(kAlut, i), Aika(kLoput, i),
               Prosentteina(Arvo(kVirrat, i)));
  return {};
}

void Viikkokuva::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  if (Tiedot().nimet.empty()) return;
  PiirraRuudukko(maalain);
  maalain.save();
  const auto vyot = Vyot();
  for (std::size_t i = 0; i < vyot.size(); ++i) {
    maalain.setBrush(Savy(Arvo(kVirrat, i)));
    maalain.setPen(QPen(palette().color(QPalette::Text), vyot[i].contains(Osoitin()) ? 2 : 0.5));
    maalain.drawRect(Palkki(vyot[i], Arvo(kVirrat, i)));
  }
  maalain.restore();
  const QRect ala = Kuvaala().toRect();
  PiirraSelite(maalain, QRect(ala.right(), ala.top(), width() - ala.right(), ala.height()));
}

void Viikkokuva::PiirraRuudukko(QPainter& maalain) const {
  const QRectF ala = Kuvaala();
  const int rivi = fontMetrics().height();
  const QColor vari = palette().color(QPalette::Text);
  QColor himmea = vari;
  himmea.setAlpha(kViivojenVaaleus);
  for (int minuutti = 0; minuutti <= kMinuuttejaVuorokaudessa; minuutti += kTuntivali * kMinuuttejaTunnissa) {
    const double x = ala.left() + ala.width() * minuutti / kMinuuttejaVuorokaudessa;
    maalain.setPen(himmea);
    maalain.drawLine(QPointF(x, ala.top()), QPointF(x, ala.bottom()));
    maalain.setPen(vari);
    maalain.drawText(QRectF(x - 2 * rivi, ala.bottom() + rivi / 4.0, 4 * rivi, rivi), Qt::AlignCenter,
                     QString::number(minuutti / kMinuuttejaTunnissa));
  }
  const double korkeus = ala.height() / static_cast<double>(Tiedot().nimet.size());
  double y = ala.top();
  for (const std::string& paiva : Tiedot().nimet) {
    maalain.drawText(QRectF(0, y, ala.left() - rivi / 2.0, korkeus), Qt::AlignRight | Qt::AlignBottom, Teksti(paiva));
    y += korkeus;
    maalain.drawLine(QPointF(ala.left(), y), QPointF(ala.right(), y));
  }
}

void Viikkokuva::PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const {
  maalain.save();
  maalain.setBrush(Savy(virrat_[i]));
  maalain.drawRect(Palkki(QRectF(merkki), virrat_[i]));
  maalain.restore();
}
