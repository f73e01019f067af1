// SPDX-License-Identifier: GPL-3.0-or-later
// lumivirta-suureet: the tables of members and results as rows with tabs between, for the guide's page of quantities.
// Needs no data: it is run while the data is built.
#include <cmath>
#include <iostream>

#include "building/clsRakennus.h"
#include "kernel/Luvut.h"
#include "kernel/Tulos.h"

namespace {

/// A limit as it is shown; a plain number, such as a year, without groups.
std::string Raja(double raja, const Suure& suure) {
  return std::isfinite(raja) ? Muotoile(raja, suure.yksikko.empty() ? "0.##" : "### ##0.##") : "";
}

void TulostaJasen(const Luokka& luokka, const Jasen& jasen) {
  const Suure& s = jasen.suure;
  std::cout << "jasen\t" << luokka.Nimi() << '\t' << jasen.nimi << '\t' << s.yksikko << '\t' << Raja(s.ala, s) << '\t'
            << Raja(s.yla, s) << '\t' << Raja(s.tavallinenAla, s) << '\t' << Raja(s.tavallinenYla, s) << '\n';
}

const char* Aika(const Tulos& tulos) {
  return tulos.laji == Tuloslaji::Kuukausi ? "kuukausi" : tulos.laji == Tuloslaji::Vuosi ? "vuosi" : "";
}

}  // namespace

int main() {
  for (const Luokka* luokka : Luokka::Kaikki()) {
    for (const Jasen& jasen : luokka->Jasenet()) TulostaJasen(*luokka, jasen);
    for (const Tulos& tulos : luokka->Tulokset())
      if (tulos.OnLuku())
        std::cout << "tulos\t" << luokka->Nimi() << '\t' << tulos.nimi << '\t' << tulos.yksikko << '\t' << tulos.teksti
                  << '\t' << Aika(tulos) << '\n';
  }
  return clsRakennus::kLuokka.Jasenet().empty();  // the building links all classes
}
