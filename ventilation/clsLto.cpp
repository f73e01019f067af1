// SPDX-License-Identifier: GPL-3.0-or-later
#include "ventilation/clsLto.h"

#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "tekstit/tulokset.h"

namespace {

constexpr Jasen kJasenet[] = {
    Arvo<&Olio::InstanssiId>("InstanssiId"),
    Arvo<&clsLto::Tu>("Tu", Suure("°C").Rajat(-100, 100).Tavallisesti(-50, 35)),
    Arvo<&clsLto::Tp>("Tp", Suure("°C").Rajat(-100, 100).Tavallisesti(5, 40)),
    Arvo<&clsLto::Tlto>("Tlto", Suure("°C").Rajat(-100, 100).Tavallisesti(-30, 40)),
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
