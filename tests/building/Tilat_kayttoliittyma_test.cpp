// SPDX-License-Identifier: GPL-3.0-or-later
// The list of spaces and the dialog of a space, driven as a person would, without a screen.
#include "building/Kokoelmamuokkaus.h"
#include "kernel/Luvut.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"
#include "ventilation/clsIVKoneet.h"

namespace {

class TilaDialogi : public RakennusTesti {
 protected:
  TilaDialogi() {
    AsetaTarkistuksenKello(nullptr);
    LuoKoulu();
    rakennus->Tallennettu = true;
  }

  clsTila& Koulu() const { return rakennus->Tilat.Item(1); }
  Ikkunaton& Luettelo() const { return ikkunat.Ikkuna("frmTilaYhteenveto"); }
  const Taulukko& Rivit() const { return Luettelo().Etsi("lvwTilat").Rivit(); }
  double Luku(std::size_t rivi, std::size_t sarake) const { return LueLuku(Rivit()[rivi][sarake]).value(); }

  /// Opens the dialog of the first space and does what the person does there.
  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmTila", kasikirjoitus);
    return Koulu().NaytaKayttoliittyma();
  }
  void LisaaToimenpide(const Tunniste& kohde, const std::string& nimi) {
    clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("toimenpide " + nimi);
    toimenpide.Nimi = nimi;
    toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin = kohde;
  }
};

TEST_F(TilaDialogi, ListShowsTheBalanceOfEachSpaceAndItsSums) {
  clsTila& varasto = LisaaTila(300, 100);
  varasto.TilanNimi = "Varasto";
  varasto.Sisalampotila = 12;
  rakennus->Tilat.NaytaKayttoliittyma();
  ASSERT_EQ(Rivit().size(), 2u);
  EXPECT_EQ(Rivit()[1][0], "Varasto");
  EXPECT_EQ(Rivit()[1][4], "12,0");
  EXPECT_EQ(Luku(1, 5), 0) << "no structures";
  EXPECT_NEAR(Luku(0, 8), Koulu().VuotuinenLampoEnergianTarve(), 0.005);
  EXPECT_NEAR(Luku(0, 7), Koulu().VuotuinenAurinkoKuorma(), 0.005);
  const auto& summat = Luettelo().Etsi("lvwTilat").Summarivi();
  EXPECT_EQ(summat[1], "17 800");
  EXPECT_EQ(summat[4], "") << "temperatures have no sum";
  EXPECT_NEAR(LueLuku(summat[8]).value(), rakennus->Tilat.VuotuinenLampoEnergianTarve(), 0.005);
  EXPECT_FALSE(rakennus->Tilat.VuotuinenLampoEnergianTarveUpToDate());
  EXPECT_TRUE(rakennus->Tallennettu) << "looking changes nothing";
}

TEST_F(TilaDialogi, ListTellsHowTheDemandComesAboutAndOfSpacesLargerThanTheBuilding) {
  Koulu().TilanNimi = "Koulu";
  rakennus->Perustiedot.Kokonaistilavuus = 17500;
  rakennus->Tilat.NaytaKayttoliittyma();
  const std::string erittely = Luettelo().Teksti("lblErittely");
  EXPECT_EQ(erittely.rfind("Koulu: Johtuminen " + Rivit()[0][5] + " + Ilmanvaihto " + Rivit()[0][6] + " − ", 0), 0u)
      << erittely;
  EXPECT_NE(erittely.find(" = " + Rivit()[0][8] + " MWh/a"), std::string::npos) << erittely;
  EXPECT_FALSE(Luettelo().Etsi("lblHuomautus").Nakyva());
  rakennus->Perustiedot.Kokonaistilavuus = 16200;
  rakennus->Tilat.ListaaTilat();
  EXPECT_TRUE(Luettelo().Etsi("lblHuomautus").Nakyva());
  EXPECT_NE(Luettelo().Teksti("lblHuomautus").find("17 500 m³"), std::string::npos);
}

