// SPDX-License-Identifier: GPL-3.0-or-later
// Electricity and water: the consumer groups as their trees have them.
#include <cmath>

#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

constexpr std::size_t kPiirakassa = 7;  // with the rest as many as charts have colours

/// The rows below that one in the order of the tree, a step deeper each; titles without anything in them are left out.
template <class Puu, class Rivi, class F>
void LisaaHaara(const Puu& puu, const Rivi& rivi, int syvyys, F&& lisaa) {
  for (const auto* lapsi : puu.Lapset(rivi.sKey)) {
    const auto laji = puu.Laji(*lapsi);
    const bool tyhjaOtsikko =
        (laji == Rivilaji::Otsikko || laji == Rivilaji::Nimike) && puu.Lapset(lapsi->sKey).empty();
    if (tyhjaOtsikko) continue;
    lisaa(*lapsi, syvyys, laji == Rivilaji::Otsikko || laji == Rivilaji::Nimike);
    LisaaHaara(puu, *lapsi, syvyys + 1, lisaa);
  }
}

/// A sum that the tree has: a row of its own, in bold where it stands for a title.
void LisaaRivi(Raporttitaulukko& t, std::vector<Raporttisolu> solut, int syvyys, bool otsikko) {
  Raporttirivi& rivi = t.Lisaa(std::move(solut), syvyys);
  if (otsikko) rivi.lajike = Rivilajike::Valiotsikko;
}

std::string Vertailu(double laskettu, double mitattu, const char* yksikko) {
  if (mitattu <= 0) return Lause(tekstit::kRapVainLaskettu, {Lukuna(laskettu, "### ##0.0", yksikko)});
  return Lause(tekstit::kRapLaskettuJaMitattu,
               {Lukuna(laskettu, "### ##0.0", yksikko), Lukuna(mitattu, "### ##0.0", yksikko),
                Lukuna(laskettu / mitattu * 100, "0", "%")});
}

/// The largest rows as parts, the rest as one.
Kaaviotiedot Jakauma(int otsikko, std::vector<std::pair<std::string, double>> osat, const char* yksikko) {
  std::erase_if(osat, [](const auto& o) { return !(o.second > 0); });
  std::ranges::stable_sort(osat, std::greater(), &std::pair<std::string, double>::second);
  double summa = 0, muut = 0;
  for (const auto& [nimi, arvo] : osat) summa += arvo;
  while (osat.size() > kPiirakassa) {
    muut += osat.back().second;
    osat.pop_back();
  }
  if (muut > 0) osat.emplace_back(Teksti(tekstit::kRapMuut), muut);
  Kaaviotiedot k{.otsikko = Teksti(otsikko), .nimet = {}, .yksikko = yksikko};
  for (const auto& [nimi, arvo] : osat) {
    k.nimet.push_back(nimi + " (" + Lukuna(arvo / summa * 100, "0", "%") + ")");
    k.arvot.push_back(arvo);
  }
  return k;
}

}  // namespace

