// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/Osuuskuva.h"

#include <algorithm>

#include "kernel/Luvut.h"

QStringList Osuuskuva::Nimet() const {
  QStringList nimet;
  for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i)
    nimet << Teksti(Tiedot().nimet[i]) + ' ' +
                 Teksti(Muotoile(Tiedot().arvot[i], "### ##0.00") + " " + Tiedot().yksikko);
  return nimet;
}

QStringList Osuuskuva::Luvut() const {
  QStringList rivit;
  for (std::size_t i = 0; i < Tiedot().nimet.size(); ++i)
    rivit << Teksti(Tiedot().nimet[i]).trimmed() + '\t' + Teksti(Muotoile(Tiedot().arvot[i], "0.00")) + '\t' +
                 Teksti(Tiedot().yksikko);
  return rivit;
}

double Osuuskuva::Summa() const {
  double summa = 0;
  for (const double arvo : Tiedot().arvot) summa += std::max(arvo, 0.0);
  return summa;
}
