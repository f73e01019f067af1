// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsPuhallinSahkoLaskParametrit.h"

#include "kernel/Laskenta.h"
#include "kernel/Virhe.h"

namespace {

using Parametrit = clsPuhallinSahkoLaskParametrit;

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&Parametrit::Ilmavirta>("Ilmavirta", "m³/s"),
    Arvo<&Parametrit::PaineenKorotus>("PaineenKorotus", "Pa"),
    Arvo<&Parametrit::PuhaltimenHyotysuhde>("PuhaltimenHyotysuhde", "%"),
    Arvo<&Parametrit::HihnavalityksenHyotysuhde>("HihnavalityksenHyotysuhde", "%"),
    Arvo<&Parametrit::MoottorinHyotysuhde>("MoottorinHyotysuhde", "%"),
    Arvo<&Parametrit::TaajuusmuuttajanHyotysuhde>("TaajuusmuuttajanHyotysuhde", "%"),
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
