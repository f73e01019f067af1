// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Kuukausitase.h"

#include <numeric>

#include "building/Tasehaarukka.h"
#include "building/clsRakennus.h"
#include "kernel/Virhe.h"

namespace {

/// The terms that add up over spaces; the ratio is taken of the sums.
struct Laskija {
  Tasetermi termi;
  double (*kWh)(clsTila& tila, int kuukausi);
};
constexpr Laskija kLaskijat[] = {
    {Tasetermi::Johtuminen, [](clsTila& t, int m) { return t.JohtumisHaviot(m); }},
    {Tasetermi::Ilmanvaihtokoneet, [](clsTila& t, int m) { return t.IVHaviotTilassa(m) - t.Vuotoilma(m); }},
    {Tasetermi::Vuotoilma, [](clsTila& t, int m) { return t.Vuotoilma(m); }},
    {Tasetermi::Haviot, [](clsTila& t, int m) { return t.LampoHaviot(m); }},
    {Tasetermi::Sahko, [](clsTila& t, int m) { return t.SahkoKuorma(m); }},
    {Tasetermi::Henkilot, [](clsTila& t, int m) { return t.HenkiloKuorma(m); }},
    {Tasetermi::Aurinko, [](clsTila& t, int m) { return t.AurinkoKuorma(m); }},
    {Tasetermi::IVKuormat, [](clsTila& t, int m) { return t.IVKoneLampoKuorma(m); }},
    {Tasetermi::HyodynnetytKuormat, [](clsTila& t, int m) { return t.HyodynnetytLampoKuormat(m); }},
    {Tasetermi::Tarve, [](clsTila& t, int m) { return t.LampoEnergianTarve(m); }},
};
constexpr Tasetermi kKuormat[] = {Tasetermi::Sahko, Tasetermi::Aurinko, Tasetermi::Henkilot, Tasetermi::IVKuormat};

double Suhde(double hyodynnetyt, double kuormat) { return kuormat == 0 ? 0 : hyodynnetyt / kuormat; }

void LisaaTila(Kuukausitase& tase, clsTila& tila) {
  for (const Laskija& laskija : kLaskijat)
    for (int m = 0; m < kKuukausia; ++m) tase[laskija.termi][static_cast<std::size_t>(m)] += laskija.kWh(tila, m);
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
