// SPDX-License-Identifier: GPL-3.0-or-later
// Measured consumption year by year, prices, costs and emissions.
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "results/Perusteet.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kTuhat = 1000;

Raporttitaulukko Vuositaulukko(const clsPerustiedot& p) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapMitattuKulutus),
                     .tunnus = "Vuodet",
                     .sarakkeet = {{Teksti(tekstit::kRapVuosi), "", "", 1.3, Summaus::Ei, false},
                                   {Teksti(tekstit::kYhteenvedonLampo), "MWh/a", "lampo", 1.5},
                                   {Teksti(tekstit::kRapTarveluku), "°Cd", "tarveluku", 1.6},
                                   {Teksti(tekstit::kRapNormitettuLampo), "MWh/a", "normitettu", 1.7},
                                   {Teksti(tekstit::kYhteenvedonSahko), "MWh/a", "sahko", 1.5},
                                   {Teksti(tekstit::kYhteenvedonVesi), "m³/a", "vesi", 1.5}}};
  const clsToteutuneetKulutukset& vuodet = p.ToteutuneetKulutukset;
  for (int i = static_cast<int>(vuodet.Count()); i >= 1; --i) {
    const clsToteutunutKulutus* v = vuodet.Vuosi(i);
    if (!v) continue;
    const std::string vuosi = std::to_string(vuodet.KulutusTietojenViimVuosi - (i - 1));
    t.Lisaa({v->KaytaVertailuVuotena ? vuosi + " *" : vuosi, Raporttiluku{v->Lampo, "### ##0.0"},
             Raporttiluku{v->LammTarveLuku, "### ##0"},
             Raporttiluku{
                 p.NormitettuLampo(*v), "### ##0.0",
                 "IF([tarveluku]>0,([lampo]-LammonVakioOsuus)*NormLammitystarveluku/[tarveluku]+LammonVakioOsuus,0)"},
             Raporttiluku{v->Sahko, "### ##0.0"}, Raporttiluku{v->Vesi, "### ##0"}});
  }
  t.huomautus = Lause(tekstit::kRapNormitusSelitys,
                      {Lukuna(p.LammKulVakioOsuus.VuosiOsuus, "### ##0.#", "MWh"), p.LammTarveLukuPaikkakunta,
                       Lukuna(p.NormVuodenLammTarveLuku, "### ##0", "°Cd")});
  return t;
}

Raporttikaavio Vuosikaavio(const Raporttitaulukko& vuodet) {
  Kaaviotiedot k{.otsikko = Teksti(tekstit::kRapEnergiaVuosittain), .nimet = {}, .yksikko = "MWh/a"};
  Kaaviosarja lampo{Teksti(tekstit::kRapNormitettuLampo), {}, 0}, sahko{Teksti(tekstit::kYhteenvedonSahko), {}, 1};
  for (const Raporttirivi& rivi : vuodet.rivit) {
    k.nimet.push_back(std::get<std::string>(rivi.solut[0]));
    lampo.arvot.push_back(std::get<Raporttiluku>(rivi.solut[3]).arvo);
    sahko.arvot.push_back(std::get<Raporttiluku>(rivi.solut[4]).arvo);
  }
  k.sarjat = {std::move(lampo), std::move(sahko)};
  return {Kaaviolaji::Pylvaikko, std::move(k), "Vuodet", {"normitettu", "sahko"}};
}

Raporttitaulukko Vakio(const clsPerustiedot& p) {
  Raporttitaulukko t{.sarakkeet = {{Teksti(tekstit::kRapTieto), "", "", 4, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapArvo), "", "", 1.5},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1, Summaus::Ei, false}}};
  t.Lisaa({Teksti(tekstit::kRapVakioOsuus),
           Raporttiluku{p.LammKulVakioOsuus.VuosiOsuus, "### ##0.0", "", "LammonVakioOsuus"}, "MWh/a"});
  return t;
}