TEST_F(TilaDialogi, AnOkThatChangesNothingIsNoStepButAnUntouchedNewSpaceIs) {
  std::vector<std::string> askeleet;
  rakennus->MuutosVahvistettu = [&](std::string_view toiminto) { askeleet.emplace_back(toiminto); };
  rakennus->OtaKirjatuksi();
  const auto ok = [](Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); };
  EXPECT_TRUE(Muokkaa(ok));
  EXPECT_TRUE(askeleet.empty() && rakennus->Tallennettu);
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtBruttoAla", "77");
    l.KayttajaPainaa("cmdOk");
  }));
  rakennus->Tilat.NaytaKayttoliittyma();
  ikkunat.KunNaytetaan("frmTila", ok);
  Luettelo().KayttajaPainaa("cmdLisaaTila");
  EXPECT_EQ(askeleet, (std::vector<std::string>{"Tilan tiedot", "Tilan tiedot"}));
}

TEST_F(TilaDialogi, ASpaceWhoseDialogFailsIsntLeftBehind) {
  Tunniste uusi;
  const Kokoelmamuokkaus<clsTila> muokkaus{
      .kokoelma = rakennus->Tilat, .nimi = &clsTila::TilanNimi, .muokkaa = [&](clsTila& tila) -> bool {
        uusi = tila.InstanssiId;
        rakennus->PaivitaInstanssiIdLista();
        throw std::runtime_error("koe");
      }};
  EXPECT_THROW(muokkaus.Lisaa(), Virhe);
  EXPECT_EQ(rakennus->Tilat.Count(), 1);
  EXPECT_EQ(rakennus->HaeInstanssi("clsTila", uusi).olio, nullptr);
}

TEST_F(TilaDialogi, TheListOpensOverASpaceThatCantBeCalculatedAndNamesIt) {
  clsTila& sali = LisaaTila(300, 100);
  sali.TilanNimi = "Sali";
  LisaaRakenne(sali, Rakennelaji::Ulkoseina, 1e308, 20);
  rakennus->Tilat.NaytaKayttoliittyma();
  ASSERT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_NE(viestit.Naytetyt()[0].kohde.find("Sali"), std::string::npos);
  EXPECT_FALSE(viestit.Naytetyt()[0].tarkenne.empty());
  EXPECT_EQ(Rivit()[0][8], "---");
}

