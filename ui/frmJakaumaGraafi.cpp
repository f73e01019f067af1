// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmJakaumaGraafi.h"

#include <numeric>
#include <utility>

#include "kernel/Luvut.h"

namespace {

std::string Selite(const std::string& nimi, double arvo, double summa) {
  const double osuus = summa == 0 ? 0 : arvo / summa * 100;
  return nimi + "  (" + Muotoile(osuus, "##0") + " %) ";
}

}  // namespace

frmJakaumaGraafi::frmJakaumaGraafi() : Lomake("frmJakaumaGraafi") {
  cmdKopioi.KunKlikataan([this] { chtReport.KopioiLeikepoydalle(); });
  cmdSulje.KunKlikataan([this] { Sulje(); });
}

void frmJakaumaGraafi::NaytaJakauma(std::string otsikko, std::vector<std::string> nimet, std::vector<double> arvot) {
  const double summa = std::accumulate(arvot.begin(), arvot.end(), 0.0);
  for (std::size_t i = 0; i < nimet.size(); ++i) nimet[i] = Selite(nimet[i], arvot[i], summa);
  chtReport.Kaavio({std::move(otsikko), std::move(nimet), std::move(arvot)});
  NaytaModaalisena();
}
