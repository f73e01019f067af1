// SPDX-License-Identifier: GPL-3.0-or-later
#include "pdf/Pdftaulukko.h"

#include <QRegularExpression>
#include <algorithm>
#include <numeric>

#include "kernel/Luvut.h"
#include "pdf/Ladonta.h"

namespace {

constexpr double kKoot[] = {8.5, 8, 7.5, 7, 6.5};  // points, the first that fits
constexpr std::size_t kLyhyt = 14;                 // rows of a table that stays on one page

const QRegularExpression& Valit() {
  static const QRegularExpression valit(QStringLiteral("\\s+"));
  return valit;
}

/// Between words, or anywhere where a word is wider than the cell.
int Kaarto(const QString& teksti, double leveys, const QFontMetricsF& mitat) {
  for (const QString& sana : teksti.split(Valit()))
    if (mitat.horizontalAdvance(sana) > leveys) return Qt::TextWordWrap | Qt::TextWrapAnywhere;
  return Qt::TextWordWrap;
}

/// A cell's text as it is set, and where.
struct Solu {
  QString teksti;
  bool oikea = false;
};

QString Solunteksti(const Raporttisolu& solu) {
  const auto* luku = std::get_if<Raporttiluku>(&solu);
  return Ladottu(luku ? Muotoile(luku->arvo, luku->kuvio) : std::get<std::string>(solu));
}

QString Otsikkoteksti(const Raporttisarake& sarake) {
  const QString otsikko = Ladottu(sarake.otsikko);
  return sarake.yksikko.empty() ? otsikko : otsikko + "\n" + Ladottu(sarake.yksikko);
}

class Taulukonlatoja {
 public:
  Taulukonlatoja(const Sivupohja& pohja, const Raporttitaulukko& taulukko) : pohja_(pohja), taulukko_(taulukko) {
    for (const double koko : kKoot) {
      koko_ = koko;
      if (SovitaLeveydet()) break;
    }
    reunat_.resize(leveydet_.size() + 1, pohja_.Vasen());
    std::partial_sum(leveydet_.begin(), leveydet_.end(), reunat_.begin() + 1);
    for (std::size_t i = 1; i < reunat_.size(); ++i) reunat_[i] += pohja_.Vasen();
  }

  std::vector<Pala> Palat(double ennen) const {
    std::vector<Pala> palat;
    const auto otsikko = std::make_shared<Pala>(Otsikko());
    palat.push_back(*otsikko);
    palat.back().ennen = ennen;
    palat.back().seuraavanKanssa = true;
    const auto& rivit = taulukko_.rivit;
    for (std::size_t i = 0; i < rivit.size(); ++i) {
      palat.push_back(Rivi(rivit[i]));
      palat.back().toistuva = otsikko;
      const bool summaSeuraa = i + 1 < rivit.size() && rivit[i + 1].lajike == Rivilajike::Summa;
      palat.back().seuraavanKanssa =
          i + 1 < rivit.size() && (rivit.size() <= kLyhyt || rivit[i].lajike == Rivilajike::Valiotsikko || summaSeuraa);
    }
    return palat;
  }

 private:
  double Ilma() const { return pohja_.mm(1.1); }
  QFont Fontti(bool lihava) const { return Sivupohja::Fontti(koko_, lihava); }
  QFontMetricsF Mitat(bool lihava) const { return {Fontti(lihava), &pohja_.Laite()}; }

  /// Width that the column can't do without: its longest number and the longest word of its heading.
  double Vahintaan(std::size_t i, const QFontMetricsF& mitat) const {
    double leveys = 0;
    for (const QString& sana : Otsikkoteksti(taulukko_.sarakkeet[i]).split(Valit()))
      leveys = std::max(leveys, mitat.horizontalAdvance(sana));
    for (const Raporttirivi& rivi : taulukko_.rivit)
      if (i < rivi.solut.size() && std::holds_alternative<Raporttiluku>(rivi.solut[i]))
        leveys = std::max(leveys, mitat.horizontalAdvance(Solunteksti(rivi.solut[i])));
    return leveys + 2 * Ilma();
  }

  /// False when the columns can't have what they need.
  bool SovitaLeveydet() {
    const QFontMetricsF mitat = Mitat(true);
    double osuuksia = 0;
    for (const Raporttisarake& s : taulukko_.sarakkeet) osuuksia += s.leveys;
    std::vector<double> vahintaan;
    leveydet_.clear();
    for (std::size_t i = 0; i < taulukko_.sarakkeet.size(); ++i) {
      vahintaan.push_back(std::min(Vahintaan(i, mitat), pohja_.Leveys() / 2));
      leveydet_.push_back(taulukko_.sarakkeet[i].leveys / osuuksia * pohja_.Leveys());
    }
    double puuttuu = 0, liikaa = 0;
    for (std::size_t i = 0; i < leveydet_.size(); ++i)
      (leveydet_[i] < vahintaan[i] ? puuttuu : liikaa) += std::abs(leveydet_[i] - vahintaan[i]);
    for (std::size_t i = 0; i < leveydet_.size(); ++i)
      if (leveydet_[i] < vahintaan[i])
        leveydet_[i] = vahintaan[i];
      else if (liikaa > 0)
        leveydet_[i] -= (leveydet_[i] - vahintaan[i]) / liikaa * std::min(puuttuu, liikaa);
    const double yhteensa = std::accumulate(leveydet_.begin(), leveydet_.end(), 0.0);
    if (yhteensa > pohja_.Leveys() * 1.0001)
      for (double& leveys : leveydet_) leveys *= pohja_.Leveys() / yhteensa;
    return puuttuu <= liikaa;
  }

