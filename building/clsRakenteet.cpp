// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/clsRakenteet.h"

#include "building/Yhteiset.h"
#include "building/clsSaa.h"
#include "kernel/Virhe.h"

namespace {
constexpr Jasen kJasenet[] = {Arvo<&Olio::InstanssiId>("InstanssiId")};
}

const Luokka clsRakenteet::kLuokka{"clsRakenteet", kJasenet};

double clsRakenteet::LampoHaviot(double Tsisa, int kuukausi) const try {
  double summa = 0;
  for (const clsRakenne& rakenne : *this) summa += rakenne.LampoHaviot(Tsisa, kuukausi);
  return summa;
} catch (...) {
  NostaVirhe("clsRakenteet:LampoHaviot Method");
}

Kuukausitaulu clsRakenteet::LampoHaviot(double Tsisa) const try {
  Kuukausitaulu summa{};
  const Kuukausitaulu& ulkolampotilat = VaadiSaa().Keskilampotilat();
  for (const clsRakenne& rakenne : *this) rakenne.LisaaLampoHaviot(Tsisa, ulkolampotilat, summa);
  return summa;
} catch (...) {
  NostaVirhe("clsRakenteet:LampoHaviot Method");
}

double clsRakenteet::Ala(std::int32_t tyyppi) const {
  double ala = 0;
  for (const clsRakenne& rakenne : *this)
    if (rakenne.Rakennetyyppi == tyyppi) ala += rakenne.PintaAla;
  return ala;
}
