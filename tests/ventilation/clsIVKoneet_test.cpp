// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ventilation/Koekone.h"

namespace {

using clsIVKoneetTesti = KoneTesti;

TEST_F(clsIVKoneetTesti, FlowsAreThoseOfMachinesThatHaveTheFan) {
  clsIVKoneet& koneet = rakennus->IVKoneet;
  EXPECT_EQ(koneet.Tuloilmavirtojen11Summa(), 0);
  double virta = 1;
  for (const auto periaate :
       {clsIVKone::Tuloilmakone, clsIVKone::TuloilmakonePlusLTO, clsIVKone::Poistoilmakone, clsIVKone::TuloPoisto}) {
    clsIVKone& kone = koneet.Add();
    kone.IVPeriaateID = periaate;
    kone.TuloIlmavirta11Teho = virta;
    kone.PoistoIlmavirta11Teho = 10 * virta;
    virta *= 2;
  }
  EXPECT_EQ(koneet.Tuloilmavirtojen11Summa(), 1 + 2 + 8);
  EXPECT_EQ(koneet.Poistoilmavirtojen11Summa(), 10 * (2 + 4 + 8));
}

TEST_F(clsIVKoneetTesti, MachinesAreJoinedToSpacesByKey) {
  clsTila& tila = LisaaTila();
  const Tunniste avaimet[] = {tila.sKey, "", "poistettu", tila.sKey};
  for (const Tunniste& avain : avaimet) LisaaKone(avain);
  const clsIVKoneet& koneet = rakennus->IVKoneet;
  const std::vector liittyvat{&koneet.Item(1), &koneet.Item(4)};
  EXPECT_EQ(koneet.ListaaTilaanLiittyvatIVKoneet(tila.sKey), liittyvat);
  EXPECT_EQ(koneet.ListaaTiloittain().at(tila.sKey), liittyvat);
  EXPECT_TRUE(koneet.ListaaTilaanLiittyvatIVKoneet({}).empty());
  EXPECT_EQ(koneet.ListaaTiloittain().count({}), 0u);
  EXPECT_EQ(koneet.ListaaTilaanLiittymattomatIVKoneet(), (std::vector{&koneet.Item(2), &koneet.Item(3)}));
}

TEST_F(clsIVKoneetTesti, YearlySumKeepsItsValueWhileTheFlagIsSet) {
  clsIVKone& kone = LisaaKone();
  Kayta(kone, {{7, 0, 0}});
  clsIVKoneet& koneet = rakennus->IVKoneet;
  const double ennen = koneet.VuotuinenIVjalkilammitysLampo();
  EXPECT_EQ(ennen, kone.VuotuinenIVjalkilammitysLampo());
  koneet.VuotuinenIVjalkilammitysLampoUpToDate = true;
  kone.TuloIlmavirta11Teho = 2;
  EXPECT_EQ(koneet.VuotuinenIVjalkilammitysLampo(), ennen);
  koneet.VuotuinenIVjalkilammitysLampoUpToDate = false;
  EXPECT_DOUBLE_EQ(koneet.VuotuinenIVjalkilammitysLampo(), 2 * ennen);
}

}  // namespace