TEST_F(TilaDialogi, RowsOfASheetBecomeSpacesAllOrNone) {
  rakennus->Tilat.NaytaKayttoliittyma();
  Ohjain& lista = Luettelo().Etsi("lvwTilat");
  lista.KayttajaLiittaa("Tila\tTilavuus\nAula\t100\n\t200\nSali\tsata\n");
  EXPECT_EQ(viestit.Esiintymia("\nRivi 3, Tila: arvo puuttuu\nRivi 4, Tilavuus: sata – ei ole luku"), 1);
  EXPECT_EQ(rakennus->Tilat.Count(), 1);
  EXPECT_TRUE(rakennus->Tallennettu);
  std::string kopio = "tila\tJohtuminen (MWh/a)\tTilavuus (m³)\tLämpötila\n";
  lista.KayttajaLiittaa(kopio + "Aula\t9,1\t1 200,5\t17,5\nSali\t\t900000\t\nYhteensä\t\t901 200\t\n");
  ASSERT_EQ(rakennus->Tilat.Count(), 3) << "the sums of a copied list are no space";
  EXPECT_EQ(viestit.Esiintymia("\nRivi 3, Tilavuus: 900000"), 1) << "improbable, told of and taken";
  const clsTila &aula = rakennus->Tilat.Item(2), &sali = rakennus->Tilat.Item(3);
  EXPECT_EQ(aula.Kokonaistilavuus, 1200.5);
  EXPECT_EQ(aula.Sisalampotila, 17.5);
  EXPECT_EQ(sali.Sisalampotila, clsTila().Sisalampotila) << "an empty cell leaves what a new space has";
  EXPECT_FALSE(sali.SaatotapaStr.empty());
  EXPECT_EQ(lista.Indeksi(), 2) << "the last one is chosen";
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(TilaDialogi, AddedSpaceStaysOnlyAfterOk) {
  rakennus->Tilat.NaytaKayttoliittyma();
  ikkunat.KunNaytetaan("frmTila", [](Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); });
  Luettelo().KayttajaPainaa("cmdLisaaTila");
  EXPECT_EQ(rakennus->Tilat.Count(), 1);
  EXPECT_TRUE(rakennus->Tallennettu);
  ikkunat.KunNaytetaan("frmTila", [](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtTilanNimi", "Aula");
    l.KayttajaPainaa("cmdOk");
  });
  Luettelo().KayttajaPainaa("cmdLisaaTila");
  ASSERT_EQ(rakennus->Tilat.Count(), 2);
  EXPECT_EQ(rakennus->Tilat.Item(2).TilanNimi, "Aula");
  EXPECT_EQ(rakennus->Tilat.Item(2).SaatotapaStr, "Termostaattiventtiilit (80 %)");
  EXPECT_EQ(Luettelo().Etsi("lvwTilat").Indeksi(), 1) << "the new one is chosen";
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(TilaDialogi, CopyStandsBehindItsSourceUnderIdentitiesOfItsOwn) {
  LisaaTila(10, 10).TilanNimi = "Viimeinen";
  Koulu().TilanNimi = "Koulu";
  rakennus->Tilat.NaytaKayttoliittyma();
  const Tunniste lahde = Koulu().InstanssiId;
  Luettelo().KayttajaPainaa("cmdKopioiTila");
  ASSERT_EQ(rakennus->Tilat.Count(), 3);
  const clsTila& kopio = rakennus->Tilat.Item(2);
  EXPECT_EQ(kopio.TilanNimi, "Kopio: Koulu");
  EXPECT_EQ(rakennus->Tilat.Item(3).TilanNimi, "Viimeinen");
  EXPECT_EQ(Koulu().InstanssiId, lahde);
  EXPECT_FALSE(kopio.InstanssiId == lahde);
  EXPECT_FALSE(kopio.sKey == Koulu().sKey);
  EXPECT_FALSE(kopio.Rakenteet.Item(1).InstanssiId == Koulu().Rakenteet.Item(1).InstanssiId);
  EXPECT_EQ(Luku(0, 5), Luku(1, 5));
}

TEST_F(TilaDialogi, SpaceIsRemovedAfterAQuestionButNotFromUnderAMeasure) {
  clsTila& varasto = LisaaTila(300, 100);
  const Tunniste lippa = LisaaIkkuna(varasto, 2, 0).YlaLippa.InstanssiId;
  rakennus->Tilat.NaytaKayttoliittyma();
  Luettelo().Etsi("lvwTilat").KayttajaValitsee(1);
  LisaaToimenpide("jokin muu", "Uudet lipat");
  clsMuuttunutAttribuutti& muutos = rakennus->Saastotoimenpiteet.Item(1).MuuttuneetAttribuutit.Add("muutos");
  muutos.InstanssiId = lippa;
  Luettelo().KayttajaPainaa("cmdPoistaTila");
  EXPECT_EQ(viestit.Esiintymia("Uudet lipat"), 1) << "the measure changes a shading of the space";
  EXPECT_EQ(rakennus->Tilat.Count(), 2);
  muutos.InstanssiId = {};
  rakennus->Saastotoimenpiteet.Item(1).MuuttuneetAttribuutit.LiittyyInstanssiin = varasto.InstanssiId;
  Luettelo().KayttajaPainaa("cmdPoistaTila");
  EXPECT_EQ(rakennus->Tilat.Count(), 2);
  rakennus->Saastotoimenpiteet.Tyhjenna();
  clsIVKone& kone = rakennus->IVKoneet.Add("TK01");
  kone.KoneenTunnus = "TK01";
  kone.LiittyyTilaansKey = varasto.sKey;
  varasto.TilanNimi = "Varasto";
  Luettelo().KayttajaPainaa("cmdPoistaTila");
  EXPECT_EQ(rakennus->Tilat.Count(), 2) << "No is the default";
  EXPECT_EQ(viestit.Esiintymia("Varasto"), 1) << "the question tells what goes";
  EXPECT_EQ(viestit.Esiintymia("TK01"), 1) << "and what is left without a space";
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  Luettelo().KayttajaPainaa("cmdPoistaTila");
  ASSERT_EQ(rakennus->Tilat.Count(), 1);
  EXPECT_EQ(Rivit().size(), 1u);
}

TEST_F(TilaDialogi, MeasuresLockTheListAndAnEmptyListOffersOnlyAdding) {
  LisaaToimenpide("jokin", "Toimenpide");
  rakennus->Tilat.NaytaKayttoliittyma();
  for (const char* nappi : {"cmdLisaaTila", "cmdKopioiTila", "cmdPoistaTila"})
    EXPECT_FALSE(Luettelo().Etsi(nappi).Kaytossa()) << nappi;
  EXPECT_TRUE(Luettelo().Etsi("cmdMuokkaaTila").Kaytossa());
  rakennus->Saastotoimenpiteet.Tyhjenna();
  rakennus->Tilat.Tyhjenna();
  rakennus->Tilat.NaytaKayttoliittyma();
  EXPECT_TRUE(Luettelo().Etsi("cmdLisaaTila").Kaytossa());
  for (const char* nappi : {"cmdMuokkaaTila", "cmdKopioiTila", "cmdPoistaTila"})
    EXPECT_FALSE(Luettelo().Etsi(nappi).Kaytossa()) << nappi;
}

TEST_F(TilaDialogi, MeasuredElectricityAsTheLoadLowersTheDemandAtOnce) {
  rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).Sahko = 200;
  rakennus->Tilat.NaytaKayttoliittyma();
  Luettelo().KayttajaPainaa("chkKaytaTotSahkoKuormia");
  const double ilman = Luku(0, 8);
  Luettelo().KayttajaKirjoittaa("txtTotSahkoKuormaPros", "50");
  Luettelo().KayttajaPoistuu("txtTotSahkoKuormaPros");
  EXPECT_EQ(rakennus->Tilat.TotSahkoKuormaPros, 50);
  EXPECT_LT(Luku(0, 8), ilman);
  EXPECT_FALSE(rakennus->Tallennettu);
  Luettelo().KayttajaKirjoittaa("txtTotSahkoKuormaPros", "101");
  Luettelo().KayttajaPainaa("cmdSulje");
  EXPECT_TRUE(Luettelo().Auki());
  EXPECT_EQ(rakennus->Tilat.TotSahkoKuormaPros, 50);
  Luettelo().KayttajaPainaa("chkKaytaTotSahkoKuormia");
  Luettelo().KayttajaPainaa("cmdSulje");
  EXPECT_FALSE(Luettelo().Auki()) << "a field out of use holds nobody back";
}

