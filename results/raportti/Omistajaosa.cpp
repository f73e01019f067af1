// SPDX-License-Identifier: GPL-3.0-or-later
// The owner's summary: one page.
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "results/Perusteet.h"
#include "results/clsRaporttiasetukset.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::size_t kToimenpiteitaSivulla = 10;
constexpr double kTuhat = 1000;

/// One of the three that a building buys, by its figures of the year.
struct Ostettava {
  Tekstinumero nimi;
  const char* yksikko;
  const char* tunnus;  // of the name of its cost
  double Hyodykkeet::*saasto;
  Yhteismaara clsYhteenveto::*kulutus;
  Yhteismaara clsYhteenveto::*kustannus;
  Yhteismaara clsYhteenveto::*paasto;
};
constexpr Ostettava kOstettavat[] = {
    {tekstit::kYhteenvedonLampo, "MWh/a", "Lampo", &Hyodykkeet::lampo, &clsYhteenveto::YhtLammitysenergiaKulutus,
     &clsYhteenveto::YhtLammitysenergiaKustannus, &clsYhteenveto::YhtLammitysenergiaCO2paasto},
    {tekstit::kYhteenvedonSahko, "MWh/a", "Sahko", &Hyodykkeet::sahko, &clsYhteenveto::YhtSahkoKulutus,
     &clsYhteenveto::YhtSahkoKustannus, &clsYhteenveto::YhtSahkoCO2Paasto},
    {tekstit::kYhteenvedonVesi, "m³/a", "Vesi", &Hyodykkeet::vesi, &clsYhteenveto::YhtVesiKulutus,
     &clsYhteenveto::YhtVesiKustannus, &clsYhteenveto::YhtVesiCO2Paasto},
};

/// "56.2 kWh/m²": a use by the area, in thousandths of its unit.
std::string Ominaiskulutus(const Yhteismaara& kulutus, const char* yksikko, double ala) {
  return ala > 0 ? Lukuna(kulutus.neliolle * kTuhat, "### ##0.0", yksikko) : std::string();
}

void LisaaAvainluvut(Raportinosa& osa, const Raporttiaineisto& aineisto) {
  const clsYhteenveto& y = aineisto.yhteenveto;
  osa.Luvut({
      {Teksti(tekstit::kYhteenvedonLampo), Luku(y.YhtLammitysenergiaKulutus), "### ##0", "MWh/a",
       Ominaiskulutus(y.YhtLammitysenergiaKulutus, "kWh/m²", y.Neliot)},
      {Teksti(tekstit::kYhteenvedonSahko), Luku(y.YhtSahkoKulutus), "### ##0", "MWh/a",
       Ominaiskulutus(y.YhtSahkoKulutus, "kWh/m²", y.Neliot)},
      {Teksti(tekstit::kYhteenvedonVesi), Luku(y.YhtVesiKulutus), "### ##0", "m³/a",
       Ominaiskulutus(y.YhtVesiKulutus, "dm³/m²", y.Neliot)},
      {Teksti(tekstit::kRapKustannukset), aineisto.Kustannukset(), "### ##0", aineisto.Raha(),
       y.Neliot > 0 ? Lukuna(aineisto.Kustannukset() / y.Neliot, "### ##0.00", aineisto.valuutta + "/m²") : ""},
      {Teksti(tekstit::kRapPaastot), aineisto.Paastot(), "### ##0", "t CO₂/a",
       y.Neliot > 0 ? Lukuna(aineisto.Paastot() * kTuhat / y.Neliot, "### ##0.0", "kg/m²") : ""},
  });
}

