// SPDX-License-Identifier: GPL-3.0-or-later
// What supplies and tariffs give, by figures worked out by hand.
#include <cmath>
#include <limits>
#include <numeric>

#include "building/Hankintalaskelma.h"
#include "kernel/Virhe.h"
#include "measures/Muunnelma.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Arpa.h"

namespace {

class HankintaTesti : public RakennusTesti {
 protected:
  clsEnergiamuoto& LisaaMuoto(clsEnergianHankinta& hankinta, double osuus, const Tunniste& tariffi = {}) {
    clsEnergiamuoto& muoto = hankinta.Energiamuodot.Add(Tunniste::Uusi(clsEnergiamuoto::kLuokka.NimiSana()));
    muoto.Tyyppi = hankinta.Kayttotarkoitus;
    muoto.OsuusNettotarpeesta = osuus;
    muoto.Hyotysuhde = 100;
    muoto.MyyntiTariffiSkey = tariffi;
    return muoto;
  }
  clsTariffi& LisaaTariffi(clsTariffi::Laji laji, double hinta, double osuus = 100) {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Maksu(1).Hinta = hinta;
    tariffi.Maksu(1).Kulutusosuus = osuus;
    return tariffi;
  }

  clsPerustiedot& tiedot = (AlustaPerustiedot(rakennus->Perustiedot), rakennus->Perustiedot);
  clsEnergianHankinta &lampo = tiedot.LammonHankinta, &sahko = tiedot.SahkonHankinta, &vesi = tiedot.VedenHankinta;
};

TEST_F(HankintaTesti, PricesGoByTheSharesOfTheFormsAndFeesInFull) {
  EXPECT_EQ(lampo.Energiamuodot.Keskihinta(), 0);
  clsTariffi &halpa = LisaaTariffi(clsTariffi::LampoTariffi, 100),
             &kallis = LisaaTariffi(clsTariffi::LampoTariffi, 200);
  LisaaMuoto(lampo, 60, halpa.sKey);
  clsEnergiamuoto& toinen = LisaaMuoto(lampo, 40, kallis.sKey);
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.Keskihinta(), 140);
  halpa.Tehomaksu = 10;
  kallis.Tehomaksu = 20;
  kallis.TehomaksunMaaraytymisperuste = 30;
  kallis.Loistehomaksu = 5;
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.TehoKeskihinta(), 14);
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.LoisTehoKeskihinta(), 2);
  halpa.Perusmaksu = 100;
  toinen.OsuusNettotarpeesta = 1;
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.Vuosimaksut(), 700) << "100 + 20 × 30, whatever the shares";
  toinen.SiirtoTariffiSkey = halpa.sKey;
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.Keskihinta(), 63) << "60 + 3: a transfer tariff counts in any supply";
}

TEST_F(HankintaTesti, WaterFormsHaveWaterTariffsAndNoPowerFees) {
  clsVesitariffi& tariffi = rakennus->Vesitariffit.LisaaTariffi();
  tariffi.PuhdasVesi().Hinta = 2;
  tariffi.Jatevesi().Hinta = 3;
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 2) << "no waste water is billed";
  tariffi.Jatevesi().Kulutusosuus = 80;
  tariffi.VesiVero = 7;
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 4.4);
  tariffi.Perusmaksu = 30;
  tariffi.MuuMaksu = 12;
  EXPECT_DOUBLE_EQ(tariffi.VuosimaksutYht(), 42);
  EXPECT_DOUBLE_EQ(tariffi.Lasku(100).Yhteensa(), 482);
  LisaaMuoto(vesi, 50, tariffi.sKey);
  EXPECT_DOUBLE_EQ(vesi.Energiamuodot.Keskihinta(), 2.2);
  EXPECT_DOUBLE_EQ(vesi.Energiamuodot.Vuosimaksut(), 42);
  EXPECT_EQ(vesi.Energiamuodot.TehoKeskihinta(), 0);
}