  double Tekstinleveys(std::size_t i, double sisennys) const { return leveydet_[i] - 2 * Ilma() - sisennys; }
  double Tekstinkorkeus(const QString& teksti, double leveys, const QFontMetricsF& mitat) const {
    if (!teksti.contains('\n') && mitat.horizontalAdvance(teksti) <= leveys) return mitat.height();
    return mitat.boundingRect(QRectF(0, 0, leveys, 1e7), Kaarto(teksti, leveys, mitat), teksti).height();
  }

  Pala Otsikko() const {
    const QFontMetricsF mitat = Mitat(true);
    std::vector<Solu> solut;
    double korkeus = 0;
    for (std::size_t i = 0; i < taulukko_.sarakkeet.size(); ++i) {
      solut.push_back({Otsikkoteksti(taulukko_.sarakkeet[i]), taulukko_.sarakkeet[i].lukuja});
      korkeus = std::max(korkeus, Tekstinkorkeus(solut.back().teksti, Tekstinleveys(i, 0), mitat));
    }
    korkeus += 2 * Ilma();
    Pala pala{.korkeus = korkeus};
    pala.piirra = [*this, solut, korkeus](QPainter& maalain, double y) {
      maalain.fillRect(QRectF(pohja_.Vasen(), y, pohja_.Leveys(), korkeus), QColor(Sivupohja::kVaalea));
      Viiva(maalain, y + korkeus, Sivupohja::kKorostus, 0.3);
      maalain.setPen(QColor(Sivupohja::kKorostus));
      PiirraSolut(maalain, solut, y, korkeus, 0, true, Qt::AlignBottom);
    };
    return pala;
  }

  Pala Rivi(const Raporttirivi& rivi) const {
    const bool lihava = rivi.lajike != Rivilajike::Tavallinen;
    const QFontMetricsF mitat = Mitat(lihava);
    const double sisennys = rivi.sisennys * pohja_.mm(4);
    std::vector<Solu> solut;
    double korkeus = mitat.height();
    for (std::size_t i = 0; i < rivi.solut.size(); ++i) {
      solut.push_back({Solunteksti(rivi.solut[i]), i > 0 && taulukko_.sarakkeet[i].lukuja});
      // A title without figures has the whole row.
      const double leveys =
          rivi.solut.size() == 1 ? pohja_.Leveys() - 2 * Ilma() : Tekstinleveys(i, i == 0 ? sisennys : 0);
      korkeus = std::max(korkeus, Tekstinkorkeus(solut.back().teksti, leveys, mitat));
    }
    korkeus += 1.4 * Ilma();
    Pala pala{.korkeus = korkeus};
    pala.piirra = [*this, solut, korkeus, sisennys, lihava, summa = rivi.lajike == Rivilajike::Summa](QPainter& maalain,
                                                                                                      double y) {
      if (summa) Viiva(maalain, y, Sivupohja::kKorostus, 0.3);
      Viiva(maalain, y + korkeus, Sivupohja::kViiva, 0.1);
      maalain.setPen(QColor(Sivupohja::kTeksti));
      PiirraSolut(maalain, solut, y, korkeus, sisennys, lihava, Qt::AlignTop);
    };
    return pala;
  }

  void Viiva(QPainter& maalain, double y, QRgb vari, double paksuus) const {
    maalain.setPen(QPen(QColor(vari), pohja_.mm(paksuus)));
    maalain.drawLine(QPointF(pohja_.Vasen(), y), QPointF(pohja_.Oikea(), y));
  }
  void PiirraSolut(QPainter& maalain, const std::vector<Solu>& solut, double y, double korkeus, double sisennys,
                   bool lihava, Qt::Alignment pysty) const {
    maalain.setFont(Fontti(lihava));
    const QFontMetricsF mitat = Mitat(lihava);
    for (std::size_t i = 0; i < solut.size(); ++i) {
      if (solut[i].teksti.isEmpty()) continue;
      const double alku = reunat_[i] + Ilma() + (i == 0 ? sisennys : 0);
      const double loppu = (solut.size() == 1 ? pohja_.Oikea() : reunat_[i + 1]) - Ilma();
      maalain.drawText(QRectF(alku, y + 0.7 * Ilma(), loppu - alku, korkeus - 1.4 * Ilma()),
                       static_cast<int>((solut[i].oikea ? Qt::AlignRight : Qt::AlignLeft) | pysty) |
                           Kaarto(solut[i].teksti, loppu - alku, mitat),
                       solut[i].teksti);
    }
  }

  const Sivupohja& pohja_;
  const Raporttitaulukko& taulukko_;
  double koko_ = kKoot[0];
  std::vector<double> leveydet_, reunat_;
};

}  // namespace

std::vector<Pala> TaulukonPalat(const Sivupohja& pohja, const Raporttitaulukko& taulukko, double ennen) {
  return Taulukonlatoja(pohja, taulukko).Palat(ennen);
}
