// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Kustannusyhteenveto.h"

#include "batch/Tekstitaulu.h"
#include "kernel/Luvut.h"
#include "results/clsYhteenveto.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_yhteenveto.h"
#include "tekstit/tulokset.h"
#include "ui/Hiljaa.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr const char* kMaara = "### ##0.00";
constexpr const char* kYhteensa = "### ##0";

clsYhteenveto Laske(clsRakennus& rakennus) {
  const Hiljaisuus hiljaisuus;  // the normalisation has told its own with the heat
  clsYhteenveto yhteenveto;
  yhteenveto.LueDataluokka(rakennus);
  return yhteenveto;
}

struct Rivi {
  Tekstinumero nimi;
  const char* yksikko;
  Yhteismaara clsYhteenveto::*kulutus;
  Yhteismaara clsYhteenveto::*kustannus;
  Yhteismaara clsYhteenveto::*paasto;
};
constexpr Rivi kRivit[] = {
    {tekstit::kMitattuNormitettuLampo, " MWh/a", &clsYhteenveto::YhtLammitysenergiaKulutus,
     &clsYhteenveto::YhtLammitysenergiaKustannus, &clsYhteenveto::YhtLammitysenergiaCO2paasto},
    {tekstit::kYhteenvedonSahko, " MWh/a", &clsYhteenveto::YhtSahkoKulutus, &clsYhteenveto::YhtSahkoKustannus,
     &clsYhteenveto::YhtSahkoCO2Paasto},
    {tekstit::kYhteenvedonVesi, " m³/a", &clsYhteenveto::YhtVesiKulutus, &clsYhteenveto::YhtVesiKustannus, nullptr},
};

}  // namespace

void KirjoitaKustannukset(std::ostream& tulos, clsRakennus& rakennus) {
  const clsYhteenveto y = Laske(rakennus);
  if (y.Vertailuvuosi == 0) return;
  const std::string& raha = Asetukset().strDefaultCurrencyUnit;
  Tekstitaulu taulu({Teksti(tekstit::kMitatutKustannukset) + " " + std::to_string(y.Vertailuvuosi),
                     Teksti(tekstit::kKulutus), raha + "/a", raha + "/m²,a", raha + "/m³,a", "t CO₂-ekv/a"});
  const auto ominainen = [](double arvo, double jakaja) { return jakaja > 0 ? Muotoile(arvo, kMaara) : "-"; };
  for (const Rivi& rivi : kRivit) {
    const Yhteismaara& kustannus = y.*rivi.kustannus;
    taulu.Lisaa({Teksti(rivi.nimi), Muotoile((y.*rivi.kulutus).yhteensa, kMaara) + rivi.yksikko,
                 Muotoile(kustannus.yhteensa, kYhteensa), ominainen(kustannus.neliolle, y.Neliot),
                 ominainen(kustannus.kuutiolle, y.Kuutiot),
                 rivi.paasto ? Muotoile((y.*rivi.paasto).yhteensa, kMaara) : std::string()});
  }
  taulu.Tulosta(tulos);
  tulos << '\n';
}
