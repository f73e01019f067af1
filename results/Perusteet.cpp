// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/Perusteet.h"

#include "kernel/Luvut.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "tekstit/lomakkeet_yhteenveto.h"
#include "tekstit/tulokset.h"
#include "ui/Tekstivarasto.h"

namespace {

std::string Prosentteina(double luku) { return Muotoile(luku, "0.##") + " %"; }

}  // namespace

std::string Alvperuste() {
  const clsLumivirtaAsetukset& a = Asetukset();
  if (!a.KaytaKohtTulostuksissaALVHintoja) return Teksti(tekstit::kKustannuksetIlmanAlvia);
  return Teksti(tekstit::kKustannuksetAlvinKanssa) + " " + Prosentteina(a.dblLampoALV) + ", " +
         Prosentteina(a.dblSahkoALV) + ", " + Prosentteina(a.dblVesiALV) + ".";
}

std::string Valuuttaperuste() {
  const clsLumivirtaAsetukset& a = Asetukset();
  std::string valuutta = Teksti(tekstit::kRahayksikko) + " " + a.strDefaultCurrencyUnit;
  if (a.dblCurrencyConvCoeff != 1)
    valuutta += " (1 € = " + Muotoile(a.dblCurrencyConvCoeff, "0.#####") + " " + a.strDefaultCurrencyUnit + ")";
  return valuutta + ".";
}

std::string Rahaperuste() { return Alvperuste() + " " + Valuuttaperuste(); }

std::string Paastoperuste() { return Teksti(tekstit::kPaastojenPeruste); }
