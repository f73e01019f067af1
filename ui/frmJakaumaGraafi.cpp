// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frmJakaumaGraafi.h"

#include <numeric>
#include <utility>

#include "kernel/Luvut.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "ui/Tallennuskysely.h"

namespace {

constexpr Tallennettava kKuva{tekstit::kTallennaKuva, tekstit::kKuvatiedostot, ".png"};

std::string Selite(const std::string& nimi, double arvo, double summa) {
  const double osuus = summa == 0 ? 0 : arvo / summa * 100;
  return nimi + "  (" + Muotoile(osuus, "##0") + " %) ";
}

}  // namespace

frmJakaumaGraafi::frmJakaumaGraafi() : Lomake("frmJakaumaGraafi") {
  cmdKopioi.KunKlikataan([this] { chtReport.KopioiLeikepoydalle(); });
  cmdTallennaKuva.KunKlikataan([this] {
    KysyJaTallenna(kKuva, [this](const std::string& tiedosto) { return chtReport.TallennaKuva(tiedosto); });
  });
  cmdSulje.KunKlikataan([this] { Sulje(); });
}

void frmJakaumaGraafi::NaytaJakauma(std::string otsikko, std::vector<std::string> nimet, std::vector<double> arvot,
                                    std::string yksikko) {
  const double summa = std::accumulate(arvot.begin(), arvot.end(), 0.0);
  Kaaviotiedot kaavio{.otsikko = std::move(otsikko), .yksikko = std::move(yksikko)};
  for (std::size_t i = 0; i < nimet.size(); ++i) {
    if (arvot[i] == 0 && summa != 0) continue;
    kaavio.nimet.push_back(Selite(nimet[i], arvot[i], summa));
    kaavio.arvot.push_back(arvot[i]);
  }
  chtReport.Kaavio(std::move(kaavio));
  NaytaModaalisena();
}