/// Use, cost and emissions of the year.
Raporttitaulukko Kayttotaulukko(const Raporttiaineisto& aineisto) {
  Raporttitaulukko t{.otsikko = Lause(tekstit::kRapKayttoVuonna, {aineisto.Vuosi()}),
                     .tunnus = "Kaytto",
                     .sarakkeet = {{Teksti(tekstit::kRapHyodyke), "", "", 3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapKulutus), "", "kulutus", 2},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1.5, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapKustannus), aineisto.Raha(), "kustannus", 2, Summaus::Naytetyt},
                                   {Teksti(tekstit::kRapOsuus), "%", "osuus", 1.5},
                                   {Teksti(tekstit::kRapPaasto), "t CO₂/a", "paasto", 2, Summaus::Naytetyt}}};
  const double kaikki = aineisto.Kustannukset();
  for (const Ostettava& o : kOstettavat) {
    const double kustannus = Luku(aineisto.yhteenveto.*o.kustannus);
    t.Lisaa({Teksti(o.nimi), Raporttiluku{Luku(aineisto.yhteenveto.*o.kulutus), "### ##0.0"}, o.yksikko,
             Raporttiluku{kustannus, "### ##0", "", std::string("Vuosikustannus") + o.tunnus},
             Raporttiluku{kaikki > 0 ? kustannus / kaikki * 100 : 0, "0.0",
                          "IF(SUM([kustannus:kaikki])>0,[kustannus]/SUM([kustannus:kaikki])*100,0)"},
             Raporttiluku{Luku(aineisto.yhteenveto.*o.paasto), "### ##0.0"}});
  }
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  return t;
}

std::vector<Raporttisolu> Ehdotusrivi(const Raporttiaineisto& aineisto, const Ehdotus& e) {
  return {e.nimi,
          Raporttiluku{e.saasto.lampo, "### ##0.0"},
          Raporttiluku{e.saasto.sahko, "### ##0.0"},
          Raporttiluku{e.saasto.vesi, "### ##0"},
          Raporttiluku{e.kustannussaasto, "### ##0"},
          Raporttiluku{aineisto.KustannustenOsuus(e.kustannussaasto), "0.0",
                       "IF(VuosikustannusLampo+VuosikustannusSahko+VuosikustannusVesi>0,[kustannus]/"
                       "(VuosikustannusLampo+VuosikustannusSahko+VuosikustannusVesi)*100,0)"},
          Raporttiluku{e.investointi, "### ##0"},
          Takaisinmaksusolu(e.takaisinmaksu)};
}

/// Those of the page: when there are more, the last row tells the rest together.
std::vector<Ehdotus> SivullaMahtuvat(const std::vector<Ehdotus>& kaikki) {
  if (kaikki.size() <= kToimenpiteitaSivulla) return kaikki;
  std::vector<Ehdotus> nakyvat(kaikki.begin(), kaikki.begin() + kToimenpiteitaSivulla - 1);
  Ehdotus muut{.nimi = Lause(tekstit::kRapMuutToimenpiteet, {std::to_string(kaikki.size() - nakyvat.size())})};
  for (std::size_t i = nakyvat.size(); i < kaikki.size(); ++i) {
    muut.saasto += kaikki[i].saasto;
    muut.kustannussaasto += kaikki[i].kustannussaasto;
    muut.investointi += kaikki[i].investointi;
  }
  if (muut.kustannussaasto != 0) muut.takaisinmaksu = muut.investointi / muut.kustannussaasto;
  nakyvat.push_back(muut);
  return nakyvat;
}

Raporttitaulukko Ehdotustaulukko(const Raporttiaineisto& aineisto) {
  Raporttitaulukko t{
      .otsikko = Teksti(aineisto.paketti ? tekstit::kRapEhdotettuPaketti : tekstit::kRapEhdotetutToimenpiteet),
      .sarakkeet = {{Teksti(tekstit::kRapToimenpide), "", "", 4.2, Summaus::Ei, false},
                    {Teksti(tekstit::kYhteenvedonLampo), "MWh/a", "lampo", 1.4, Summaus::Luvut},
                    {Teksti(tekstit::kYhteenvedonSahko), "MWh/a", "sahko", 1.4, Summaus::Luvut},
                    {Teksti(tekstit::kYhteenvedonVesi), "m³/a", "vesi", 1.4, Summaus::Luvut},
                    {Teksti(tekstit::kRapSaasto), aineisto.Raha(), "kustannus", 1.5, Summaus::Luvut},
                    {Teksti(tekstit::kRapOsuusKustannuksista), "%", "osuus", 1.6, Summaus::Luvut},
                    {Teksti(tekstit::kRapInvestointi), aineisto.valuutta, "investointi", 1.7, Summaus::Luvut},
                    {Teksti(tekstit::kRapTakaisinmaksu), "a", "aika", 1.6}}};
  for (const Ehdotus& e : SivullaMahtuvat(aineisto.ehdotukset)) t.Lisaa(Ehdotusrivi(aineisto, e));
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  t.rivit.back().solut.back() = Takaisinmaksusolu(aineisto.yhteensa.takaisinmaksu);
  t.huomautus = Teksti(aineisto.paketti ? tekstit::kRapPaketinSelitys : tekstit::kRapYksinSelitys);
  return t;
}

