// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpiteet.h"

#include "kernel/Virhe.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/measures/Asetuskansio.h"

namespace {

using clsSaastotoimenpiteetTesti = Asetuskansio;

TEST_F(clsSaastotoimenpiteetTesti, MeasuresAreFoundByTheIdentityOfTheirObject) {
  clsSaastotoimenpiteet toimenpiteet;
  const clsSahkonKulutusryhma kohde, toinen;
  for (const char* avain : {"a", "b", "c"}) toimenpiteet.Add(avain);
  toimenpiteet.Item("a").MuuttuneetAttribuutit.LiittyyInstanssiin = kohde.InstanssiId;
  toimenpiteet.Item("c").MuuttuneetAttribuutit.LiittyyInstanssiin = kohde.InstanssiId;
  EXPECT_EQ(toimenpiteet.LiittyykoToimenpidetta(kohde.InstanssiId), (std::vector<Tunniste>{"a", "c"}));
  EXPECT_TRUE(toimenpiteet.LiittyykoToimenpidetta(toinen.InstanssiId).empty());
}

TEST(clsValitutToimenpiteet, ARowIsAddedBehindTheGivenOneOrLast) {
  clsToimenpiteidenJarjestelija jarjestelija;
  clsValitutToimenpiteet& rivit = jarjestelija.ValitutToimenpiteet;
  rivit.Add("yhteensä", "");
  rivit.Add("a", "");
  rivit.Add("b", "yhteensä");
  rivit.Add("c", "poistettu");
  std::vector<Tunniste> jarjestys;
  for (const clsValittuToimenpide& rivi : rivit) jarjestys.push_back(rivi.sKey);
  EXPECT_EQ(jarjestys, (std::vector<Tunniste>{"yhteensä", "b", "a", "c"}));
  EXPECT_EQ(rivit.Item("b").JalkeensKey, Tunniste("yhteensä"));
  EXPECT_THROW(rivit.Add("a", "yhteensä"), Virhe);
}

}  // namespace
