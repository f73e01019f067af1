// SPDX-License-Identifier: GPL-3.0-or-later
#include "library/Kayttajankirjasto.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "kernel/Virhe.h"
#include "library/Kirjastoluettelo.h"
#include "library/Kirjastosanoma.h"
#include "library/Kirjastosuodatin.h"
#include "library/Lampotilajakauma.h"
#include "library/Rakennetietokanta.h"
#include "tests/library/Koekannat.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* kVakio =
    "INSERT INTO Asetukset VALUES ('1');"
    "INSERT INTO Materiaali (Id, Nimi, Ryhma, Lambda, Tiheys, Ominaislampo, MuKuiva, Lahde) VALUES"
    " ('v', 'Villa', 'Eriste', 0.04, 30, 1.03, 1, 'EN 10456'), ('p', 'Puu', 'Puu', 0.12, 500, 1.6, 50, 'EN 10456');"
    "INSERT INTO Rakenne (Id, Rakennetyyppi, Nimi, Kuvaus, Aikakausi, VuosiAlku, VuosiLoppu, Lahde) VALUES"
    " ('S1', 'Ulkoseinä', 'Rankaseinä', 'Rivi\n\"lainaus\" \\ ÄÖ', '1979–1984', 1979, 1984, 'C3');"
    "INSERT INTO Rakenne (Id, Rakennetyyppi, Nimi, U_arvo, U_arvoAnnettu, Lahde) VALUES"
    " ('I1', 'Ikkuna', 'Kaksilasinen', 2.8, -1, 'C3');"
    "INSERT INTO Kerros VALUES ('S1', 1, 'p', 12, 0, -1, NULL, 0, NULL), ('S1', 2, 'v', 200, -1, 0, 'p', 10, NULL),"
    " ('S1', 3, 'v', 22, -1, -1, NULL, 0, 0.18);";

class KayttajankirjastoTesti : public Koekannat {
 protected:
  std::string vakio_ = TeeKanta("vakio.mdb", kVakio);
  std::string oma_ = TeeKanta("oma.mdb");
  Kayttajankirjasto kirjasto_{oma_, vakio_};

  Kirjastorakenne Seina() { return *LueRakenne(vakio_, Kirjasto::Vakio, "S1"); }
  Kirjastorakenne OmaSeina() {
    Kirjastorakenne seina = Seina();
    seina.Id.clear();
    EXPECT_TRUE(kirjasto_.Tallenna(seina));
    return seina;
  }
  std::vector<Kirjastorakenne> Omat() { return LueRakenteet(oma_, Kirjasto::Oma); }
};

}  // namespace

TEST_F(KayttajankirjastoTesti, CopyFromTheStandardKeepsLayersMaterialsAndSource) {
  const Kirjastorakenne alkuperainen = Seina();
  const Kirjastorakenne oma = OmaSeina();
  ASSERT_EQ(Omat().size(), 1U);
  const Kirjastorakenne luettu = Omat().front();
  EXPECT_EQ(luettu.Id, oma.Id);
  EXPECT_EQ(luettu.Lahde, "C3");
  EXPECT_EQ(luettu.VuosiLoppu, 1984);
  EXPECT_EQ(luettu.Ratkaisu.LaskeU_arvo(), alkuperainen.Ratkaisu.LaskeU_arvo());
  EXPECT_EQ(luettu.Ratkaisu.Kuvaus, alkuperainen.Ratkaisu.Kuvaus);
  EXPECT_EQ(luettu.Ratkaisu.Kerrokset.Item(3).Lammonvastus, 0.18F);

  const auto materiaalit = LueMateriaalit(oma_, Kirjasto::Oma);
  ASSERT_EQ(materiaalit.size(), 2U);  // each once, though the wool stands in two layers
  EXPECT_EQ(materiaalit[0].Ryhma, "Eriste");
  EXPECT_EQ(materiaalit[0].Lahde, "EN 10456");
  EXPECT_TRUE(Rakennetietokanta(oma_).Hae(oma.Id)) << "the program's reader has to find it";
}

TEST_F(KayttajankirjastoTesti, EditReplacesTheLayers) {
  Kirjastorakenne oma = OmaSeina();
  oma.Ratkaisu.Kerrokset.Remove(1);
  oma.Ratkaisu.Kerrokset.Item(1).Paksuus = 250;
  ASSERT_TRUE(kirjasto_.Tallenna(oma));
  ASSERT_EQ(Omat().size(), 1U);
  EXPECT_EQ(Omat().front().Ratkaisu.Kerrokset.Count(), 2);
  EXPECT_EQ(Omat().front().Ratkaisu.Paksuus, 272);
}

TEST_F(KayttajankirjastoTesti, LockedDatabaseIsRefusedSoonAndKeepsItsContents) {
  Kirjastorakenne oma = OmaSeina();
  {
    Tietokanta toinen(oma_, Tietokanta::Tapa::Kirjoitus);
    const Transaktio varaus(toinen);
    oma.Ratkaisu.Nimi = "Muutettu";
    const auto alku = std::chrono::steady_clock::now();
    EXPECT_THROW(kirjasto_.Tallenna(oma), Virhe);
    EXPECT_LT(std::chrono::steady_clock::now() - alku, std::chrono::seconds(3));
    EXPECT_EQ(Omat().front().Ratkaisu.Nimi, "Rankaseinä");
  }
  EXPECT_TRUE(kirjasto_.Tallenna(oma));
  EXPECT_EQ(Omat().front().Ratkaisu.Nimi, "Muutettu");
}

