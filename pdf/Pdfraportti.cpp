// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Pdfraportti.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <stdexcept>

#include "pdf/Ladonta.h"
#include "pdf/Pdfpalat.h"
#include "pdf/Pdfsisallys.h"
#include "results/raportti/Raportti.h"
#include "tekstit/raportti.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr int kResoluutio = 1200;
constexpr std::size_t kSisallyksessa = 34;  // lines that the cover has room for

/// Paints the pages in their order.
class Painokone {
 public:
  Painokone(QPdfWriter& laite, const Raportti& raportti)
      : laite_(laite),
        pohja_(laite),
        raportti_(raportti),
        palat_(pohja_, raportti),
        sivutettu_(Sivuta(palat_.Palat(), pohja_.Yla(), pohja_.Ala())) {}

  /// False when the device fails.
  bool Paina() {
    QPainter maalain(&laite_);
    if (!maalain.isActive()) return false;
    PiirraKansi(maalain);
    for (std::size_t i = 0; i < sivutettu_.sivut.size() && !raportti_.osat.empty(); ++i) {
      laite_.newPage();
      PiirraTunnisteet(maalain, i + 2);
      for (const auto& piirra : sivutettu_.sivut[i].piirrot) piirra(maalain);
    }
    return maalain.end();
  }

  std::vector<Pdfkohta> Kohdat() const {
    std::vector<Pdfkohta> kohdat;
    for (std::size_t i = 0; i < palat_.Sisallys().size(); ++i)
      kohdat.push_back({Ladottu(palat_.Sisallys()[i].teksti), palat_.Sisallys()[i].taso,
                        static_cast<int>(sivutettu_.sisallys[i]) + 1});
    return kohdat;
  }

 private:
  void Teksti(QPainter& maalain, double y, const QFont& fontti, QRgb vari, const QString& teksti,
              Qt::Alignment tasaus = Qt::AlignLeft) const {
    maalain.setFont(fontti);
    maalain.setPen(QColor(vari));
    maalain.drawText(QRectF(pohja_.Vasen(), y, pohja_.Leveys(), pohja_.mm(12)), static_cast<int>(tasaus | Qt::AlignTop),
                     teksti);
  }
  QString Mahtuva(const QString& teksti, const QFont& fontti, double leveys) const {
    return QFontMetricsF(fontti, &laite_).elidedText(teksti, Qt::ElideRight, leveys);
  }

  void PiirraTunnisteet(QPainter& maalain, std::size_t sivu) const {
    const QFont fontti = Sivupohja::Fontti(7.5);
    const double yla = pohja_.mm(12), ala = pohja_.mm(284);
    Teksti(maalain, yla, fontti, Sivupohja::kHarmaa, Mahtuva(Ladottu(raportti_.kohde), fontti, pohja_.Leveys() * 0.65));
    Teksti(maalain, yla, fontti, Sivupohja::kHarmaa, Ladottu(raportti_.otsikko), Qt::AlignRight);
    maalain.setPen(QPen(QColor(Sivupohja::kViiva), pohja_.mm(0.15)));
    maalain.drawLine(QPointF(pohja_.Vasen(), pohja_.mm(17)), QPointF(pohja_.Oikea(), pohja_.mm(17)));
    Teksti(maalain, ala, fontti, Sivupohja::kHarmaa, Ladottu(raportti_.pvm + "  ·  " + raportti_.ohjelma));
    Teksti(maalain, ala, fontti, Sivupohja::kHarmaa,
           QString::number(sivu) + " / " + QString::number(sivutettu_.sivut.size() + 1), Qt::AlignRight);
  }