std::string Paketinlause(const Raporttiaineisto& aineisto) {
  const Ehdotus& y = aineisto.yhteensa;
  const Hyodykkeet osuudet = aineisto.Osuudet(y.saasto);
  std::string lause =
      Lause(tekstit::kRapEhdotuksetYhteensa,
            {TekstiLuvulla(aineisto.ehdotukset.size() == 1 ? tekstit::kRapYksiToimenpide : tekstit::kRapToimenpidetta,
                           aineisto.ehdotukset.size()),
             Lukuna(y.kustannussaasto, "### ##0", aineisto.valuutta),
             Muotoile(aineisto.KustannustenOsuus(y.kustannussaasto), "0.#"), Muotoile(osuudet.lampo, "0.#"),
             Muotoile(osuudet.sahko, "0.#"), Muotoile(osuudet.vesi, "0.#")});
  if (y.takaisinmaksu)
    lause += " " + Lause(tekstit::kRapInvestoinnitYhteensa,
                         {Lukuna(y.investointi, "### ##0", aineisto.valuutta), Muotoile(*y.takaisinmaksu, "0.0")});
  return lause;
}

/// Costs now and with the measures carried out.
Raporttikaavio Kustannuskaavio(const Raporttiaineisto& aineisto) {
  Kaaviotiedot k{.otsikko = Teksti(tekstit::kRapKustannuksetNytJaJalkeen),
                 .nimet = {Teksti(tekstit::kRapNyt), Teksti(tekstit::kRapToimenpiteidenJalkeen)},
                 .yksikko = aineisto.Raha()};
  for (const Ostettava& o : kOstettavat) {
    const double kustannus = Luku(aineisto.yhteenveto.*o.kustannus);
    k.sarjat.push_back({Teksti(o.nimi), {kustannus, kustannus - aineisto.yhteensa.rahaa.*o.saasto}});
  }
  return {Kaaviolaji::Pylvaikko, std::move(k)};
}

}  // namespace

void raportti::Omistajalle(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const clsPerustiedot& tiedot = aineisto.rakennus.Perustiedot;
  const clsYhteenveto& y = aineisto.yhteenveto;
  if (y.Vertailuvuosi)
    osa.Kappale(
        Lause(tekstit::kRapKayttolause,
              {tiedot.KohteenNimi, aineisto.Vuosi(), Lukuna(Luku(y.YhtLammitysenergiaKulutus), "### ##0", "MWh"),
               Lukuna(Luku(y.YhtSahkoKulutus), "### ##0", "MWh"), Lukuna(Luku(y.YhtVesiKulutus), "### ##0", "m³"),
               Lukuna(aineisto.Kustannukset(), "### ##0", aineisto.valuutta),
               Lukuna(aineisto.Paastot(), "### ##0", "t")}),
        Raporttikappale::Ingressi);
  else
    osa.Kappale(Teksti(tekstit::kRapEiVertailuvuotta), Raporttikappale::Ingressi);
  LisaaAvainluvut(osa, aineisto);
  osa.Taulukko(Kayttotaulukko(aineisto));
  if (!aineisto.toimenpidevika.empty()) {
    osa.Kappale(Lause(tekstit::kRapToimenpiteitaEiVoituLaskea, {aineisto.toimenpidevika}));
  } else if (aineisto.ehdotukset.empty()) {
    osa.Kappale(Teksti(tekstit::kRapEiToimenpiteita));
  } else {
    osa.Kappale(Paketinlause(aineisto));
    osa.Taulukko(Ehdotustaulukko(aineisto));
    if (aineisto.Kustannukset() > 0) osa.Kaaviot({Kustannuskaavio(aineisto)}, 52, true);
  }
  osa.Kappale(aineisto.rakennus.Raporttiasetukset.Suositus);
  osa.Kappale(Rahaperuste(), Raporttikappale::Huomautus);
  if (aineisto.Kustannukset() > 0 && !aineisto.ehdotukset.empty()) osa.Kaaviot({Kustannuskaavio(aineisto)}, 42, true);
}
