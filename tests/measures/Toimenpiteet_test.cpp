// SPDX-License-Identifier: GPL-3.0-or-later
// Measures of a building: what is added where, what an edited object gives, what is computed and stored.
#include "kernel/Virhe.h"
#include "measures/Muunnelmaketju.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "supply/clsTariffiVertailuTapaus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/measures/Koetoimenpiteet.h"

namespace {

TEST_F(ToimenpiteetTesti, EveryNodeGivesAMeasureOfItsKindWithoutEffect) {
  struct Odotus {
    Tunniste solmu;
    const char* tyyppi;
    bool kelluva;
  };
  const Odotus kOdotukset[] = {
      {Tila(1).sKey, "clsTila", false},
      {rakennus->IVKoneet.Item(1).sKey, "clsIVKone", false},
      {rakennus->SahkonKulutusryhmat.Item(1).sKey, "clsSahkonKulutusryhma", false},
      {rakennus->VedenKulutusryhmat.Item(1).sKey, "clsVedenKulutusryhma", false},
      {"sKeyEnergianJaVedenHankintaLampo", "clsEnergianHankinta", false},
      {"sKeySahko", "clsSahkonKulutusryhma", true},
      {"sKeyVesi", "clsVedenKulutusryhma", true},
      {"sKeyLVISahko", "clsSahkonKulutusryhma", true},
      {"sKeyProsessiVesi", "clsVedenKulutusryhma", true},
  };
  const std::string kuva = MallinKuva();
  const Hyodykkeet perusta = Kokonaan(*rakennus);
  for (const Odotus& odotus : kOdotukset) {
    SCOPED_TRACE(odotus.solmu.Teksti());
    clsSaastotoimenpide* toimenpide = toimenpiteet.Lisaa(odotus.solmu);
    ASSERT_TRUE(toimenpide);
    EXPECT_EQ(toimenpide->MuuttuneetAttribuutit.TyypinNimi, odotus.tyyppi);
    EXPECT_EQ(toimenpide->Kelluva(), odotus.kelluva);
    EXPECT_TRUE(toimenpide->EnnenTiedotUpToDate && toimenpide->JalkeenTiedotUpToDate);
    EXPECT_EQ(toimenpide->KulutusEnnen(), perusta);
    EXPECT_EQ(toimenpide->LampoEnergiaHinta, 60);
    EXPECT_EQ(toimenpide->SahkoLoisTehoHinta, 3);
    EXPECT_TRUE(toimenpide->Nimi.starts_with(toimenpiteet.ListaItem(odotus.solmu).NimiTeksti + ", "));
    EXPECT_EQ(toimenpiteet.ListaItem(toimenpide->sKey).Parent, odotus.solmu);
    toimenpide->PaivitaMuuttuneetAttribuutit(*toimenpide->TeeJalkeen());
    EXPECT_EQ(toimenpide->MuuttuneetAttribuutit.Count(), 0);
    EXPECT_EQ(toimenpide->Saasto(), Hyodykkeet{}) << "without changes it saves exactly nothing";
    toimenpide->Investointi = 1000;
    EXPECT_EQ(toimenpide->Takaisinmaksuaika({}), 9999);
    EXPECT_EQ(toimenpide->Ostosaasto().paastot, 0);
  }
  EXPECT_EQ(MallinKuva(), kuva);
  const auto& prosessivesi = static_cast<clsVedenKulutusryhma&>(*toimenpiteet.Item(toimenpiteet.Count()).Ennen());
  EXPECT_TRUE(prosessivesi.OnProsessivesi());
  EXPECT_EQ(prosessivesi.VedenKayttolampotila, rakennus->VedenKulutusryhmat.ProsessiVedenTiedot.KylmanLampotila);
  EXPECT_EQ(toimenpiteet.Toimenpiteet("sKeyKokoKohde").size(), std::size(kOdotukset));
  EXPECT_EQ(toimenpiteet.Toimenpiteet("sKeySahko").size(), 3u);
  EXPECT_EQ(toimenpiteet.Toimenpiteet("sKeyJohtuminen").front()->sKey, toimenpiteet.Item(1).sKey);

  EXPECT_EQ(toimenpiteet.Lisaa("sKeyKokoKohde"), nullptr);
  EXPECT_TRUE(viestit.Naytetyt().back().teksti.starts_with("Tänne ei pitäisi tulla"));
  EXPECT_FALSE(clsSaastotoimenpiteet::VoiLisata("sKeyjohtuminen"));
  EXPECT_TRUE(clsSaastotoimenpiteet::VoiLisata("sKeyVesi"));
}

TEST_F(ToimenpiteetTesti, TheTreeFollowsTheModelAndKeepsItsMeasures) {
  const int solmuja = toimenpiteet.CountListaItems();
  EXPECT_EQ(solmuja, 14 + 3 + 3 + 3 + rakennus->VedenKulutusryhmat.Count());
  clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa(Tila(2).sKey, "Lisäeristys");
  EXPECT_EQ(toimenpide.Nimi, "Lisäeristys");
  Tila(2).TilanNimi = "Uusi nimi";
  rakennus->Tilat.Remove(3);
  toimenpiteet.PaivitaHierarkiaLista();
  EXPECT_EQ(toimenpiteet.CountListaItems(), solmuja);
  EXPECT_EQ(toimenpiteet.ListaItem(Tila(2).sKey).NimiTeksti, "Uusi nimi");
  EXPECT_EQ(toimenpiteet.Toimenpiteet("sKeyJohtuminen"), std::vector{&toimenpide});
  rakennus->ToimenpiteidenJarjestelija.Valitse(toimenpide.sKey, true);
  toimenpiteet.Poista(toimenpide.sKey);
  EXPECT_EQ(toimenpiteet.Count(), 0);
  EXPECT_EQ(toimenpiteet.CountListaItems(), solmuja - 1);
  EXPECT_EQ(rakennus->ToimenpiteidenJarjestelija.ValitutToimenpiteet.Count(), 1) << "the totals alone";
}

/// Whatever is edited in the copy: laid on the model it gives the edited object, and the figures are those of a
/// building in which the same was done by hand.
TEST_F(ToimenpiteetTesti, ARandomlyEditedObjectGivesWhatAnEditedBuildingWouldGive) {
  Arpa arpa;
  const Tunniste kSolmut[] = {Tila(1).sKey,
                              Tila(2).sKey,
                              rakennus->IVKoneet.Item(2).sKey,
                              rakennus->SahkonKulutusryhmat.Item(1).sKey,
                              rakennus->SahkonKulutusryhmat.Item(2).sKey,
                              rakennus->VedenKulutusryhmat.Item(1).sKey,
                              "sKeyEnergianJaVedenHankintaLampo"};
  const std::string kuva = MallinKuva();
  int laskettuja = 0;
  for (int kierros = 0; kierros < 60; ++kierros) {
    clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa(kSolmut[arpa() % std::size(kSolmut)]);
    const auto jalkeen = toimenpide.TeeJalkeen();
    std::vector<Olio*> osat;
    Kierra(*jalkeen, [&](Olio& olio) {
      if (olio.LuokanTiedot().Osallistuminen() == Luokka::Osallistuu::Kaikkeen) osat.push_back(&olio);
    });
    for (int i = arpa.Kokonaisluku(1, 5); i > 0; --i) {
      Olio& osa = *osat[arpa() % osat.size()];
      const auto jasenet = osa.LuokanTiedot().Jasenet();
      const Jasen& jasen = jasenet[arpa() % jasenet.size()];
      ArvoNakyma arvo;
      arvo.Aseta(arpa.Luku(0.5, 60));
      if (jasen.aseta && !jasen.kopio && jasen.nimi != "LiittyyTilaansKey" && jasen.nimi != "Tyyppi")
        jasen.aseta(osa, arvo);
    }
    toimenpide.PaivitaMuuttuneetAttribuutit(*jalkeen);
    const auto kasin = rakennus->Kopioi();
    kasin->LiitaSaastoToimenpide(toimenpide.MuuttuneetAttribuutit);
    kasin->PaivitaInstanssiIdLista();
    Olio& muutettu = *kasin
                          ->HaeInstanssi(toimenpide.MuuttuneetAttribuutit.TyypinNimi,
                                         toimenpide.MuuttuneetAttribuutit.LiittyyInstanssiin)
                          .olio;
    Muutoslista erot;
    VertaileOliot(*jalkeen, muutettu, erot, rakennus->TyyppiTiedot);
    std::erase_if(erot.muutokset, [](const Muutos& m) { return m.attribuutinNimi == "LaskeU_arvoMateriaaleista"; });
    EXPECT_TRUE(erot.muutokset.empty()) << erot.muutokset.front().attribuutinNimi;
    try {
      const Hyodykkeet oma = toimenpide.KulutusJalkeen();
      EXPECT_EQ(oma, Kokonaan(*kasin)) << "round " << kierros;
      ++laskettuja;
    } catch (const Virhe&) {
      EXPECT_THROW(Kokonaan(*kasin), Virhe);
    }
    ASSERT_EQ(MallinKuva(), kuva);
    toimenpiteet.Poista(toimenpide.sKey);
  }
  EXPECT_GT(laskettuja, 30);
}

TEST_F(ToimenpiteetTesti, ValuesSetBackAndTinyDifferencesAreNoChangesOtherCaseIsOne) {
  clsSaastotoimenpide& toimenpide = Toimenpide<clsTila>(Tila(1).sKey, [](clsTila& t) {
    t.Sisalampotila += 0.000009;
    t.Vuotoilmanvaihto += 0.00002;
    t.Kuvausteksti = "rakennuksen KOKO lämmitetty osa";
    t.BruttoAla += 5;
    t.BruttoAla -= 5;
  });
  EXPECT_EQ(toimenpide.MuuttuneetAttribuutit.Count(), 2);
  const auto jalkeen = toimenpide.TeeJalkeen();
  EXPECT_FALSE(jalkeen->InstanssiId == Tila(1).InstanssiId);
  auto& tila = static_cast<clsTila&>(*jalkeen);
  EXPECT_EQ(tila.Kuvausteksti, "rakennuksen KOKO lämmitetty osa");
  tila.Vuotoilmanvaihto = Tila(1).Vuotoilmanvaihto;
  tila.Kuvausteksti = Tila(1).Kuvausteksti;
  toimenpide.PaivitaMuuttuneetAttribuutit(tila);
  EXPECT_EQ(toimenpide.MuuttuneetAttribuutit.Count(), 0);
}

TEST_F(ToimenpiteetTesti, AnInsulatedStructureSavesThoughItsLayersAreNoPartOfAVariation) {
  clsRakenne& seina = Tila(1).Rakenteet.Item(1);
  for (const bool kerroksista : {true, false}) {
    seina.LaskeU_arvoMateriaaleista = kerroksista;
    ASSERT_TRUE(seina.RakenneRatkaisu.get());
    clsSaastotoimenpide& toimenpide = Toimenpide<clsTila>(Tila(1).sKey, [](clsTila& t) {
      clsRakenne& rakenne = t.Rakenteet.Item(1);
      rakenne.LaskeU_arvoMateriaaleista = false;
      rakenne.U_arvo(0.05);
      rakenne.LaskeU_arvoMateriaaleista = true;
      for (clsRakennekerros& kerros : rakenne.RakenneRatkaisu->Kerrokset) kerros.Paksuus *= 3;
    });
    EXPECT_GT(toimenpide.Saasto().lampo, 0.1);
    Muunnelma muunnelma(*rakennus, toimenpide.MuuttuneetAttribuutit);
    EXPECT_FALSE(seina.LaskeU_arvoMateriaaleista);
  }
}

TEST_F(ToimenpiteetTesti, AFloatingGroupLeavesTheModelAloneAndWarmsTheLess) {
  const std::string kuva = MallinKuva();
  const auto muuta = [](clsSahkonKulutusryhma& r) { r.KulutusryhmienLukumaara = 1; };
  clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa("sKeySahko");
  auto& ennen = static_cast<clsSahkonKulutusryhma&>(*toimenpide.Ennen());
  ennen.LaskentaperusteNumber = 1000, ennen.LaskentayksikkoNumber = 20;
  ennen.KayttoaikaHpD = 10, ennen.KayttoaikaDpA = 250, ennen.KulutusryhmienLukumaara = 3;
  const auto paivita = [&] {
    const auto jalkeen = toimenpide.TeeJalkeen();
    muuta(static_cast<clsSahkonKulutusryhma&>(*jalkeen));
    toimenpide.PaivitaMuuttuneetAttribuutit(*jalkeen);
    return toimenpide.Saasto();
  };
  const Hyodykkeet kylma = paivita();
  EXPECT_DOUBLE_EQ(kylma.sahko, 100);
  EXPECT_EQ(kylma.lampo, 0);
  ennen.EnergiaHyodynnetaanLammityksessa = true;
  const Hyodykkeet lammin = paivita();
  EXPECT_DOUBLE_EQ(lammin.lampo, -100 * Muunnelmalaskin(*rakennus).Hyotyosuus({}));
  EXPECT_LT(lammin.lampo, -1);
  ennen.LiittyyTilaansKey = "sKeyEiOle";
  EXPECT_EQ(paivita().lampo, 0) << "no space, no gains: no division";
  ennen.LiittyyTilaansKey = {};
  ennen.KulutusryhmienLukumaara = 0;
  EXPECT_GT(paivita().lampo, 0) << "added load lowers the need of heat";

  clsSaastotoimenpide& vesi = *toimenpiteet.Lisaa("sKeyVesi");
  auto& ryhma = static_cast<clsVedenKulutusryhma&>(*vesi.Ennen());
  ryhma.Laskentayksikko = ryhma.LaskentaperusteNumber = ryhma.KayttokuvausKertaaD = 10;
  ryhma.KayttokuvausDpA = 300, ryhma.VedenKayttolampotila += 30;
  const auto vahempi = vesi.TeeJalkeen();
  static_cast<clsVedenKulutusryhma&>(*vahempi).Laskentayksikko = 4;
  vesi.PaivitaMuuttuneetAttribuutit(*vahempi);
  EXPECT_DOUBLE_EQ(vesi.Saasto().vesi, 180);
  EXPECT_NEAR(vesi.Saasto().lampo, 180 * 4.19 * 30 / 3600, 1e-9);
  EXPECT_EQ(MallinKuva(), kuva);
}

TEST_F(ToimenpiteetTesti, MissingHoldersAndUnknownKindsAreToldOfAndTheRestIsDone) {
  clsSaastotoimenpide& toimenpide = Toimenpide<clsTila>(Tila(1).sKey, [](clsTila& t) { t.Sisalampotila -= 1; });
  clsMuuttuneetAttribuutit& muutokset = toimenpide.MuuttuneetAttribuutit;
  Lisaa(muutokset, Tila(1), "EiOle", Laji::Kaksinkertainen, 1);
  Lisaa(muutokset, Tila(1), "BruttoAla", static_cast<Laji>(13), 1);
  Lisaa(muutokset, Tila(1), "BruttoAla", Laji::Kaksinkertainen, 1).InstanssiId = "clsTila 0";
  const auto jalkeen = toimenpide.TeeJalkeen();
  EXPECT_EQ(static_cast<clsTila&>(*jalkeen).Sisalampotila, Tila(1).Sisalampotila - 1);
  const auto naytetyt = viestit.Naytetyt();
  ASSERT_EQ(naytetyt.size(), 2u);
  EXPECT_TRUE(naytetyt[0].teksti.starts_with("3. muutosta ei voitu tehdä"));
  EXPECT_TRUE(naytetyt[0].teksti.ends_with("clsTila.BruttoAla, 13"));
  EXPECT_TRUE(naytetyt[1].teksti.ends_with("\nclsTila.EiOle\nclsTila.BruttoAla"));
  EXPECT_GT(toimenpide.Saasto().lampo, 0);
  muutokset.LiittyyInstanssiin = "clsTila 0";
  EXPECT_THROW(toimenpide.TeeJalkeen(), Virhe);
  muutokset.LiittyyInstanssiin = clsMuuttuneetAttribuutit::kViittausPuuttuu;
  toimenpide.PaivitaKulutukset();
  EXPECT_TRUE(viestit.Naytetyt().back().teksti.starts_with("Toimintovirhe."));
}

TEST_F(ToimenpiteetTesti, FiguresAreComputedOnceAndAnewAfterAChangeOfTheBase) {
  clsSaastotoimenpide& toimenpide = Toimenpide<clsTila>(Tila(2).sKey, [](clsTila& t) { t.Sisalampotila -= 2; });
  EXPECT_FALSE(toimenpide.JalkeenTiedotUpToDate);
  const double saasto = toimenpide.Saasto().lampo;
  EXPECT_TRUE(toimenpide.JalkeenTiedotUpToDate && toimenpide.EnnenTiedotUpToDate);
  toimenpide.SaastoLampoteho = 10;
  const Kustannussaastot kustannukset = toimenpide.Kustannussaasto();
  EXPECT_DOUBLE_EQ(kustannukset.lampoEnergia, 60 * saasto);
  EXPECT_DOUBLE_EQ(kustannukset.lampoTeho, 120);
  toimenpide.Investointi = -5000;
  const Alvprosentit alv{.lampo = 10, .yleinen = 20};
  EXPECT_DOUBLE_EQ(toimenpide.Takaisinmaksuaika(alv), 1.2 * -5000 / (1.1 * (60 * saasto + 120)));
  EXPECT_NEAR(toimenpide.Ostosaasto().hinta.lampo, 60 * saasto, 1e-9 * 60 * saasto);

  Tila(2).Vuotoilmanvaihto *= 3;
  rakennus->Muuttui("Tila");
  EXPECT_FALSE(toimenpide.EnnenTiedotUpToDate);
  const Hyodykkeet perusta = toimenpiteet.PaivitaEnnenTiedotToimenpiteisiin();
  EXPECT_EQ(perusta, Kokonaan(*rakennus));
  EXPECT_EQ(toimenpide.KulutusEnnen(), perusta);
  EXPECT_GT(toimenpide.Saasto().lampo, saasto);
  rakennus->Tallennettu = true;
  toimenpide.JalkeenTiedotUpToDate = false;
  const auto jalki = rakennus->Sormenjalki();
  toimenpide.PaivitaKulutukset();
  toimenpiteet.PaivitaHierarkiaLista();
  rakennus->ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
  EXPECT_TRUE(rakennus->Tallennettu) << "computing changes no file";
  EXPECT_EQ(rakennus->Sormenjalki(), jalki) << "and leaves nothing to rescue";
  static_cast<clsSahkonKulutusryhma&>(*toimenpiteet.Lisaa("sKeySahko")->Ennen()).KayttoaikaHpD = 1;
  EXPECT_NE(rakennus->Sormenjalki(), jalki);
}

TEST_F(ToimenpiteetTesti, MeasuresAndRowsComeBackFromTheFileAsTheyWere) {
  clsSaastotoimenpide& tilan = Toimenpide<clsTila>(Tila(1).sKey, [](clsTila& t) { t.Sisalampotila -= 1; });
  clsSaastotoimenpide& kelluva = *toimenpiteet.Lisaa("sKeyVesi");
  static_cast<clsVedenKulutusryhma&>(*kelluva.Ennen()).Laskentayksikko = 7;
  clsToimenpiteidenJarjestelija& jarjestelija = rakennus->ToimenpiteidenJarjestelija;
  for (const auto* toimenpide : {&tilan, &kelluva}) jarjestelija.Valitse(toimenpide->sKey, true);
  jarjestelija.SiirraYlos(jarjestelija.ValitutToimenpiteet.Item(3).sKey);
  jarjestelija.PaivitaValitutToimenpiteet();
  const Koehakemisto hakemisto;
  const std::string tiedosto = (hakemisto / "kohde.lvt").string();
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  clsRakennus avattu;
  avattu.Hae(tiedosto);
  ASSERT_EQ(avattu.Saastotoimenpiteet.Count(), 2);
  clsSaastotoimenpide& luettu = avattu.Saastotoimenpiteet.Item(1);
  EXPECT_EQ(luettu.Saasto(), tilan.Saasto());
  EXPECT_EQ(luettu.KelluvaEnnen.get(), nullptr);
  EXPECT_EQ(luettu.Ennen(), &avattu.Tilat.Item(1));
  EXPECT_EQ(static_cast<clsVedenKulutusryhma&>(*avattu.Saastotoimenpiteet.Item(2).Ennen()).Laskentayksikko, 7);
  luettu.JalkeenTiedotUpToDate = false;
  EXPECT_EQ(luettu.Saasto(), tilan.Saasto()) << "computed in its own building";
  const auto& rivit = avattu.ToimenpiteidenJarjestelija.ValitutToimenpiteet;
  ASSERT_EQ(rivit.Count(), 3);
  EXPECT_EQ(rivit.Item(1).Tyyppi, clsValittuToimenpide::Yhteensa);
  EXPECT_EQ(rivit.Item(2).ToimenpidesKey, kelluva.sKey);
  EXPECT_EQ(rivit.Item(3).SaastoLampoEnergia, jarjestelija.ValitutToimenpiteet.Item(3).SaastoLampoEnergia);
}

TEST_F(JarjestelijaTesti, NetSavingsSumUpToThePackageInAnyOrder) {
  jarjestelija.PaivitaValitutToimenpiteet();
  EXPECT_EQ(Saasto(rivit.Item(1)), Hyodykkeet{}) << "an empty list";
  for (const auto* toimenpide : {&lampotila, &kelluva, &eristys, &kone}) jarjestelija.Valitse(toimenpide->sKey, true);
  const std::string kuva = MallinKuva();
  const auto kaikki = rakennus->Kopioi();
  for (const auto* toimenpide : {&lampotila, &eristys, &kone})
    kaikki->LiitaSaastoToimenpide(toimenpide->MuuttuneetAttribuutit);
  const Hyodykkeet perusta = Kokonaan(*rakennus);
  Hyodykkeet paketti = perusta - Kokonaan(*kaikki);
  paketti += kelluva.Saasto();
  Arpa arpa;
  for (int kierros = 0; kierros < 6; ++kierros) {
    jarjestelija.PaivitaValitutToimenpiteet();
    EXPECT_EQ(MallinKuva(), kuva);
    Hyodykkeet summa;
    for (int i = 2; i <= rivit.Count(); ++i) {
      summa += Saasto(rivit.Item(i));
      EXPECT_TRUE(rivit.Item(i).TiedotUpToDate);
    }
    EXPECT_NEAR(summa.lampo, paketti.lampo, 1e-9);
    EXPECT_NEAR(summa.sahko, paketti.sahko, 1e-9);
    const auto& laskettu = *jarjestelija.LaskettuPaketti();
    EXPECT_EQ(laskettu.ennen, perusta);
    EXPECT_NEAR((laskettu.ennen - laskettu.lopuksi).lampo, paketti.lampo, 1e-9);
    EXPECT_NEAR(laskettu.saasto->hinta.lampo, 60 * paketti.lampo, 1e-6);
    const clsSaastotoimenpide& eka = toimenpiteet.Item(rivit.Item(2).ToimenpidesKey);
    EXPECT_EQ(Saasto(rivit.Item(2)), const_cast<clsSaastotoimenpide&>(eka).Saasto()) << "net of the first is gross";
    EXPECT_EQ(rivit.Item(1).Investointi, 20700);
    EXPECT_EQ(rivit.Item(1).SaastoPatoTeho, 3);
    EXPECT_NEAR(rivit.Item(1).SaastoLampoEnergia, summa.lampo, 1e-9);
    const Tunniste siirrettava = rivit.Item(arpa.Kokonaisluku(3, 5)).sKey;
    const Tunniste uusi = jarjestelija.SiirraYlos(siirrettava);
    EXPECT_FALSE(uusi == siirrettava);
    EXPECT_FALSE(rivit.Item(uusi).TiedotUpToDate) << "stale until computed";
  }
  EXPECT_LT(Rivilla(eristys).SaastoLampoEnergia + Rivilla(lampotila).SaastoLampoEnergia,
            eristys.Saasto().lampo + lampotila.Saasto().lampo)
      << "measures overlap";
}

TEST_F(JarjestelijaTesti, RowsAreTickedMovedAndRemovedBelowTheTotals) {
  jarjestelija.Valitse(kone.sKey, true);
  jarjestelija.Valitse(eristys.sKey, true);
  EXPECT_TRUE(toimenpiteet.ListaItem(kone.sKey).ValittuTaulukko2een);
  EXPECT_FALSE(rivit.Item(2).TiedotUpToDate);
  EXPECT_FALSE(jarjestelija.VoiSiirtaaYlos(rivit.Item(1).sKey) || jarjestelija.VoiSiirtaaAlas(rivit.Item(1).sKey));
  EXPECT_FALSE(jarjestelija.VoiSiirtaaYlos(rivit.Item(2).sKey));
  EXPECT_FALSE(jarjestelija.VoiSiirtaaAlas(rivit.Item(3).sKey));
  EXPECT_THROW(jarjestelija.SiirraYlos(rivit.Item(2).sKey), Virhe);
  jarjestelija.SiirraAlas(rivit.Item(2).sKey);
  EXPECT_EQ(rivit.Item(3).ToimenpidesKey, kone.sKey);
  EXPECT_EQ(rivit.Item(1).Tyyppi, Rivi::Yhteensa);
  jarjestelija.PaivitaValitutToimenpiteet();
  const auto vanhentuneet = [&] {
    std::string paikat;
    for (int i = 1; i <= rivit.Count(); ++i) paikat += rivit.Item(i).TiedotUpToDate ? '.' : 'v';
    return paikat;
  };
  for (const auto* toimenpide : {&lampotila, &kelluva}) jarjestelija.Valitse(toimenpide->sKey, true);
  EXPECT_EQ(vanhentuneet(), "v..vv");
  jarjestelija.PaivitaValitutToimenpiteet();
  jarjestelija.SiirraJalkeen(rivit.Item(4).sKey, rivit.Item(2).sKey);
  EXPECT_EQ(vanhentuneet(), "v.vv.") << "the last one has the same rows above it, in another order";
  EXPECT_FALSE(jarjestelija.LaskettuPaketti()) << "of another order";
  jarjestelija.PaivitaValitutToimenpiteet();
  jarjestelija.Valitse(lampotila.sKey, false);
  EXPECT_EQ(vanhentuneet(), "v.vv");
  jarjestelija.Valitse(lampotila.sKey, false);
  jarjestelija.PoistaRivi(rivit.Item(4).sKey);
  EXPECT_EQ(vanhentuneet(), "v.v");
  jarjestelija.PaivitaValitutToimenpiteet();
  EXPECT_FALSE(jarjestelija.Vanhentunut());
  rakennus->ToimenpiteetMuuttuivat("Järjestys");
  EXPECT_TRUE(rivit.Item(2).TiedotUpToDate);
  rakennus->Muuttui("Tila");
  EXPECT_FALSE(rivit.Item(1).TiedotUpToDate || rivit.Item(2).TiedotUpToDate) << "the base has changed";
  jarjestelija.PoistaRivi(rivit.Item(2).sKey);
  EXPECT_FALSE(toimenpiteet.ListaItem(eristys.sKey).ValittuTaulukko2een);
  jarjestelija.Valitse(kone.sKey, false);
  EXPECT_EQ(rivit.Count(), 1);
}

TEST_F(JarjestelijaTesti, ATariffRowKeepsItsFiguresAndAMissingMeasureIsPassedOver) {
  clsTariffiVertailuTapaus halpa, kallis;
  halpa.sKey = "halpa", halpa.Nimi = "Yleissähkö", halpa.Investointi = 500, halpa.TotEnergia = 90;
  halpa.MyyntiTariffiSkey = Tariffi(clsTariffi::SahkoMyyntiTariffi, 90, 0, 0);
  kallis = halpa;
  kallis.TotEnergia = 100;
  jarjestelija.Valitse(kone.sKey, true);
  Rivi& tariffi = jarjestelija.LisaaTariffirivi(halpa, kallis);
  EXPECT_DOUBLE_EQ(tariffi.KustannusSaastoSahkoPatoTeho, 900);
  EXPECT_DOUBLE_EQ(tariffi.Takaisinmaksuaika, 500.0 / 900);
  const Tunniste uusi = jarjestelija.SiirraYlos(tariffi.sKey);
  EXPECT_DOUBLE_EQ(rivit.Item(uusi).KustannusSaastoSahkoPatoTeho, 900);
  EXPECT_EQ(rivit.Item(uusi).Nimi, "Sähkötariffin vaihto: Yleissähkö");
  jarjestelija.PaivitaValitutToimenpiteet();
  EXPECT_TRUE(rivit.Item(uusi).TiedotUpToDate);
  const Kustannussaastot yhteensa = rivit.Item(1).Kustannussaasto();
  EXPECT_DOUBLE_EQ(yhteensa.sahkoPatoTeho, 900 + 3 * 5);
  const Alvprosentit alv{.lampo = 24, .sahko = 24, .yleinen = 24};
  EXPECT_DOUBLE_EQ(jarjestelija.PaketinTakaisinmaksuaika(alv).value(), 1.24 * 20500 / yhteensa.Yhteensa(alv));

  toimenpiteet.Remove(kone.sKey);
  rakennus->Muuttui("Poisto");
  jarjestelija.PaivitaValitutToimenpiteet();
  EXPECT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_FALSE(rivit.Item(3).TiedotUpToDate);
  EXPECT_TRUE(rivit.Item(1).TiedotUpToDate);
}

}  // namespace
