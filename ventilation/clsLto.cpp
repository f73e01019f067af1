// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsLto.h"

#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLto::Tu>("Tu", "°C"),
    Arvo<&clsLto::Tp>("Tp", "°C"),
    Arvo<&clsLto::Tlto>("Tlto", "°C"),
};

constexpr Tulos kTulokset[] = {
    Lukutulos<[](clsLto& l) { return l.LtoHyotysuhde(l.Tp); }>("LtoHyotysuhde", tekstit::kHyotysuhdeMitatuista, ""),
};

}  // namespace

const Luokka clsLto::kLuokka{"clsLto", kJasenet, kTulokset};

double clsLto::LtoHyotysuhde(double poistoilma) try {
  Tp = poistoilma;
  return Tp == Tu ? 0 : Jaa(Tlto - Tu, Tp - Tu);
} catch (...) {
  NostaVirhe("clsLto:LtoHyotysuhde Method");
}
