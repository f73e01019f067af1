// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs of one consumer group, driven as a person would, without a screen; and the guide's examples of them.
#include <fstream>

#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "tests/building/Koerakennus.h"
#include "ui/Kenttatarkistus.h"

namespace {

class Ryhmadialogi : public RakennusTesti {
 protected:
  Ryhmadialogi() { AsetaTarkistuksenKello(nullptr); }

  template <class Ryhma>
  bool Muokkaa(Ryhma& ryhma, const char* lomake, const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan(lomake, kasikirjoitus);
    return ryhma.NaytaKayttoliittyma();
  }
  /// Specific value, units, use in a day, use in a year, equalising factor; what is hidden is left out.
  static void Kirjoita(Ikkunaton& l, const std::array<const char*, 5>& luvut) {
    constexpr const char* kKentat[] = {"txtOminaissuureidenMaara", "txtLaskentaYksikoidenMaara",
                                       "txtKayttomaaraTunnitVrk_ssa", "txtKayttomaaraVrktVuodessa", "txtTasauskerroin"};
    for (std::size_t i = 0; i < luvut.size(); ++i)
      if (luvut[i]) l.KayttajaKirjoittaa(kKentat[i], luvut[i]);
  }
  /// The guide's table of examples has the row, from the unit on.
  static void OppaassaOn(const char* sivu, const char* yksikko, const std::array<const char*, 5>& luvut,
                         const std::string& tulokset) {
    std::ifstream tiedosto(Lahdekoodi(std::string("docs/opas/") + sivu));
    const std::string opas{std::istreambuf_iterator(tiedosto), {}};
    std::string rivi = std::string("| ") + yksikko + " | ";
    for (const char* luku : luvut) rivi += std::string(luku ? luku : "–") + " | ";
    EXPECT_NE(opas.find(rivi + tulokset + " |\n"), std::string::npos) << rivi + tulokset;
  }
  static bool Nakyy(const Ikkunaton& l, const char* nimi) { return l.Etsi(nimi).Nakyva(); }
  static void Ok(Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); }
  static void Peruuta(Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); }
};

class Sahkodialogi : public Ryhmadialogi {
 protected:
  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    return Ryhmadialogi::Muokkaa(ryhma, "frmTarkennettuLaiteLaskenta", kasikirjoitus);
  }

  clsSahkonKulutusryhma& ryhma = rakennus->SahkonKulutusryhmat.Add("laite");
};

TEST_F(Sahkodialogi, EachUnitGivesAFigureThatCanBeFollowed) {
  const struct {
    bool teho;
    const char* yksikko;
    std::array<const char*, 5> luvut;
    const char *laskentayksikko, *kulutus;
    double vuodessa;
  } kTapaukset[] = {
      {true, "W/vapaa yksikkö", {"60", "12", "5", "200", "1"}, "", "0,72", 0.72},
      {true, "W/laite", {"100", "1", "24", "365", "1"}, "laitteita", "0,88", 0.876},
      {true, "W/m²", {"12", "3 000", "10", "250", "0,8"}, "m²", "72,00", 72},
      {true, "W/m³", {"0,5", "10 000", "24", "100", "1"}, "m³", "12,00", 12},
      {false, "kWh/laite,a", {"350", "12", nullptr, nullptr, "1"}, "laitteita", "4,20", 4.2},
      {false, "kWh/annos", {"0,6", "40 000", nullptr, nullptr, "1"}, "annosta/d", "24,00", 24},
      {false, "kWh/kg", {"1,5", "8 000", nullptr, nullptr, "0,5"}, "kg/d", "6,00", 6},
      {false, "kWh/d", {"20", "365", nullptr, nullptr, "1"}, "---", "7,30", 7.3},
      {false, "kWh/m²,a", {"25", "4 200", nullptr, nullptr, "1"}, "m²", "105,00", 105},
      {false, "kWh/m³,a", {"2,5", "17 500", nullptr, nullptr, "1"}, "m³", "43,75", 43.75},
      {false, "kWh/vapaa yksikkö,a", {"500", "3", nullptr, nullptr, "1"}, "", "1,50", 1.5},
  };
  for (const auto& t : kTapaukset) {
    SCOPED_TRACE(t.yksikko);
    rakennus->SahkonKulutusryhmat.Remove(1);
    clsSahkonKulutusryhma& uusi = rakennus->SahkonKulutusryhmat.Add("laite");
    EXPECT_TRUE(Ryhmadialogi::Muokkaa(uusi, "frmTarkennettuLaiteLaskenta", [&](Ikkunaton& l) {
      if (!t.teho) l.KayttajaPainaa("optLaskentatapa1");
      l.KayttajaValitsee("cmbLaskentaOminaissuure", t.yksikko);
      Kirjoita(l, t.luvut);
      EXPECT_EQ(l.Teksti("txtLaskentayksikko"), t.laskentayksikko);
      EXPECT_EQ(l.Teksti("txtKulutus"), t.kulutus);
      l.KayttajaKirjoittaa("txtKulutusRyhmienMaara", "2");
      Ok(l);
    }));
    EXPECT_DOUBLE_EQ(uusi.Vuosikulutus(), 2 * t.vuodessa);
    OppaassaOn("sahkoryhma.md", t.yksikko, t.luvut, t.kulutus);
    EXPECT_EQ(uusi.LaskentaperusteStr, t.yksikko);
    EXPECT_EQ(uusi.Laskentayksikko, t.laskentayksikko);
    EXPECT_EQ(uusi.LaskentatapaTehopohjainen(), t.teho);
  }
}

