// SPDX-License-Identifier: GPL-3.0-or-later
// Appendices: the structures space by space, tariffs, and what the report rests on.
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Versio.h"
#include "results/Perusteet.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tekstit/lomakkeet_tilat.h"
#include "tekstit/raportti.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

struct Hankinta {
  Tekstinumero nimi;
  clsEnergianHankinta clsPerustiedot::*jasen;
};
constexpr Hankinta kHankinnat[] = {{tekstit::kYhteenvedonLampo, &clsPerustiedot::LammonHankinta},
                                   {tekstit::kYhteenvedonSahko, &clsPerustiedot::SahkonHankinta},
                                   {tekstit::kYhteenvedonVesi, &clsPerustiedot::VedenHankinta}};

Raporttitaulukko Energiamuodot(const clsPerustiedot& p) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapEnergiamuodot),
                     .sarakkeet = {{Teksti(tekstit::kRapHyodyke), "", "", 1.5, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapEnergiamuoto), "", "", 4, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapOsuus), "%", "", 1.2},
                                   {Teksti(tekstit::kRapHyotysuhde), "%", "", 1.4},
                                   {Teksti(tekstit::kRapPaastokerroin), "kg/MWh", "", 1.6}}};
  for (const Hankinta& h : kHankinnat)
    for (const clsEnergiamuoto& m : (p.*h.jasen).Energiamuodot)
      t.Lisaa({Teksti(h.nimi), m.Nimi, Raporttiluku{m.OsuusNettotarpeesta, "0.#"},
               m.Hyotysuhde > 0 ? Raporttisolu(Raporttiluku{m.Hyotysuhde, "0.#"})
                                : Raporttisolu(Teksti(tekstit::kRaporttiviiva)),
               h.jasen == &clsPerustiedot::VedenHankinta
                   ? Raporttisolu(Teksti(tekstit::kRaporttiviiva))
                   : Raporttisolu(Raporttiluku{m.IlmastonLampeneminenCO2ekv(), "### ##0.0"})});
  return t;
}

Raporttitaulukko Tariffit(const Raporttiaineisto& aineisto) {
  Raporttitaulukko t{.otsikko = Teksti(tekstit::kRapTariffit),
                     .sarakkeet = {{Teksti(tekstit::kRapTariffi), "", "", 4, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapLaji), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapKeskihinta), "", "", 1.6},
                                   {Teksti(tekstit::kRapYksikko), "", "", 1.3, Summaus::Ei, false},
                                   {Teksti(tekstit::kVuosimaksut), aineisto.Raha(), "", 1.7}}};
  const double kurssi = Asetukset().dblCurrencyConvCoeff;
  for (const clsTariffi& tariffi : aineisto.rakennus.Tariffit)
    t.Lisaa(
        {tariffi.Nimi,
         Teksti(tekstit::kRapTariffilajit.at(static_cast<std::size_t>(std::clamp<int>(tariffi.Tariffityyppi, 0, 2)))),
         Raporttiluku{tariffi.Keskihinta() * kurssi, "### ##0.00"}, aineisto.valuutta + "/MWh",
         Raporttiluku{tariffi.VuosimaksutYht() * kurssi, "### ##0.00"}});
  for (const clsVesitariffi& tariffi : aineisto.rakennus.Vesitariffit)
    t.Lisaa({tariffi.Nimi, Teksti(tekstit::kYhteenvedonVesi), Raporttiluku{tariffi.Keskihinta() * kurssi, "### ##0.00"},
             aineisto.valuutta + "/m³", Raporttiluku{tariffi.VuosimaksutYht() * kurssi, "### ##0.00"}});
  t.huomautus = Teksti(tekstit::kRapTariffitIlmanAlvia);
  return t;
}

}  // namespace

void raportti::Rakenneluettelo(Raportinosa& osa, Raporttiaineisto& aineisto) {
  Raporttitaulukko t{.sarakkeet = {{Teksti(tekstit::kRapRakenne), "", "", 4.4, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapLaji), "", "", 1.9, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapSuunta), "", "", 1.3, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapRajoittuu), "", "", 2, Summaus::Ei, false},
                                   {Teksti(tekstit::kRapPintaAla), "m²", "ala", 1.4, Summaus::Luvut},
                                   {Teksti(tekstit::kUArvo), "W/m²K", "u", 1.3}}};
  for (const clsTila& tila : aineisto.rakennus.Tilat) {
    if (tila.Rakenteet.Count() == 0) continue;
    t.LisaaValiotsikko(tila.TilanNimi);
    for (const clsRakenne& r : tila.Rakenteet) {
      const bool laji =
          r.Rakennetyyppi >= 0 && static_cast<std::size_t>(r.Rakennetyyppi) < tekstit::kRapRakennelajit.size();
      t.Lisaa(
          {r.NaytettavaNimi(), laji ? Teksti(tekstit::kRapRakennelajit[static_cast<std::size_t>(r.Rakennetyyppi)]) : "",
           r.SuuntausStr, r.Rakennetyyppi <= Rakennelaji::Alapohja ? r.TyyppiStr : "",
           Raporttiluku{r.PintaAla, "### ##0.0"}, Raporttiluku{r.U_arvo(), "0.00"}},
          1);
    }
  }
  if (t.OnTyhja()) return osa.Kappale(Teksti(tekstit::kRapEiRakenteita));
  t.LisaaSummat(Teksti(tekstit::kRapYhteensa));
  osa.Taulukko(std::move(t));
}

void raportti::Hinnat(Raportinosa& osa, Raporttiaineisto& aineisto) {
  Raporttitaulukko muodot = Energiamuodot(aineisto.rakennus.Perustiedot), tariffit = Tariffit(aineisto);
  if (muodot.OnTyhja())
    osa.Kappale(Teksti(tekstit::kRapEiHankintaa));
  else
    osa.Taulukko(std::move(muodot));
  if (tariffit.OnTyhja())
    osa.Kappale(Teksti(tekstit::kRapEiTariffeja));
  else
    osa.Taulukko(std::move(tariffit));
  osa.Kappale(Rahaperuste());
}

void raportti::Lahteet(Raportinosa& osa, Raporttiaineisto& aineisto) {
  for (const Tekstinumero lahde : tekstit::kRapMenetelmat) osa.Kappale(Teksti(lahde));
  const clsSaa& saa = aineisto.rakennus.Saa;
  osa.Kappale(Lause(tekstit::kRapSaalause, {aineisto.rakennus.Perustiedot.LammTarveLukuPaikkakunta,
                                            Lukuna(saa.LammMitoitusUlkolampotila, "0.#", "°C")}));
  osa.Kappale(Rahaperuste() + " " + Paastoperuste());
  osa.Kappale(Lause(tekstit::kRapOhjelmaversio, {std::to_string(kVersioMajor) + "." + std::to_string(kVersioMinor) +
                                                 "." + std::to_string(kVersioRevision)}));
}
