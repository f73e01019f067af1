// SPDX-License-Identifier: GPL-3.0-or-later
// The fuel databases as the person browses and edits them, and the energy form that takes from them.
#include <fstream>

#include "kernel/Luvut.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "supply/clsEnergiamuodonKasittely.h"
#include "tests/supply/Polttoainekannat.h"
#include "ui/Sidonta.h"

namespace {

using Ikkuna = Ikkunaton;

class Polttoaineselain : public Polttoainekannat {
 protected:
  void Selaa(const Ikkunattomat::Kasikirjoitus& toimi, bool lammitys = true) {
    ikkunat.KunNaytetaan("frmEmuo3", [&](Ikkuna& l) {
      toimi(l);
      if (l.Auki()) l.KayttajaPainaa("cmdPeruuta");
    });
    clsEnergiamuodonKasittely().Selaa(lammitys);
  }
  static std::vector<std::string> Nimet(const Ikkuna& l) {
    std::vector<std::string> nimet;
    for (const auto& rivi : l.Etsi("lvwEnergiamuodot").Rivit()) nimet.push_back(rivi.front());
    return nimet;
  }
  static std::string Valittu(const Ikkuna& l) { return l.Teksti("txtNimi"); }
};

TEST_F(Polttoaineselain, EveryFieldOfAnOwnRowIsStored) {
  std::map<std::string, std::string> kirjoitetut;
  Selaa([&](Ikkuna& l) {
    l.KayttajaValitsee("cmbKanta", "Käyttäjän kanta");
    l.KayttajaPainaa("cmdAdd");
    EXPECT_FALSE(l.Etsi("cmdUpdate").Kaytossa()) << "nothing to store yet";
    for (const Sidontalista* taulu : Sidontalista::Kaikki())
      if (taulu->Lomakkeenimi() == "frmEmuo3")
        for (const Sidonta& rivi : taulu->Rivit()) {
          const bool luku = l.Teksti(rivi.ohjain) == "0" || l.Teksti(rivi.ohjain) == "0,0";
          std::string& teksti = kirjoitetut[std::string(rivi.ohjain)];
          teksti = luku ? std::to_string(kirjoitetut.size()) + ",125" : "Teksti " + std::to_string(kirjoitetut.size());
          l.KayttajaKirjoittaa(rivi.ohjain, teksti);
        }
    l.KayttajaPainaa("cmdUpdate");
    EXPECT_FALSE(l.Etsi("cmdUpdate").Kaytossa());
    EXPECT_EQ(Nimet(l), std::vector{kirjoitetut["txtNimi"]});
  });
  EXPECT_EQ(kirjoitetut.size(), 18u);
  Selaa([&](Ikkuna& l) {
    l.KayttajaValitsee("cmbKanta", "Käyttäjän kanta");
    for (const auto& [kentta, teksti] : kirjoitetut) EXPECT_EQ(l.Teksti(kentta), teksti) << kentta;
    l.KayttajaKirjoittaa("txtMassa", "x");
    l.KayttajaPainaa("cmdUpdate");
    EXPECT_EQ(viestit.Esiintymia("ei ole luku"), 1);
    l.KayttajaKirjoittaa("txtMassa", "12");
    l.KayttajaPainaa("cmdUpdate");
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaPainaa("cmdDelete");
    EXPECT_TRUE(Nimet(l).empty());
    EXPECT_EQ(Valittu(l), "");
  });
  EXPECT_TRUE(Energiamuotokanta(Laji::Kayttajan).Rivit(true).empty());
}

TEST_F(Polttoaineselain, TheStandardDatabaseIsOnlyLookedAtAndCopiedFrom) {
  Selaa([](Ikkuna& l) {
    EXPECT_EQ(l.Otsikko(), "Lämmön energiamuodot");
    EXPECT_EQ(Nimet(l).size(), 18u);
    for (const char* nimi : {"cmdAdd", "cmdDelete", "cmdUpdate"}) EXPECT_FALSE(l.Etsi(nimi).Kaytossa()) << nimi;
    EXPECT_TRUE(l.Etsi("txtMassa").Lukittu());
    l.KayttajaKirjoittaa("txtHaku", "pelletti");
    EXPECT_EQ(Nimet(l), std::vector<std::string>{"Puupelletti"});
    EXPECT_EQ(Valittu(l), "Puupelletti");
    l.KayttajaPainaa("cmdKopioi");
    EXPECT_EQ(l.Etsi("cmbKanta").Indeksi(), 1);
    EXPECT_EQ(Nimet(l), std::vector<std::string>{"Kopio: Puupelletti"});
    EXPECT_EQ(l.Teksti("txtVarastoitunutCO2"), "403");
    EXPECT_FALSE(l.Etsi("txtNimi").Lukittu());
    EXPECT_EQ(l.Etsi("cmdAdd").Vihje(), "Lisää käyttäjän kantaan uuden rivin");
    l.KayttajaValitsee("cmbJoukko", "Sähkön energiamuodot");
    EXPECT_TRUE(Nimet(l).empty());
    EXPECT_EQ(l.Otsikko(), "Sähkön energiamuodot");
  });
  EXPECT_EQ(Energiamuotokanta(Laji::Vakio).Rivit(true).size(), 18u);
}

TEST_F(Polttoaineselain, WhatIsWrittenIsNotLostUnasked) {
  {
    Energiamuotokanta kanta(Laji::Kayttajan);
    for (const char* nimi : {"Hake", "Turve"}) {
      Energiamuotorivi rivi = kanta.Lisaa(true);
      rivi.Nimi = nimi;
      kanta.Tallenna(rivi);
    }
  }
  Selaa([this](Ikkuna& l) {
    l.KayttajaValitsee("cmbKanta", "Käyttäjän kanta");
    l.KayttajaValitsee("lvwEnergiamuodot", "Hake");
    l.KayttajaKirjoittaa("txtKuvaus", "oma metsä");
    viestit.AsetaSeuraavaVastaus(Vastaus::Peruuta);
    l.KayttajaValitsee("lvwEnergiamuodot", "Turve");
    EXPECT_EQ(Valittu(l), "Hake");
    EXPECT_EQ(l.Teksti("txtKuvaus"), "oma metsä");
    viestit.AsetaSeuraavaVastaus(Vastaus::Peruuta);
    l.KayttajaValitsee("cmbKanta", "Vakiokanta");
    EXPECT_EQ(l.Etsi("cmbKanta").Indeksi(), 1);
    viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
    l.KayttajaValitsee("lvwEnergiamuodot", "Turve");
    EXPECT_EQ(Valittu(l), "Turve");
    l.KayttajaKirjoittaa("txtKuvaus", "suo");
    viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
    l.KayttajaPainaa("cmdPeruuta");
  });
  EXPECT_EQ(viestit.VastauksiaJaljella(), 0u);
  const auto rivit = Energiamuotokanta(Laji::Kayttajan).Rivit(true);
  EXPECT_EQ(rivit.at(0).Kuvaus, "oma metsä");
  EXPECT_EQ(rivit.at(1).Kuvaus, "Kuvaus");
}

TEST_F(Polttoaineselain, ADamagedOrMissingDatabaseIsToldAndTheOtherOneStillOpens) {
  std::ofstream(Asetukset().VakioPolttoainekanta) << "vaurioitunut";
  std::filesystem::remove(Asetukset().KayttajanPolttoainekanta);
  Selaa([this](Ikkuna& l) {
    EXPECT_EQ(viestit.Esiintymia(Asetukset().VakioPolttoainekanta), 1);
    EXPECT_TRUE(Nimet(l).empty());
    l.KayttajaValitsee("cmbKanta", "Käyttäjän kanta");
    EXPECT_EQ(viestit.Esiintymia(Asetukset().KayttajanPolttoainekanta), 1);
    EXPECT_FALSE(l.Etsi("cmdAdd").Kaytossa());
    std::filesystem::copy_file(AppPath() + "KayttajanPolttoainekanta.mdb", Asetukset().KayttajanPolttoainekanta);
    l.KayttajaValitsee("cmbJoukko", "Sähkön energiamuodot");
    l.KayttajaPainaa("cmdAdd");
    EXPECT_EQ(Nimet(l).size(), 1u);
  });
}

class EnergiamuotoTesti : public Polttoainekannat {
 protected:
  clsEnergiamuoto& Muoto() {
    return hankinta.Energiamuodot.Count() ? hankinta.Energiamuodot.Item(1) : hankinta.LisaaMuoto();
  }
  bool Muokkaa(const char* nappi, const Ikkunattomat::Kasikirjoitus& toimi) {
    ikkunat.KunNaytetaan("frmEnergiamuoto", [&](Ikkuna& l) {
      toimi(l);
      if (l.Auki()) l.KayttajaPainaa(nappi);
    });
    return Muoto().NaytaKayttoliityma();
  }
  /// The row of the standard database that the browser gives when it opens next.
  void KunPoimitaan(const std::string& nimi) {
    ikkunat.KunNaytetaan("frmEmuo3", [=](Ikkuna& l) {
      l.KayttajaValitsee("lvwEnergiamuodot", nimi);
      l.KayttajaPainaa("cmdOk");
    });
  }

