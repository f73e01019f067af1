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

const clsEnergianHankinta& Hankinta(const clsPerustiedot& tiedot, clsEnergianHankinta::Laji laji) {
  switch (laji) {
    case clsEnergianHankinta::Lampo:
      return tiedot.LammonHankinta;
    case clsEnergianHankinta::Sahko:
      return tiedot.SahkonHankinta;
    default:
      return tiedot.VedenHankinta;
  }
}

Kaytto LaskeKaytto(clsRakennus& r, clsEnergianHankinta::Laji laji) {
  switch (laji) {
    case clsEnergianHankinta::Lampo:
      return {r.VuotuinenBruttoLampoEnergia(),
              r.VuotuinenIVjalkilammitysLampo() + r.VuotuinenLampoEnergianTarveTilat()};
    case clsEnergianHankinta::Sahko:
      return {r.VuotuinenBruttoSahkoEnergia(),
              r.SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus() + r.SahkonKulutusryhmat.LammitysSahkonVuosikulutus()};
    default:
      return {r.VedenKulutusryhmat.VuotuinenVedenKulutus(), 0};
  }
}

}  // namespace

Hankintalaskelma LaskeHankinta(clsRakennus& rakennus, clsEnergianHankinta::Laji laji) try {
  const Tasehaarukka haarukka(rakennus);
  return LaskeHankinta(rakennus.Perustiedot, laji, LaskeKaytto(rakennus, laji));
} catch (...) {
  NostaVirhe("Hankintalaskelma:LaskeHankinta Function");
}

Hankintalaskelma LaskeHankinta(const clsPerustiedot& tiedot, clsEnergianHankinta::Laji laji, const Kaytto& kaytto) try {
  constexpr double kProsentti = 100, kgTonnissa = 1000;
  const clsEnergiamuodot& muodot = Hankinta(tiedot, laji).Energiamuodot;
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
