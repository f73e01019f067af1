// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Hankintalaskelma.h"

#include "building/Tasehaarukka.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"

namespace {

struct Kaytto {
  const clsEnergianHankinta& hankinta;
  double verkko;  ///< net demand that the conversion losses go by, MWh
  double brutto;
};

Kaytto LaskeKaytto(clsRakennus& r, clsEnergianHankinta::Laji laji) {
  const clsPerustiedot& tiedot = r.Perustiedot;
  switch (laji) {
    case clsEnergianHankinta::Lampo:
      return {tiedot.LammonHankinta, r.VuotuinenIVjalkilammitysLampo() + r.VuotuinenLampoEnergianTarveTilat(),
              r.VuotuinenBruttoLampoEnergia()};
    case clsEnergianHankinta::Sahko:
      return {tiedot.SahkonHankinta,
              r.SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus() + r.SahkonKulutusryhmat.LammitysSahkonVuosikulutus(),
              r.VuotuinenBruttoSahkoEnergia()};
    case clsEnergianHankinta::Vesi:
      break;
  }
  return {tiedot.VedenHankinta, 0, r.VedenKulutusryhmat.VuotuinenVedenKulutus()};
}

}  // namespace

Hankintalaskelma LaskeHankinta(clsRakennus& rakennus, clsEnergianHankinta::Laji laji) try {
  constexpr double kProsentti = 100, kgTonnissa = 1000;
  const Tasehaarukka haarukka(rakennus);
  const Kaytto kaytto = LaskeKaytto(rakennus, laji);
  const clsEnergiamuodot& muodot = kaytto.hankinta.Energiamuodot;
  Hankintalaskelma laskelma{.brutto = kaytto.brutto,
                            .kustannus = Aarellinen(muodot.Keskihinta() * kaytto.brutto + muodot.Vuosimaksut())};
  const double haviotta = kaytto.brutto - muodot.Konversiohaviot(kaytto.verkko);
  for (const clsEnergiamuoto& muoto : muodot) {
    const double ostettu = muoto.OsuusNettotarpeesta / kProsentti * haviotta + muoto.Konversiohavio(kaytto.verkko);
    const double kerroin = laji == clsEnergianHankinta::Vesi ? 0 : muoto.IlmastonLampeneminenCO2ekv();
    laskelma.muodot.push_back({&muoto, ostettu, Aarellinen(kerroin * ostettu / kgTonnissa)});
    laskelma.paasto += laskelma.muodot.back().paasto;
  }
  return laskelma;
} catch (...) {
  NostaVirhe("Hankintalaskelma:LaskeHankinta Function");
}
