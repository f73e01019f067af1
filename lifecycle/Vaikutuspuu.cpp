// SPDX-License-Identifier: GPL-3.0-or-later
#include "lifecycle/Vaikutuspuu.h"

#include <algorithm>
#include <utility>

#include "building/Hankintalaskelma.h"
#include "building/Tasehaarukka.h"
#include "building/clsRakenne.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"

namespace {

using Solmu = Vaikutuspuu::Solmu;

/// The value of a form of energy per MWh bought, in the order of the kinds: MJ and kg.
constexpr double (clsEnergiamuoto::*kMuodonArvot[])() const = {&clsEnergiamuoto::UusiutumatonEnergia,
                                                               &clsEnergiamuoto::UusiutuvaEnergia,
                                                               &clsEnergiamuoto::UusiutumattomatRaakaaineet,
                                                               &clsEnergiamuoto::UusiutuvatRaakaaineet,
                                                               &clsEnergiamuoto::IlmastonLampeneminenCO2ekv,
                                                               &clsEnergiamuoto::VarastoitunutCO2,
                                                               &clsEnergiamuoto::HappamoituminenSOxekv,
                                                               &clsEnergiamuoto::OksidanttienMuodostus,
                                                               &clsEnergiamuoto::Particle};
static_assert(std::size(kMuodonArvot) == kVaikutuslajit.size());

void Lisaa(std::optional<double>& summa, std::optional<double> arvo) {
  if (arvo) summa = summa.value_or(0) + *arvo;
}
void Lisaa(Vaikutusarvot& summa, const Vaikutusarvot& arvot) {
  for (std::size_t i = 0; i < arvot.size(); ++i) Lisaa(summa[i], arvot[i]);
}

Ostovaikutus LaskeOsto(clsRakennus& rakennus, clsEnergianHankinta::Laji laji) {
  Ostovaikutus osto;
  for (const Hankintalaskelma::Muoto& muoto : LaskeHankinta(rakennus, laji).muodot) {
    osto.ostettu += muoto.ostettu;
    for (std::size_t i = 0; i < osto.vuodessa.size(); ++i) {
      const auto arvo = kMuodonArvot[i];
      Lisaa(osto.vuodessa[i], (muoto.muoto->*arvo)() * muoto.ostettu);
    }
  }
  return osto;
}

/// Materials of one structure. The additional material takes its share of a layer.
Materiaalisumma Rakenteen(const clsRakenne& rakenne, const Materiaalivaikutukset& vaikutukset) {
  Materiaalisumma summa;
  if (!rakenne.RakenneRatkaisu || rakenne.RakenneRatkaisu->Kerrokset.Count() == 0) {
    summa.alaIlmanKerroksia = rakenne.PintaAla;
    return summa;
  }
  for (const clsRakennekerros& kerros : rakenne.RakenneRatkaisu->Kerrokset) {
    const auto massat = kerros.Massat();
    summa.Lisaa(kerros.Materiaali, massat.paa * rakenne.PintaAla, vaikutukset);
    summa.Lisaa(kerros.Lisamateriaali, massat.lisa * rakenne.PintaAla, vaikutukset);
  }
  return summa;
}

}  // namespace

std::optional<double> Materiaalisumma::OsuusIlmanTietoja() const {
  if (massa <= 0) return std::nullopt;
  return massaIlmanTietoja / massa;
}

void Materiaalisumma::Lisaa(const Materiaali& materiaali, double lisays, const Materiaalivaikutukset& vaikutukset) {
  if (lisays <= 0) return;
  massa += lisays;
  const Materiaalivaikutus* vaikutus = vaikutukset.Etsi(materiaali);
  if (!vaikutus) massaIlmanTietoja += lisays;
  for (std::size_t i = 0; i < arvot.size(); ++i)
    if (vaikutus && vaikutus->kilolle[i])
      ::Lisaa(arvot[i], *vaikutus->kilolle[i] * lisays);
    else
      massaIlmanArvoa[i] += lisays;
  LisaaAine({materiaali.Nimi, lisays});
}