TEST_F(HankintaTesti, ATariffSumsItsFeesBasesAndTax) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi, 40, 60);
  tariffi.Maksu(2).Hinta = 20;
  tariffi.Maksu(2).Kulutusosuus = 40;
  tariffi.Energiavero = 7;
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 39);
  tariffi.Maksu(2).Kulutusosuus = 140;
  EXPECT_DOUBLE_EQ(tariffi.Keskihinta(), 59) << "shares count as they stand";
  tariffi.Perusmaksu = 1000;
  tariffi.Tehomaksu = 50;
  tariffi.TehomaksunMaaraytymisperuste = 10;
  tariffi.Loistehomaksu = 10;
  tariffi.LoistehomaksunMaaraytymisperuste = 5;
  EXPECT_DOUBLE_EQ(tariffi.VuosimaksutYht(), 1550);
  EXPECT_DOUBLE_EQ(tariffi.Lasku(100).Yhteensa(), 100 * tariffi.Keskihinta() + tariffi.VuosimaksutYht());
  tariffi.Perusmaksu = std::numeric_limits<double>::infinity();
  EXPECT_THROW(tariffi.VuosimaksutYht(), Virhe);
}

TEST_F(HankintaTesti, VatAndCurrencyComeToTheShownAmountsOnly) {
  clsTariffi tariffi;
  Asetukset().ValuuttaTyyppi(1);
  tariffi.ALV = 22;
  EXPECT_EQ(100 * tariffi.NayttoKerroin(), 100);
  tariffi.MaksutSisaltavatALVn = true;
  EXPECT_DOUBLE_EQ(100 * tariffi.NayttoKerroin(), 122);
  EXPECT_DOUBLE_EQ(122 / tariffi.NayttoKerroin(), 100);
  Asetukset().dblCurrencyConvCoeff = 0.168;
  tariffi.MaksutSisaltavatALVn = false;
  EXPECT_DOUBLE_EQ(100 * tariffi.NayttoKerroin(), 16.8);
  Asetukset().HaeRekisteristä();
}

TEST_F(HankintaTesti, TaxClassesAreThoseOfTheSettings) {
  Asetukset().dblSahkoVeroluokka1 = 22.53;
  Asetukset().dblSahkoVeroluokka2 = 0.63;
  EXPECT_EQ(clsTariffi::LuokanVero(clsTariffi().EnergiaveroID), 22.53) << "class 1 is the default";
  EXPECT_EQ(clsTariffi::LuokanVero(0), 0.63);
  EXPECT_FALSE(clsTariffi::LuokanVero(2));
  Asetukset().HaeRekisteristä();
}

TEST(Osuudet, SumsPassAtTheirBorders) {
  EXPECT_TRUE(clsEnergiamuodot::OnTaysi(33.3 + 33.3 + 33.4));
  EXPECT_FALSE(clsEnergiamuodot::OnTaysi(99.999999));
  EXPECT_FALSE(clsEnergiamuodot::OnTaysi(0));
  for (const double summa : {99.8, 100.0, 100.2, 100.24, 100.25})
    EXPECT_TRUE(clsEnergiamaksut::OnTaysi(summa)) << summa;
  for (const double summa : {99.7, 99.74, 99.75 - 1e-9, 100.3, 100.251, 0.0})
    EXPECT_FALSE(clsEnergiamaksut::OnTaysi(summa)) << summa;
}

TEST_F(HankintaTesti, TheEmissionFactorDividesByTheEfficiency) {
  clsEnergiamuoto& kattila = LisaaMuoto(lampo, 50);
  kattila.Hyotysuhde = 80;
  kattila.IlmastonLampeneminenCO2ekv(240);
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.IlmastonLampeneminenCO2ekv(), 150);
  clsEnergiamuoto& hyodyton = LisaaMuoto(lampo, 50);
  hyodyton.Hyotysuhde = 0;
  hyodyton.IlmastonLampeneminenCO2ekv(999);
  EXPECT_DOUBLE_EQ(lampo.Energiamuodot.IlmastonLampeneminenCO2ekv(), 150);
}

