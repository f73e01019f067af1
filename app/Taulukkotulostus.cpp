// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Taulukkotulostus.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <algorithm>
#include <memory>
#include <numeric>

#include "app/Sivunasetus.h"
#include "settings/Sivuasetukset.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "ui/Tekstivarasto.h"
#include "ui/qt/Osoitin.h"

namespace {

// Measures on paper in points, 1/72 inch.
constexpr double kPisteitaTuumassa = 72;
constexpr int kKirjasin = 9;
constexpr double kRivi = 14, kYlatunniste = 24, kAlatunniste = 20, kSisennys = 9, kReuna = 2;

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

QFont Kirjasin(bool lihava) {
  QFont fontti = QGuiApplication::font();
  fontti.setPixelSize(kKirjasin);  // the painter counts in points
  fontti.setBold(lihava);
  return fontti;
}

/// A sheet laid out for pages of one size: where its columns begin, and how many rows a page takes.
class Taitto {
 public:
  Taitto(const Taulukkosivu& sivu, const QSizeF& tila) : sivu_(sivu) {
    const double kirjain = QFontMetricsF(Kirjasin(false)).horizontalAdvance('0');
    alut_.push_back(0);
    for (const double leveys : Sarakeleveydet(sivu)) alut_.push_back(alut_.back() + leveys * kirjain);
    koko_ = std::min(1.0, tila.width() / std::max(1.0, alut_.back()));
    const auto mahtuu = static_cast<int>((tila.height() - kYlatunniste - kAlatunniste) / (kRivi * koko_));
    rivejaSivulla_ = std::max(1, mahtuu - sivu.otsikkoriveja);
  }

  int Sivuja() const {
    return std::max(1, (sivu_.Riveja() - sivu_.otsikkoriveja + rivejaSivulla_ - 1) / rivejaSivulla_);
  }

  /// Paints a page of the sheet, from 0.
  void Piirra(QPainter& piirrin, int sivu) const {
    piirrin.setFont(Kirjasin(true));
    piirrin.drawText(QPointF(0, kKirjasin), Q(sivu_.otsikko));
    piirrin.save();
    piirrin.translate(0, kYlatunniste);
    piirrin.scale(koko_, koko_);
    for (int rivi = 1; rivi <= sivu_.otsikkoriveja; ++rivi) PiirraRivi(piirrin, rivi, rivi - 1);
    if (sivu_.otsikkoriveja > 0) {
      const double y = sivu_.otsikkoriveja * kRivi;
      piirrin.drawLine(QPointF(0, y), QPointF(alut_.back(), y));
    }
    const int alku = sivu_.otsikkoriveja + sivu * rivejaSivulla_;
    for (int i = 1; i <= rivejaSivulla_; ++i) PiirraRivi(piirrin, alku + i, sivu_.otsikkoriveja + i - 1);
    piirrin.restore();
  }

 private:
  void PiirraRivi(QPainter& piirrin, int rivi, int paikka) const {
    const auto loppu = sivu_.solut.lower_bound({rivi + 1, 0});
    for (auto it = sivu_.solut.lower_bound({rivi, 0}); it != loppu; ++it) {
      const auto seuraava = std::next(it);
      const int raja = seuraava == loppu ? 0 : seuraava->first.second;
      PiirraSolu(piirrin, it->second, paikka * kRivi, it->first.second, raja);
    }
  }
  /// A text may reach up to the next cell of its row, `raja`, or beyond the last column when there is none.
  void PiirraSolu(QPainter& piirrin, const Sivusolu& solu, double y, int sarake, int raja) const {
    const bool luku = std::holds_alternative<Taulukkoluku>(solu.sisalto);
    const double alku = Alku(sarake) + solu.sisennys * kSisennys;
    const double loppu = luku ? Alku(sarake + 1) : raja ? Alku(raja) : std::max(alut_.back(), alku + kYksinaisenTila);
    const QRectF tila(alku + kReuna, y, loppu - alku - 2 * kReuna, kRivi);
    piirrin.setFont(Kirjasin(solu.lihava));
    const QString teksti = Q(SolunTeksti(solu.sisalto)).simplified();
    piirrin.drawText(tila, Qt::AlignVCenter | Qt::TextSingleLine | (luku ? Qt::AlignRight : Qt::AlignLeft),
                     QFontMetricsF(piirrin.font()).elidedText(teksti, Qt::ElideRight, tila.width()));
  }
  double Alku(int sarake) const { return alut_[static_cast<std::size_t>(sarake - 1)]; }

  static constexpr double kYksinaisenTila = 400;
  const Taulukkosivu& sivu_;
  std::vector<double> alut_;  // of the columns, and the end of the last one
  double koko_ = 1;
  int rivejaSivulla_ = 1;
};

}  // namespace

int TulostaSivut(const std::vector<Taulukkosivu>& sivut, QPagedPaintDevice& laite) {
  const QSizeF tila = laite.pageLayout().paintRect(QPageLayout::Point).size();
  std::vector<Taitto> taitot;
  for (const Taulukkosivu& sivu : sivut) taitot.emplace_back(sivu, tila);
  const int sivuja =
      std::accumulate(taitot.begin(), taitot.end(), 0, [](int n, const Taitto& t) { return n + t.Sivuja(); });
  QPainter piirrin(&laite);
  piirrin.scale(laite.logicalDpiX() / kPisteitaTuumassa, laite.logicalDpiY() / kPisteitaTuumassa);
  int numero = 0;
  for (const Taitto& taitto : taitot)
    for (int sivu = 0; sivu < taitto.Sivuja(); ++sivu) {
      if (numero++ > 0) laite.newPage();
      taitto.Piirra(piirrin, sivu);
      piirrin.setFont(Kirjasin(false));
      piirrin.drawText(QRectF(0, tila.height() - kAlatunniste, tila.width(), kAlatunniste),
                       Qt::AlignRight | Qt::AlignBottom, QStringLiteral("%1 / %2").arg(numero).arg(sivuja));
    }
  return sivuja;
}

void EsikatseleSivut(const std::vector<Taulukkosivu>& sivut, QWidget& ikkuna) {
  const NormaaliOsoitin osoitin;
  QPrinter tulostin(QPrinter::HighResolution);
  tulostin.setPageLayout(Sivuna(HaeSivuasetukset()));
  tulostin.setDocName(Q(sivut.front().otsikko));
  QPrintPreviewDialog dialogi(&tulostin, &ikkuna);
  dialogi.setWindowTitle(Q(Teksti(tekstit::kEsikatselu)));
  QObject::connect(&dialogi, &QPrintPreviewDialog::paintRequested, &dialogi,
                   [&](QPrinter* laite) { TulostaSivut(sivut, *laite); });
  dialogi.exec();
}
