// SPDX-License-Identifier: GPL-3.0-or-later
#include <set>

#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "results/clsLammKulutuksenVakioOsuus.h"
#include "results/clsToteutuneetKulutukset.h"
#include "settings/clsKatselmoijienTiedot.h"
#include "settings/clsProjektiAsetukset.h"
#include "supply/clsEnergianHankinta.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/measures/Asetuskansio.h"
#include "ventilation/clsIVKoneet.h"

namespace {

std::string Tekstina(const Olio& olio, const Jasen& jasen) {
  ArvoNakyma arvo;
  jasen.nayta(olio, arvo);
  return jasen.laji == Laji::Teksti ? std::string(arvo.Teksti()) : std::to_string(arvo.Lukuna());
}

template <class C>
class Jasentaulu : public Asetuskansio {};

using Luokat =
    testing::Types<clsToteutunutKulutus, clsToteutuneetKulutukset, clsLammKulutuksenVakioOsuus, clsProjektiAsetukset,
                   clsKatselmoijanTiedot, clsKatselmoijienTiedot, clsSahkonKulutusryhma, clsSahkoListaItem,
                   clsSahkonKulutusryhmat, clsVedenTiedot, clsVedenKulutusryhma, clsVesiListaItem,
                   clsVedenKulutusryhmat, clsResurssi, clsResurssit, clsEnergiamuoto, clsEnergianHankinta,
                   clsEnergiamaksu, clsTariffi, clsVesitariffi, clsTariffiVertailuTapaus, clsSahkoTariffienVertailu,
                   clsIVKone, clsMuuttunutAttribuutti, clsMuuttuneetAttribuutit, clsSaastotoimenpide,
                   clsSaastoToimenpideListaItem, clsSaastotoimenpiteet, clsValittuToimenpide, clsValitutToimenpiteet,
                   clsToimenpiteidenJarjestelija>;
TYPED_TEST_SUITE(Jasentaulu, Luokat);

/// Two rows of a table that show one member by mistake would give one value.
TYPED_TEST(Jasentaulu, EveryValueSetByNameGoesToItsMember) {
  TypeParam olio;
  int arvo = 1000;
  for (const Jasen& jasen : TypeParam::kLuokka.Jasenet()) {
    if (!jasen.aseta || jasen.laji == Laji::Totuus) continue;
    AsetaJasen(olio, jasen.nimi, std::to_string(++arvo));
  }
  std::set<std::string> luetut;
  for (const Jasen& jasen : TypeParam::kLuokka.Jasenet()) {
    if (!jasen.aseta || jasen.laji == Laji::Totuus) continue;
    EXPECT_TRUE(luetut.insert(Tekstina(olio, jasen)).second) << jasen.nimi;
  }
}

TYPED_TEST(Jasentaulu, ATruthValueChangesOnlyInItsMember) {
  for (const Jasen& jasen : TypeParam::kLuokka.Jasenet()) {
    if (jasen.laji != Laji::Totuus) continue;
    TypeParam olio;
    const bool ennen = std::get<bool>(HaeJasen(olio, jasen));
    AsetaJasen(olio, jasen.nimi, !ennen);
    EXPECT_NE(std::get<bool>(HaeJasen(olio, jasen)), ennen) << jasen.nimi;
  }
}

}  // namespace
