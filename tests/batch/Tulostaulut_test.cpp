// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>

#include "building/clsTilat.h"
#include "kernel/Tulos.h"
#include "tests/batch/Malliauditoinnit.h"

namespace {

using TulostaulutTesti = MalliauditointiTesti;

TEST_F(TulostaulutTesti, EveryFigureHasANameAndItsOwnKey) {
  int lukuja = 0;
  for (const Luokka* luokka : Luokka::Kaikki()) {
    std::set<std::string_view> avaimet;
    for (const Tulos& tulos : luokka->Tulokset()) {
      const std::string mika = std::string(luokka->Nimi()) + "." + std::string(tulos.nimi);
      EXPECT_TRUE(tulos.laji == Tuloslaji::Upotettu || avaimet.insert(tulos.nimi).second) << mika;
      if (!tulos.OnLuku()) continue;
      ++lukuja;
      EXPECT_FALSE(Teksti(tulos.teksti).starts_with("[String")) << mika;
    }
  }
  EXPECT_GT(lukuja, 70);
}

TEST_F(TulostaulutTesti, VaaraOmistajaTaiNimiOnVirhe) {
  clsTila tila;
  clsRakenne rakenne;
  rakenne.TyyppiID = kMaa;
  const Tulos& haviot = clsRakenne::kLuokka.TulosNimella("LampoHaviot");
  EXPECT_THROW(haviot.Arvo({rakenne}), std::logic_error);
  const Tuloskohde omistaja{tila};
  EXPECT_EQ(haviot.Arvo({rakenne, &omistaja}), 0);
  EXPECT_THROW(clsRakenne::kLuokka.TulosNimella("Haviot"), std::logic_error);
}

}  // namespace
