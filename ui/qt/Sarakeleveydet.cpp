// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Sarakeleveydet.h"

#include <QEvent>
#include <QHeaderView>
#include <QStyleOptionHeader>
#include <algorithm>
#include <cmath>
#include <vector>

#include "ui/Ohjain.h"

namespace {

constexpr int kLeveinSarake = 40;        // of any but the names, in letters
constexpr int kKapeinNimi = 24;          // of the names, when the others need the room
constexpr int kPyoristys = 2;            // pixels by which a text is painted wider than measured
constexpr std::size_t kMitattavia = 12;  // cells of a column, the longest ones

std::size_t Koko(int luku) { return static_cast<std::size_t>(luku); }

/// Rows with the longest texts of the column: one of them is the widest, or nearly.
std::vector<int> PisimmatSolut(const Taulukko& solut, std::size_t sarake) {
  std::vector<int> rivit(solut.size());
  for (std::size_t i = 0; i < rivit.size(); ++i) rivit[i] = static_cast<int>(i);
  const auto loppu = rivit.begin() + static_cast<std::ptrdiff_t>(std::min(kMitattavia, rivit.size()));
  std::ranges::partial_sort(rivit, loppu, std::greater(),
                            [&](int rivi) { return Solu(solut[Koko(rivi)], sarake).size(); });
  rivit.erase(loppu, rivit.end());
  return rivit;
}

}  // namespace

Sarakeleveydet::Sarakeleveydet(QTreeView& nakyma, const Ohjain& ohjain)
    : nakyma_(nakyma), ohjain_(ohjain), lista_(ohjain.Lista()) {
  nakyma.header()->setStretchLastSection(false);
  connect(nakyma.header(), &QHeaderView::sectionResized, this, [this] { omat_ = omat_ || !jaetaan_; });
  nakyma.viewport()->installEventFilter(this);
}

/// A list that hasn't been shown has no width of its own yet.
bool Sarakeleveydet::eventFilter(QObject* kohde, QEvent* tapahtuma) {
  if (tapahtuma->type() == QEvent::Resize) Jaa();
  return QObject::eventFilter(kohde, tapahtuma);
}

void Sarakeleveydet::Mittaa() {
  sisallot_.fill(0, nakyma_.header()->count());
  for (int s = 0; s < sisallot_.size(); ++s) MittaaSarake(s);
  Jaa();
}

void Sarakeleveydet::MittaaSarake(int sarake) {
  for (const int rivi : PisimmatSolut(lista_.Solut(), Koko(sarake)))
    sisallot_[sarake] = std::max(sisallot_[sarake], SolunLeveys(rivi, sarake));
  if (!lista_.Summat().empty()) sisallot_[sarake] = std::max(sisallot_[sarake], SolunLeveys(lista_.Maara(), sarake));
}

void Sarakeleveydet::MittaaRivi(int rivi) {
  bool leveni = false;
  for (int s = 0; s < sisallot_.size(); ++s)
    if (const int leveys = SolunLeveys(rivi, s); leveys > sisallot_[s]) {
      sisallot_[s] = leveys;
      leveni = true;
    }
  if (leveni) Jaa();
}

/// Width of the text with the air around it, the sign and the indent of the tree.
int Sarakeleveydet::SolunLeveys(int rivi, int sarake) const {
  const bool summa = rivi == lista_.Maara();
  const auto& solut = summa ? lista_.Summat() : lista_.Solut()[Koko(rivi)];
  const std::string_view teksti = Solu(solut, Koko(sarake));
  if (teksti.empty()) return 0;
  QFont fontti = nakyma_.font();
  fontti.setBold(summa || lista_.Piirteet(rivi).lihava);
  const int ilma = kPyoristys + 2 * (nakyma_.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &nakyma_) + 1);
  int leveys = ilma + QFontMetrics(fontti).horizontalAdvance(
                          QString::fromUtf8(teksti.data(), static_cast<qsizetype>(teksti.size())));
  if (summa) return leveys;
  const Rivipiirteet& piirteet = lista_.Piirteet(rivi);
  if (piirteet.merkitys != Merkitys::Tavallinen && sarake == std::max(piirteet.merkitty, 0))
    leveys += ilma + nakyma_.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &nakyma_);
  if (sarake == 0 && piirteet.rasti)
    leveys += ilma + nakyma_.style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &nakyma_);
  if (sarake > 0 || !lista_.OnPuu()) return leveys;
  for (int r = rivi; r >= 0; r = lista_.Ylempi(r)) leveys += nakyma_.indentation();
  return leveys;
}

