// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsLto.h"

#include "kernel/Virhe.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLto::Tu>("Tu", "°C"),
    Arvo<&clsLto::Tp>("Tp", "°C"),
    Arvo<&clsLto::Tlto>("Tlto", "°C"),
};

}  // namespace

const Luokka clsLto::kLuokka{"clsLto", kJasenet};

double clsLto::LtoHyotysuhde(double poistoilma) try {
  Tp = poistoilma;
  return Tp == Tu ? 0 : Jaa(Tlto - Tu, Tp - Tu);
} catch (...) {
  NostaVirhe("clsLto:LtoHyotysuhde Method");
}
