// SPDX-License-Identifier: GPL-3.0-or-later
// Consumer groups of electricity and water.
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "checks/Tarkistusajo.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "tekstit/tarkistukset.h"

namespace {

Havainnonkohde Ryhmakohde(const clsSahkonKulutusryhma& ryhma) { return Kohde(ryhma, {ryhma.KulutusRyhma}); }
Havainnonkohde Ryhmakohde(const clsVedenKulutusryhma& ryhma) { return Kohde(ryhma, {ryhma.KulutusRyhma}); }

constexpr double kEiPuhaltimia = 0;

void SahkoryhmatPuuttuvat(Tarkistusajo& ajo) {
  if (ajo.rakennus.SahkonKulutusryhmat.SahkoLaitteidenVuosikulutus(kEiPuhaltimia) <= 0) ajo.LoytyiRakennuksesta();
}

void VesiryhmatPuuttuvat(Tarkistusajo& ajo) {
  if (ajo.rakennus.VedenKulutusryhmat.VuotuinenVedenKulutus() <= 0) ajo.LoytyiRakennuksesta();
}

void SahkoryhmaNolla(Tarkistusajo& ajo) {
  for (const clsSahkonKulutusryhma& ryhma : ajo.rakennus.SahkonKulutusryhmat)
    if (ryhma.Vuosikulutus() <= 0) ajo.Loytyi(Ryhmakohde(ryhma));
}

void VesiryhmaNolla(Tarkistusajo& ajo) {
  for (const clsVedenKulutusryhma& ryhma : ajo.rakennus.VedenKulutusryhmat)
    if (ryhma.VedenKulutus() <= 0) ajo.Loytyi(Ryhmakohde(ryhma));
}

void RyhmanTilaPuuttuu(Tarkistusajo& ajo) {
  for (const clsSahkonKulutusryhma& ryhma : ajo.rakennus.SahkonKulutusryhmat)
    if (!ryhma.LiittyyTilaansKey.Tyhja() && !ajo.rakennus.Tilat.Etsi(ryhma.LiittyyTilaansKey))
      ajo.Loytyi(Ryhmakohde(ryhma), {ryhma.LiittyyTilaanStr});
}

void LampimanOsuusMahdoton(Tarkistusajo& ajo) {
  for (const clsVedenKulutusryhma& ryhma : ajo.rakennus.VedenKulutusryhmat)
    if (ryhma.LampimanVedenOsuus < 0 || ryhma.LampimanVedenOsuus > 100)
      ajo.Loytyi(Ryhmakohde(ryhma), {Muotoile(ryhma.LampimanVedenOsuus, "0.#")});
}

}  // namespace

std::span<const Tarkistus> Kulutustarkistukset() {
  using enum Tarkistustaso;
  static constexpr std::string_view kSahko = "frmTarkennettuLaiteLaskenta", kVesi = "frmTarkennettuVesiLaskenta";
  static constexpr Tarkistus kRivit[] = {
      {"SahkoryhmatPuuttuvat",
       Puute,
       tekstit::kSahkoryhmatPuuttuvat,
       tekstit::kSahkoryhmatPuuttuvatTeksti,
       {"frmSahkoLaitteet", "cmdLisaaLuettelosta"},
       SahkoryhmatPuuttuvat},
      {"SahkoryhmaNolla",
       Muistutus,
       tekstit::kSahkoryhmaNolla,
       tekstit::kSahkoryhmaNollaTeksti,
       {kSahko, "txtLaskentaYksikoidenMaara"},
       SahkoryhmaNolla},
      {"RyhmanTilaPuuttuu",
       Ristiriita,
       tekstit::kRyhmanTilaPuuttuu,
       tekstit::kRyhmanTilaPuuttuuTeksti,
       {kSahko, "cmbLiittyyTilaan"},
       RyhmanTilaPuuttuu},
      {"VesiryhmatPuuttuvat",
       Puute,
       tekstit::kVesiryhmatPuuttuvat,
       tekstit::kVesiryhmatPuuttuvatTeksti,
       {"frmVedenKulutus", "cmdLisaaLuettelosta"},
       VesiryhmatPuuttuvat},
      {"VesiryhmaNolla",
       Muistutus,
       tekstit::kVesiryhmaNolla,
       tekstit::kVesiryhmaNollaTeksti,
       {kVesi, "txtLaskentaYksikoidenMaara"},
       VesiryhmaNolla},
      {"LampimanOsuusMahdoton",
       Ristiriita,
       tekstit::kLampimanOsuusMahdoton,
       tekstit::kLampimanOsuusMahdotonTeksti,
       {kVesi, "txtVedenKayttoLampotila"},
       LampimanOsuusMahdoton},
  };
  return kRivit;
}
