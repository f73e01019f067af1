// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Pdfpalat.h"

#include <QTextLayout>
#include <algorithm>

#include "kernel/Luvut.h"
#include "pdf/Kaaviotulostus.h"
#include "pdf/Ladonta.h"
#include "pdf/Pdftaulukko.h"

namespace {

constexpr double kRivivali = 1.32;
constexpr double kKuvanVenytys = 1.5;

using Ladelma = std::shared_ptr<QTextLayout>;

/// The text in lines of that width.
Ladelma Lado(const QString& teksti, const QFont& fontti, double leveys, QPdfWriter& laite) {
  auto ladelma = std::make_shared<QTextLayout>(teksti, fontti, &laite);
  QTextOption asetus;
  asetus.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  ladelma->setTextOption(asetus);
  ladelma->beginLayout();
  for (QTextLine rivi = ladelma->createLine(); rivi.isValid(); rivi = ladelma->createLine()) {
    rivi.setLineWidth(leveys);
    rivi.setPosition({0, 0});
  }
  ladelma->endLayout();
  return ladelma;
}

}  // namespace

QFont Sivupohja::Fontti(double pt, bool lihava) {
  QFont fontti;
  fontti.setFamilies({QStringLiteral("Open Sans"), QStringLiteral("DejaVu Sans")});
  fontti.setPointSizeF(pt);
  fontti.setBold(lihava);
  fontti.setHintingPreference(QFont::PreferNoHinting);
  return fontti;
}

Pdfpalat::Pdfpalat(const Sivupohja& pohja, const Raportti& raportti) : pohja_(pohja) {
  for (const Raportinosa& osa : raportti.osat) LisaaOsa(osa);
}

int Pdfpalat::KirjaaSisallykseen(std::string teksti, int taso) {
  sisallys_.push_back({std::move(teksti), taso});
  return static_cast<int>(sisallys_.size()) - 1;
}

void Pdfpalat::LisaaOsa(const Raportinosa& osa) {
  const QFont fontti = Sivupohja::Fontti(18, true);
  const double rivi = QFontMetricsF(fontti, &pohja_.Laite()).height();
  Pala otsikko{.korkeus = rivi + pohja_.mm(5), .seuraavanKanssa = true, .uusiSivu = true};
  const std::string teksti = osa.numero + "  " + osa.otsikko;
  otsikko.sisallys = KirjaaSisallykseen(teksti, 0);
  otsikko.piirra = [this, fontti, rivi, teksti = Ladottu(teksti)](QPainter& maalain, double y) {
    maalain.setFont(fontti);
    maalain.setPen(QColor(Sivupohja::kKorostus));
    maalain.drawText(QRectF(pohja_.Vasen(), y, pohja_.Leveys(), rivi), Qt::AlignLeft | Qt::AlignVCenter, teksti);
    maalain.setPen(QPen(QColor(Sivupohja::kKorostus), pohja_.mm(0.4)));
    maalain.drawLine(QPointF(pohja_.Vasen(), y + rivi + pohja_.mm(1)),
                     QPointF(pohja_.Oikea(), y + rivi + pohja_.mm(1)));
  };
  palat_.push_back(std::move(otsikko));
  for (std::size_t i = 0; i < osa.lohkot.size(); ++i) {
    std::visit([this](const auto& l) { Lisaa(l); }, osa.lohkot[i]);
    // A paragraph introduces the chart that follows it.
    if (i + 1 < osa.lohkot.size() && std::holds_alternative<Raporttikappale>(osa.lohkot[i]) &&
        std::holds_alternative<Raporttikaaviot>(osa.lohkot[i + 1]) &&
        !std::get<Raporttikaaviot>(osa.lohkot[i + 1]).tayttaaSivun)
      palat_.back().seuraavanKanssa = true;
  }
}

/// Lines of a paragraph as pieces: its first two and its last two keep together.
void Pdfpalat::LisaaTeksti(const std::string& teksti, const QFont& fontti, QRgb vari, double ennen,
                           bool seuraavanKanssa) {
  const Ladelma ladelma = Lado(Ladottu(teksti), fontti, pohja_.Leveys(), pohja_.Laite());
  const double rivi = QFontMetricsF(fontti, &pohja_.Laite()).ascent() * kRivivali;
  const int riveja = ladelma->lineCount();
  for (int i = 0; i < riveja; ++i) {
    Pala pala{.korkeus = rivi, .ennen = i == 0 ? ennen : 0};
    pala.seuraavanKanssa = i == riveja - 1 ? seuraavanKanssa : i == 0 || i == riveja - 2;
    pala.piirra = [this, ladelma, i, vari](QPainter& maalain, double y) {
      maalain.setPen(QColor(vari));
      ladelma->lineAt(i).draw(&maalain, {pohja_.Vasen(), y});
    };
    palat_.push_back(std::move(pala));
  }
}

