// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Kuukausitase.h"

#include <numeric>

#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"

namespace {

/// The terms that add up over spaces, by their results of a space; the ratio is taken of the sums.
struct Yhteenlaskettava {
  Tasetermi termi;
  std::string_view tulos;
};
constexpr Yhteenlaskettava kYhteenlaskettavat[] = {
    {Tasetermi::Johtuminen, "JohtumisHaviot"},
    {Tasetermi::Ilmanvaihtokoneet, "KoneidenHaviot"},
    {Tasetermi::Vuotoilma, "Vuotoilma"},
    {Tasetermi::Haviot, "LampoHaviot"},
    {Tasetermi::Sahko, "SahkoKuorma"},
    {Tasetermi::Henkilot, "HenkiloKuorma"},
    {Tasetermi::Aurinko, "AurinkoKuorma"},
    {Tasetermi::IVKuormat, "IVKoneLampoKuorma"},
    {Tasetermi::HyodynnetytKuormat, "HyodynnetytLampoKuormat"},
    {Tasetermi::Tarve, "LampoEnergianTarve"},
};
constexpr Tasetermi kKuormat[] = {Tasetermi::Sahko, Tasetermi::Aurinko, Tasetermi::Henkilot, Tasetermi::IVKuormat};

double Suhde(double hyodynnetyt, double kuormat) { return kuormat == 0 ? 0 : hyodynnetyt / kuormat; }

void LisaaTila(Kuukausitase& tase, clsTila& tila) {
  for (const auto& [termi, nimi] : kYhteenlaskettavat) {
    const Tulos& tulos = clsTila::kLuokka.TulosNimella(nimi);
    for (int m = 0; m < kKuukausia; ++m) tase[termi][static_cast<std::size_t>(m)] += tulos.Arvo({tila}, m);
  }
}

void LaskeKuormat(Kuukausitase& tase) {
  for (std::size_t m = 0; m < kKuukausia; ++m) {
    for (const Tasetermi kuorma : kKuormat) tase[Tasetermi::Kuormat][m] += tase[kuorma][m];
    tase[Tasetermi::Hyvaksikayttoaste][m] = Suhde(tase[Tasetermi::HyodynnetytKuormat][m], tase[Tasetermi::Kuormat][m]);
  }
}

Kuukausitase Tyhja(const clsRakennus& rakennus) {
  Kuukausitase tase;
  tase.paikkakunta = rakennus.Perustiedot.NormVuodenLammTarveLuku;
  tase.vyohyke = rakennus.Saa.NormVuodenLammTarveLuku;
  return tase;
}

}  // namespace

double Kuukausitase::Vuosi(Tasetermi termi) const {
  if (termi == Tasetermi::Hyvaksikayttoaste)
    return Suhde(Vuosi(Tasetermi::HyodynnetytKuormat), Vuosi(Tasetermi::Kuormat));
  const Kuukausitaulu& kuukaudet = (*this)[termi];
  return std::accumulate(kuukaudet.begin(), kuukaudet.end(), 0.0);
}

double Kuukausitase::NormitettuTarve() const {
  constexpr double kkWhperMWh = 1000;
  return vyohyke > 0 ? Vuosi(Tasetermi::Tarve) * (paikkakunta / vyohyke) / kkWhperMWh : 0;
}

Kuukausitase LaskeKuukausitase(clsRakennus& rakennus) try {
  const Tasehaarukka haarukka(rakennus);
  Kuukausitase tase = Tyhja(rakennus);
  for (clsTila& tila : rakennus.Tilat) LisaaTila(tase, tila);
  LaskeKuormat(tase);
  return tase;
} catch (...) {
  NostaVirhe("Kuukausitase:LaskeKuukausitase Function");
}

Kuukausitase LaskeKuukausitase(clsRakennus& rakennus, clsTila& tila) try {
  const Tasehaarukka haarukka(rakennus);
  Kuukausitase tase = Tyhja(rakennus);
  LisaaTila(tase, tila);
  LaskeKuormat(tase);
  return tase;
} catch (...) {
  NostaVirhe("Kuukausitase:LaskeKuukausitase Function");
}