  void PiirraKansi(QPainter& maalain) const {
    maalain.fillRect(QRectF(0, 0, pohja_.mm(8), pohja_.mm(297)), QColor(Sivupohja::kKorostus));
    double y = pohja_.mm(36);
    Teksti(maalain, y, Sivupohja::Fontti(12), Sivupohja::kHarmaa, Ladottu(raportti_.otsikko));
    y = PiirraNimi(maalain, y + pohja_.mm(9));
    Teksti(maalain, y, Sivupohja::Fontti(12), Sivupohja::kTeksti, Ladottu(raportti_.alaotsikko));
    y += pohja_.mm(12);
    for (const std::string& rivi : raportti_.kansirivit) {
      Teksti(maalain, y, Sivupohja::Fontti(9.5), Sivupohja::kHarmaa, Ladottu(rivi));
      y += pohja_.mm(5.2);
    }
    PiirraSisallys(maalain, y + pohja_.mm(14));
    Teksti(maalain, pohja_.mm(284), Sivupohja::Fontti(7.5), Sivupohja::kHarmaa, Ladottu(raportti_.ohjelma));
  }
  /// The object's name on as many lines as it needs; where they end.
  double PiirraNimi(QPainter& maalain, double y) const {
    const QFont fontti = Sivupohja::Fontti(raportti_.kohde.size() > 60 ? 16 : 26, true);
    maalain.setFont(fontti);
    maalain.setPen(QColor(Sivupohja::kKorostus));
    QRectF ala;
    maalain.drawText(QRectF(pohja_.Vasen(), y, pohja_.Leveys(), pohja_.mm(70)),
                     Qt::AlignLeft | Qt::TextWordWrap | Qt::TextWrapAnywhere, Ladottu(raportti_.kohde), &ala);
    return ala.bottom() + pohja_.mm(3);
  }
  void PiirraSisallys(QPainter& maalain, double y) const {
    Teksti(maalain, y, Sivupohja::Fontti(12.5, true), Sivupohja::kKorostus,
           Ladottu(::Teksti(tekstit::kRaportinSisallys)));
    y += pohja_.mm(9);
    const bool kaikki = palat_.Sisallys().size() <= kSisallyksessa;
    for (std::size_t i = 0; i < palat_.Sisallys().size(); ++i) {
      const Sisallysrivi& rivi = palat_.Sisallys()[i];
      if (rivi.taso > 0 && !kaikki) continue;
      const QFont fontti = Sivupohja::Fontti(rivi.taso == 0 ? 10 : 8.5, rivi.taso == 0);
      const QString sisennys(rivi.taso * 6, QChar(0x00A0));
      Teksti(maalain, y, fontti, rivi.taso == 0 ? Sivupohja::kTeksti : Sivupohja::kHarmaa,
             sisennys + Mahtuva(Ladottu(rivi.teksti), fontti, pohja_.Leveys() * 0.85));
      Teksti(maalain, y, fontti, Sivupohja::kHarmaa, QString::number(sivutettu_.sisallys[i] + 2), Qt::AlignRight);
      y += pohja_.mm(rivi.taso == 0 ? 6 : 4.6);
    }
  }

  QPdfWriter& laite_;
  Sivupohja pohja_;
  const Raportti& raportti_;
  Pdfpalat palat_;
  Sivutettu sivutettu_;
};

QByteArray TeePdf(const Raportti& raportti) {
  QByteArray tavut;
  QBuffer puskuri(&tavut);
  puskuri.open(QIODevice::WriteOnly);
  std::vector<Pdfkohta> kohdat;
  {
    QPdfWriter laite(&puskuri);
    laite.setResolution(kResoluutio);
    laite.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(), QPageLayout::Millimeter));
    laite.setTitle(Ladottu(raportti.otsikko + ": " + raportti.kohde));
    laite.setCreator(Ladottu(raportti.ohjelma));
    Painokone kone(laite, raportti);
    if (!kone.Paina()) throw std::runtime_error(Teksti(tekstit::kRapPdfEiOnnistu));
    kohdat = kone.Kohdat();
  }
  puskuri.close();
  return LisaaPdfsisallys(tavut, kohdat);
}

}  // namespace

void KirjoitaPdfraportti(const Raportti& raportti, const std::string& tiedosto) {
  const QByteArray tavut = TeePdf(raportti);
  QSaveFile kohde(QString::fromStdString(tiedosto));
  if (!kohde.open(QIODevice::WriteOnly) || kohde.write(tavut) != tavut.size() || !kohde.commit())
    throw std::runtime_error(kohde.errorString().toStdString());
}