TEST_F(Sahkodialogi, TypedConsumptionTakesThePlaceOfTheCalculation) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    l.KayttajaPainaa("optLaskentatapa1");
    l.KayttajaPainaa("optEnergiamoodit1");
    for (const char* nimi : {"cmbLaskentaOminaissuure", "txtOminaissuureidenMaara", "txtLaskentaYksikoidenMaara",
                             "txtLaskentayksikko", "txtTasauskerroin"})
      EXPECT_TRUE(Nakyy(l, nimi) && !l.Etsi(nimi).Kaytossa()) << nimi;
    l.KayttajaKirjoittaa("txtKulutusRyhmienMaara", "3");
    for (const char* teksti : {"", "2,5MWh"}) {
      l.KayttajaKirjoittaa("txtKulutus2", teksti);
      EXPECT_EQ(l.Teksti("txtKulutus"), "---");
      EXPECT_EQ(l.Teksti("txtKokonaiskulutus"), "---");
      AsetaTarkistuksenKello(nullptr);
      Ok(l);
      EXPECT_TRUE(l.Auki());
      EXPECT_EQ(l.Kohdistettu(), "txtKulutus2");
    }
    EXPECT_EQ(viestit.Esiintymia("Arvo puuttuu. Kirjoita kenttään luku. Mitattu tai arvioitu (MWh/a)."), 1);
    EXPECT_EQ(viestit.Esiintymia("Arvon on oltava luku."), 1);
    l.KayttajaKirjoittaa("txtKulutus2", "2,5");
    EXPECT_EQ(l.Teksti("txtKulutus"), "2,50");
    EXPECT_EQ(l.Teksti("txtKokonaiskulutus"), "7,50");
    Ok(l);
  }));
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 7.5);
  Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKokonaiskulutus"), "7,50");
    l.KayttajaPainaa("optEnergiamoodit2");
    EXPECT_FALSE(l.Etsi("txtKulutus2").Kaytossa());
    EXPECT_EQ(l.Teksti("txtKokonaiskulutus"), "0,00");
    l.KayttajaPainaa("optLaskentatapa0");
    EXPECT_TRUE(l.Etsi("optEnergiamoodit2").Valittu());
    EXPECT_FALSE(Nakyy(l, "optEnergiamoodit0"));
    Peruuta(l);
  });
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 7.5) << "Cancel";
}

