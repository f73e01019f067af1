// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>

#include "kernel/Virhe.h"
#include "tests/supply/Polttoainekannat.h"

namespace {

class EnergiamuotokantaTesti : public Polttoainekannat {
 protected:
  void AjaVakiokantaan(const char* sql) {
    Tietokanta(Asetukset().VakioPolttoainekanta, Tietokanta::Tapa::Kirjoitus).Aja(sql);
  }
  /// A heat form taken from a row of the standard database, with what a refresh has to leave.
  clsEnergiamuoto& PoimiMuoto(std::int32_t id, double osuus) {
    Energiamuotokanta kanta(Laji::Vakio);
    clsEnergiamuoto& muoto = rakennus->Perustiedot.LammonHankinta.LisaaMuoto();
    muoto.OsuusNettotarpeesta = osuus;
    muoto.MyyntiTariffiSkey = "tariffi";
    kanta.Poimi(kanta.Hae(id).value(), muoto);
    return muoto;
  }
  /// The project saved and opened in `luettu`; the question is answered so, and the list of changes by the button.
  void Avaa(std::optional<Vastaus> vastaus, const char* nappi = nullptr) {
    ASSERT_TRUE(rakennus->Tallenna(tiedosto));
    viestit.Tyhjenna();
    if (vastaus) viestit.AsetaSeuraavaVastaus(*vastaus);
    if (nappi)
      ikkunat.KunNaytetaan("frmEnergiamuotomuutokset", [this, nappi](Ikkunaton& l) {
        rivit = l.Etsi("lvwMuutokset").Rivit();
        l.KayttajaPainaa(nappi);
      });
    luettu.Hae(tiedosto);
    EXPECT_EQ(viestit.VastauksiaJaljella(), 0u);
  }
  clsEnergiamuoto& Luettu(int paikka = 1) { return luettu.Perustiedot.LammonHankinta.Energiamuodot.Item(paikka); }

