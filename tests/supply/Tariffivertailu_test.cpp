// SPDX-License-Identifier: GPL-3.0-or-later
#include "kernel/Tulos.h"
#include "kernel/Virhe.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "tests/building/Koerakennus.h"

namespace {

class TariffivertailuTesti : public RakennusTesti {
 protected:
  TariffivertailuTesti() {
    clsTariffi& myynti = rakennus->Tariffit.Add("myynti");
    myynti.Maksu(1).Hinta = 80;
    myynti.Maksu(1).Kulutusosuus = 100;
    myynti.Energiavero = 7;
    myynti.Perusmaksu = 120;
    myynti.TehomaksunMaaraytymisperuste = 999;
    clsTariffi& siirto = rakennus->Tariffit.Add("siirto");
    siirto.Tehomaksu = 10;
    siirto.Loistehomaksu = 4;
    siirto.MuuMaksu = 30;
  }
  clsSahkoTariffienVertailu& vertailu = rakennus->SahkoTariffienVertailu;
};

TEST_F(TariffivertailuTesti, CostsGoByTheCasesOwnEnergyAndPowers) {
  clsTariffiVertailuTapaus& tapaus = vertailu.Tapaukset.Add("a");
  vertailu.Tapaus("myynti", "siirto").Kopioi(tapaus);
  tapaus.sKey = "a";
  const Vuosilasku myynti = tapaus.Myynti(rakennus->Tariffit), siirto = tapaus.Siirto(rakennus->Tariffit);
  EXPECT_DOUBLE_EQ(myynti.vero, 7 * 250);
  EXPECT_DOUBLE_EQ(myynti.energia + myynti.vero, rakennus->Tariffit.Item("myynti").Keskihinta() * 250);
  EXPECT_EQ(myynti.perus, 120);
  EXPECT_EQ(siirto.teho, 10 * 50);
  EXPECT_EQ(siirto.loisteho, 4 * 25);
  EXPECT_EQ(tapaus.KustannusYhteensa(rakennus->Tariffit), myynti.Yhteensa() + 500 + 100 + 30);
  const Tuloskohde kohde{*rakennus}, omistaja{vertailu, &kohde};
  EXPECT_EQ(clsTariffiVertailuTapaus::kLuokka.TulosNimella("SiirtoPatoTehomaksu").Arvo({tapaus, &omistaja}), 500);
  EXPECT_EQ(clsSahkoTariffienVertailu::kLuokka.TulosNimella("OmSahkoTeho").Arvo(omistaja), 50);
  rakennus->Perustiedot.BruttoAla = 0;
  EXPECT_EQ(clsSahkoTariffienVertailu::kLuokka.TulosNimella("OmSahkoEnergia").Arvo(omistaja), 0);

  tapaus.MyyntiTariffiSkey = {};
  EXPECT_EQ(tapaus.KustannusYhteensa(rakennus->Tariffit), siirto.Yhteensa());
  tapaus.MyyntiTariffiSkey = "poistettu";
  EXPECT_THROW(tapaus.KustannusYhteensa(rakennus->Tariffit), Virhe);
}

TEST_F(TariffivertailuTesti, OfEquallyCheapOrDearCasesTheFirstIsNamed) {
  const auto& tapaukset = vertailu.Tapaukset;
  EXPECT_TRUE(tapaukset.HalvinTariffisKey(rakennus->Tariffit).Tyhja());
  EXPECT_TRUE(tapaukset.KalleinTariffisKey(rakennus->Tariffit).Tyhja());
  for (const auto& [avain, energia] : {std::pair{"a", 5.0}, {"b", 2.0}, {"c", 2.0}, {"d", 5.0}}) {
    clsTariffiVertailuTapaus& tapaus = vertailu.Tapaukset.Add(avain);
    tapaus.MyyntiTariffiSkey = "myynti";
    tapaus.TotEnergia = energia;
  }
  EXPECT_EQ(tapaukset.HalvinTariffisKey(rakennus->Tariffit), Tunniste("b"));
  EXPECT_EQ(tapaukset.KalleinTariffisKey(rakennus->Tariffit), Tunniste("a"));
}

}  // namespace