TEST_F(Sahkodialogi, AHiddenUseCountsOneAndComesBackAsItWas) {
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    Kirjoita(l, {"100", "2", "8", "250", "1"});
    l.KayttajaKirjoittaa("txtLaskentayksikko", "valaisinta");
    EXPECT_EQ(l.Teksti("txth_per_a"), "2 000");
    EXPECT_EQ(l.Teksti("txtKulutus"), "0,40");
    EXPECT_EQ(l.Teksti("lblMuuntokerroin"), "1000000");
    l.KayttajaPainaa("optLaskentatapa1");
    l.KayttajaValitsee("cmbLaskentaOminaissuure", "kWh/kg");
    for (const char* nimi : {"txtKayttomaaraTunnitVrk_ssa", "lblKayttomaaraTunnitVrk_ssa",
                             "lblYksKayttomaaraTunnitVrk_ssa", "txtKayttomaaraVrktVuodessa", "txth_per_a"})
      EXPECT_FALSE(Nakyy(l, nimi)) << nimi;
    EXPECT_EQ(l.Teksti("txtKayttomaaraTunnitVrk_ssa"), "1");
    EXPECT_EQ(l.Teksti("txtKulutus"), "0,20") << "100 kWh × 2 / 1000";
    EXPECT_EQ(l.Teksti("lblMuuntokerroin"), "1000");
    l.KayttajaPainaa("optLaskentatapa0");
    EXPECT_EQ(l.Teksti("txtKayttomaaraVrktVuodessa"), "250");
    EXPECT_EQ(l.Teksti("txtLaskentayksikko"), "valaisinta");
    EXPECT_EQ(l.Teksti("txtKulutus"), "0,40");
    l.KayttajaPainaa("optLaskentatapa1");
    EXPECT_EQ(l.Etsi("cmbLaskentaOminaissuure").Indeksi(), 2);
    Ok(l);
  }));
  EXPECT_EQ(ryhma.KayttoaikaHpD, 1);
  EXPECT_EQ(ryhma.KayttoaikaDpA, 1);
  EXPECT_DOUBLE_EQ(ryhma.Vuosikulutus(), 0.2);
}

TEST_F(Sahkodialogi, ABadNumberKeepsTheFocusAndLosesNothing) {
  ryhma.LaskentaperusteNumber = 0.123456789;
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    Kirjoita(l, {nullptr, "1", "24", "365", "1"});
    for (const char* teksti : {"", "2", "2x"}) l.KayttajaKirjoittaa("txtLaskentaYksikoidenMaara", teksti);
    EXPECT_EQ(l.Teksti("txtKulutus"), "---");
    EXPECT_EQ(l.Teksti("txth_per_a"), "---");
    EXPECT_TRUE(viestit.Naytetyt().empty()) << "not while the field is half written";
    l.KayttajaPoistuu("txtLaskentaYksikoidenMaara");
    EXPECT_EQ(l.Kohdistettu(), "txtLaskentaYksikoidenMaara");
    EXPECT_TRUE(l.TekstiValittu());
    EXPECT_EQ(l.Teksti("txtLaskentaYksikoidenMaara"), "2x");
    EXPECT_EQ(viestit.Esiintymia("Arvon on oltava luku. Korjaa kentän arvo. Laskentayksiköitä."), 1);
    l.KayttajaKirjoittaa("txtLaskentaYksikoidenMaara", "2");
    l.KayttajaKirjoittaa("txtKayttomaaraTunnitVrk_ssa", "25");
    AsetaTarkistuksenKello(nullptr);
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(viestit.Esiintymia("enintään 24 h/d"), 1);
    l.KayttajaKirjoittaa("txtKayttomaaraTunnitVrk_ssa", "24");
    Ok(l);
  }));
  EXPECT_EQ(ryhma.LaskentaperusteNumber, 0.123456789) << "an untouched field isn't rounded";
  EXPECT_EQ(ryhma.LaskentayksikkoNumber, 2);
}

TEST_F(Sahkodialogi, TheSpaceIsChosenByItsNameAndKeptByItsKey) {
  LisaaTila().TilanNimi = "Aula";
  clsTila& sali = LisaaTila();
  sali.TilanNimi = "Sali";
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Otsikko(), "Uusi kulutusryhmä: Sähkönkulutuksen tarkennettu laskenta");
    EXPECT_EQ(l.Etsi("cmbLiittyyTilaan").Indeksi(), 0);
    l.KayttajaValitsee("cmbLiittyyTilaan", "Sali");
    Ok(l);
  }));
  EXPECT_EQ(ryhma.LiittyyTilaansKey, sali.sKey);
  EXPECT_EQ(ryhma.LiittyyTilaanStr, "Sali");
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    l.KayttajaValitsee("cmbLiittyyTilaan", "---");
    Ok(l);
  }));
  EXPECT_TRUE(ryhma.LiittyyTilaansKey.Tyhja());
  EXPECT_EQ(ryhma.LiittyyTilaanStr, "");
}