void Materiaalisumma::Lisaa(const Materiaalisumma& toinen) {
  ::Lisaa(arvot, toinen.arvot);
  massa += toinen.massa;
  massaIlmanTietoja += toinen.massaIlmanTietoja;
  alaIlmanKerroksia += toinen.alaIlmanKerroksia;
  for (std::size_t i = 0; i < massaIlmanArvoa.size(); ++i) massaIlmanArvoa[i] += toinen.massaIlmanArvoa[i];
  for (const Raakaaine& aine : toinen.aineet) LisaaAine(aine);
}

void Materiaalisumma::LisaaAine(const Raakaaine& aine) {
  const auto sama = std::ranges::find(aineet, aine.nimi, &Raakaaine::nimi);
  if (sama == aineet.end())
    aineet.push_back(aine);
  else
    sama->massa += aine.massa;
}

Vaikutuspuu::Vaikutuspuu(clsRakennus& rakennus, const Materiaalivaikutukset& vaikutukset,
                         std::optional<int> pitoaika) try
    : pitoaika_(pitoaika) {
  for (Hierarkiasolmu& paikka : TeeHierarkia(rakennus, Hierarkialaji::Ymparisto)) {
    Solmu& solmu = solmut_.emplace_back();
    static_cast<Hierarkiasolmu&>(solmu) = std::move(paikka);
    for (const clsRakenne* rakenne : solmu.rakenteet) solmu.materiaalit.Lisaa(Rakenteen(*rakenne, vaikutukset));
  }
  const Tasehaarukka haarukka(rakennus);
  const auto ostosolmu = [this](std::string_view avain) -> Solmu& {
    return const_cast<Solmu&>(*Etsi(Tunniste(avain)));
  };
  ostosolmu("Lammm").osto = LaskeOsto(rakennus, clsEnergianHankinta::Lampo);
  ostosolmu("sah").osto = LaskeOsto(rakennus, clsEnergianHankinta::Sahko);
  LaskeYlos();
} catch (...) {
  NostaVirhe("Vaikutuspuu:Vaikutuspuu Constructor");
}

void Vaikutuspuu::LaskeYlos() {
  for (auto solmu = solmut_.rbegin(); solmu != solmut_.rend(); ++solmu) {
    if (solmu->vanhempi < 0) continue;
    Solmu& ylempi = solmut_[solmu->vanhempi];
    ylempi.materiaalit.Lisaa(solmu->materiaalit);
    if (!solmu->osto) continue;
    if (!ylempi.osto) ylempi.osto.emplace();
    ylempi.osto->ostettu += solmu->osto->ostettu;
    ::Lisaa(ylempi.osto->vuodessa, solmu->osto->vuodessa);
  }
}

const Vaikutuspuu::Solmu* Vaikutuspuu::Etsi(const Tunniste& avain) const {
  const auto solmu = std::ranges::find(solmut_, avain, &Solmu::avain);
  return solmu == solmut_.end() ? nullptr : &*solmu;
}

Vaikutusarvot Vaikutuspuu::OstoPitoaikana(const Solmu& solmu) const {
  Vaikutusarvot arvot{};
  if (!solmu.osto || !pitoaika_) return arvot;
  for (std::size_t i = 0; i < arvot.size(); ++i)
    if (const auto& vuodessa = solmu.osto->vuodessa[i]) arvot[i] = *vuodessa * *pitoaika_;
  return arvot;
}

Vaikutusarvot Vaikutuspuu::Yhteensa(const Solmu& solmu) const {
  if (solmu.osto && !pitoaika_) return {};
  Vaikutusarvot arvot = solmu.materiaalit.arvot;
  ::Lisaa(arvot, OstoPitoaikana(solmu));
  return arvot;
}