TEST_F(TilaDialogi, ChoicesSetTheirFixedValuesAndOnlyOtherCanBeWritten) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    l.KayttajaValitsee("cmbTilanKayttoaika", "Kolmivuorokäyttö 6240 h/a");
    EXPECT_EQ(l.Teksti("txtTilanKayttoaikaHpA"), "6 240");
    EXPECT_FALSE(l.Etsi("txtTilanKayttoaikaHpA").Kaytossa());
    l.KayttajaValitsee("cmbSaatotapa", "Ei säätöä (20 %)");
    EXPECT_EQ(l.Teksti("txtSaatohyotysuhde"), "20,0");
    l.KayttajaValitsee("cmbSaatotapa", "Muu");
    EXPECT_EQ(l.Teksti("txtSaatohyotysuhde"), "80,0");
    l.KayttajaKirjoittaa("txtSaatohyotysuhde", "72,5");
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(Koulu().TilanKayttoaikaHpA, 6240);
  EXPECT_EQ(Koulu().TilanKayttoaikaStr, "Kolmivuorokäyttö 6240 h/a");
  EXPECT_EQ(Koulu().SaatotapaID, 5);
  EXPECT_EQ(Koulu().Saatohyotysuhde, 72.5);
}

TEST_F(TilaDialogi, OkDropsTheCachesAndTells) {
  Koulu().JohtumishaviotUpToDate(true);
  Koulu().AurKuormatTilassaUpToDate(true);
  LisaaToimenpide("jokin", "Toimenpide");
  rakennus->Saastotoimenpiteet.Item(1).EnnenTiedotUpToDate = true;
  int muutoksia = 0;
  Koulu().DataMuuttui.arvo = [&] { ++muutoksia; };
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    l.KayttajaPainaa("chkPainovoimainenIlmanvaihto");
    EXPECT_TRUE(l.Etsi("txtPainovoimainenIVMaara").Kaytossa());
    EXPECT_FALSE(l.Etsi("txtVuotoilmanvaihto").Kaytossa()) << "one replaces the other";
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_TRUE(Koulu().PainovoimainenIlmanvaihto);
  EXPECT_FALSE(Koulu().JohtumishaviotUpToDate());
  EXPECT_FALSE(Koulu().AurKuormatTilassaUpToDate());
  EXPECT_FALSE(rakennus->Saastotoimenpiteet.Item(1).EnnenTiedotUpToDate);
  EXPECT_FALSE(rakennus->Tallennettu);
  EXPECT_EQ(muutoksia, 1);
}