void raportti::Sahko(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const auto puu = aineisto.rakennus.SahkonKulutusryhmat.Kopioi();
  puu->Kotiudu(aineisto.rakennus.OmaKoti());
  puu->PaivitaKulutusRyhmatJaLaitteet();
  const clsSahkoListaItem& juuri = puu->ListaItem(puu->JuurenAvain());
  if (juuri.Vuosikulutus == 0) osa.Kappale(Teksti(tekstit::kRapEiSahkoryhmia));
  const double laskettu = Luku(aineisto.yhteenveto.LaskettuSahkoKulutus);
  osa.Kappale(Vertailu(laskettu, Luku(aineisto.yhteenveto.YhtSahkoKulutus), "MWh"));
  if (juuri.Vuosikulutus == 0) return;
  const auto osuus = [&](double kulutus) { return kulutus / juuri.Vuosikulutus * 100; };
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapSahkoRyhmittain),
                     .tunnus = "Sahko",
                     .sarakkeet = {{Teksti(tekstit::kRapKulutusryhma), "", "", 5, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapKulutus), "MWh/a", "kulutus", 1.5},
                                   {Teksti(tekstit::kRapOsuus), "%", "osuus", 1.2}}};
  std::vector<std::pair<std::string, double>> osat;
  LisaaHaara(*puu, juuri, 0, [&](const clsSahkoListaItem& rivi, int syvyys, bool otsikko) {
    LisaaRivi(t,
              {rivi.NimiTeksti, Raporttiluku{rivi.Vuosikulutus, "### ##0.00"},
               Raporttiluku{osuus(rivi.Vuosikulutus), "0.0", "[kulutus]/SahkoYhteensa*100"}},
              syvyys, otsikko);
    if (puu->Lapset(rivi.sKey).empty()) osat.emplace_back(rivi.NimiTeksti, rivi.Vuosikulutus);
  });
  t.rivit.push_back(
      {{Teksti(tekstit::kRapYhteensa), Raporttiluku{juuri.Vuosikulutus, "### ##0.00", "", "SahkoYhteensa"},
        Raporttiluku{100, "0.0", "[kulutus]/SahkoYhteensa*100"}},
       Rivilajike::Summa});
  osa.Taulukko(std::move(t));
  osa.Kaavio({Kaaviolaji::Piirakka, Jakauma(tekstit::kRapSahkonJakauma, std::move(osat), "MWh/a")}, 62);
}

void raportti::Vesi(Raportinosa& osa, Raporttiaineisto& aineisto) {
  const auto puu = aineisto.rakennus.VedenKulutusryhmat.Kopioi();
  puu->PaivitaKulutusRyhmatJaLaitteet();
  const clsVesiListaItem& juuri = puu->ListaItem(puu->JuurenAvain());
  if (juuri.KvVuosikulutus == 0 && juuri.Vuosikulutus == 0) osa.Kappale(Teksti(tekstit::kRapEiVesiryhmia));
  osa.Kappale(Vertailu(Luku(aineisto.yhteenveto.LaskettuVesiKulutus), Luku(aineisto.yhteenveto.YhtVesiKulutus), "m³"));
  if (juuri.KvVuosikulutus == 0 && juuri.Vuosikulutus == 0) return;
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapVesiRyhmittain),
                     .tunnus = "Vesi",
                     .sarakkeet = {{Teksti(tekstit::kRapKulutusryhma), "", "", 5, Summaus::Ei, false},
                                   {Teksti(tekstit::kYhteenvedonVesi), "m³/a", "vesi", 1.5},
                                   {Teksti(tekstit::kRapLamminVesi), "m³/a", "lammin", 1.5},
                                   {Teksti(tekstit::kRapLammitys), "MWh/a", "lampo", 1.5}}};
  const auto solut = [](const clsVesiListaItem& rivi, std::string nimi) -> std::vector<Raporttisolu> {
    return {std::move(nimi), Raporttiluku{rivi.KvVuosikulutus, "### ##0.0"},
            Raporttiluku{rivi.LkvVuosikulutus, "### ##0.0"}, Raporttiluku{rivi.Vuosikulutus, "### ##0.00"}};
  };
  std::vector<std::pair<std::string, double>> osat;
  LisaaHaara(*puu, juuri, 0, [&](const clsVesiListaItem& rivi, int syvyys, bool otsikko) {
    LisaaRivi(t, solut(rivi, rivi.NimiTeksti), syvyys, otsikko);
    if (puu->Lapset(rivi.sKey).empty()) osat.emplace_back(rivi.NimiTeksti, rivi.KvVuosikulutus);
  });
  t.rivit.push_back({solut(juuri, Teksti(tekstit::kRapYhteensa)), Rivilajike::Summa});
  osa.Taulukko(std::move(t));
  Kaaviotiedot jakauma = Jakauma(tekstit::kRapVedenJakauma, std::move(osat), "m³/a");
  if (!jakauma.arvot.empty()) osa.Kaavio({Kaaviolaji::Piirakka, std::move(jakauma)}, 58);
}
