// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Ohjehaku.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype kOtteenAlku = 40, kOtteenPituus = 120;

QString Q(const std::string& teksti) { return QString::fromStdString(teksti); }

/// What stands on the page around a word of it.
QString Ote(const QString& teksti, const QString& sana) {
  const qsizetype paikka = std::max<qsizetype>(teksti.indexOf(sana, 0, Qt::CaseInsensitive), 0);
  const qsizetype alku = paikka <= kOtteenAlku ? 0 : teksti.lastIndexOf(' ', paikka - kOtteenAlku) + 1;
  return (alku > 0 ? QStringLiteral("… ") : QString()) + teksti.mid(alku, kOtteenPituus).simplified() +
         QStringLiteral(" …");
}

}  // namespace

Ohjehaku::Ohjehaku(const Ohjeluettelo& luettelo, std::function<std::string(const QString& sivu)> lue)
    : luettelo_(luettelo), lue_(std::move(lue)) {}

void Ohjehaku::LueSivut() {
  if (!sivut_.empty()) return;
  for (const Ohjeluettelo::Rivi& rivi : luettelo_.Rivit()) {
    const QString sivu = Q(rivi.sivu);
    if (sivu.contains('#')) continue;
    QTextDocument asiakirja;
    asiakirja.setHtml(Q(lue_(sivu)));
    sivut_.push_back({sivu, Q(rivi.otsikko), asiakirja.toPlainText().remove(QChar::ObjectReplacementCharacter)});
  }
}

/// Base forms of a word, looked up once.
const QStringList& Ohjehaku::Muodot(const QString& sana) {
  const auto tunnettu = muodot_.constFind(sana);
  if (tunnettu != muodot_.constEnd()) return *tunnettu;
  QStringList muodot;
  for (const std::string& muoto : perusmuodot_.Hae(sana.toStdString())) muodot << Q(muoto);
  return *muodot_.insert(sana, muodot);
}

/// The word in the form that the text has it: as it stands, else a word that has a base form in common or as its part.
/// Empty when there is none.
QString Ohjehaku::Loyda(const QString& teksti, const QString& sana) {
  if (teksti.contains(sana, Qt::CaseInsensitive)) return sana;
  const QStringList haettavat = Muodot(sana);
  if (haettavat.isEmpty()) return {};
  static const QRegularExpression kSana(QStringLiteral("[\\w-]+"), QRegularExpression::UseUnicodePropertiesOption);
  for (const auto& osuma : kSana.globalMatch(teksti)) {
    const bool sama = std::ranges::any_of(Muodot(osuma.captured()), [&](const QString& muoto) {
      return std::ranges::any_of(haettavat, [&](const QString& haettava) { return muoto.contains(haettava); });
    });
    if (sama) return osuma.captured();
  }
  return {};
}

bool Ohjehaku::OnKaikki(const QString& teksti, const QStringList& sanat) {
  return std::ranges::all_of(sanat, [&](const QString& sana) { return !Loyda(teksti, sana).isEmpty(); });
}

std::vector<Ohjehaku::Osuma> Ohjehaku::Hae(const QString& haku) {
  const QStringList sanat = haku.simplified().split(' ', Qt::SkipEmptyParts);
  std::vector<Osuma> osumat;
  if (sanat.isEmpty()) return osumat;
  LueSivut();
  std::ptrdiff_t otsikossa = 0;
  for (const Sivu& sivu : sivut_) {
    if (!OnKaikki(sivu.teksti, sanat)) continue;
    const QString sana = Loyda(sivu.teksti, sanat.front());
    Osuma osuma{sivu.sivu, sivu.otsikko, Ote(sivu.teksti, sana), sana};
    const bool ensin = OnKaikki(sivu.otsikko, sanat);
    osumat.insert(ensin ? osumat.begin() + otsikossa++ : osumat.end(), std::move(osuma));
  }
  return osumat;
}
