// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Rekisteri.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tuki/Koepuu.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Rekisteri : public testing::Test {
 protected:
  Rekisteri() {
    koe::Tayta(puu);
    tyypit.AlustaTyyppitiedot(hakemisto.Malli());
  }

  koe::Hakemisto hakemisto;
  koe::Rakennus puu;
  clsTyyppiTiedot tyypit;
};

using Vertailu = Rekisteri;

}  // namespace

TEST_F(Rekisteri, ATemplateColumnIsAnAttributeIfTheClassHasIt) {
  const std::string toinen = (hakemisto / "toinen.tmp").string();
  koe::TeeMalli(toinen, "ALTER TABLE KoeTila ADD Uusi TEXT; ALTER TABLE KoeTila DROP COLUMN Yla");
  clsTyyppiTiedot uudet;
  uudet.AlustaTyyppitiedot(toinen);
  EXPECT_THAT(uudet.Item("koetila").clsAttribuutit,
              ElementsAre("sKey", "TilanNimi", "Lampotila", "Sivu", "Seinat", "Uusi"));
  EXPECT_EQ(uudet.Item("koetila").Jasenet().size(), 5u);
}

TEST_F(Rekisteri, EveryObjectIsFoundByItsIdentity) {
  EXPECT_EQ(PaivitaIdLista(puu, tyypit), 0);
  koe::Tila& tila = puu.TilatKokoelma.Item(3);
  EXPECT_EQ(tyypit.Nimet.Etsi("KoeTila")->Item(tila.InstanssiId), &tila);
  EXPECT_EQ(tyypit.Nimet.Etsi("KoeTila")->Count(), 5);
  EXPECT_EQ(tyypit.Nimet.Etsi("KoeVarjo")->Count(), 15);  // two to a space, one to each of the five solutions
  EXPECT_EQ(tyypit.Nimet.Etsi("KoeTila")->Item("KoeTila 1"), nullptr);
  tyypit.Nimet.TyhjennaIdListat();
  EXPECT_EQ(tyypit.Nimet.Count(), 11);
  EXPECT_EQ(tyypit.Nimet.Etsi("KoeTila")->Count(), 0);
}

TEST_F(Rekisteri, TheSecondOfOneIdentityGetsANewOne) {
  const Tunniste tunniste = puu.TilatKokoelma.Item(1).InstanssiId;
  puu.TilatKokoelma.Item(4).InstanssiId = tunniste;
  EXPECT_EQ(PaivitaIdLista(puu, tyypit), 1);
  EXPECT_EQ(puu.TilatKokoelma.Item(1).InstanssiId, tunniste);
  EXPECT_NE(puu.TilatKokoelma.Item(4).InstanssiId, tunniste);
  EXPECT_EQ(tyypit.Nimet.Etsi("KoeTila")->Count(), 5);
}

TEST_F(Vertailu, AChangeTellsValuesBeforeAndAfter) {
  const auto ennen = puu.Kopioi();
  puu.KohteenNimi = "uusi";
  puu.TilatKokoelma.Item(2).Lampotila += 1;
  Muutoslista lista;
  VertaileOliot(puu, *ennen, lista, tyypit);
  ASSERT_EQ(lista.muutokset.size(), 2u);
  EXPECT_EQ(lista.muutokset[0].arvoEnnenStr, ennen->KohteenNimi);
  EXPECT_EQ(lista.muutokset[0].arvoJalkeenStr, "uusi");
  EXPECT_EQ(lista.muutokset[0].tietoTyyppi, Laji::Teksti);
  const Muutos& lampotila = lista.muutokset[1];
  EXPECT_EQ(lampotila.attribuutinNimi, "Lampotila");
  EXPECT_EQ(lampotila.clsTypeName, "KoeTila");
  EXPECT_EQ(lampotila.instanssiId, puu.TilatKokoelma.Item(2).InstanssiId);
  EXPECT_EQ(lampotila.arvoJalkeen - lampotila.arvoEnnen, 1);
}

TEST_F(Vertailu, ASmallDifferenceOfARealIsNoChange) {
  const auto ennen = puu.Kopioi();
  ennen->Kaksin = 20;
  puu.Kaksin = 20.000004;
  EXPECT_THAT(koe::Erot(puu, *ennen, hakemisto.Malli()), IsEmpty());
  puu.Kaksin = 20.00002;
  EXPECT_THAT(koe::Erot(puu, *ennen, hakemisto.Malli()), ElementsAre("KoeRakennus.Kaksin"));
}

TEST_F(Vertailu, AnOddItemIsPassedOverAndUnequalClassesAreTold) {
  const auto ennen = puu.Kopioi();
  puu.TilatKokoelma.Remove(1);
  puu.TilatKokoelma.Add("sKeyUusi").Lampotila = 5;
  puu.TilatKokoelma.Item(1).Seinat.Item(3).Kerrokset.Tyhjenna();
  EXPECT_THAT(koe::Erot(puu, *ennen, hakemisto.Malli()), IsEmpty());
  Muutoslista lista;
  VertaileOliot(puu, puu.TilatKokoelma, lista, tyypit);
  EXPECT_TRUE(lista.luokatErosivat);
}
