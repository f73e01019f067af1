// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Sivunasetus.h"

#include <QPageSetupDialog>
#include <QPrinter>

#include "tekstit/viestit.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kReuna = 20;  // mm

}  // namespace

QPageLayout Oletussivu() {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait, {kReuna, kReuna, kReuna, kReuna}, QPageLayout::Millimeter};
}

void KysySivunAsetukset(QWidget& ikkuna, QPageLayout& sivu) {
  QPrinter tulostin;
  tulostin.setPageLayout(sivu);
  QPageSetupDialog dialogi(&tulostin, &ikkuna);
  dialogi.setWindowTitle(QString::fromStdString(Teksti(tekstit::kSivunAsetusOtsikko)));
  if (dialogi.exec() == QDialog::Accepted) sivu = tulostin.pageLayout();
}
