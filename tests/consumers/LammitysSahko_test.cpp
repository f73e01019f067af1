// SPDX-License-Identifier: GPL-3.0-or-later
#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "tests/measures/Asetuskansio.h"

namespace {

/// A building in Helsinki with an electrically heated space and another one.
class LammitysSahko : public Asetuskansio {
 protected:
  LammitysSahko() {
    AsetaGlobaaliRakennus(&rakennus_);
    rakennus_.Perustiedot.BruttoAla = 200;
    rakennus_.Perustiedot.LammTarveLukuPaikkakuntaID(1);
    rakennus_.Saa.AsetaSaaPaikkakunta(1);
    for (const char* avain : {"a", "b"}) {
      clsTila& tila = rakennus_.Tilat.Add(avain);
      tila.Kokonaistilavuus = 300;
      tila.BruttoAla = 100;
      tila.TilanHenkilomaara = 2;
    }
    rakennus_.Tilat.Item("a").Sahkolammitys = true;
  }
  ~LammitysSahko() override { AsetaGlobaaliRakennus(nullptr); }

  clsRakennus rakennus_;
  const clsSahkonKulutusryhmat& ryhmat_ = rakennus_.SahkonKulutusryhmat;
};

TEST_F(LammitysSahko, HoldsTheDemandAndControlLossesOfAnElectricallyHeatedSpace) {
  clsTila& tila = rakennus_.Tilat.Item("a");
  const double tilanSahko = tila.VuotuinenLampoEnergianTarve() + tila.VuotuisetSaatohaviot();
  EXPECT_GT(tilanSahko, 0);
  EXPECT_DOUBLE_EQ(ryhmat_.LammitysSahkonVuosikulutus(), tilanSahko);
  tila.Sahkolammitys = false;
  EXPECT_EQ(ryhmat_.LammitysSahkonVuosikulutus(), 0);
}

TEST_F(LammitysSahko, ElectricallyHeatedTapWaterMovesToElectricityWithItsLoop) {
  rakennus_.Tilat.Item("a").Sahkolammitys = false;
  rakennus_.VedenKulutusryhmat.LKVKiertoVirtaama = 0.1;
  EXPECT_EQ(ryhmat_.LammitysSahkonVuosikulutus(), 0);
  rakennus_.VedenKulutusryhmat.LKVTiedot.Sahkolammitys = true;
  EXPECT_DOUBLE_EQ(ryhmat_.LammitysSahkonVuosikulutus(), 18.3522);
  EXPECT_DOUBLE_EQ(ryhmat_.Vuosikulutus(), 18.3522);
}

}  // namespace