TEST_F(HankintaTesti, FuelsGiveTheImpactsOfAForm) {
  clsEnergiamuoto& muoto = LisaaMuoto(lampo, 100);
  muoto.IlmastonLampeneminenCO2ekv(1);
  for (const double maara : {0.25, 0.75}) {
    clsResurssi& polttoaine = muoto.Resurssit.Add(Tunniste::Uusi(clsResurssi::kLuokka.NimiSana()));
    polttoaine.Maara = maara;
    polttoaine.Massa = 0.5;
    polttoaine.IlmastonLampeneminenCO2ekv = 0.5F;
    polttoaine.Kuivatiheys = maara < 0.5 ? 0.0F : 250.0F;
  }
  EXPECT_EQ(muoto.IlmastonLampeneminenCO2ekv(), 1) << "as stored";
  EXPECT_DOUBLE_EQ(muoto.MassaYht(), 0.5 * 3600);
  EXPECT_DOUBLE_EQ(muoto.Resurssit.Tilavuus(), 0.5 * 0.75 / 250);
  muoto.LaskePaastotPolttoaineista = true;
  EXPECT_DOUBLE_EQ(muoto.IlmastonLampeneminenCO2ekv(), 1800);
  EXPECT_EQ(muoto.Particle(), 0);
  muoto.Resurssit.Maara = "2";
  EXPECT_DOUBLE_EQ(muoto.IlmastonLampeneminenCO2ekv(), 900);
  muoto.LaskePaastotPolttoaineista = false;
  EXPECT_DOUBLE_EQ(muoto.IlmastonLampeneminenCO2ekv(), 900) << "reading has replaced the stored value";
  for (const char* maara : {"0", "", "yksi"}) {
    muoto.LaskePaastotPolttoaineista = true;
    muoto.Resurssit.Maara = maara;
    EXPECT_THROW(muoto.IlmastonLampeneminenCO2ekv(), Virhe) << maara;
    EXPECT_DOUBLE_EQ(std::get<double>(HaeJasen(muoto, "IlmastonLampeneminenCO2ekv")), 900) << "the form can be saved";
  }
}

TEST_F(HankintaTesti, ReadingUnderAVariationLeavesNoTrace) {
  clsEnergiamuoto& muoto = LisaaMuoto(lampo, 100);
  muoto.Particle(7);
  muoto.Resurssit.Add("a").Maara = 1;
  muoto.Resurssit.Item("a").Particle = 2;
  clsMuuttuneetAttribuutit muutokset;
  clsMuuttunutAttribuutti& muutos = muutokset.Add(Tunniste::Uusi(clsMuuttunutAttribuutti::kLuokka.NimiSana()));
  muutos.clsTypeName = "clsEnergiamuoto";
  muutos.InstanssiId = muoto.InstanssiId;
  muutos.AttribuutinNimi = "LaskePaastotPolttoaineista";
  muutos.TietoTyyppi = static_cast<std::int32_t>(Laji::Totuus);
  muutos.ArvoJalkeen = -1;
  {
    const Muunnelma muunnelma(*rakennus, muutokset);
    EXPECT_DOUBLE_EQ(muoto.Particle(), 7200);
  }
  EXPECT_EQ(muoto.Particle(), 7);
}

TEST_F(HankintaTesti, ATariffKeyThatNoLongerExistsIsAnError) {
  LisaaMuoto(sahko, 100, "poistettu");
  EXPECT_THROW(sahko.Energiamuodot.Keskihinta(), Virhe);
  EXPECT_THROW(sahko.Energiamuodot.TehoKeskihinta(), Virhe);
}

TEST_F(HankintaTesti, TariffsInUseAreKnownByTheSupplyOfTheirKind) {
  clsTariffi &lammon = LisaaTariffi(clsTariffi::LampoTariffi, 1),
             &siirto = LisaaTariffi(clsTariffi::SahkoSiirtoTariffi, 1);
  LisaaMuoto(lampo, 100, lammon.sKey).Nimi = "Kaukolämpö";
  clsEnergiamuoto& verkko = LisaaMuoto(sahko, 100);
  verkko.Nimi = "Verkkosähkö";
  verkko.SiirtoTariffiSkey = siirto.sKey;
  EXPECT_EQ(rakennus->Tariffit.Kayttajat(lammon), std::vector<std::string>{"Kaukolämpö"});
  EXPECT_EQ(rakennus->Tariffit.Kayttajat(siirto), std::vector<std::string>{"Verkkosähkö"});
  EXPECT_TRUE(rakennus->Tariffit.Kayttajat(rakennus->Tariffit.LisaaTariffi(clsTariffi::LampoTariffi)).empty());
  clsVesitariffi& veden = rakennus->Vesitariffit.LisaaTariffi();
  EXPECT_TRUE(rakennus->Vesitariffit.Kayttajat(veden).empty());
  LisaaMuoto(vesi, 100, veden.sKey).Nimi = "Vesilaitos";
  EXPECT_EQ(rakennus->Vesitariffit.Kayttajat(veden), std::vector<std::string>{"Vesilaitos"});
}

