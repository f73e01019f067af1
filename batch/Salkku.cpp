// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/Salkku.h"

#include <algorithm>
#include <sstream>

#include "batch/Viestinkeruu.h"
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"
#include "results/Perusteet.h"
#include "results/raportti/Raporttiaineisto.h"
#include "results/raportti/Raporttikirja.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Hiljaa.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kTuhat = 1000;

/// A building of the portfolio.
struct Salkkurivi {
  std::string nimi, kayttotarkoitus;
  double ala = 0, tilavuus = 0;
  double lampo = 0, sahko = 0, vesi = 0, kustannus = 0, paasto = 0;
  double toimenpiteita = 0, lammonsaasto = 0, sahkonsaasto = 0, saasto = 0, investointi = 0;

  static constexpr std::string Salkkurivi::*kTekstit[] = {&Salkkurivi::nimi, &Salkkurivi::kayttotarkoitus};
  static constexpr double Salkkurivi::*kLuvut[] = {
      &Salkkurivi::ala,          &Salkkurivi::tilavuus,     &Salkkurivi::lampo,  &Salkkurivi::sahko,
      &Salkkurivi::vesi,         &Salkkurivi::kustannus,    &Salkkurivi::paasto, &Salkkurivi::toimenpiteita,
      &Salkkurivi::lammonsaasto, &Salkkurivi::sahkonsaasto, &Salkkurivi::saasto, &Salkkurivi::investointi};

  double Ominaislampo() const { return ala > 0 ? lampo * kTuhat / ala : 0; }
};

/// A line for each member, as the processes hand it over.
std::string Teksteiksi(const Salkkurivi& rivi) {
  std::string tulos;
  for (const auto jasen : Salkkurivi::kTekstit) {
    std::string teksti = rivi.*jasen;
    std::ranges::replace(teksti, '\n', ' ');
    tulos += teksti + "\n";
  }
  for (const auto jasen : Salkkurivi::kLuvut) tulos += LyhinMuoto(rivi.*jasen) + "\n";
  return tulos;
}

Salkkurivi Luettuna(const std::string& teksti) {
  Salkkurivi rivi;
  std::istringstream virta(teksti);
  for (const auto jasen : Salkkurivi::kTekstit) std::getline(virta, rivi.*jasen);
  std::string luku;
  for (const auto jasen : Salkkurivi::kLuvut)
    if (std::getline(virta, luku)) rivi.*jasen = LueLukuTaiNolla(luku).value_or(0);
  return rivi;
}

Salkkurivi Rivi(clsRakennus& rakennus) {
  const Hiljaisuus hiljaisuus;
  const Raporttiaineisto a(rakennus);
  const clsPerustiedot& p = rakennus.Perustiedot;
  return {.nimi = p.KohteenNimi,
          .kayttotarkoitus = p.Kayttotarkoitus,
          .ala = p.BruttoAla,
          .tilavuus = p.Kokonaistilavuus,
          .lampo = Luku(a.yhteenveto.YhtLammitysenergiaKulutus),
          .sahko = Luku(a.yhteenveto.YhtSahkoKulutus),
          .vesi = Luku(a.yhteenveto.YhtVesiKulutus),
          .kustannus = a.Kustannukset(),
          .paasto = a.Paastot(),
          .toimenpiteita = static_cast<double>(a.ehdotukset.size()),
          .lammonsaasto = a.yhteensa.saasto.lampo,
          .sahkonsaasto = a.yhteensa.saasto.sahko,
          .saasto = a.yhteensa.kustannussaasto,
          .investointi = a.yhteensa.investointi};
}

std::vector<Raporttisolu> Solut(const Salkkurivi& r) {
  const auto ominais = [&](double maara, const char* kaava) {
    return Raporttiluku{r.ala > 0 ? maara * kTuhat / r.ala : 0, "### ##0.0", kaava};
  };
  return {r.nimi,
          r.kayttotarkoitus,
          Raporttiluku{r.ala},
          Raporttiluku{r.tilavuus},
          Raporttiluku{r.lampo, "### ##0.0"},
          Raporttiluku{r.sahko, "### ##0.0"},
          Raporttiluku{r.vesi},
          ominais(r.lampo, "IF([ala]>0,[lampo]*1000/[ala],0)"),
          ominais(r.sahko, "IF([ala]>0,[sahko]*1000/[ala],0)"),
          ominais(r.vesi, "IF([ala]>0,[vesi]*1000/[ala],0)"),
          Raporttiluku{r.kustannus},
          Raporttiluku{r.paasto, "### ##0.0"},
          Raporttiluku{r.toimenpiteita},
          Raporttiluku{r.lammonsaasto, "### ##0.0"},
          Raporttiluku{r.sahkonsaasto, "### ##0.0"},
          Raporttiluku{r.saasto},
          Raporttiluku{r.investointi},
          r.saasto > 0 ? Raporttisolu(Raporttiluku{r.investointi / r.saasto, "0.0", "[investointi]/[kustannus]"})
                       : Raporttisolu(Teksti(tekstit::kRaporttiviiva))};
}

