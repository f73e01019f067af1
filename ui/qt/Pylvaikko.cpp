// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Pylvaikko.h"

#include <QPainter>
#include <algorithm>

#include "kernel/Luvut.h"

namespace {

constexpr double kPalkinOsuus = 0.8;  // of the width of a place
constexpr double kPisteenKoko = 7;
constexpr double kOhut = 4;  // of a part that is hard to point at

bool OnViiva(const Kaaviosarja& sarja) { return sarja.pino == Kaaviosarja::kViiva; }

/// Sums of a stack's values above and below zero.
struct Korkeus {
  double yla = 0, ala = 0;
  void Lisaa(double arvo) { (arvo < 0 ? ala : yla) += arvo; }
};

}  // namespace

void Pylvaikko::AsetaKaavio(const Kaaviotiedot& kaavio) {
  double pienin = 0, suurin = 0;
  pinoja_ = 1;
  for (const Kaaviosarja& sarja : kaavio.sarjat) pinoja_ = std::max(pinoja_, sarja.pino + 1);
  for (std::size_t i = 0; i < kaavio.nimet.size(); ++i) {
    std::vector<Korkeus> pinot(static_cast<std::size_t>(pinoja_) + kaavio.sarjat.size());
    for (std::size_t s = 0; s < kaavio.sarjat.size(); ++s) {
      const Kaaviosarja& sarja = kaavio.sarjat[s];
      pinot[static_cast<std::size_t>(OnViiva(sarja) ? pinoja_ + static_cast<int>(s) : sarja.pino)].Lisaa(
          sarja.arvot[i]);
    }
    for (const Korkeus& pino : pinot) {
      pienin = std::min(pienin, pino.ala);
      suurin = std::max(suurin, pino.yla);
    }
  }
  asteikko_ = Asteikko::Sovita(pienin, suurin);
  Kaaviokuva::AsetaKaavio(kaavio);
  Sommittele();
}

QStringList Pylvaikko::Nimet() const {
  QStringList nimet;
  for (const Kaaviosarja& sarja : Tiedot().sarjat) nimet << Teksti(sarja.nimi);
  return nimet;
}

QStringList Pylvaikko::Luvut() const {
  QStringList otsikot(Teksti(Tiedot().yksikko));
  for (const std::string& nimi : Tiedot().nimet) otsikot << Teksti(nimi);
  QStringList rivit(otsikot.join('\t'));
  for (const Kaaviosarja& sarja : Tiedot().sarjat) {
    QStringList solut(Teksti(sarja.nimi));
    for (const double arvo : sarja.arvot) solut << Teksti(Muotoile(arvo, "0.0"));
    rivit << solut.join('\t');
  }
  return rivit;
}

QSize Pylvaikko::sizeHint() const {
  const int rivi = fontMetrics().height();
  int paikka = 0;
  for (const std::string& nimi : Tiedot().nimet)
    paikka = std::max(paikka, fontMetrics().horizontalAdvance(Teksti(nimi)) + rivi / 2);
  const int paikat = std::max(20 * rivi, paikka * static_cast<int>(Tiedot().nimet.size()));
  return {paikat + 8 * rivi + SelitteenLeveys(),
          std::max(14 * rivi, static_cast<int>(Tiedot().sarjat.size() + 3) * rivi * 3 / 2)};
}

QRectF Pylvaikko::Sovitettu() const {
  const int rivi = fontMetrics().height();
  return QRectF(rect()).adjusted(asteikko_.LukujenLeveys(fontMetrics()) + rivi, 5 * rivi / 2, -SelitteenLeveys(),
                                 -2 * rivi);
}

/// Lays the parts out for the present figures, size and font.
void Pylvaikko::Sommittele() {
  kuvaala_ = Sovitettu();
  palat_ = Palat();
}

void Pylvaikko::resizeEvent(QResizeEvent*) { Sommittele(); }

void Pylvaikko::changeEvent(QEvent* tapahtuma) {
  Kaaviokuva::changeEvent(tapahtuma);
  if (tapahtuma->type() == QEvent::FontChange) Sommittele();
}

QPointF Pylvaikko::Viivalla(const Kaaviosarja& sarja, std::size_t paikka) const {
  return {kuvaala_.left() + (static_cast<double>(paikka) + 0.5) * PaikanLeveys(), Y(sarja.arvot[paikka])};
}

void Pylvaikko::LisaaPino(int pino, std::size_t paikka, std::vector<Pala>& palat) const {
  const double leveys = PaikanLeveys() * kPalkinOsuus / pinoja_;
  const double vasen =
      kuvaala_.left() + (static_cast<double>(paikka) + (1 - kPalkinOsuus) / 2) * PaikanLeveys() + pino * leveys;
  Korkeus korkeus;
  for (std::size_t s = 0; s < Tiedot().sarjat.size(); ++s) {
    const Kaaviosarja& sarja = Tiedot().sarjat[s];
    const double arvo = sarja.arvot[paikka];
    if (sarja.pino != pino || arvo == 0) continue;
    const double alku = arvo < 0 ? korkeus.ala : korkeus.yla;
    korkeus.Lisaa(arvo);
    palat.push_back({QRectF(QPointF(vasen, Y(alku)), QPointF(vasen + leveys, Y(alku + arvo))).normalized(), s, paikka});
  }
}

