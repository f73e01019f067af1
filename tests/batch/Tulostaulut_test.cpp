// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <set>

#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
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

TEST_F(TulostaulutTesti, TreesOfConsumersAreReadWithoutWritingThem) {
  const auto rakennus = Avaa(Tiedostot().front());
  for (clsSahkoListaItem& rivi : rakennus->SahkonKulutusryhmat.ListaItems()) rivi.Vuosikulutus = -1;
  rakennus->VedenKulutusryhmat.RemoveListaItem("sKeyProsessivesi");
  const auto ennen = rakennus->Sormenjalki();
  const auto juuri = [](const Tulos& tulos, Olio& ryhmat, const char* avain) {
    double summa = NAN;
    tulos.kartta({ryhmat}, [&](std::string_view rivi, double arvo) {
      if (rivi == avain) summa = arvo;
    });
    return summa;
  };
  clsSahkonKulutusryhmat& sahko = rakennus->SahkonKulutusryhmat;
  EXPECT_NEAR(juuri(clsSahkonKulutusryhmat::kLuokka.TulosNimella("Puu"), sahko, "sKeySahkoYhteensa"),
              sahko.Vuosikulutus(), 1e-9);
  clsVedenKulutusryhmat& vesi = rakennus->VedenKulutusryhmat;
  const double summat[] = {vesi.VuotuinenLkvLammityksenEnergia(), vesi.VuotuinenVedenKulutus(),
                           vesi.VuotuinenLkvKulutus()};
  const auto puut = clsVedenKulutusryhmat::kLuokka.TulosNimella("Puu").ryhma;
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(juuri(puut[i], vesi, "sKeyVesiYhteensa"), summat[i], 1e-9);
  EXPECT_EQ(rakennus->Sormenjalki(), ennen);
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
