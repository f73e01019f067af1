// SPDX-License-Identifier: GPL-3.0-or-later
// The list of machines, the dialog of a machine and the calculator of heat recovery, driven as a person would, without
// a screen.
#include "kernel/Luvut.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "tests/tuki/Lahdekoodi.h"
#include "tests/ventilation/Koekone.h"
#include "ui/Ikkunaton.h"
#include "ui/Kenttatarkistus.h"

namespace {

class KoneDialogi : public KoneTesti {
 protected:
  KoneDialogi() : ikkunat(Lahdekoodi("ui/forms")) {
    AsetaTarkistuksenKello(nullptr);
    clsTila& tila = LisaaTila(1000, 300);
    tila.TilanNimi = "Aula";
    clsIVKone& kone = LisaaKone(tila.sKey);
    kone.KoneenTunnus = "TK01";
    kone.IVPeriaate = "Tuloilmakone ja LTO";
    kone.PuhaltimienSahkonKulutus.TuloSahkoTeho11 = 2;
    kone.PuhaltimienSahkonKulutus.PoistoSahkoTeho11 = 1;
    kone.JarjestelmaTyyppiID = PuhaltimenTeho::Vakioilmavirta;
    Kayta(kone, {{7, 0, 0}});
    rakennus->PaivitaInstanssiIdLista();
    rakennus->Tallennettu = true;
  }

  clsIVKone& Kone() const { return rakennus->IVKoneet.Item(1); }
  Ikkunaton& Luettelo() const { return ikkunat.Ikkuna("frmIVKoneYhteenveto"); }
  const Taulukko& Rivit() const { return Luettelo().Etsi("lvwKoneet").Rivit(); }
  /// Opens the dialog of the first machine and does what the person does there.
  bool Muokkaa(const Ikkunattomat::Kasikirjoitus& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmIlmanvaihtokone", kasikirjoitus);
    return rakennus->IVKoneet.Muokkaa(Kone());
  }
  clsSaastotoimenpide& LisaaToimenpide(const Tunniste& kohde) {
    clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Add("toimenpide");
    toimenpide.Nimi = "Uudet käyntiajat";
    toimenpide.MuuttuneetAttribuutit.Add("muutos").InstanssiId = kohde;
    return toimenpide;
  }
  int Eroja(clsIVKone& toinen) const {
    clsMuuttuneetAttribuutit muutokset;
    VertaileOliot(Kone(), toinen, muutokset, rakennus->TyyppiTiedot);
    return muutokset.Count();
  }