TEST_F(KayttajankirjastoTesti, MissingOrDamagedDatabaseIsTold) {
  EXPECT_THROW(Kayttajankirjasto(Polku("puuttuu.mdb"), vakio_), Virhe);
  EXPECT_FALSE(fs::exists(Polku("puuttuu.mdb")));
  std::ofstream(Polku("rikki.mdb")) << "ei tietokanta, vaan jotain aivan muuta tekstiä";
  EXPECT_THROW(LueRakenteet(Polku("rikki.mdb"), Kirjasto::Oma), Virhe);
  EXPECT_THROW(kirjasto_.Tuo(Polku("rikki.mdb")), Virhe);
}

TEST_F(KayttajankirjastoTesti, ExportedEntriesComeInOnceAndNothingIsOverwritten) {
  Kirjastorakenne oma = OmaSeina();
  const std::string tiedosto = Polku("vienti.mdb");
  std::ofstream(tiedosto) << "vanha";
  kirjasto_.Vie(tiedosto);

  const std::string toinen = TeeKanta("toinen.mdb");
  Kayttajankirjasto kollegan(toinen, vakio_);
  EXPECT_EQ(kollegan.Tuo(tiedosto).rakenteita, 1);
  const Tuontitulos uudelleen = kollegan.Tuo(tiedosto);
  EXPECT_EQ(uudelleen.rakenteita + uudelleen.materiaaleja, 0);
  EXPECT_EQ(uudelleen.entisia, 3);

  oma.Ratkaisu.Nimi = "Muutettu viennin jälkeen";
  ASSERT_TRUE(kirjasto_.Tallenna(oma));
  EXPECT_EQ(kirjasto_.Tuo(tiedosto).rakenteita, 1);  // under an identifier of its own
  ASSERT_EQ(Omat().size(), 2U);
  EXPECT_THROW(kirjasto_.Vie(oma_), Virhe);
  EXPECT_EQ(Omat().size(), 2U);
}

TEST_F(KayttajankirjastoTesti, MessageCarriesASolutionExactly) {
  const Rakenneratkaisu seina = Seina().Ratkaisu;
  const std::string sanoma = Sanomaksi(seina);
  const auto luettu = RatkaisuSanomasta(sanoma);
  ASSERT_TRUE(luettu);
  EXPECT_EQ(Sanomaksi(*luettu), sanoma);
  EXPECT_EQ(luettu->Kuvaus, seina.Kuvaus);
  EXPECT_EQ(luettu->LaskeU_arvo(), seina.LaskeU_arvo());
  EXPECT_EQ(MateriaaliSanomasta(Sanomaksi(seina.Kerrokset.Item(2).Materiaali)), seina.Kerrokset.Item(2).Materiaali);

  EXPECT_TRUE(RatkaisuSanomasta(sanoma + "UusiOminaisuus\t3\n"));
  EXPECT_FALSE(RatkaisuSanomasta(sanoma + "Paksuus\tpaksu\n"));
  EXPECT_FALSE(RatkaisuSanomasta("Materiaali\n"));
  EXPECT_FALSE(MateriaaliSanomasta(sanoma));
}

TEST_F(KayttajankirjastoTesti, FilterJoinsKindEraUValueAndWords) {
  const auto rakenteet = LueRakenteet(vakio_, Kirjasto::Vakio);
  const auto maara = [&](const Rakennesuodatin& ehto) {
    return std::ranges::count_if(rakenteet, [&](const auto& r) { return ehto.Sopii(r); });
  };
  EXPECT_EQ(maara({}), 2);
  EXPECT_EQ(maara({.Kanta = Kirjasto::Oma}), 0);
  EXPECT_EQ(maara({.Rakennetyyppi = "Ikkuna"}), 1);
  EXPECT_EQ(maara({.Aikakausi = "1979–1984", .Haku = "RANKA äö"}), 1);
  EXPECT_EQ(maara({.Haku = "ranka ikkuna"}), 0);
  EXPECT_EQ(maara({.U_vahintaan = 2.5}), 1);
  EXPECT_EQ(maara({.U_enintaan = 2.5}), 1);
  EXPECT_EQ(maara({.U_vahintaan = 3.0}), 0);
}

TEST_F(KayttajankirjastoTesti, TemperatureProfileAgreesWithTheUValue) {
  const Rakenneratkaisu seina = Seina().Ratkaisu;
  const auto tulos = LaskeLampotilajakauma(seina, 21, -26);
  EXPECT_DOUBLE_EQ(tulos.U, *seina.LaskeU_arvo());
  ASSERT_EQ(tulos.lampotilat.size(), 4U);
  EXPECT_EQ(tulos.kerrosvastukset[0], 0);  // panelling doesn't count
  EXPECT_EQ(tulos.lampotilat[0], tulos.lampotilat[1]);
  EXPECT_FALSE(LaskeLampotilajakauma(Rakenneratkaisu(), 21, -26).onArvo);
}