/// One of the three that a building buys.
struct Ostettava {
  Tekstinumero nimi;
  const char* yksikko;
  Energialaji alv;
  clsEnergianHankinta clsPerustiedot::*hankinta;
  Yhteismaara clsYhteenveto::*kulutus;
  Yhteismaara clsYhteenveto::*kustannus;
  Yhteismaara clsYhteenveto::*paasto;
};
constexpr Ostettava kOstettavat[] = {
    {tekstit::kYhteenvedonLampo, "MWh", Energialaji::Lampo, &clsPerustiedot::LammonHankinta,
     &clsYhteenveto::YhtLammitysenergiaKulutus, &clsYhteenveto::YhtLammitysenergiaKustannus,
     &clsYhteenveto::YhtLammitysenergiaCO2paasto},
    {tekstit::kYhteenvedonSahko, "MWh", Energialaji::Sahko, &clsPerustiedot::SahkonHankinta,
     &clsYhteenveto::YhtSahkoKulutus, &clsYhteenveto::YhtSahkoKustannus, &clsYhteenveto::YhtSahkoCO2Paasto},
    {tekstit::kYhteenvedonVesi, "m³", Energialaji::Vesi, &clsPerustiedot::VedenHankinta, &clsYhteenveto::YhtVesiKulutus,
     &clsYhteenveto::YhtVesiKustannus, &clsYhteenveto::YhtVesiCO2Paasto},
};

/// Use by area and volume, in thousandths of its unit: kWh or dm³.
Raporttitaulukko Ominaiskulutukset(const clsYhteenveto& y) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapOminaiskulutukset),
                     .sarakkeet = {{Teksti(tekstit::kRapHyodyke), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapKulutus), "", "kulutus", 1.5},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapAlaaKohti), "", "ala", 1.5},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1.2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapTilavuuttaKohti), "", "tilavuus", 1.5},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1.2, Summaus::Ei, false}}};
  for (const Ostettava& o : kOstettavat) {
    const Yhteismaara& m = y.*o.kulutus;
    const bool vesi = o.alv == Energialaji::Vesi;
    t.Lisaa({Teksti(o.nimi), Raporttiluku{Luku(m), "### ##0.0"}, std::string(o.yksikko) + "/a",
             Raporttiluku{m.neliolle * kTuhat, "### ##0.0", "IF(BruttoAla>0,[kulutus]*1000/BruttoAla,0)"},
             vesi ? "dm³/m²" : "kWh/m²",
             Raporttiluku{m.kuutiolle * kTuhat, "### ##0.0", "IF(Tilavuus>0,[kulutus]*1000/Tilavuus,0)"},
             vesi ? "dm³/m³" : "kWh/m³"});
  }
  return t;
}