  const std::string tiedosto = (kansio / "kohde.lvt").string();
  clsRakennus luettu;
  Taulukko rivit;
};

TEST_F(EnergiamuotokantaTesti, RowsBecomeFormsAndFuels) {
  Energiamuotokanta kanta(Laji::Vakio);
  EXPECT_EQ(kanta.Versio(), 1);
  EXPECT_EQ(kanta.Rivit(true).size() + kanta.Rivit(false).size(), 20u);
  const Energiamuotorivi rivi = kanta.Hae(3).value();  // light oil
  EXPECT_EQ(rivi, kanta.Rivit(true)[2]);
  EXPECT_TRUE(rivi.LiittyyLammitykseen);
  const clsEnergiamuoto muoto = kanta.Muoto(rivi);
  EXPECT_EQ(muoto.Nimi, "Kevyt polttoöljy");
  EXPECT_EQ(muoto.IdEmuotoKannassa, 3);
  EXPECT_TRUE(muoto.OnVakiokannasta);
  EXPECT_EQ(muoto.Hyotysuhde, 87);
  EXPECT_EQ(muoto.IlmastonLampeneminenCO2ekv(), 263);
  EXPECT_EQ(muoto.UusiutumatonEnergia(), 3600);
  EXPECT_EQ(muoto.Particle(), 0);
  // a boiler that takes 1 / 0.87 MJ of fuel for 1 MJ: the impact of a MWh grows by as much
  clsEnergiamuoto kattila;
  kattila.LisaaPolttoaine(kanta.Polttoaine(rivi)).Maara = 1 / 0.87;
  kattila.LaskePaastotPolttoaineista = true;
  EXPECT_NEAR(kattila.IlmastonLampeneminenCO2ekv(), 263 / 0.87, 1e-4);
  EXPECT_NEAR(kattila.MassaYht(), rivi.Massa / 0.87, 1e-9);
  EXPECT_FALSE(kanta.Hae(99));
  EXPECT_THROW(kanta.Lisaa(true), Virhe) << "the standard database isn't edited";
}

TEST_F(EnergiamuotokantaTesti, TheUsersOwnRowsAreAddedChangedAndRemoved) {
  Energiamuotokanta kanta(Laji::Kayttajan);
  EXPECT_EQ(kanta.Lisaa(true).Id, 1);
  Energiamuotorivi toinen = kanta.Lisaa(false);
  EXPECT_EQ(toinen.Id, 2);
  EXPECT_EQ(toinen.Nimi, "Uusi energiamuoto");
  EXPECT_EQ(toinen.Yksikko, "kWh");
  kanta.Poista(1);
  EXPECT_EQ(kanta.Lisaa(true).Id, 3) << "behind the largest, not in the gap";
  toinen.Nimi = "Oma 'sähkö'";
  toinen.IlmastonLampeneminenCO2ekv = 12.345678901234567;
  toinen.LiittyyLammitykseen = true;
  EXPECT_TRUE(kanta.Tallenna(toinen));
  EXPECT_EQ(Energiamuotokanta(Laji::Kayttajan).Hae(2), toinen);
  EXPECT_EQ(kanta.Rivit(false).size(), 0u);
  EXPECT_FALSE(kanta.Muoto(toinen).OnVakiokannasta);
  kanta.Poista(2);
  kanta.Poista(2);
  EXPECT_FALSE(kanta.Tallenna(toinen)) << "removed in another window";
}

TEST_F(EnergiamuotokantaTesti, ANewerDatabaseIsTakenWhenThePersonAccepts) {
  clsEnergiamuoto& muoto = PoimiMuoto(3, 60);
  EXPECT_EQ(muoto.EnergiaMuotokannanVersio, 1);
  muoto.LisaaPolttoaine({});
  const Tunniste avain = muoto.sKey, tunnus = muoto.InstanssiId;
  Avaa({});
  EXPECT_TRUE(viestit.Naytetyt().empty()) << "the same version";
  AjaVakiokantaan("UPDATE Asetukset SET Versio = 2");
  Avaa({});
  EXPECT_TRUE(viestit.Naytetyt().empty()) << "nothing of the object would change";
  AjaVakiokantaan("UPDATE Energiamuoto SET Nimi = 'Polttoöljy', Hyotysuhde = 90, Massa = 1 WHERE Id = 3");
  Avaa(Vastaus::Ei);
  EXPECT_EQ(Luettu().Nimi, "Kevyt polttoöljy");
  Avaa(Vastaus::Kylla, "cmdPeruuta");
  EXPECT_EQ(Luettu().Nimi, "Kevyt polttoöljy");
  EXPECT_TRUE(luettu.Tallennettu);
  const Taulukko odotetut{{"Lämmön hankinta", "Kevyt polttoöljy", "Nimi", "Kevyt polttoöljy", "Polttoöljy"},
                          {"Lämmön hankinta", "Kevyt polttoöljy", "Vuosihyötysuhde, %", "87,0", "90,0"}};
  EXPECT_EQ(rivit, odotetut);
  Avaa(Vastaus::Kylla, "cmdOk");
  EXPECT_EQ(Luettu().Nimi, "Polttoöljy");
  EXPECT_EQ(Luettu().Hyotysuhde, 90);
  EXPECT_EQ(Luettu().EnergiaMuotokannanVersio, 2);
  EXPECT_EQ(Luettu().OsuusNettotarpeesta, 60);
  EXPECT_EQ(Luettu().MyyntiTariffiSkey, "tariffi");
  EXPECT_EQ(Luettu().sKey, avain);
  EXPECT_EQ(Luettu().InstanssiId, tunnus);
  EXPECT_EQ(Luettu().Resurssit.Count(), 1);
  EXPECT_FALSE(luettu.Tallennettu) << "what was taken isn't in the file yet";
}

TEST_F(EnergiamuotokantaTesti, ARowThatIsGoneLeavesTheFormAndIsToldOnce) {
  PoimiMuoto(3, 60).LaskePaastotPolttoaineista = true;
  PoimiMuoto(5, 40);
  rakennus->Perustiedot.LammonHankinta.LisaaMuoto();  // written by hand, taken from nowhere
  AjaVakiokantaan("UPDATE Asetukset SET Versio = 2; DELETE FROM Energiamuoto WHERE Id IN (3, 5)");
  Avaa(Vastaus::Kylla);
  EXPECT_EQ(viestit.Esiintymia("jäivät ennalleen"), 1);
  EXPECT_EQ(viestit.Esiintymia("Kevyt polttoöljy\nMaakaasu"), 1);
  EXPECT_EQ(Luettu(2).IlmastonLampeneminenCO2ekv(), 199);
  luettu.Tallenna(tiedosto);
  viestit.Tyhjenna();
  luettu.Hae(tiedosto);
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(EnergiamuotokantaTesti, ADatabaseThatCannotBeReadIsToldAndTheObjectOpens) {
  PoimiMuoto(3, 100);
  AjaVakiokantaan("DELETE FROM Asetukset");
  Avaa({});
  EXPECT_EQ(viestit.Esiintymia("Ei löytynyt Energiamuototietokannan Versionumeron recordia"), 1);
  EXPECT_EQ(viestit.Esiintymia("ei verrattu vakiopolttoainekantaan"), 1);
  EXPECT_EQ(
      luettu.Perustiedot.LammonHankinta.PaivitaEMuodotVakiokannasta(*std::make_unique<Energiamuotokanta>(Laji::Vakio))
          .size(),
      0u);
  EXPECT_EQ(viestit.Esiintymia("versio jäi päivittämättä"), 1);
  std::ofstream(Asetukset().VakioPolttoainekanta) << "vaurioitunut";
  for (const char* kanta : {"", "puuttuu.mdb"}) {
    Asetukset().VakioPolttoainekanta += kanta;
    Avaa({});
    EXPECT_EQ(viestit.Esiintymia("ei verrattu vakiopolttoainekantaan"), 1);
    EXPECT_EQ(Luettu().Nimi, "Kevyt polttoöljy");
    EXPECT_THROW(luettu.PaivitaEnMuodotVakiokannasta(), Virhe);
  }
  rakennus->Perustiedot.LammonHankinta.Energiamuodot.Tyhjenna();
  Avaa({});
  EXPECT_TRUE(viestit.Naytetyt().empty()) << "the object has nothing of the database";
}

}  // namespace
