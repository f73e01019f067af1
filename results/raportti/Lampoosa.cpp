// SPDX-License-Identifier: GPL-3.0-or-later
// Heat: computed against measured, structures, the monthly balance, sections.
#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>
#include <utility>

#include "building/Rakenneleikkaus.h"
#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"
#include "results/Lampoyhteenveto.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "tekstit/lomakkeet_asetukset.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr double kTuhat = 1000;
constexpr const char* kEnergia = "### ##0.00";
constexpr double kLahella = 10;  // %: the model describes the building well
constexpr std::size_t kLeikkauksia = 6;
constexpr std::size_t kRivilla = 2;  // sections side by side

/// A result of the heat summary by its name.
double Lampotulos(clsRakennus& rakennus, std::string_view nimi) {
  for (const Tulos& tulos : LampoyhteenvedonTulokset())
    if (tulos.nimi == nimi) return tulos.Arvo({rakennus});
  throw std::out_of_range(std::string(nimi));
}

struct Rivi {
  std::string_view tulos;
  Tekstinumero nimi;
};
constexpr Rivi kKulutusrivit[] = {
    {"txtTilojenLammitys", tekstit::kTilojenLammitys},
    {"txtIlmanvaihtokoneet", tekstit::kKoneidenJalkilammitys},
    {"txtKayttoVedenLammitys", tekstit::kKayttovedenLammitys},
    {"txtProsessiVedenLammitys", tekstit::kProsessivedenLammitys},
    {"txtMuuLampo", tekstit::kMuuLampoYhteensa},
};

double Naytettyna(double arvo) { return LueLuku(Muotoile(arvo, kEnergia)).value_or(arvo); }

std::vector<Raporttisolu> Lampotaulukonrivi(const clsPerustiedot& p, std::string nimi, double arvo,
                                            std::string kaava = {}, std::string solunnimi = {}) {
  return {std::move(nimi), Raporttiluku{arvo, kEnergia, std::move(kaava), std::move(solunnimi)},
          Raporttiluku{p.BruttoAla > 0 ? arvo * kTuhat / p.BruttoAla : 0, "### ##0.0",
                       "IF(BruttoAla>0,[lampo]*1000/BruttoAla,0)"},
          Raporttiluku{p.Kokonaistilavuus > 0 ? arvo * kTuhat / p.Kokonaistilavuus : 0, "### ##0.0",
                       "IF(Tilavuus>0,[lampo]*1000/Tilavuus,0)"}};
}

/// The heat summary: what the model gives against what was measured.
Raporttitaulukko Lampotaulukko(clsRakennus& rakennus) {
  const clsPerustiedot& p = rakennus.Perustiedot;
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapLammonkulutus),
                     .tunnus = "Lampo",
                     .sarakkeet = {{Teksti(tekstit::kRapKayttokohde), "", "", 4, Summaus::Ei, false},
                                   {Teksti(tekstit::kYhteenvedonLampo), "MWh/a", "lampo", 1.5, Summaus::Naytetyt},
                                   {Teksti(tekstit::kRapAlaaKohti), "kWh/m²", "ala", 1.5},
                                   {Teksti(tekstit::kRapTilavuuttaKohti), "kWh/m³", "tilavuus", 1.5}}};
  for (const Rivi& rivi : kKulutusrivit)
    t.Lisaa(Lampotaulukonrivi(p, Teksti(rivi.nimi), Lampotulos(rakennus, rivi.tulos)));
  t.LisaaSummat(Teksti(tekstit::kLaskettuKulutus));
  const double laskettu = std::get<Raporttiluku>(t.rivit.back().solut[1]).arvo;
  auto summa = Lampotaulukonrivi(p, Teksti(tekstit::kLaskettuKulutus), laskettu,
                                 std::get<Raporttiluku>(t.rivit.back().solut[1]).kaava, "LaskettuLampo");
  t.rivit.back().solut = std::move(summa);
  const double mitattu = Naytettyna(Lampotulos(rakennus, "txtToteutunutKulutus"));
  const auto lisaa = [&](Tekstinumero nimi, double arvo, std::string kaava, std::string solu) {
    t.rivit.push_back({Lampotaulukonrivi(p, Teksti(nimi), arvo, std::move(kaava), std::move(solu)), Rivilajike::Summa});
  };
  lisaa(tekstit::kMitattuNormitettu, mitattu, "", "MitattuLampo");
  lisaa(tekstit::kMitattuVahennettynaLasketulla, mitattu - laskettu, "MitattuLampo-LaskettuLampo", "");
  return t;
}

