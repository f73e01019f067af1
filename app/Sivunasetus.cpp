// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Sivunasetus.h"

#include <QPageSetupDialog>
#include <QPrinter>
#include <algorithm>

#include "settings/Sivuasetukset.h"
#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"

namespace {

struct Paperi {
  const char* nimi;
  QPageSize::PageSizeId koko;
};
constexpr Paperi kPaperit[] = {
    {"A4", QPageSize::A4}, {"A3", QPageSize::A3}, {"A5", QPageSize::A5}, {"Letter", QPageSize::Letter}};

}  // namespace

QPageLayout Sivuna(const Sivuasetukset& asetukset) {
  const auto* paperi = std::ranges::find(kPaperit, asetukset.paperi, &Paperi::nimi);
  return {QPageSize(paperi == std::end(kPaperit) ? QPageSize::A4 : paperi->koko),
          asetukset.vaaka ? QPageLayout::Landscape : QPageLayout::Portrait,
          {asetukset.vasen, asetukset.yla, asetukset.oikea, asetukset.ala},
          QPageLayout::Millimeter};
}

Sivuasetukset Asetuksina(const QPageLayout& sivu) {
  const auto* paperi = std::ranges::find(kPaperit, sivu.pageSize().id(), &Paperi::koko);
  const QMarginsF reunat = sivu.margins(QPageLayout::Millimeter);
  return {.paperi = paperi == std::end(kPaperit) ? kPaperit[0].nimi : paperi->nimi,
          .vaaka = sivu.orientation() == QPageLayout::Landscape,
          .vasen = reunat.left(),
          .yla = reunat.top(),
          .oikea = reunat.right(),
          .ala = reunat.bottom()};
}

void KysySivunAsetukset(QWidget& ikkuna) {
  QPrinter tulostin;
  tulostin.setPageLayout(Sivuna(HaeSivuasetukset()));
  QPageSetupDialog dialogi(&tulostin, &ikkuna);
  dialogi.setWindowTitle(QString::fromStdString(Teksti(tekstit::kSivunAsetusOtsikko)));
  if (dialogi.exec() == QDialog::Accepted) TallennaSivuasetukset(Asetuksina(tulostin.pageLayout()));
}