class Vesidialogi : public Ryhmadialogi {
 protected:
  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    return Ryhmadialogi::Muokkaa(ryhma, "frmTarkennettuVesiLaskenta", kasikirjoitus);
  }

  clsVedenKulutusryhma& ryhma = rakennus->VedenKulutusryhmat.Add("suihkut", clsVedenKulutusryhma::Kayttovesi);
};

TEST_F(Vesidialogi, EachUnitGivesAFigureThatCanBeFollowed) {
  const struct {
    const char* yksikko;
    std::array<const char*, 5> luvut;
    const char *laskentayksikko, *kaytto, *kulutus, *lampo;
    double kuutiota;
  } kTapaukset[] = {
      // At 41 °C, from 5 °C: 41,9 kWh/m³.
      {"dm³/kerta", {"20", "10", "2", "365", "1"}, "kpl", "kertaa/d", "146,00", "6,12", 146},
      {"dm³/kpl", {"5 000", "30", nullptr, nullptr, "1"}, "kpl", "", "150,00", "6,29", 150},
      {"dm³/annos", {"8", "500", nullptr, "250", "0,9"}, "annosta/d", "", "900,00", "37,71", 900},
      {"dm³/hlö,d", {"120", "50", nullptr, "365", "1"}, "hlö", "", "2 190,00", "91,76", 2190},
      {"dm³/s", {"0,1", "1", "1", "100", "1"}, "kpl", "h/d", "36,00", "1,51", 36},
      {"dm³/min", {"6", "2", "0,5", "200", "1"}, "kpl", "h/d", "72,00", "3,02", 72},
      {"dm³/h", {"50", "4", "10", "300", "0,5"}, "kpl", "h/d", "300,00", "12,57", 300},
  };
  for (const auto& t : kTapaukset) {
    SCOPED_TRACE(t.yksikko);
    EXPECT_TRUE(Muokkaa([&](Ikkunaton& l) {
      l.KayttajaValitsee("cmbLaskentaOminaissuure", t.yksikko);
      EXPECT_EQ(l.Teksti("lblTxtLaskentayksikko"), t.laskentayksikko);
      EXPECT_EQ(l.Teksti("lbl_hPer_d"), t.kaytto);
      EXPECT_EQ(Nakyy(l, "txtKayttomaaraTunnitVrk_ssa"), t.luvut[2] != nullptr);
      EXPECT_EQ(Nakyy(l, "txtKayttomaaraVrktVuodessa"), t.luvut[3] != nullptr);
      Kirjoita(l, t.luvut);
      l.KayttajaKirjoittaa("txtVedenKayttoLampotila", "41");
      EXPECT_EQ(l.Teksti("txtKulutus"), t.kulutus);
      EXPECT_EQ(l.Teksti("txtVedenLammittamisenEnergia"), t.lampo);
      Ok(l);
    }));
    EXPECT_DOUBLE_EQ(ryhma.VedenKulutus(), t.kuutiota);
    OppaassaOn("vesiryhma.md", t.yksikko, t.luvut, std::string(t.kulutus) + " | " + t.lampo);
    EXPECT_EQ(ryhma.LaskentaperusteStr, t.yksikko);
  }
}