  clsEnergianHankinta& hankinta = rakennus->Perustiedot.LammonHankinta;
};

TEST_F(EnergiamuotoTesti, ImpactFollowsTheFuels) {
  Muoto().IlmastonLampeneminenCO2ekv(100);
  const auto muokkaus = [this](Ikkuna& l) {
    viestit.Tyhjenna();
    const auto paasto = [&] { return l.Teksti("txtIlmastonLampeneminenCO2ekv"); };
    EXPECT_FALSE(l.Etsi("chkLaskePaastotPolttoaineista").Kaytossa()) << "nothing to compute from";
    KunPoimitaan("Kevyt polttoöljy");
    l.KayttajaPainaa("cmdLisaaPolttoaine");
    EXPECT_EQ(paasto(), "100,0");
    l.KayttajaPainaa("chkLaskePaastotPolttoaineista");
    EXPECT_EQ(paasto(), "263,0");
    EXPECT_TRUE(l.Etsi("txtIlmastonLampeneminenCO2ekv").Lukittu());
    l.KayttajaMuokkaa("lvwPolttoaineet", "Kevyt polttoöljy", 1, "1,25");
    EXPECT_EQ(paasto(), "328,75");  // 263 · 1.25
    EXPECT_EQ(l.Teksti("txtUusiutumatonEnergia"), "4 500,0");
    l.KayttajaMuokkaa("lvwPolttoaineet", "Kevyt polttoöljy", 1, "-1");
    EXPECT_EQ(viestit.Esiintymia("vähintään 0"), 1);
    EXPECT_EQ(paasto(), "328,75");
    KunPoimitaan("Puupelletti");
    l.KayttajaPainaa("cmdLisaaPolttoaine");
    EXPECT_EQ(l.Teksti("txtVarastoitunutCO2"), "403,0");
  };
  EXPECT_FALSE(Muokkaa("cmdPeruuta", muokkaus));
  EXPECT_EQ(Muoto().Resurssit.Count(), 0);
  EXPECT_EQ(Muoto().IlmastonLampeneminenCO2ekv(), 100);

  EXPECT_TRUE(Muokkaa("cmdOk", muokkaus));
  EXPECT_NEAR(Muoto().IlmastonLampeneminenCO2ekv(), 263 * 1.25, 1e-4);
  EXPECT_TRUE(Muokkaa("cmdOk", [this](Ikkuna& l) {
    for (int i = 0; i < 2; ++i) {
      viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
      l.KayttajaPainaa("cmdPoistaPolttoaine");
    }
  }));
  EXPECT_FALSE(Muoto().LaskePaastotPolttoaineista);
  EXPECT_EQ(Muoto().IlmastonLampeneminenCO2ekv(), 0) << "of pellets, the last fuel";
}

TEST_F(EnergiamuotoTesti, APickedRowLeavesTheFormsPlaceInTheSupply) {
  Muoto().OsuusNettotarpeesta = 60;
  Muoto().MyyntiTariffiSkey = "tariffi";
  const Tunniste avain = Muoto().sKey, tunnus = Muoto().InstanssiId;
  EXPECT_TRUE(Muokkaa("cmdOk", [this](Ikkuna& l) {
    l.KayttajaKirjoittaa("txtOsuusNettotarpeesta", "33,333333");
    KunPoimitaan("Maakaasu");
    l.KayttajaPainaa("cmdPoimiKirjastosta");
    EXPECT_EQ(l.Teksti("txtNimi"), "Maakaasu");
    EXPECT_EQ(l.Teksti("txtHyotysuhde"), "92,0");
    EXPECT_EQ(l.Teksti("lblLahde"), "Poimittu vakiokannan riviltä 5");
  }));
  EXPECT_EQ(Muoto().OsuusNettotarpeesta, 33.333333);
  EXPECT_EQ(Muoto().MyyntiTariffiSkey, "tariffi");
  EXPECT_EQ(Muoto().sKey, avain);
  EXPECT_EQ(Muoto().InstanssiId, tunnus);
  EXPECT_EQ(Muoto().EnergiaMuotokannanVersio, 1);
  // The browser opens at the form's own row.
  EXPECT_FALSE(Muokkaa("cmdPeruuta", [this](Ikkuna& l) {
    ikkunat.KunNaytetaan("frmEmuo3", [](Ikkuna& selain) {
      EXPECT_EQ(selain.Teksti("txtNimi"), "Maakaasu");
      selain.KayttajaPainaa("cmdPeruuta");
    });
    l.KayttajaPainaa("cmdPoimiKirjastosta");
    EXPECT_EQ(l.Teksti("txtNimi"), "Maakaasu");
  }));
}

TEST_F(EnergiamuotoTesti, MeasuresLockTheListOfFuels) {
  Muoto().LisaaPolttoaine({});
  rakennus->Saastotoimenpiteet.Add("toimenpide");
  EXPECT_FALSE(Muokkaa("cmdPeruuta", [this](Ikkuna& l) {
    EXPECT_FALSE(l.Etsi("cmdLisaaPolttoaine").Kaytossa());
    EXPECT_FALSE(l.Etsi("cmdPoistaPolttoaine").Kaytossa());
    l.KayttajaPainaa("cmdPoimiKirjastosta");
    EXPECT_EQ(viestit.Esiintymia("Poiminta poistaisi"), 1);
  }));
  EXPECT_EQ(Muoto().Resurssit.Count(), 1);
}

TEST_F(EnergiamuotoTesti, WaterHasItsOwnLayout) {
  hankinta.Kayttotarkoitus = clsEnergianHankinta::Vesi;
  EXPECT_FALSE(Muokkaa("cmdPeruuta", [](Ikkuna& l) {
    EXPECT_NE(l.Otsikko().find("Veden hankintatapa"), std::string::npos);
    for (const char* nimi : {"fraVaikutukset", "fraPolttoaineet", "cmdPoimiKirjastosta"})
      EXPECT_FALSE(l.Etsi(nimi).Nakyva()) << nimi;
  }));
}

}  // namespace