std::string Vertailulause(double laskettu, double mitattu) {
  if (mitattu <= 0) return Teksti(tekstit::kRapEiMitattuaLampoa);
  const double ero = (laskettu - mitattu) / mitattu * 100;
  const std::string lause = Lause(
      ero < 0 ? tekstit::kRapLaskettuPienempi : tekstit::kRapLaskettuSuurempi,
      {Lukuna(laskettu, "### ##0.0", "MWh"), Lukuna(mitattu, "### ##0.0", "MWh"), Lukuna(std::abs(ero), "0.#", "%")});
  return lause + " " + Teksti(std::abs(ero) <= kLahella ? tekstit::kRapMalliVastaa : tekstit::kRapMalliPoikkeaa);
}

Raporttikaavio Lampopiirakka(const Raporttitaulukko& taulukko) {
  Kaaviotiedot k{.otsikko = Teksti(tekstit::kRapLammonJakauma), .nimet = {}, .yksikko = "MWh/a"};
  double summa = 0;
  for (std::size_t i = 0; i < std::size(kKulutusrivit); ++i)
    summa += std::get<Raporttiluku>(taulukko.rivit[i].solut[1]).arvo;
  for (std::size_t i = 0; i < std::size(kKulutusrivit); ++i) {
    const double arvo = std::get<Raporttiluku>(taulukko.rivit[i].solut[1]).arvo;
    if (arvo <= 0) continue;
    k.nimet.push_back(std::get<std::string>(taulukko.rivit[i].solut[0]) + " (" + Lukuna(arvo / summa * 100, "0", "%") +
                      ")");
    k.arvot.push_back(arvo);
  }
  return {Kaaviolaji::Piirakka, std::move(k), "Lampo", {"lampo"}};
}

// --- structures

/// Structures that are told as one row: of one kind, name, boundary and U-value.
struct Rakenneryhma {
  double ala = 0;
  const clsRakenne* esimerkki = nullptr;
  double Tsisa = 0;
};
using Ryhmaavain = std::tuple<std::int32_t, std::string, std::string, double>;

bool OnUlkovaippaa(const clsRakenne& r) {
  return r.Rakennetyyppi <= Rakennelaji::Ovi &&
         !(r.Rakennetyyppi <= Rakennelaji::Alapohja && r.TyyppiID == kHuonelampoinenTila);
}

std::map<Ryhmaavain, Rakenneryhma> Rakenneryhmat(const clsTilat& tilat) {
  std::map<Ryhmaavain, Rakenneryhma> ryhmat;
  for (const clsTila& tila : tilat)
    for (const clsRakenne& r : tila.Rakenteet) {
      if (!OnUlkovaippaa(r)) continue;
      const bool rajalla = r.Rakennetyyppi <= Rakennelaji::Alapohja;
      const double U = r.U_arvo();
      Rakenneryhma& ryhma =
          ryhmat[{r.Rakennetyyppi, r.NaytettavaNimi(), rajalla ? r.TyyppiStr : "", std::isfinite(U) ? U : 0}];
      ryhma.ala += r.PintaAla;
      ryhma.Tsisa = tila.Sisalampotila;
      if (!ryhma.esimerkki) ryhma.esimerkki = &r;
    }
  return ryhmat;
}

std::string Lajinimi(std::int32_t laji) { return Teksti(tekstit::kRapRakennelajit.at(static_cast<std::size_t>(laji))); }

