// SPDX-License-Identifier: GPL-3.0-or-later
// What is found in the sample audits: each finding is deserved.
#include "checks/Tarkistukset.h"

#include <map>
#include <set>

#include "tests/batch/Malliauditoinnit.h"

namespace {

using TarkistuksetTesti = MalliauditointiTesti;

TEST_F(TarkistuksetTesti, TheSamplesHaveTheFindingsThatTheyDeserve) {
  const std::map<std::string, std::set<std::string>> odotetut{
      // degree days of an invented year, 10 % above Helsinki's
      {"K02 Kerrostalo 1972", {"TarvelukuPoikkeaa"}},
      // an oil boiler's losses on top of a net that explains the measured; a small house of low use
      {"K03 Omakotitalo 1985", {"LampoPoikkeaa", "OminaislampoPoikkeaa"}},
      // what the guide tells to look into: all electricity counts as gain
      {"K04 Toimistotalo 1990", {"LampoPoikkeaa"}},
      // boilers of chips and oil likewise
      {"K08 Terveyskeskus 1982", {"LampoPoikkeaa"}},
      // little electricity in an old town hall; its small fan beside natural ventilation
      {"K09 Kunnantalo 1935", {"OminaissahkoPoikkeaa", "PainovoimainenJaKone"}},
      {"K10 Rivitalo 1995", {"OminaislampoPoikkeaa"}},
  };
  for (const auto& tiedosto : Tiedostot()) {
    const auto rakennus = Avaa(tiedosto);
    const auto ennen = rakennus->Sormenjalki();
    std::set<std::string> nimet;
    for (const Havainto& havainto : Tarkista(*rakennus)) {
      nimet.insert(std::string(havainto.nimi));
      EXPECT_TRUE(rakennus->HaeInstanssi(havainto.kohde.luokka, havainto.kohde.instanssiId).olio) << havainto.nimi;
    }
    const auto odotettu = odotetut.find(tiedosto.stem().string());
    EXPECT_EQ(nimet, odotettu == odotetut.end() ? std::set<std::string>{} : odotettu->second) << tiedosto;
    EXPECT_EQ(rakennus->Sormenjalki(), ennen) << tiedosto;
  }
}

}  // namespace