  mutable Ikkunattomat ikkunat;
};

TEST_F(KoneDialogi, ListShowsTheYearOfEachMachineAndItsSums) {
  clsIVKone& poisto = LisaaKone();
  poisto.IVPeriaateID = clsIVKone::Poistoilmakone;
  poisto.PoistoIlmavirta11Teho = 0.5;
  poisto.TuloIlmavirta11Teho = 0;
  Kone().LtoHyotysuhde = 50;
  rakennus->IVKoneet.NaytaKayttoliittyma();
  EXPECT_EQ(Rivit()[0], (std::vector<std::string>{"TK01", "Tuloilmakone ja LTO", "Aula", "1,000", "1,000", "8 760",
                                                  Muotoile(Kone().VuotuinenIVjalkilammitysLampo(), "### ##0.00"),
                                                  Rivit()[0][7], "26,28"}))
      << "3 kW the year round";
  EXPECT_EQ(Rivit()[1],
            (std::vector<std::string>{"Uusi kone", "", "---", "0,000", "0,500", "0", "0,00", "0,00", "0,00"}));
  const double talteen = LueLuku(Rivit()[0][7]).value();
  Kone().LtoHyotysuhde = 0;
  EXPECT_NEAR(talteen, Kone().VuotuinenIVjalkilammitysLampo() - LueLuku(Rivit()[0][6]).value(), 0.011);
  const auto& summat = Luettelo().Etsi("lvwKoneet").Summarivi();
  EXPECT_EQ(summat[4], "1,500");
  EXPECT_EQ(summat[5], "") << "running hours have no sum";
  EXPECT_EQ(summat[8], "26,28");
  EXPECT_TRUE(rakennus->Tallennettu) << "looking changes nothing";
}

TEST_F(KoneDialogi, ListOpensOverAMachineThatCantBeCalculated) {
  LisaaKone().KoneenTunnus = "TK02";
  Kone().TuloIlmavirta11Teho = 1e308;
  rakennus->IVKoneet.NaytaKayttoliittyma();
  ASSERT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_EQ(viestit.Naytetyt()[0].kohde, "TK01");
  EXPECT_EQ(Rivit()[0][6], "---");
  EXPECT_EQ(Rivit()[1][6], "0,00");
  EXPECT_EQ(Luettelo().Etsi("lvwKoneet").Summarivi()[6], "---");
  Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtJalkilammitys"), "---");
    l.KayttajaKirjoittaa("txtTuloIlmavirta11Teho", "1");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_NE(Rivit()[0][6], "---") << "mended, and the list follows";
}

TEST_F(KoneDialogi, AddedMachineGetsItsScheduleAndStaysOnlyAfterOk) {
  rakennus->IVKoneet.NaytaKayttoliittyma();
  ikkunat.KunNaytetaan("frmIlmanvaihtokone", [](Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); });
  Luettelo().KayttajaPainaa("cmdLisaaKone");
  EXPECT_EQ(rakennus->IVKoneet.Count(), 1);
  EXPECT_TRUE(rakennus->Tallennettu);
  ikkunat.KunNaytetaan("frmIlmanvaihtokone", [](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtKoneenTunnus", "TK02");
    l.KayttajaValitsee("cmbLiittyyTilaan", "Aula");
    l.KayttajaPainaa("cmdOk");
  });
  Luettelo().KayttajaPainaa("cmdLisaaKone");
  ASSERT_EQ(rakennus->IVKoneet.Count(), 2);
  clsIVKone& uusi = rakennus->IVKoneet.Item(2);
  EXPECT_EQ(uusi.KayntiAikaYleistiedot.Count(), 35);
  EXPECT_EQ(uusi.KayntiAikaYleistiedot.KayntiAikojenSyottoTapa, "Vakiokäyttö koko vuoden");
  EXPECT_EQ(uusi.KayntiAikaYleistiedot.IvKoneenNimi, "TK02");
  EXPECT_EQ(uusi.PuhaltimienSahkonKulutus.KoneenTunnus, "TK02");
  EXPECT_EQ(uusi.LiittyyTilaansKey, rakennus->Tilat.Item(1).sKey);
  EXPECT_EQ(uusi.JarjestelmaTyyppi, "Muuttuva ilmavirta") << "texts stand beside the rows";
  EXPECT_EQ(uusi.VakioPaineOsuus, "10") << "what is chosen is what is computed";
  EXPECT_EQ(Rivit().at(1)[0], "TK02");
  EXPECT_EQ(Luettelo().Etsi("lvwKoneet").Indeksi(), 1) << "the new one is chosen";
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(KoneDialogi, RowsOfASheetBecomeMachinesOfTheirSpaces) {
  rakennus->IVKoneet.NaytaKayttoliittyma();
  Ohjain& lista = Luettelo().Etsi("lvwKoneet");
  lista.KayttajaLiittaa("Kone\tPeriaate\tTila\nPK1\tPoistoilmakone\tKellari\n");
  EXPECT_EQ(viestit.Esiintymia("Rivi 2, Tila: Kellari – ei ole tilojen luettelossa"), 1);
  lista.KayttajaLiittaa(
      "Kone\tPeriaate\tTila\tTulo (m³/s)\tPoisto (m³/s)\nPK1\tpoistoilmakone\taula\t3\t2,5\nTK2\t\t---\n");
  ASSERT_EQ(rakennus->IVKoneet.Count(), 3);
  const clsIVKone &poisto = rakennus->IVKoneet.Item(2), &tulo = rakennus->IVKoneet.Item(3);
  EXPECT_EQ(poisto.IVPeriaate, "Poistoilmakone");
  EXPECT_EQ(poisto.LiittyyTilaansKey, Kone().LiittyyTilaansKey);
  EXPECT_EQ(poisto.TuloIlmavirta11Teho, 0) << "it has no supply fan";
  EXPECT_EQ(poisto.PoistoIlmavirta11Teho, 2.5);
  EXPECT_GT(poisto.KayntiAikaYleistiedot.Count(), 0);
  EXPECT_TRUE(tulo.LiittyyTilaansKey.Tyhja());
}

TEST_F(KoneDialogi, CopyHasAScheduleAndFansOfItsOwn) {
  rakennus->IVKoneet.NaytaKayttoliittyma();
  Luettelo().KayttajaPainaa("cmdKopioiKone");
  clsIVKone& kopio = rakennus->IVKoneet.Item(2);
  EXPECT_EQ(kopio.KoneenTunnus, "Kopio: TK01");
  EXPECT_EQ(kopio.KayntiAikaYleistiedot.IvKoneenNimi, "Kopio: TK01");
  EXPECT_EQ(kopio.VuotuinenPuhallinSahko(), Kone().VuotuinenPuhallinSahko());
  const Tunniste avain = clsKayntiAjat::JaksonAvain(1, clsKayntiAika::KokoVuosi);
  const clsIVKone& lahde = Kone();
  const std::pair<Tunniste, Tunniste> parit[] = {
      {kopio.InstanssiId, lahde.InstanssiId},
      {kopio.KayntiAikaYleistiedot.Item(avain).InstanssiId, lahde.KayntiAikaYleistiedot.Item(avain).InstanssiId},
      {kopio.PuhaltimienSahkonKulutus.InstanssiId, lahde.PuhaltimienSahkonKulutus.InstanssiId},
      {kopio.PuhaltimienSahkonKulutus.TuloPuhParam.InstanssiId,
       lahde.PuhaltimienSahkonKulutus.TuloPuhParam.InstanssiId}};
  for (const auto& [uusi, vanha] : parit) EXPECT_FALSE(uusi == vanha) << uusi.Teksti();
  kopio.KayntiAikaYleistiedot.Item(avain).KayntiJaksojenLkm = 0;
  EXPECT_EQ(lahde.KayntiAikaYleistiedot.Item(avain).KayntiJaksojenLkm, 7);
}

TEST_F(KoneDialogi, MachineIsRemovedAfterAQuestionButNotFromUnderAMeasure) {
  rakennus->IVKoneet.NaytaKayttoliittyma();
  LisaaToimenpide(Kone().KayntiAikaYleistiedot.Item(5).InstanssiId);
  Luettelo().KayttajaPainaa("cmdPoistaKone");
  EXPECT_EQ(viestit.Esiintymia("Uudet käyntiajat"), 1) << "the measure changes a period of the machine";
  rakennus->Saastotoimenpiteet.Tyhjenna();
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  Luettelo().KayttajaPainaa("cmdPoistaKone");
  EXPECT_EQ(rakennus->IVKoneet.Count(), 0);
  EXPECT_TRUE(Rivit().empty());
}

TEST_F(KoneDialogi, PrincipleSpaceAndSystemDecideWhichFieldsCount) {
  const auto kaytossa = [](const Ikkunaton& l, std::initializer_list<const char*> nimet) {
    std::string tulos;
    for (const char* nimi : nimet) tulos += l.Etsi(nimi).Kaytossa() ? '1' : '0';
    return tulos;
  };
  Muokkaa([&](Ikkunaton& l) {
    const auto periaate = [&](const char* nimi) {
      l.KayttajaValitsee("cmbIVPeriaate", nimi);
      return l.Etsi("imgPeriaate").Kuva() + " " +
             kaytossa(l, {"txtTuloIlmavirta11Teho", "txtPoistoIlmavirta11Teho", "txtSisaanpuhallusLampotila",
                          "chkTuloilmanLammitysSahkoPatterilla", "txtLtoHyotysuhde", "cmdLto", "txtPoistoLampotila"});
    };
    EXPECT_EQ(periaate("Tuloilmakone"), "Tuloilmakone 1011000");
    EXPECT_EQ(periaate("Poistoilmakone"), "Poistoilmakone 0100000");
    EXPECT_EQ(periaate("Tulo- ja poistoilmakone"), "TuloPoisto 1111110");
    l.KayttajaValitsee("cmbLiittyyTilaan", "---");
    EXPECT_EQ(periaate("Tuloilmakone ja LTO"), "TuloilmakonePlusLTO 1111111") << "no space tells the temperature";
    const auto jarjestelma = [&](const char* nimi) {
      l.KayttajaValitsee("cmbJarjestelmaTyyppi", nimi);
      return kaytossa(l, {"cmbPuhaltimenVoimansiirtoTapa", "cmbPuhaltimenSaatotapa", "cmbVakioPaineOsuus"});
    };
    EXPECT_EQ(jarjestelma("Vakioilmavirta"), "000");
    EXPECT_EQ(jarjestelma("Kaksinopeus"), "100");
    EXPECT_EQ(jarjestelma("Muuttuva ilmavirta"), "111");
    l.KayttajaPainaa("cmdPeruuta");
  });
  rakennus->Tilat.Tyhjenna();
  Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Etsi("cmbLiittyyTilaan").Rivit(), (Taulukko{{"Ei tiloja"}}));
    EXPECT_FALSE(l.Etsi("cmbLiittyyTilaan").Kaytossa());
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(Kone().LiittyyTilaansKey.Tyhja());
}