/// Columns first, so that a point of a line lies on top of them.
std::vector<Pylvaikko::Pala> Pylvaikko::Palat() const {
  std::vector<Pala> palat;
  const QPointF puolikas(kPisteenKoko / 2, kPisteenKoko / 2);
  for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i)
    for (int pino = 0; pino < pinoja_; ++pino) LisaaPino(pino, i, palat);
  for (std::size_t s = 0; s < Tiedot().sarjat.size(); ++s)
    for (std::size_t i = 0; i < Tiedot().nimet.size() && OnViiva(Tiedot().sarjat[s]); ++i) {
      const QPointF piste = Viivalla(Tiedot().sarjat[s], i);
      palat.push_back({QRectF(piste - puolikas, piste + puolikas), s, i});
    }
  return palat;
}

/// A thin part answers a little beyond its edges.
const Pylvaikko::Pala* Pylvaikko::Kohdassa(const QPointF& kohta) const {
  const auto osuu = [&](const Pala& p) { return p.alue.contains(kohta); };
  const auto lahella = [&](const Pala& p) {
    return p.alue.height() < kOhut && p.alue.adjusted(0, -kOhut, 0, kOhut).contains(kohta);
  };
  auto pala = std::find_if(palat_.rbegin(), palat_.rend(), lahella);
  if (pala == palat_.rend()) pala = std::find_if(palat_.rbegin(), palat_.rend(), osuu);
  return pala == palat_.rend() ? nullptr : &*pala;
}

QString Pylvaikko::Seloste(const Pala& pala) const {
  const Kaaviosarja& sarja = Tiedot().sarjat[pala.sarja];
  return Teksti(Tiedot().nimet[pala.paikka] + ", " + sarja.nimi + ": " +
                Muotoile(sarja.arvot[pala.paikka], asteikko_.Kuvio()) + " " + Tiedot().yksikko);
}

QString Pylvaikko::Seloste(const QPointF& kohta) const {
  const Pala* pala = Kohdassa(kohta);
  return pala ? Seloste(*pala) : QString();
}

void Pylvaikko::Piirra(QPainter& maalain) const {
  PiirraPohja(maalain);
  if (Tiedot().sarjat.empty()) return;
  PiirraAsteikko(maalain);
  PiirraPalat(maalain);
  PiirraViivat(maalain);
  const QRect ala = kuvaala_.toRect();
  PiirraSelite(maalain, QRect(ala.right(), ala.top(), width() - ala.right(), ala.height()));
}

void Pylvaikko::PiirraAsteikko(QPainter& maalain) const {
  const QRectF& ala = kuvaala_;
  const int rivi = fontMetrics().height();
  asteikko_.Piirra(maalain, ala, Teksti(Tiedot().yksikko));
  for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i)
    maalain.drawText(
        QRectF(ala.left() + static_cast<double>(i) * PaikanLeveys(), ala.bottom() + rivi / 4.0, PaikanLeveys(), rivi),
        Qt::AlignCenter, Teksti(Tiedot().nimet[i]));
}

void Pylvaikko::PiirraPalat(QPainter& maalain) const {
  const Pala* osoitettu = Kohdassa(Osoitin());
  const int rivi = fontMetrics().height();
  maalain.save();
  for (const Pala& pala : palat_) {
    if (OnViiva(Tiedot().sarjat[pala.sarja])) continue;
    maalain.setBrush(Vari(pala.sarja));
    maalain.setPen(QPen(palette().color(QPalette::Text), &pala == osoitettu ? 2.5 : 0.5));
    maalain.drawRect(pala.alue);
    maalain.setPen(Qt::black);
    if (pala.alue.height() > rivi && pala.alue.width() > rivi)
      maalain.drawText(pala.alue, Qt::AlignCenter, Numero(pala.sarja));
  }
  maalain.restore();
}

void Pylvaikko::PiirraViivat(QPainter& maalain) const {
  maalain.save();
  for (std::size_t s = 0; s < Tiedot().sarjat.size(); ++s) {
    const Kaaviosarja& sarja = Tiedot().sarjat[s];
    if (!OnViiva(sarja)) continue;
    QPolygonF viiva;
    for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i) viiva << Viivalla(sarja, i);
    maalain.setPen(QPen(palette().color(QPalette::Text), 2));
    maalain.drawPolyline(viiva);
    maalain.setBrush(palette().base());
    for (const QPointF& piste : viiva) maalain.drawEllipse(piste, kPisteenKoko / 2, kPisteenKoko / 2);
  }
  maalain.restore();
}

void Pylvaikko::PiirraMerkki(QPainter& maalain, const QRect& merkki, std::size_t i) const {
  if (!OnViiva(Tiedot().sarjat[i])) return Kaaviokuva::PiirraMerkki(maalain, merkki, i);
  maalain.save();
  maalain.setPen(QPen(palette().color(QPalette::Text), 2));
  maalain.drawLine(merkki.left(), merkki.center().y(), merkki.right(), merkki.center().y());
  maalain.setBrush(palette().base());
  maalain.drawEllipse(QRectF(merkki).center(), kPisteenKoko / 2, kPisteenKoko / 2);
  maalain.restore();
}
