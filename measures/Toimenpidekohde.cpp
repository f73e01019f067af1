// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/Toimenpidekohde.h"

#include <stdexcept>

#include "building/clsTila.h"
#include "consumers/clsSahkonKulutusryhma.h"
#include "consumers/clsVedenKulutusryhma.h"
#include "supply/clsEnergianHankinta.h"
#include "ventilation/clsIVKone.h"

namespace {

template <class T>
std::unique_ptr<Olio> Kopio(const Olio& kohde) {
  return static_cast<const T&>(kohde).Kopioi();
}

struct Kohdelaji {
  const Luokka& luokka;
  std::unique_ptr<Olio> (*kopioi)(const Olio&);
};

}  // namespace

std::unique_ptr<Olio> KopioiToimenpidekohde(const Olio& kohde) {
  static const Kohdelaji kLajit[] = {
      {clsTila::kLuokka, Kopio<clsTila>},
      {clsIVKone::kLuokka, Kopio<clsIVKone>},
      {clsSahkonKulutusryhma::kLuokka, Kopio<clsSahkonKulutusryhma>},
      {clsVedenKulutusryhma::kLuokka, Kopio<clsVedenKulutusryhma>},
      {clsEnergianHankinta::kLuokka, Kopio<clsEnergianHankinta>},
  };
  for (const Kohdelaji& laji : kLajit)
    if (&laji.luokka == &kohde.LuokanTiedot()) return laji.kopioi(kohde);
  throw std::invalid_argument("toimenpide ei voi koskea oliota " + std::string(kohde.LuokanNimi()));
}