TEST_F(KoneDialogi, OkRemovesWhatThePrincipleDoesntHaveAndShowsItBefore) {
  Kone().LtoHyotysuhde = 60;
  Muokkaa([](Ikkunaton& l) {
    l.KayttajaValitsee("cmbIVPeriaate", "Poistoilmakone");
    EXPECT_EQ(l.Teksti("txtJalkilammitys"), "0,00") << "no air is heated";
    EXPECT_EQ(l.Teksti("txtPuhallinSahko"), "8,76") << "1 kW";
    l.KayttajaValitsee("cmbIVPeriaate", "Tuloilmakone ja LTO");
    EXPECT_NE(l.Teksti("txtLtoEnergia"), "0,00") << "choosing back loses nothing";
    l.KayttajaValitsee("cmbIVPeriaate", "Tuloilmakone");
    EXPECT_EQ(l.Teksti("txtLtoEnergia"), "0,00");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(Kone().TuloIlmavirta11Teho, 1);
  EXPECT_EQ(Kone().PoistoIlmavirta11Teho, 0);
  EXPECT_EQ(Kone().LtoHyotysuhde, 0);
  EXPECT_EQ(Kone().IVPeriaate, "Tuloilmakone");
}

TEST_F(KoneDialogi, OnlyChangedTemperaturesReachTheSchedule) {
  clsKayntiAjat& ajat = Kone().KayntiAikaYleistiedot;
  clsKayntiAika& vuosi = ajat.Item("2KokoVuosi");
  clsKayntiAika& talvi = ajat.Item("1EkaNeljannes");
  vuosi.Tsp = talvi.Tsp = 20;
  vuosi.dTPuhallin = talvi.dTPuhallin = 0.5;
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtTuloIlmavirta11Teho", "1,25");
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_EQ(Kone().TuloIlmavirta11Teho, 1.25);
  EXPECT_EQ(Kone().PuhaltimienSahkonKulutus.TuloIlmavirta11Teho, 1.25);
  EXPECT_EQ(vuosi.Tsp, 20) << "periods keep their own";
  EXPECT_EQ(vuosi.dTPuhallin, 0.5);
  Muokkaa([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtSisaanpuhallusLampotila", "18");
    l.KayttajaKirjoittaa("txtIlmanLampeneminenPuhaltimessa", "0,8");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_EQ(vuosi.Tsp, 18);
  EXPECT_EQ(talvi.Tsp, 20) << "only the year-round periods follow";
  for (const clsKayntiAika& jakso : ajat) EXPECT_EQ(jakso.dTPuhallin, 0.8);
}

TEST_F(KoneDialogi, YearFollowsTheFieldsAndTellsWhyItIsWrong) {
  Muokkaa([this](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKayntiaika"), "8 760");
    EXPECT_EQ(l.Teksti("txtPuhallinSahko"), "26,28");
    const double ennen = LueLuku(l.Teksti("txtJalkilammitys")).value();
    EXPECT_NEAR(ennen, Kone().VuotuinenIVjalkilammitysLampo(), 0.005);
    l.KayttajaKirjoittaa("txtTuloIlmavirta11Teho", "2");
    l.KayttajaPoistuu("txtTuloIlmavirta11Teho");
    EXPECT_NEAR(LueLuku(l.Teksti("txtJalkilammitys")).value(), 2 * ennen, 0.02);
    EXPECT_EQ(l.Teksti("lblHuomautus"), "");
    l.KayttajaKirjoittaa("txtSisaanpuhallusLampotila", "15");
    l.KayttajaPoistuu("txtSisaanpuhallusLampotila");
    EXPECT_EQ(l.Teksti("txtJalkilammitys"), "0,00");
    EXPECT_NE(l.Teksti("lblHuomautus").find("15–30"), std::string::npos) << "14 degrees after the fan";
    EXPECT_TRUE(viestit.Naytetyt().empty()) << "a look ahead raises no boxes";
    EXPECT_EQ(Kone().KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp, 16) << "nor does it touch the schedule";
    l.KayttajaPainaa("cmdPeruuta");
  });
}

TEST_F(KoneDialogi, OkTellsTheBuilding) {
  rakennus->IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate = true;
  LisaaToimenpide("jokin muu").EnnenTiedotUpToDate = true;
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtLtoHyotysuhde", "70");
    l.KayttajaPainaa("cmdOk");
  }));
  EXPECT_FALSE(rakennus->IVKoneet.VuotuinenIVjalkilammitysLampoUpToDate);
  EXPECT_FALSE(rakennus->Saastotoimenpiteet.Item(1).EnnenTiedotUpToDate);
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(KoneDialogi, AMachineOfAMeasureTellsOfItsChangeButLeavesTheBuilding) {
  const auto jalkeen = Kone().Kopioi();
  LisaaToimenpide(Kone().InstanssiId).EnnenTiedotUpToDate = true;
  int muutoksia = 0;
  jalkeen->LampoSahkoKulutusMuuttui.arvo = [&] { ++muutoksia; };
  ikkunat.KunNaytetaan("frmIlmanvaihtokone", [](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtLtoHyotysuhde", "70");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_TRUE(jalkeen->NaytaKayttoliittyma());
  EXPECT_EQ(muutoksia, 1);
  EXPECT_EQ(jalkeen->LtoHyotysuhde, 70);
  EXPECT_EQ(Kone().LtoHyotysuhde, 0);
  EXPECT_TRUE(rakennus->Saastotoimenpiteet.Item(1).EnnenTiedotUpToDate) << "the base didn't change";
}

TEST_F(KoneDialogi, CalculatorFillsTheEfficiencyAndCancelRestoresAll) {
  const auto ennen = Kone().Kopioi();
  const auto laske = [](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtLtoHyotysuhde"), "0,0") << "equal temperatures";
    l.KayttajaKirjoittaa("txtTu", "-8");
    l.KayttajaKirjoittaa("txtTp", "22");
    l.KayttajaKirjoittaa("txtTlto", "11");
    EXPECT_EQ(l.Teksti("txtLtoHyotysuhde"), "63,3");
  };
  ikkunat.KunNaytetaan("frmLTOhyotylaskenta", [&](Ikkunaton& l) {
    laske(l);
    l.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_FALSE(Muokkaa([&](Ikkunaton& l) {
    l.KayttajaPainaa("cmdLto");
    EXPECT_EQ(Kone().Lto.Tu, 0) << "the dialog works on a copy";
    ikkunat.KunNaytetaan("frmLTOhyotylaskenta", [&](Ikkunaton& lto) {
      laske(lto);
      lto.KayttajaPainaa("cmdOk");
    });
    l.KayttajaKirjoittaa("txtLtoHyotysuhde", "40");
    l.KayttajaPainaa("cmdLto");
    EXPECT_EQ(l.Teksti("txtLtoHyotysuhde"), "63,33");
    EXPECT_NE(l.Teksti("txtLtoEnergia"), "0,00");
    EXPECT_EQ(Kone().LtoHyotysuhde, 19 / 30.0 * 100) << "unrounded";
    l.KayttajaValitsee("cmbIVPeriaate", "Poistoilmakone");
    l.KayttajaPainaa("cmdPeruuta");
  }));
  EXPECT_EQ(Eroja(*ennen), 0);
  EXPECT_EQ(Kone().InstanssiId, ennen->InstanssiId);
  EXPECT_TRUE(rakennus->Tallennettu);
}

TEST_F(KoneDialogi, ScheduleAndFansAreEditedUnderTheFormsPresentValues) {
  const auto ennen = Kone().Kopioi();
  const auto muuta = [this](Ikkunaton& l, const char* nappi) {
    l.KayttajaKirjoittaa("txtTuloIlmavirta11Teho", "2");
    l.KayttajaKirjoittaa("txtSisaanpuhallusLampotila", "19");
    l.KayttajaPainaa("cmdKayntiajat");
    EXPECT_EQ(l.Teksti("txtKayntiaika"), "6 257");
    l.KayttajaPainaa("cmdPuhaltimet");
    EXPECT_EQ(l.Teksti("txtPuhallinSahko"), "31,29") << "4 + 1 kW";
    l.KayttajaPainaa(nappi);
  };
  ikkunat.KunNaytetaan("frmIlmanvaihtokoneenKayntiajat", [this](Ikkunaton& l) {
    EXPECT_EQ(Kone().KayntiAikaYleistiedot.Item("1KokoVuosi").Tsp, 19);
    Kone().KayntiAikaYleistiedot.Item("2KokoVuosi").Tsp = 22;
    l.KayttajaKirjoittaa("txtKayntiJaksojenLkm1", "5");
    l.KayttajaPainaa("cmdOk");
  });
  ikkunat.KunNaytetaan("frmIVKoneenPuhaltimienSahkonKaytto", [this](Ikkunaton& l) {
    EXPECT_EQ(Kone().PuhaltimienSahkonKulutus.TuloIlmavirta11Teho, 2);
    l.KayttajaKirjoittaa("txtSahkoTeho11Tulo", "4");
    l.KayttajaPainaa("cmdOk");
  });
  EXPECT_FALSE(Muokkaa([&](Ikkunaton& l) { muuta(l, "cmdPeruuta"); }));
  EXPECT_EQ(Eroja(*ennen), 0);
  EXPECT_TRUE(Muokkaa([&](Ikkunaton& l) { muuta(l, "cmdOk"); }));
  EXPECT_EQ(Kone().KayntiAikaYleistiedot.Item("2KokoVuosi").Tsp, 22) << "OK doesn't write the temperature twice";
  EXPECT_EQ(Kone().PuhaltimienSahkonKulutus.TuloSahkoTeho11, 4);
}

TEST_F(KoneDialogi, AnEfficiencyOverHundredIsShownButNotAccepted) {
  ikkunat.KunNaytetaan("frmLTOhyotylaskenta", [](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtTp", "20");
    l.KayttajaKirjoittaa("txtTlto", "21");
    l.KayttajaPainaa("cmdOk");
  });
  Muokkaa([this](Ikkunaton& l) {
    l.KayttajaPainaa("cmdLto");
    EXPECT_EQ(l.Teksti("txtLtoHyotysuhde"), "105,0");
    l.KayttajaPainaa("cmdOk");
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(l.Kohdistettu(), "txtLtoHyotysuhde");
    EXPECT_EQ(viestit.Esiintymia("vähintään 0 %, enintään 100 %"), 1);
    l.KayttajaPainaa("cmdPeruuta");
  });
}

}  // namespace
