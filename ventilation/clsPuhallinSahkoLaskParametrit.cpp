// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsPuhallinSahkoLaskParametrit.h"

#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"

namespace {

using Parametrit = clsPuhallinSahkoLaskParametrit;

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Parametrit::Ilmavirta>("Ilmavirta", Suure("m³/s").Rajat(0).Tavallisesti(0, 50)),
    Arvo<&Parametrit::PaineenKorotus>("PaineenKorotus", Suure("Pa").Rajat(0).Tavallisesti(0, 3000)),
    Arvo<&Parametrit::PuhaltimenHyotysuhde>("PuhaltimenHyotysuhde", Suure("%").Rajat(1, 100)),
    Arvo<&Parametrit::HihnavalityksenHyotysuhde>("HihnavalityksenHyotysuhde", Suure("%").Rajat(1, 100)),
    Arvo<&Parametrit::MoottorinHyotysuhde>("MoottorinHyotysuhde", Suure("%").Rajat(1, 100)),
    Arvo<&Parametrit::TaajuusmuuttajanHyotysuhde>("TaajuusmuuttajanHyotysuhde", Suure("%").Rajat(1, 100)),
};

constexpr double kProsentti = 100, kWperkW = 1000;

}  // namespace

const Luokka clsPuhallinSahkoLaskParametrit::kLuokka{"clsPuhallinSahkoLaskParametrit", kJasenet};

double clsPuhallinSahkoLaskParametrit::Ottoteho() const try {
  const double hyotysuhde = (PuhaltimenHyotysuhde / kProsentti) * (HihnavalityksenHyotysuhde / kProsentti) *
                            (MoottorinHyotysuhde / kProsentti) * (TaajuusmuuttajanHyotysuhde / kProsentti);
  return Jaa(Ilmavirta * PaineenKorotus / kWperkW, hyotysuhde);
} catch (...) {
  NostaVirhe("clsPuhallinSahkoLaskParametrit:Ottoteho Method");
}
