// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Viimeistely.h"

#include <QLabel>
#include <QSet>
#include <QStringList>
#include <QWidget>

#include "kernel/Kirjainkoko.h"
#include "ui/qt/QtOhjain.h"

namespace {

constexpr std::string_view kIlmanKirjainta[] = {"cmdOk", "cmdPeruuta", "cmdSulje", "cmdJatka"};

QtOhjain& Qt_(const std::unique_ptr<Ohjain>& ohjain) { return static_cast<QtOhjain&>(*ohjain); }

QString Otsikko(const Ohjain& ohjain) {
  QString otsikko = QString::fromStdString(ohjain.Teksti());
  if (otsikko.endsWith(':')) otsikko.chop(1);
  return otsikko;
}

QWidget* Kumppani(const QtOhjain& ohjain) {
  const auto* otsikko = dynamic_cast<const QLabel*>(ohjain.Widget());
  return otsikko ? otsikko->buddy() : nullptr;
}

bool OnNappi(const QtOhjain& ohjain) {
  for (const std::string_view nimi : kIlmanKirjainta)
    if (SamaNimi(ohjain.Nimi(), nimi)) return false;
  return ohjain.Tyyppi() == Ohjaintyyppi::CommandButton || ohjain.Tyyppi() == Ohjaintyyppi::CheckBox ||
         ohjain.Tyyppi() == Ohjaintyyppi::OptionButton;
}

bool SaaKirjaimen(const QtOhjain& ohjain) {
  const QWidget* kentta = Kumppani(ohjain);
  return OnNappi(ohjain) || (kentta && !kentta->property("readOnly").toBool());
}

/// The first letter of the caption that nobody has, word beginnings first; null when all are taken.
QChar VapaaKirjain(const QString& otsikko, const QSet<QChar>& varatut) {
  for (const bool sananAlku : {true, false})
    for (qsizetype i = 0; i < otsikko.size(); ++i) {
      const bool alussa = i == 0 || !otsikko[i - 1].isLetter();
      const QChar kirjain = otsikko[i].toLower();
      if (kirjain.isLetter() && (alussa || !sananAlku) && !varatut.contains(kirjain)) return kirjain;
    }
  return {};
}

QString NimionTeksti(const Lomakeikkuna& ikkuna, const QString& nimio) {
  QStringList osat;
  for (const QString& nimi : nimio.split(',')) osat << Otsikko(ikkuna.Etsi(nimi.toStdString()));
  return osat.join(QStringLiteral(", "));
}

}  // namespace

void JaaPikakirjaimet(const Lomakeikkuna& ikkuna) {
  QSet<QChar> varatut;
  for (const auto& pohja : ikkuna.Ohjaimet()) {
    QtOhjain& ohjain = Qt_(pohja);
    if (!SaaKirjaimen(ohjain)) continue;
    const QChar kirjain = VapaaKirjain(QString::fromStdString(ohjain.Teksti()), varatut);
    if (!kirjain.isNull()) varatut.insert(kirjain);
    ohjain.AsetaPikakirjain(kirjain);
  }
}

void NimeaKentat(const Lomakeikkuna& ikkuna) {
  for (const auto& pohja : ikkuna.Ohjaimet()) {
    const QtOhjain& ohjain = Qt_(pohja);
    if (QWidget* kentta = Kumppani(ohjain)) kentta->setAccessibleName(Otsikko(ohjain));
    QWidget* widget = ohjain.Widget();
    if (const QString nimio = widget->property("Nimio").toString(); !nimio.isEmpty())
      widget->setAccessibleName(NimionTeksti(ikkuna, nimio));
    widget->setAccessibleDescription(widget->toolTip());
  }
}