Raporttitaulukko Kustannustaulukko(const Raporttiaineisto& aineisto) {
  Raporttitaulukko t{
      .otsikko = Teksti(tekstit::kRapKustannuksetJaPaastot),
      .tunnus = "Kustannukset",
      .sarakkeet = {
          {Teksti(tekstit::kRapHyodyke), "", "", 1.6, Summaus::Ei, false},
          {Teksti(tekstit::kRapKulutus), "MWh/a, m³/a", "kulutus", 1.8},
          {Teksti(tekstit::kRapKeskihinta), aineisto.valuutta + "/MWh, " + aineisto.valuutta + "/m³", "hinta", 2},
          {Teksti(tekstit::kVuosimaksut), aineisto.Raha(), "maksut", 1.6},
          {Teksti(tekstit::kRapKustannus), aineisto.Raha(), "kustannus", 1.7, Summaus::Naytetyt},
          {Teksti(tekstit::kRapPaastokerroin), "kg/MWh", "kerroin", 1.6},
          {Teksti(tekstit::kRapPaasto), "t CO₂/a", "paasto", 1.5, Summaus::Naytetyt}}};
  for (const Ostettava& o : kOstettavat) {
    const clsEnergiamuodot& muodot = (aineisto.rakennus.Perustiedot.*o.hankinta).Energiamuodot;
    const double kerroin = Asetukset().NayttoKerroin(o.alv);
    const bool vesi = o.alv == Energialaji::Vesi;
    t.Lisaa({Teksti(o.nimi), Raporttiluku{Luku(aineisto.yhteenveto.*o.kulutus), "### ##0.0"},
             Raporttiluku{muodot.Keskihinta() * kerroin, "### ##0.00"},
             Raporttiluku{muodot.Vuosimaksut() * kerroin, "### ##0"},
             Raporttiluku{Luku(aineisto.yhteenveto.*o.kustannus), "### ##0", "[kulutus]*[hinta]+[maksut]"},
             vesi ? Raporttisolu(std::string()) : Raporttiluku{muodot.IlmastonLampeneminenCO2ekv(), "### ##0.0"},
             vesi ? Raporttisolu(Raporttiluku{Luku(aineisto.yhteenveto.*o.paasto), "### ##0.0"})
                  : Raporttiluku{Luku(aineisto.yhteenveto.*o.paasto), "### ##0.0", "[kulutus]*[kerroin]/1000"}});
  }
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  t.huomautus = Rahaperuste() + " " + Paastoperuste();
  return t;
}

Raporttikaavio Piirakka(const clsYhteenveto& y, int otsikko, Yhteismaara clsYhteenveto::*Ostettava::*suure,
                        const std::string& yksikko, const char* sarake) {
  Kaaviotiedot k{.otsikko = Teksti(otsikko), .nimet = {}, .yksikko = yksikko};
  double summa = 0;
  for (const Ostettava& o : kOstettavat) summa += Luku(y.*(o.*suure));
  for (const Ostettava& o : kOstettavat) {
    const double arvo = Luku(y.*(o.*suure));
    if (arvo <= 0) continue;
    k.nimet.push_back(Teksti(o.nimi) + " (" + Lukuna(arvo / summa * 100, "0", "%") + ")");
    k.arvot.push_back(arvo);
  }
  return {Kaaviolaji::Piirakka, std::move(k), "Kustannukset", {sarake}};
}

}  // namespace

void raportti::Kulutus(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const clsPerustiedot& p = aineisto.rakennus.Perustiedot;
  const clsYhteenveto& y = aineisto.yhteenveto;
  osa.Kappale(y.Vertailuvuosi ? Lause(tekstit::kRapVertailuvuosilause, {aineisto.Vuosi()})
                              : Teksti(tekstit::kRapEiVertailuvuotta));
  Raporttitaulukko vuodet = Vuositaulukko(p);
  if (vuodet.OnTyhja()) {
    osa.Kappale(Teksti(tekstit::kRapEiMitattuja));
  } else {
    const Raporttikaavio kaavio = Vuosikaavio(vuodet);
    osa.Taulukko(std::move(vuodet));
    osa.Taulukko(Vakio(p));
    osa.Kaavio(kaavio, 62);
  }
  osa.Taulukko(Ominaiskulutukset(y));
  osa.Taulukko(Kustannustaulukko(aineisto));
  std::vector<Raporttikaavio> piirakat;
  if (aineisto.Kustannukset() > 0)
    piirakat.push_back(
        Piirakka(y, tekstit::kRapKustannustenJakauma, &Ostettava::kustannus, aineisto.Raha(), "kustannus"));
  if (aineisto.Paastot() > 0)
    piirakat.push_back(Piirakka(y, tekstit::kRapPaastojenJakauma, &Ostettava::paasto, "t/a", "paasto"));
  if (!piirakat.empty()) osa.Kaaviot(std::move(piirakat), 55);
  for (const std::string& huomautus : y.Huomautukset) osa.Kappale(huomautus, Raporttikappale::Huomautus);
}
