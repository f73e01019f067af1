// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Viimeistely.h"

#include <QLabel>
#include <QTabWidget>
#include <QWidget>
#include <algorithm>
#include <vector>

#include "kernel/Kirjainkoko.h"
#include "ui/Kenttanimi.h"
#include "ui/qt/QtOhjain.h"

namespace {

constexpr std::string_view kIlmanKirjainta[] = {"cmdOk", "cmdPeruuta", "cmdSulje", "cmdJatka"};

QtOhjain& Qt_(const std::unique_ptr<Ohjain>& ohjain) { return static_cast<QtOhjain&>(*ohjain); }

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

/// The pages of tab controls that the control lies on.
QWidgetList Sivut(const QtOhjain& ohjain) {
  QWidgetList sivut;
  for (QWidget* w = ohjain.Widget(); w->parentWidget(); w = w->parentWidget())
    if (qobject_cast<QTabWidget*>(w->parentWidget()->parentWidget())) sivut << w;
  return sivut;
}

/// The letters of the caption, the beginnings of words first.
QList<QChar> Kirjaimet(const QString& otsikko) {
  QList<QChar> alut, muut;
  for (qsizetype i = 0; i < otsikko.size(); ++i) {
    const bool alussa = i == 0 || !otsikko[i - 1].isLetter();
    if (otsikko[i].isLetter()) (alussa ? alut : muut) << otsikko[i].toLower();
  }
  return alut + muut;
}

/// A control that gets a letter.
struct Saaja {
  Saaja(QtOhjain& o, const QSet<QChar>& varatut)
      : ohjain(&o), sivut(Sivut(o)), kirjaimet(Kirjaimet(QString::fromStdString(o.Teksti()))) {
    kirjaimet.removeIf([&](QChar kirjain) { return varatut.contains(kirjain); });
  }
  QtOhjain* ohjain;
  QWidgetList sivut;
  QList<QChar> kirjaimet;
  QChar kirjain{};
};

/// False when the two lie on different pages of one tab control.
bool NakyvatYhdessa(const Saaja& x, const Saaja& y) {
  return std::ranges::none_of(x.sivut, [&](const QWidget* a) {
    return std::ranges::any_of(y.sivut,
                               [a](const QWidget* b) { return a != b && a->parentWidget() == b->parentWidget(); });
  });
}

/// Those that have the letter and can be seen beside the receiver.
std::vector<Saaja*> Haltijat(std::vector<Saaja>& saajat, const Saaja& saaja, QChar kirjain) {
  std::vector<Saaja*> haltijat;
  for (Saaja& s : saajat)
    if (&s != &saaja && s.kirjain == kirjain && NakyvatYhdessa(s, saaja)) haltijat.push_back(&s);
  return haltijat;
}

/// Gives the first free letter. When none is free, takes one whose only holder gets another one in the same way.
bool AnnaKirjain(std::vector<Saaja>& saajat, Saaja& saaja, QSet<QChar>& koetut) {
  const auto vapaa = std::ranges::find_if(saaja.kirjaimet, [&](QChar k) { return Haltijat(saajat, saaja, k).empty(); });
  if (vapaa != saaja.kirjaimet.end()) {
    saaja.kirjain = *vapaa;
    return true;
  }
  return std::ranges::any_of(saaja.kirjaimet, [&, entinen = saaja.kirjain](QChar k) {
    const auto haltijat = Haltijat(saajat, saaja, k);
    if (haltijat.size() != 1 || koetut.contains(k)) return false;
    koetut << k;
    saaja.kirjain = k;
    if (AnnaKirjain(saajat, *haltijat.front(), koetut)) return true;
    saaja.kirjain = entinen;
    return false;
  });
}

}  // namespace

/// What lies on fewer pages comes first: more of the others can be seen beside it.
void JaaPikakirjaimet(const Lomakeikkuna& ikkuna, const QSet<QChar>& varatut) {
  std::vector<Saaja> saajat;
  for (const auto& ohjain : ikkuna.Ohjaimet())
    if (SaaKirjaimen(Qt_(ohjain))) saajat.emplace_back(Qt_(ohjain), varatut);
  std::ranges::stable_sort(saajat, {}, [](const Saaja& s) { return s.sivut.size(); });
  for (Saaja& saaja : saajat) {
    QSet<QChar> koetut;
    AnnaKirjain(saajat, saaja, koetut);
  }
  for (const Saaja& saaja : saajat) saaja.ohjain->AsetaPikakirjain(saaja.kirjain);
}

void NimeaKentat(const Lomakeikkuna& ikkuna) {
  for (const auto& pohja : ikkuna.Ohjaimet()) {
    QWidget* widget = Qt_(pohja).Widget();
    if (const std::string nimi = KentanNimi(ikkuna, *pohja); !nimi.empty())
      widget->setAccessibleName(QString::fromStdString(nimi));
    widget->setAccessibleDescription(widget->toolTip());
  }
}