Raporttitaulukko Salkkutaulukko(const std::vector<Salkkurivi>& rivit, const std::string& valuutta) {
  const auto luku = [](int otsikko, std::string yksikko, const char* tunnus, Summaus summaus = Summaus::Luvut) {
    return Raporttisarake{Teksti(otsikko), std::move(yksikko), tunnus, 1, summaus};
  };
  Raporttitaulukko t{.tunnus = "Salkku",
                     .sarakkeet = {{Teksti(tekstit::kRapKohteenNimi), "", "", 3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapKayttotarkoitus), "", "", 2, Summaus::Ei, false},
                                   luku(tekstit::kRapBruttoala, "m²", "ala"),
                                   luku(tekstit::kRapTilavuus, "m³", "tilavuus"),
                                   luku(tekstit::kRapNormitettuLampo, "MWh/a", "lampo"),
                                   luku(tekstit::kYhteenvedonSahko, "MWh/a", "sahko"),
                                   luku(tekstit::kYhteenvedonVesi, "m³/a", "vesi"),
                                   luku(tekstit::kYhteenvedonLampo, "kWh/m²", "ominaislampo", Summaus::Ei),
                                   luku(tekstit::kYhteenvedonSahko, "kWh/m²", "ominaissahko", Summaus::Ei),
                                   luku(tekstit::kYhteenvedonVesi, "dm³/m²", "ominaisvesi", Summaus::Ei),
                                   luku(tekstit::kRapKustannukset, valuutta + "/a", "kulut"),
                                   luku(tekstit::kRapPaastot, "t CO₂/a", "paasto"),
                                   luku(tekstit::kRapToimenpiteita, "", "toimenpiteita"),
                                   luku(tekstit::kRapLammonSaasto, "MWh/a", "lammonsaasto"),
                                   luku(tekstit::kRapSahkonSaasto, "MWh/a", "sahkonsaasto"),
                                   luku(tekstit::kRapKustannussaastoLyhyt, valuutta + "/a", "kustannus"),
                                   luku(tekstit::kRapInvestointi, valuutta, "investointi"),
                                   luku(tekstit::kRapTakaisinmaksu, "a", "aika", Summaus::Ei)}};
  for (const Salkkurivi& rivi : rivit) t.Lisaa(Solut(rivi));
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  t.huomautus = Teksti(tekstit::kRapSalkunJarjestys) + " " + Rahaperuste();
  return t;
}

}  // namespace

Laskettu LaskeSalkkurivi(const std::string& tiedosto) try {
  const Viestinkeruu viestit;
  clsRakennus rakennus;
  AsetaGlobaaliRakennus(&rakennus);
  rakennus.Hae(tiedosto);
  return {Teksteiksi(Rivi(rakennus)), "", true};
} catch (const std::exception& virhe) {
  return {"", "lumivirta-laske: " + tiedosto + ": " + SyynKuvaus(virhe) + "\n", false};
}

void KirjoitaSalkku(const std::vector<std::string>& rivit, const std::string& tiedosto) {
  std::vector<Salkkurivi> salkku;
  for (const std::string& rivi : rivit) salkku.push_back(Luettuna(rivi));
  std::ranges::stable_sort(salkku, [](const Salkkurivi& a, const Salkkurivi& b) {
    return std::pair(a.saasto, a.Ominaislampo()) > std::pair(b.saasto, b.Ominaislampo());
  });
  const std::string& valuutta = Asetukset().strDefaultCurrencyUnit;
  Raportti raportti{.otsikko = Teksti(tekstit::kRapSalkku),
                    .kohde = Lause(tekstit::kRapSalkussaKohteita, {std::to_string(salkku.size())})};
  Raportinosa osa{"Salkku", Teksti(tekstit::kRapSalkku), "1"};
  osa.Taulukko(Salkkutaulukko(salkku, valuutta));
  const bool saastoja = std::ranges::any_of(salkku, [](const Salkkurivi& r) { return r.saasto != 0; });
  const auto kaavio = [&](int otsikko, std::string yksikko, const char* sarake) {
    return Raporttikaavio{Kaaviolaji::Pylvaikko,
                          {.otsikko = Teksti(otsikko), .nimet = {}, .yksikko = std::move(yksikko)},
                          "Salkku",
                          {sarake}};
  };
  if (saastoja) osa.Kaavio(kaavio(tekstit::kRapSalkunSaastot, valuutta + "/a", "kustannus"));
  osa.Kaavio(kaavio(tekstit::kRapSalkunOminaislampo, "kWh/m²", "ominaislampo"));
  raportti.osat.push_back(std::move(osa));
  KirjoitaRaporttikirja(raportti, tiedosto);
}