Raporttitaulukko Rakennetaulukko(const std::map<Ryhmaavain, Rakenneryhma>& ryhmat) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapVaipanRakenteet),
                     .sarakkeet = {{Teksti(tekstit::kRapRakenne), "", "", 4.5, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapRajoittuu), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapPintaAla), "m²", "ala", 1.4, Summaus::Luvut},
                                   {Teksti(tekstit::kUArvo), "W/m²K", "u", 1.4},
                                   {Teksti(tekstit::kRapKonduktanssi), "W/K", "ua", 1.5, Summaus::Luvut},
                                   {Teksti(tekstit::kRapOsuus), "%", "osuus", 1.2, Summaus::Luvut}}};
  double summa = 0;
  for (const auto& [avain, ryhma] : ryhmat) summa += ryhma.ala * std::get<3>(avain);
  std::int32_t edellinen = -1;
  for (const auto& [avain, ryhma] : ryhmat) {
    const auto& [laji, nimi, raja, U] = avain;
    if (std::exchange(edellinen, laji) != laji) t.LisaaValiotsikko(Lajinimi(laji));
    t.Lisaa({nimi, raja, Raporttiluku{ryhma.ala, "### ##0.0"}, Raporttiluku{U, "0.00"},
             Raporttiluku{ryhma.ala * U, "### ##0.0", "[ala]*[u]"},
             Raporttiluku{summa > 0 ? ryhma.ala * U / summa * 100 : 0, "0.0",
                          "IF(SUM([ua:kaikki])>0,[ua]/SUM([ua:kaikki])*100,0)"}},
            1);
  }
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  t.huomautus = Teksti(tekstit::kRapKonduktanssinSelitys);
  return t;
}

/// Sections of the structures through which most heat goes, of those that have layers.
void LisaaLeikkaukset(Raportinosa& osa, const std::map<Ryhmaavain, Rakenneryhma>& ryhmat) {
  std::vector<std::pair<double, const Rakenneryhma*>> suurimmat;
  for (const auto& [avain, ryhma] : ryhmat)
    if (const auto& ratkaisu = ryhma.esimerkki->RakenneRatkaisu; ratkaisu && ratkaisu->Kerrokset.Count() > 0)
      suurimmat.emplace_back(ryhma.ala * std::get<3>(avain), &ryhma);
  if (suurimmat.empty()) return;
  std::ranges::sort(suurimmat, std::greater(), &std::pair<double, const Rakenneryhma*>::first);
  suurimmat.resize(std::min(suurimmat.size(), kLeikkauksia));
  osa.Otsikko(Teksti(tekstit::kRapLeikkaukset));
  osa.Kappale(Teksti(tekstit::kRapLeikkaustenSelitys));
  for (std::size_t i = 0; i < suurimmat.size(); i += kRivilla) {
    std::vector<Raporttikaavio> rivi;
    for (std::size_t j = i; j < std::min(i + kRivilla, suurimmat.size()); ++j) {
      const Rakenneryhma& ryhma = *suurimmat[j].second;
      Kaaviotiedot leikkaus = Rakenneleikkaus(*ryhma.esimerkki, ryhma.Tsisa);
      leikkaus.otsikko =
          ryhma.esimerkki->NaytettavaNimi() + ", U " + Lukuna(ryhma.esimerkki->U_arvo(), "0.00", "W/m²K");
      rivi.push_back({Kaaviolaji::Leikkaus, std::move(leikkaus)});
    }
    osa.Kaaviot(std::move(rivi), 62);
  }
}

// --- the monthly balance

struct Tasesarake {
  Tasetermi termi;
  const char* tunnus;
  const char* kaava = "";
  Summaus summaus = Summaus::Luvut;
};
constexpr Tasesarake kTasesarakkeet[] = {
    {Tasetermi::Johtuminen, "johtuminen"},
    {Tasetermi::Ilmanvaihtokoneet, "koneet"},
    {Tasetermi::Vuotoilma, "vuoto"},
    {Tasetermi::Haviot, "haviot", "[johtuminen]+[koneet]+[vuoto]"},
    {Tasetermi::Kuormat, "kuormat"},
    {Tasetermi::HyodynnetytKuormat, "hyodynnetyt"},
    {Tasetermi::Tarve, "tarve", "[haviot]-[hyodynnetyt]"},
};