/// The toolkit's own hint has room for the sort arrow in every heading as soon as one has it.
int Sarakeleveydet::OtsikonLeveys(int sarake) const {
  const QHeaderView& otsikot = *nakyma_.header();
  QStyleOptionHeader option;
  option.initFrom(&otsikot);
  option.section = sarake;
  QFont lihava = otsikot.font();
  lihava.setBold(true);  // of the column that the current row stands in
  option.fontMetrics = QFontMetrics(lihava);
  option.text = nakyma_.model()->headerData(sarake, Qt::Horizontal).toString();
  if (lista_.Lajiteltu().sarake == sarake) option.sortIndicator = QStyleOptionHeader::SortDown;
  return otsikot.style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), &otsikot).width();
}

/// The first column of texts.
int Sarakeleveydet::Nimisarake() const {
  for (int s = 0; s < nakyma_.header()->count(); ++s)
    if (!lista_.OnLukusarake(s)) return s;
  return 0;
}

int Sarakeleveydet::Tarve(int sarake) const {
  const int levein = kLeveinSarake * nakyma_.fontMetrics().averageCharWidth();
  const int sisalto = sarake < sisallot_.size() ? sisallot_[sarake] : 0;
  return std::max(sarake == Nimisarake() ? sisalto : std::min(sisalto, levein), OtsikonLeveys(sarake));
}

/// Gives the room that the names don't need to the other columns whose texts don't fit. Returns how much was given.
int Sarakeleveydet::LevennaKatkottuja(int vara) {
  const int alussa = vara, mitattuja = std::min(static_cast<int>(sisallot_.size()), nakyma_.header()->count());
  for (int s = 0; s < mitattuja && vara > 0; ++s) {
    const int lisa = std::min(vara, sisallot_[s] - nakyma_.columnWidth(s));
    if (s == Nimisarake() || lisa <= 0) continue;
    nakyma_.setColumnWidth(s, nakyma_.columnWidth(s) + lisa);
    vara -= lisa;
  }
  return alussa - vara;
}

void Sarakeleveydet::Sarakkeet() {
  jaetaan_ = true;
  for (int s = 0; s < nakyma_.header()->count(); ++s) {
    const bool piilossa = !ohjain_.Osat()[Koko(s)].Nakyva();
    if (piilossa != nakyma_.isColumnHidden(s)) omat_ = false;
    nakyma_.setColumnHidden(s, piilossa);
  }
  jaetaan_ = false;
  Jaa();
}

/// Gives the columns the shares that they tell. False when none tells one.
bool Sarakeleveydet::JaaOsuuksin() {
  const std::vector<Osa>& osat = ohjain_.Osat();
  if (std::ranges::none_of(osat, [](const Osa& osa) { return osa.leveys.has_value(); })) return false;
  const int nimi = Nimisarake(), kapein = kKapeinNimi * nakyma_.fontMetrics().averageCharWidth();
  for (int s = 0; s < nakyma_.header()->count(); ++s) {
    if (!osat[Koko(s)].Nakyva()) continue;
    const int osuus = static_cast<int>(std::lround(osat[Koko(s)].leveys.value_or(0) * nakyma_.viewport()->width()));
    nakyma_.setColumnWidth(s, std::max(osuus, s == nimi ? std::min(Tarve(s), kapein) : Tarve(s)));
  }
  return true;
}

void Sarakeleveydet::Jaa() {
  const int maara = nakyma_.header()->count();
  if (omat_ || jaetaan_ || maara == 0) return;
  jaetaan_ = true;
  if (!JaaOsuuksin()) JaaTarpeen();
  jaetaan_ = false;
}

void Sarakeleveydet::JaaTarpeen() {
  const int maara = nakyma_.header()->count();
  const int nimi = Nimisarake();
  int muut = 0;
  for (int s = 0; s < maara; ++s) {
    if (s == nimi) continue;
    const int leveys = Tarve(s);
    nakyma_.setColumnWidth(s, leveys);
    muut += leveys;
  }
  muut += LevennaKatkottuja(nakyma_.viewport()->width() - muut - Tarve(nimi));
  const int kapein = std::min(Tarve(nimi), kKapeinNimi * nakyma_.fontMetrics().averageCharWidth());
  nakyma_.setColumnWidth(nimi, std::max(nakyma_.viewport()->width() - muut, kapein));
}
