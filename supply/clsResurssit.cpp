// SPDX-License-Identifier: GPL-3.0-or-later
#include "supply/clsResurssit.h"

#include "kernel/Laskenta.h"
#include "kernel/Luvut.h"
#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsResurssit::Maara>("Maara"),
    Arvo<&clsResurssit::Yksikko>("Yksikko"),
};

}  // namespace

const Luokka clsResurssit::kLuokka{"clsResurssit", kJasenet};

template <class T>
double clsResurssit::Yhteensa(T clsResurssi::*suure) const try {
  double summa = 0;
  for (const clsResurssi& resurssi : *this) summa += double{resurssi.*suure} * resurssi.Maara;
  return Jaa(summa, LueLuku(Maara).value_or(0));
} catch (...) {
  NostaVirhe("clsResurssit:Yhteensa Method");
}
template double clsResurssit::Yhteensa(float clsResurssi::*) const;
template double clsResurssit::Yhteensa(double clsResurssi::*) const;

double clsResurssit::Tilavuus() const try {
  double summa = 0;
  for (const clsResurssi& resurssi : *this)
    if (resurssi.Kuivatiheys != 0) summa += resurssi.Massa * resurssi.Maara / double{resurssi.Kuivatiheys};
  return Aarellinen(summa);
} catch (...) {
  NostaVirhe("clsResurssit:Tilavuus Method");
}
