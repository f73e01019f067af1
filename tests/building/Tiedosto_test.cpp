// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and opening a whole building. The project file as such is tested in tests/kernel and tests/fault.
#include <SQLiteCpp/SQLiteCpp.h>

#include <filesystem>
#include <set>

#include "kernel/Hakemistot.h"
#include "kernel/Vertailu.h"
#include "kernel/Virhe.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"

namespace {

class TiedostoTesti : public RakennusTesti {
 protected:
  TiedostoTesti() : tiedosto((hakemisto / "Kohde.lvt").string()) { LuoKoulu(); }

  std::set<std::string> Sarake(const std::string& sql) const {
    SQLite::Database kanta(tiedosto, SQLite::OPEN_READONLY);
    SQLite::Statement kysely(kanta, sql);
    std::set<std::string> arvot;
    while (kysely.executeStep()) arvot.insert(kysely.getColumn(0).getString());
    return arvot;
  }
  void Muuta(const std::string& sql) const {
    SQLite::Database kanta(tiedosto, SQLite::OPEN_READWRITE);
    kanta.exec(sql);
  }

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
  EXPECT_EQ(luettu.Tilat.Item(1).Rakenteet.Item(3).RakenneRatkaisu->Karmikerroin,
            rakennus->Tilat.Item(1).Rakenteet.Item(3).RakenneRatkaisu->Karmikerroin);
  EXPECT_EQ(luettu.VuotuinenBruttoLampoEnergia(), lampo) << "to the last bit";
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(TiedostoTesti, ASecondSaveKeepsIdentitiesAndRenewsRowKeys) {
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  const auto tunnisteet = Sarake("SELECT InstanssiId FROM clsRakenne");
  const auto rivit = Sarake("SELECT ObjID FROM clsRakenne");
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  EXPECT_EQ(Sarake("SELECT InstanssiId FROM clsRakenne"), tunnisteet);
  for (const std::string& rivi : Sarake("SELECT ObjID FROM clsRakenne")) EXPECT_FALSE(rivit.contains(rivi));
  EXPECT_FALSE(std::filesystem::exists(AppPath() + "~backup1lvt.old"));
}

TEST_F(TiedostoTesti, AFailedSaveIsToldAndTheObjectStaysUnsaved) {
  rakennus->Tallennettu = true;
  EXPECT_FALSE(rakennus->Tallenna((hakemisto / "ei ole/Kohde.lvt").string()));
  EXPECT_FALSE(rakennus->Tallennettu);
  EXPECT_EQ(viestit.Esiintymia(Teksti(9516)), 1);

  viestit.Tyhjenna();
  rakennus->Tilat.Item(1).BruttoAla = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(rakennus->Tallenna(tiedosto));
  EXPECT_EQ(viestit.Esiintymia("clsTila.BruttoAla"), 1) << "class and member of the value are named";
  EXPECT_FALSE(std::filesystem::exists(tiedosto));
}

TEST_F(TiedostoTesti, DamagedValuesGetDefaultsAndTheNextSaveKeepsTheFile) {
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  Muuta("UPDATE clsTila SET Kokonaistilavuus = 'paljon'");
  Muuta("DELETE FROM clsRakenne WHERE OrderID = 4");
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

TEST_F(TiedostoTesti, AForeignFileIsNoProject) {
  KirjoitaTiedosto(tiedosto, "Tämä on muistio.");
  clsRakennus uusi;
  EXPECT_THROW(uusi.Hae(tiedosto), Virhe);
  EXPECT_EQ(LueTiedosto(tiedosto), "Tämä on muistio.");
}

TEST_F(TiedostoTesti, ANewerStructureDatabaseIsOffered) {
  rakennus->Tilat.Item(1).Rakenteet.Item(1).RakennekannanVersio = 0;
  clsRakennekerros& kerros = rakennus->Tilat.Item(1).Rakenteet.Item(1).RakenneRatkaisu->Kerrokset.Item(1);
  const float lambda = kerros.Materiaali.Lambda;
  kerros.Materiaali.Lambda = 9;
  ASSERT_TRUE(rakennus->Tallenna(tiedosto));
  clsRakennus luettu;
  AsetaGlobaaliRakennus(&luettu);
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  luettu.Hae(tiedosto);
  EXPECT_EQ(viestit.VastauksiaJaljella(), 0u);
  const clsRakenne& seina = luettu.Tilat.Item(1).Rakenteet.Item(1);
  EXPECT_EQ(seina.RakenneRatkaisu->Kerrokset.Item(1).Materiaali.Lambda, lambda);
  EXPECT_EQ(seina.RakennekannanVersio, 1);
}

}  // namespace