/// For any shares that make 100 % what is bought is the net demand and the losses, form by form.
TEST_F(HankintaTesti, WhatIsBoughtIsTheDemandAndTheLosses) {
  Arpa arpa;
  for (int kierros = 0; kierros < 50; ++kierros) {
    lampo.Energiamuodot.Tyhjenna();
    double jaljella = 100;
    for (int i = 0; i < 4; ++i) {
      const double osuus = i == 3 ? jaljella : arpa.Luku(0, jaljella);
      jaljella -= osuus;
      LisaaMuoto(lampo, osuus).Hyotysuhde = arpa.Luku(50, 400);
    }
    const double verkko = arpa.Luku(1, 10000);
    double ostettu = 0;
    for (const clsEnergiamuoto& muoto : lampo.Energiamuodot)
      ostettu += verkko * muoto.OsuusNettotarpeesta / muoto.Hyotysuhde;
    EXPECT_NEAR(verkko + lampo.Energiamuodot.Konversiohaviot(verkko), ostettu, 1e-9 * verkko);
    for (clsEnergiamuoto& muoto : lampo.Energiamuodot) muoto.Hyotysuhde = 100;
    EXPECT_EQ(lampo.Energiamuodot.Konversiohaviot(verkko), 0);
  }
}

TEST_F(HankintaTesti, BoughtEnergyCostsAndEmitsByItsForms) {
  LuoKoulu();
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::LampoTariffi, 50);
  tariffi.Perusmaksu = 1000;
  clsEnergiamuoto& kattila = LisaaMuoto(lampo, 60, tariffi.sKey);
  kattila.Hyotysuhde = 80;
  kattila.IlmastonLampeneminenCO2ekv(263);
  clsEnergiamuoto& pumppu = LisaaMuoto(lampo, 40);
  pumppu.Hyotysuhde = 0;  // no losses
  pumppu.IlmastonLampeneminenCO2ekv(100);
  rakennus->MuuLampo = 10;
  const double verkko = rakennus->VuotuinenLampoEnergianTarveTilat() + rakennus->VuotuinenIVjalkilammitysLampo();
  const double brutto = rakennus->VuotuinenBruttoLampoEnergia(), haviot = 0.25 * verkko * 0.6;
  const Hankintalaskelma laskelma = LaskeHankinta(*rakennus, clsEnergianHankinta::Lampo);
  EXPECT_EQ(laskelma.brutto, brutto);
  EXPECT_NEAR(laskelma.kustannus, 50 * 0.6 * brutto + 1000, 1e-9);
  EXPECT_NEAR(laskelma.muodot[0].ostettu, 0.6 * (brutto - haviot) + haviot, 1e-9);
  EXPECT_NEAR(laskelma.muodot[1].ostettu, 0.4 * (brutto - haviot), 1e-9);
  EXPECT_NEAR(laskelma.muodot[0].ostettu + laskelma.muodot[1].ostettu, brutto, 1e-9);
  EXPECT_NEAR(laskelma.paasto, (263 * laskelma.muodot[0].ostettu + 100 * laskelma.muodot[1].ostettu) / 1000, 1e-9);
  LisaaMuoto(vesi, 100).IlmastonLampeneminenCO2ekv(5);
  EXPECT_EQ(LaskeHankinta(*rakennus, clsEnergianHankinta::Vesi).paasto, 0) << "water stays out";
  LisaaMuoto(sahko, 100, "poistettu");
  EXPECT_THROW(LaskeHankinta(*rakennus, clsEnergianHankinta::Sahko), Virhe);
}

TEST_F(HankintaTesti, ALoadedTariffHasAllItsFees) {
  clsTariffi& tariffi = LisaaTariffi(clsTariffi::LampoTariffi, 12.345678901234567);
  tariffi.Energiamaksut.Remove(clsTariffi::MaksunAvain(4));
  LisaaMuoto(lampo, 100, tariffi.sKey);
  const Koehakemisto kansio;
  const std::string tiedosto = (kansio / "a.lvt").string();
  AlustaToteutuneetKulutukset(tiedot.ToteutuneetKulutukset);
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  clsRakennus luettu;
  luettu.Hae(tiedosto);
  EXPECT_EQ(luettu.Tariffit.Item(1).Energiamaksut.Count(), clsTariffi::kMaksuja);
  EXPECT_EQ(luettu.Tariffit.Item(1).Maksu(4).Nimi, "4 energiamaksu");
  EXPECT_EQ(luettu.Perustiedot.LammonHankinta.Energiamuodot.Keskihinta(), 12.345678901234567);
}

}  // namespace