TEST_F(Vesidialogi, ShareAndUseTemperatureAreTwoViewsOfOne) {
  ryhma.VedenTiedot.LamminLampotila = 58;
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("lblVedenTiedot"), "Kylmä vesi 5,0 °C, lämmin vesi 58,0 °C");
    EXPECT_EQ(l.Teksti("txtLampimanVedenOsuus"), "0,0");
    l.KayttajaKirjoittaa("txtVedenKayttoLampotila", "38");
    EXPECT_EQ(l.Teksti("txtLampimanVedenOsuus"), "62") << "33 / 53";
    for (const char* teksti : {"", "4o"}) l.KayttajaKirjoittaa("txtVedenKayttoLampotila", teksti);
    EXPECT_EQ(l.Teksti("txtLampimanVedenOsuus"), "62") << "left alone";
    EXPECT_EQ(l.Teksti("txtVedenLammittamisenEnergia"), "---");
    EXPECT_TRUE(viestit.Naytetyt().empty());
    l.KayttajaPoistuu("txtVedenKayttoLampotila");
    EXPECT_EQ(viestit.Esiintymia("ei ole luku"), 1);
    EXPECT_EQ(l.Kohdistettu(), "txtVedenKayttoLampotila");
    l.KayttajaKirjoittaa("txtVedenKayttoLampotila", "40");
    l.KayttajaPoistuu("txtVedenKayttoLampotila");
    l.KayttajaKirjoittaa("txtLampimanVedenOsuus", "33");
    EXPECT_EQ(l.Teksti("txtVedenKayttoLampotila"), "22,5") << "33 × 53 / 100 + 5";
    EXPECT_EQ(l.Teksti("txtLampimanVedenOsuus"), "33");
    Ok(l);
  }));
  EXPECT_EQ(ryhma.LampimanVedenOsuus, 33);
  EXPECT_EQ(ryhma.VedenKayttolampotila, 22.5) << "as it was shown";
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtVedenKayttoLampotila", "63,3");
    EXPECT_EQ(l.Teksti("txtLampimanVedenOsuus"), "110");
    Ok(l);
  })) << "hotter than the hot water is accepted";
  ryhma.VedenTiedot.LamminLampotila = 5;
  Muokkaa([](Ikkunaton& l) {
    l.KayttajaKirjoittaa("txtVedenKayttoLampotila", "30");
    EXPECT_EQ(l.Teksti("txtLampimanVedenOsuus"), "0");
    Peruuta(l);
  });
  EXPECT_EQ(ryhma.LampimanVedenOsuus, 110) << "Cancel";
}

TEST_F(Vesidialogi, AMissingOrBadNumberIsToldInWordsOfItsOwn) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    for (const char* teksti : {"", "12a"}) {
      l.KayttajaKirjoittaa("txtOminaissuureidenMaara", teksti);
      EXPECT_EQ(l.Teksti("txtKulutus"), "---");
      AsetaTarkistuksenKello(nullptr);
      Ok(l);
      EXPECT_TRUE(l.Auki());
      EXPECT_EQ(l.Kohdistettu(), "txtOminaissuureidenMaara");
    }
    EXPECT_TRUE(l.TekstiValittu());
    ASSERT_EQ(viestit.Naytetyt().size(), 2u);
    EXPECT_EQ(viestit.Naytetyt()[0].teksti, "Arvo puuttuu!");
    EXPECT_EQ(viestit.Naytetyt()[0].otsikko, "Ominaiskulutus");
    EXPECT_EQ(viestit.Naytetyt()[1].teksti, "Arvon täytyy olla numero");
    l.KayttajaKirjoittaa("txtOminaissuureidenMaara", "12");
    l.KayttajaValitsee("cmbLaskentaOminaissuure", "dm³/h");
    l.KayttajaKirjoittaa("txtKayttomaaraTunnitVrk_ssa", "25");
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(viestit.Esiintymia("enintään 24 h/d."), 1);
    l.KayttajaValitsee("cmbLaskentaOminaissuure", "dm³/kerta");
    Ok(l);
  })) << "25 times a day are good";
  EXPECT_EQ(ryhma.KayttokuvausKertaaD, 25);
}

TEST_F(Vesidialogi, FiguresHaveGroupsOfThreeAfterAnEdit) {
  ryhma.LaskentaperusteNumber = 2190000;
  ryhma.Laskentayksikko = ryhma.KayttokuvausKertaaD = ryhma.KayttokuvausDpA = 1;
  Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtKulutus"), "2190,00");
    l.KayttajaKirjoittaa("txtTasauskerroin", "2");
    EXPECT_EQ(l.Teksti("txtKulutus"), "4 380,00");
    Peruuta(l);
  });
}

}  // namespace
