// SPDX-License-Identifier: GPL-3.0-or-later
#include "consumers/clsSahkonKulutusryhmat.h"

#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
};

constexpr double kkWhPerMWh = 1e3;

double TilojenLammityssahko(clsTilat& tilat) {
  double summa = 0;
  for (clsTila& tila : tilat)
    if (tila.Sahkolammitys) summa += tila.VuotuinenLampoEnergianTarve() + tila.VuotuisetSaatohaviot();
  return summa;
}

double KoneidenLammityssahko(const clsIVKoneet& koneet) {
  double summa = 0;
  for (const clsIVKone& kone : koneet)
    if (kone.TuloilmanLammitysSahkoPatterilla) summa += kone.VuotuinenIVjalkilammitysLampo();
  return summa;
}

}  // namespace

const Luokka clsSahkonKulutusryhmat::kLuokka{"clsSahkonKulutusryhmat", kJasenet};

clsSahkoListaItem& clsSahkonKulutusryhmat::AddListaItem(const Tunniste& sKey, const Tunniste& Parent,
                                                        std::int16_t ItemTyyppi, std::string NimiTeksti,
                                                        double Vuosikulutus, bool loppuun) try {
  clsSahkoListaItem& rivi = LisaaRivi(sKey, Parent, ItemTyyppi, std::move(NimiTeksti), loppuun);
  rivi.Vuosikulutus = Vuosikulutus;
  return rivi;
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:AddListaItem Method");
}

double clsSahkonKulutusryhmat::Vuosikulutus() const try {
  return Aarellinen(SahkoLaitteidenVuosikulutus() + LammitysSahkonVuosikulutus());
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:Vuosikulutus Method");
}

double clsSahkonKulutusryhmat::SahkoLaitteidenVuosikulutus() const try {
  double summa = 0;
  for (const clsSahkonKulutusryhma& ryhma : *this) summa += ryhma.Vuosikulutus();
  return Aarellinen(summa + VuotuinenPuhallinSahko());
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:SahkoLaitteidenVuosikulutus Method");
}

double clsSahkonKulutusryhmat::VuotuinenPuhallinSahko() const try {
  const clsRakennus* rakennus = koti_.Etsi();
  return rakennus ? rakennus->IVKoneet.VuotuinenPuhallinSahko() : 0;
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:VuotuinenPuhallinSahko Method");
}

double clsSahkonKulutusryhmat::LammitysSahkonVuosikulutus() const try {
  clsRakennus& rakennus = koti_.Rakennus();
  return Aarellinen(TilojenLammityssahko(rakennus.Tilat) + KoneidenLammityssahko(rakennus.IVKoneet) +
                    rakennus.VedenKulutusryhmat.VuotuinenLkvSahkoLammityksenEnergia() +
                    rakennus.VedenKulutusryhmat.VuotuinenProsessivedenSahkoLammityksenEnergia());
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:LammitysSahkonVuosikulutus Method");
}

double clsSahkonKulutusryhmat::TilanSahkoKuorma(const Tunniste& sKey) const try {
  double summa = 0;
  for (const clsSahkonKulutusryhma& ryhma : *this)
    if (ryhma.LiittyyTilaansKey == sKey && ryhma.EnergiaHyodynnetaanLammityksessa)
      summa += ryhma.Vuosikulutus() * kkWhPerMWh;
  return Aarellinen(summa / kKuukausia);
} catch (...) {
  NostaVirhe("clsSahkonKulutusryhmat:TilanSahkoKuorma Method");
}
