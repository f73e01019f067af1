// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and opening a whole building. The project file as such is tested in tests/kernel and tests/fault.
#include <filesystem>

#include "building/Tiedostomuunnokset.h"
#include "kernel/Luvut.h"
#include "kernel/Tietokanta.h"
#include "kernel/Vertailu.h"
#include "kernel/Virhe.h"
#include "settings/clsProjektiAsetukset.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"

namespace {

class TiedostoTesti : public RakennusTesti {
 protected:
  TiedostoTesti() : tiedosto((hakemisto / "Kohde.lvt").string()) { LuoKoulu(); }

  Koehakemisto hakemisto;
  std::string tiedosto;
};

TEST_F(TiedostoTesti, SaveLoadAndCompareShowNoChange) {
  rakennus->MuuLampo = 12.5;
  rakennus->Perustiedot.LammKulVakioOsuus.VuosiOsuus = 33;
  rakennus->Tilat.Item(1).Kuvausteksti = "";
  rakennus->Tilat.Item(1).TilanNimi = "IsObjectGet";
  const double lampo = rakennus->VuotuinenBruttoLampoEnergia();
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  EXPECT_TRUE(rakennus->Tallennettu);

  clsRakennus luettu;
  AsetaGlobaaliRakennus(&luettu);
  luettu.Hae(tiedosto);
  EXPECT_TRUE(luettu.Tallennettu);
  EXPECT_EQ(luettu.ProjektiAsetukset.strCurrentProjectFile, tiedosto);
  Muutoslista muutokset;
  luettu.VertaileAttribuutit(*rakennus, muutokset);
  // The file knows no name of its own; a text that looks like a marker gets a blank behind it.
  std::erase_if(muutokset.muutokset, [](const Muutos& m) { return m.clsTypeName == "clsProjektiAsetukset"; });
  ASSERT_EQ(muutokset.muutokset.size(), 1u);
  EXPECT_EQ(muutokset.muutokset[0].arvoJalkeenStr, "IsObjectGet ");
  EXPECT_EQ(luettu.VuotuinenBruttoLampoEnergia(), lampo) << "to the last bit";
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(TiedostoTesti, AFailedSaveNamesTheValueAndTheObjectStaysUnsaved) {
  rakennus->Tallennettu = true;
  rakennus->Tilat.Item(1).BruttoAla = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(rakennus->Tallenna(tiedosto));
  EXPECT_FALSE(rakennus->Tallennettu);
  EXPECT_EQ(viestit.Esiintymia("clsTila.BruttoAla"), 1);
  EXPECT_FALSE(std::filesystem::exists(tiedosto));
}

TEST_F(TiedostoTesti, DamagedValuesGetDefaultsAndTheNextSaveKeepsTheFile) {
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  Tietokanta(tiedosto, Tietokanta::Tapa::Kirjoitus)
      .Aja("UPDATE clsTila SET Kokonaistilavuus = 'paljon'; DELETE FROM clsRakenne WHERE OrderID = 4");
  clsRakennus luettu;
  AsetaGlobaaliRakennus(&luettu);
  luettu.Hae(tiedosto);
  EXPECT_EQ(luettu.Tilat.Item(1).Kokonaistilavuus, 0);
  EXPECT_EQ(luettu.Tilat.Item(1).Rakenteet.Count(), 6);
  EXPECT_FALSE(luettu.Tallennettu);
  EXPECT_EQ(viestit.Esiintymia("Vaurioituneita arvoja:"), 1);
  ASSERT_TRUE(luettu.Tallenna(tiedosto));
  EXPECT_TRUE(std::filesystem::exists(tiedosto + ".ennen"));
}

TEST_F(TiedostoTesti, UnknownColumnsAreToldAndTheNextSaveKeepsTheFile) {
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  Tietokanta(tiedosto, Tietokanta::Tapa::Kirjoitus).Aja("ALTER TABLE clsTila ADD Lattialammitys REAL");
  clsRakennus luettu;
  luettu.Hae(tiedosto);
  EXPECT_EQ(viestit.Esiintymia("clsTila.Lattialammitys"), 1);
  EXPECT_TRUE(luettu.Tallennettu);
  ASSERT_TRUE(luettu.Tallenna(tiedosto));
  EXPECT_TRUE(std::filesystem::exists(tiedosto + ".ennen"));
}

TEST_F(TiedostoTesti, AFileOfANewerProgramIsRefusedWhoeverOpensIt) {
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  Tietokanta(tiedosto, Tietokanta::Tapa::Kirjoitus).Aja("UPDATE clsRakennus SET Major = 1, Minor = 9");
  try {
    clsRakennus().Hae(tiedosto);
    ADD_FAILURE() << "a newer file was read";
  } catch (const Virhe& virhe) {
    EXPECT_NE(virhe.SyynKuvaus().find("on uudempi kuin tämä ohjelma"), std::string::npos) << virhe.SyynKuvaus();
  }
}

TEST_F(TiedostoTesti, AFileChangedByAnotherHandIsNotReplacedUnseen) {
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  const Tiedostotunnus oma = rakennus->LuettuTiedosto;
  ASSERT_TRUE(rakennus->Tallenna(tiedosto, &oma)) << "our own last save";
  EXPECT_FALSE(oma.OnYha(tiedosto));
  EXPECT_FALSE(rakennus->Tallenna(tiedosto, &oma));
  EXPECT_EQ(viestit.Naytetyt().size(), 1u) << "one message tells the cause and what to do";
  EXPECT_EQ(viestit.Esiintymia("toinen ohjelma on muuttanut tiedostoa"), 1);
  EXPECT_EQ(viestit.Esiintymia("korvaa tiedosto, kun ohjelma sitä kysyy"), 1);
  EXPECT_FALSE(rakennus->Tallennettu);
}

TEST_F(TiedostoTesti, AnOlderFileIsConvertedByTheRowsItLacks) {
  static int ajettuja;
  ajettuja = 0;
  const auto laske = [](clsRakennus&, const std::string&) { ++ajettuja; };
  const std::vector<Tiedostomuunnos> muunnokset{{1, 9, laske}, {2, 1, laske}, {3, 0, laske}};
  EXPECT_TRUE(MuunnaNykyiseksi(*rakennus, tiedosto, {2, 0, 5}, muunnokset));
  EXPECT_EQ(ajettuja, 2);
  EXPECT_FALSE(MuunnaNykyiseksi(*rakennus, tiedosto, {3, 0, 0}, muunnokset));
}

/// A project whose first structure was made with an older structure database and takes its U-value from layers, the
/// innermost of which has another conductivity than the library.
class VanhaKanta : public TiedostoTesti {
 protected:
  VanhaKanta() {
    clsRakenne& seina = Seina(*rakennus);
    seina.RakennekannanVersio = 0;
    seina.LaskeU_arvoMateriaaleista = true;
    lambda = Aine(*rakennus).Lambda;
    Aine(*rakennus).Lambda = 9;
    EXPECT_TRUE(rakennus->Tallenna(tiedosto));
    AsetaGlobaaliRakennus(&luettu);
  }
  static clsRakenne& Seina(clsRakennus& r) { return r.Tilat.Item(1).Rakenteet.Item(1); }
  static Materiaali& Aine(clsRakennus& r) { return Seina(r).RakenneRatkaisu->Kerrokset.Item(1).Materiaali; }
  void Avaa(Vastaus vastaus) {
    viestit.AsetaSeuraavaVastaus(vastaus);
    luettu.Hae(tiedosto);
    EXPECT_EQ(viestit.VastauksiaJaljella(), 0u);
  }

  clsRakennus luettu;
  float lambda = 0;
};

TEST_F(VanhaKanta, ChangesAreListedAndTakenOnlyWhenAccepted) {
  Avaa(Vastaus::Ei);
  EXPECT_EQ(Aine(luettu).Lambda, 9);
  EXPECT_EQ(Seina(luettu).RakennekannanVersio, 0) << "asked again at the next opening";
  for (const char* nappi : {"cmdPeruuta", "cmdOk"}) {
    ikkunat.KunNaytetaan("frmMateriaalimuutokset", [&](Ikkunaton& l) {
      const Taulukko& rivit = l.Etsi("lvwMuutokset").Rivit();
      ASSERT_EQ(rivit.size(), 2u);
      EXPECT_EQ(rivit[0], (std::vector<std::string>{luettu.Tilat.Item(1).TilanNimi, Seina(luettu).RakenneRatkaisu->Nimi,
                                                    "1", Aine(luettu).Nimi, "Lämmönjohtavuus, W/mK", "9,0",
                                                    Muotoile(lambda, "0.0####")}));
      EXPECT_EQ(rivit[1][4], "Laskettu U-arvo, W/m²K");
      EXPECT_EQ(rivit[1][5], Muotoile(Seina(luettu).U_arvo(), "0.00#"));
      l.KayttajaPainaa(nappi);
    });
    Avaa(Vastaus::Kylla);
    const bool hyvaksytty = nappi == std::string("cmdOk");
    EXPECT_EQ(Aine(luettu).Lambda, hyvaksytty ? lambda : 9) << nappi;
    EXPECT_EQ(Seina(luettu).RakennekannanVersio, hyvaksytty ? 1 : 0);
    EXPECT_EQ(luettu.Tallennettu, !hyvaksytty) << "what was taken isn't in the file yet";
  }
}

TEST_F(VanhaKanta, NothingIsAskedWhenNoMaterialWouldChange) {
  Aine(*rakennus).Lambda = lambda;
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  viestit.Tyhjenna();
  luettu.Hae(tiedosto);
  EXPECT_TRUE(viestit.Naytetyt().empty());
  EXPECT_TRUE(luettu.Tallennettu);
}

TEST_F(VanhaKanta, UnreadableLibraryIsToldAndTheObjectOpens) {
  Asetukset().strVakioTietokanta = tiedosto + ".puuttuu";
  luettu.Hae(tiedosto);
  EXPECT_EQ(viestit.Naytetyt().size(), 1u);
  EXPECT_EQ(viestit.Esiintymia("materiaaleja ei päivitetty"), 1);
  EXPECT_EQ(Aine(luettu).Lambda, 9);
  EXPECT_TRUE(luettu.Tallennettu);
  Asetukset().HaeRekisteristä();
}

}  // namespace