std::string Termi(Tasetermi termi) { return Teksti(tekstit::kTasetermit[static_cast<std::size_t>(termi)]); }

Raporttitaulukko Tasetaulukko(const Kuukausitase& tase) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapKuukausitase),
                     .tunnus = "Tase",
                     .sarakkeet = {{Teksti(tekstit::kRapKuukausi), "", "", 1.4, Summaus::Ei, false}}};
  for (const Tasesarake& s : kTasesarakkeet) t.sarakkeet.push_back({Termi(s.termi), "kWh", s.tunnus, 1.6, s.summaus});
  for (std::size_t kk = 0; kk < tekstit::kKuukaudet.size(); ++kk) {
    std::vector<Raporttisolu> solut{Teksti(tekstit::kKuukaudet[kk])};
    for (const Tasesarake& s : kTasesarakkeet) solut.push_back(Raporttiluku{tase[s.termi][kk], "### ##0", s.kaava});
    t.Lisaa(std::move(solut));
  }
  t.LisaaSummat(Teksti(tekstit::kRapVuosi));
  if (tase.vyohyke > 0)
    t.huomautus =
        Lause(tekstit::kRapTaseenNormitus,
              {Lukuna(tase.Vuosi(Tasetermi::Tarve), "### ##0", "kWh"), Lukuna(tase.paikkakunta, "### ##0", "°Cd"),
               Lukuna(tase.vyohyke, "### ##0", "°Cd"), Lukuna(tase.NormitettuTarve(), "### ##0.00", "MWh")});
  return t;
}

Raporttikaavio Tasekaavio(const Kuukausitase& tase) {
  return {Kaaviolaji::Pylvaikko,
          TaseenKaavio(tase, Teksti(tekstit::kRapKuukausitase)),
          "Tase",
          {"haviot", "hyodynnetyt", "tarve"}};
}

}  // namespace

void raportti::Lampo(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const Tasehaarukka haarukka(aineisto.rakennus);
  Raporttitaulukko lampo = Lampotaulukko(aineisto.rakennus);
  const auto arvo = [&](std::size_t rivi) { return std::get<Raporttiluku>(lampo.rivit[rivi].solut[1]).arvo; };
  const std::size_t laskettu = std::size(kKulutusrivit);
  osa.Kappale(Vertailulause(arvo(laskettu), arvo(laskettu + 1)));
  const Raporttikaavio piirakka = Lampopiirakka(lampo);
  osa.Taulukko(std::move(lampo));
  if (!piirakka.tiedot.arvot.empty()) osa.Kaavio(piirakka, 55);

  osa.Otsikko(Teksti(tekstit::kRapRakenteet));
  const auto ryhmat = Rakenneryhmat(aineisto.rakennus.Tilat);
  if (ryhmat.empty())
    osa.Kappale(Teksti(tekstit::kRapEiRakenteita));
  else
    osa.Taulukko(Rakennetaulukko(ryhmat));

  osa.Otsikko(Teksti(tekstit::kRapKuukausitase));
  if (aineisto.rakennus.Tilat.Count() == 0) return osa.Kappale(Teksti(tekstit::kRapEiTiloja));
  osa.Kappale(
      Lause(tekstit::kRapTaselause, {Lukuna(aineisto.tase.Vuosi(Tasetermi::Haviot) / kTuhat, "### ##0.0", "MWh"),
                                     Lukuna(aineisto.tase.Vuosi(Tasetermi::Kuormat) / kTuhat, "### ##0.0", "MWh"),
                                     Lukuna(aineisto.tase.Vuosi(Tasetermi::Hyvaksikayttoaste) * 100, "0", "%")}));
  osa.Taulukko(Tasetaulukko(aineisto.tase));
  osa.Kaavio(Tasekaavio(aineisto.tase), 75);
  LisaaLeikkaukset(osa, ryhmat);
}