TEST_F(TilaDialogi, CancelRestoresTheSpaceWithItsStructures) {
  const auto ennen = Koulu().Kopioi();
  EXPECT_FALSE(Muokkaa([this](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtTilanNimi", "Muu nimi");
    l.KayttajaValitsee("cmbSaatotapa", "Keskitetty käsisäätö (40 %)");
    ikkunat.KunNaytetaan("frmRakenteet", [](Ikkunaton& r) {
      r.KayttajaKirjoittaa("txtRakenneala", "1");
      r.KayttajaPainaa("cmdOk");
    });
    l.KayttajaPainaa("cmdRakenteet");
    EXPECT_EQ(Koulu().Rakenteet.Item(1).PintaAla, 1);
    l.KayttajaPainaa("cmdPeruuta");
  }));
  EXPECT_EQ(Muutoksia(Koulu(), *ennen), 0);
  EXPECT_TRUE(rakennus->Tallennettu);
}

TEST_F(TilaDialogi, MassivenessIsForShow) {
  Koulu().RakenteidenDynamiikkaID = 0;
  Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtAikavakio"), "48");
    l.KayttajaValitsee("cmbRakenteidenDynamiikka", "Raskasrakenteinen");
    EXPECT_EQ(l.Teksti("txtAikavakio"), "96");
    EXPECT_EQ(l.Teksti("lblDynamiikanKuvaus"), "Ulkoseinät kivirakenteiset, väliseinät kiveä.");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(Koulu().RakenteidenDynamiikkaID, 0);
}

TEST_F(TilaDialogi, AFieldWithoutANumberOrOutsideItsLimitsStopsOk) {
  Muokkaa([this](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtSisalampotila", "");
    l.KayttajaPainaa("cmdOk");
    EXPECT_EQ(l.Kohdistettu(), "txtSisalampotila");
    EXPECT_EQ(viestit.Esiintymia("luku kenttään Sisälämpötila (°C)."), 1);
    l.KayttajaKirjoittaa("txtSisalampotila", "21");
    l.KayttajaKirjoittaa("txtBruttoAla", "0");
    AsetaTarkistuksenKello(nullptr);
    l.KayttajaPainaa("cmdOk");
    EXPECT_EQ(l.Kohdistettu(), "txtBruttoAla");
    EXPECT_EQ(viestit.Esiintymia("Bruttoala, vähintään 0,1 m²."), 1);
    EXPECT_TRUE(l.Auki());
    l.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_EQ(Koulu().BruttoAla, 4200);
}

TEST_F(TilaDialogi, ASpaceOfAMeasureTellsOfItsChangeButLeavesTheBuildingsFigures) {
  const auto jalkeen = Koulu().Kopioi();
  LisaaToimenpide(Koulu().InstanssiId, "Lämpötilan lasku");
  rakennus->Saastotoimenpiteet.Item(1).EnnenTiedotUpToDate = true;
  int muutoksia = 0;
  jalkeen->DataMuuttui.arvo = [&] { ++muutoksia; };
  ikkunat.KunNaytetaan("frmTila", [](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtSisalampotila", "20");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(jalkeen->NaytaKayttoliittyma());
  EXPECT_EQ(muutoksia, 1);
  EXPECT_EQ(jalkeen->Sisalampotila, 20);
  EXPECT_EQ(Koulu().Sisalampotila, 21);
  EXPECT_TRUE(rakennus->Saastotoimenpiteet.Item(1).EnnenTiedotUpToDate) << "the base didn't change";
  EXPECT_FALSE(rakennus->Tallennettu);
}

}  // namespace