void Pdfpalat::Lisaa(const Raporttiotsikko& otsikko) {
  const std::size_t paikka = palat_.size();
  LisaaTeksti(otsikko.teksti, Sivupohja::Fontti(12.5, true), Sivupohja::kKorostus, pohja_.mm(7), true);
  if (paikka == palat_.size()) return;
  palat_[paikka].uusiSivu = otsikko.uusiSivu;
  palat_[paikka].sisallys = KirjaaSisallykseen(otsikko.teksti, 1);
}

void Pdfpalat::Lisaa(const Raporttikappale& kappale) {
  if (kappale.tyyli == Raporttikappale::Huomautus)
    return LisaaTeksti(kappale.teksti, Sivupohja::Fontti(8), Sivupohja::kHarmaa, pohja_.mm(2), false);
  LisaaTeksti(kappale.teksti, Sivupohja::Fontti(kappale.tyyli == Raporttikappale::Ingressi ? 10.5 : 9.5),
              Sivupohja::kTeksti, pohja_.mm(2.5), false);
}

/// Boxes side by side: what it is, the figure, its unit, and a line below.
void Pdfpalat::Lisaa(const Avainluvut& luvut) {
  Pala pala{.korkeus = pohja_.mm(23), .ennen = pohja_.mm(4)};
  pala.piirra = [this, luvut = luvut.luvut](QPainter& maalain, double y) {
    const double vali = pohja_.mm(3);
    const double leveys = (pohja_.Leveys() + vali) / static_cast<double>(luvut.size()) - vali;
    double x = pohja_.Vasen();
    const auto rivi = [&](double dy, double korkeus, const QFont& fontti, QRgb vari, const std::string& teksti) {
      maalain.setFont(fontti);
      maalain.setPen(QColor(vari));
      maalain.drawText(QRectF(x + pohja_.mm(2.5), y + pohja_.mm(dy), leveys - pohja_.mm(3), pohja_.mm(korkeus)),
                       Qt::AlignLeft | Qt::AlignVCenter, Ladottu(teksti));
    };
    for (const Avainluku& luku : luvut) {
      maalain.fillRect(QRectF(x, y, leveys, pohja_.mm(21)), QColor(Sivupohja::kVaalea));
      maalain.fillRect(QRectF(x, y, pohja_.mm(0.8), pohja_.mm(21)), QColor(Sivupohja::kKorostus));
      rivi(1.2, 4.5, Sivupohja::Fontti(8), Sivupohja::kHarmaa, luku.otsikko);
      rivi(5.5, 7.5, Sivupohja::Fontti(15, true), Sivupohja::kKorostus, Muotoile(luku.arvo, luku.kuvio));
      rivi(12.2, 4, Sivupohja::Fontti(8), Sivupohja::kTeksti, luku.yksikko);
      rivi(16, 4, Sivupohja::Fontti(7.5), Sivupohja::kHarmaa, luku.lisatieto);
      x += leveys + vali;
    }
  };
  palat_.push_back(std::move(pala));
}

void Pdfpalat::Lisaa(const Raporttikaaviot& kaaviot) {
  if (kaaviot.kaaviot.empty()) return;
  const double korkeus = pohja_.mm(kaaviot.korkeus);
  Pala pala{.korkeus = korkeus, .ennen = pohja_.mm(5)};
  const auto piirra = [this, kaaviot = kaaviot.kaaviot](QPainter& maalain, double y, double h) {
    const double vali = pohja_.mm(4);
    const double leveys = (pohja_.Leveys() + vali) / static_cast<double>(kaaviot.size()) - vali;
    double x = pohja_.Vasen();
    for (const Raporttikaavio& kaavio : kaaviot) {
      TulostaKaavio(maalain, QRectF(x, y, leveys, h), pohja_.Laite().resolution(), kaavio);
      x += leveys + vali;
    }
  };
  if (kaaviot.tayttaaSivun) {
    pala.venyy = korkeus * kKuvanVenytys;
    pala.piirraVenytetty = piirra;
  } else {
    pala.piirra = [piirra, korkeus](QPainter& maalain, double y) { piirra(maalain, y, korkeus); };
  }
  palat_.push_back(std::move(pala));
}

void Pdfpalat::Lisaa(const Raporttitaulukko& taulukko) {
  double ennen = pohja_.mm(5);
  if (!taulukko.otsikko.empty()) {
    LisaaTeksti(taulukko.otsikko, Sivupohja::Fontti(9.5, true), Sivupohja::kTeksti, ennen, true);
    ennen = pohja_.mm(1.5);
  }
  for (Pala& pala : TaulukonPalat(pohja_, taulukko, ennen)) palat_.push_back(std::move(pala));
  if (taulukko.huomautus.empty()) return;
  palat_.back().seuraavanKanssa = true;
  LisaaTeksti(taulukko.huomautus, Sivupohja::Fontti(8), Sivupohja::kHarmaa, pohja_.mm(1.5), false);
}
