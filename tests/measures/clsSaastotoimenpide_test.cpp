// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpide.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <set>

#include "kernel/Paivamaara.h"
#include "tests/measures/Asetuskansio.h"
#include "ui/KerataanViestit.h"

namespace {

/// A catalogue with one class and three of its members.
class Muunnelma : public Asetuskansio {
 protected:
  Muunnelma() {
    const std::string malli = (koti_ / "malli.tmp").string();
    SQLite::Database kanta(malli, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    kanta.exec(
        "CREATE TABLE ClassTypes (Name TEXT); INSERT INTO ClassTypes VALUES ('clsSahkonKulutusryhma');"
        "CREATE TABLE clsSahkonKulutusryhma (KulutusRyhma TEXT, KayttoaikaHpD REAL, LaskentatapaTehopohjainen "
        "BOOLEAN)");
    tyypit_.AlustaTyyppitiedot(malli);
    AsetaViestit(&viestit_);
  }
  ~Muunnelma() override { AsetaViestit(nullptr); }

  KerataanViestit viestit_;
  clsTyyppiTiedot tyypit_;
  clsMuuttuneetAttribuutit muutokset_;
};

TEST_F(Muunnelma, VertailunMuutoksetKirjataanOmilleAvaimilleen) {
  clsSahkonKulutusryhma ennen;
  ennen.KulutusRyhma = "valot";
  ennen.KayttoaikaHpD = 24;
  const auto muokattu = ennen.Kopioi();
  muokattu->KulutusRyhma = "Valot";
  muokattu->KayttoaikaHpD = 8;
  muokattu->LaskentatapaEnergiapohjainen(true);
  muokattu->Tasauskerroin = 0.5;  // not an attribute of this catalogue
  VertaileOliot(*muokattu, ennen, muutokset_, tyypit_);

  ASSERT_EQ(muutokset_.Count(), 3);
  std::set<std::string> avaimet;
  for (const clsMuuttunutAttribuutti& muutos : muutokset_) {
    EXPECT_EQ(muutos.clsTypeName, "clsSahkonKulutusryhma");
    EXPECT_EQ(muutos.InstanssiId, ennen.InstanssiId);
    avaimet.insert(muutos.sKey.Teksti());
  }
  EXPECT_EQ(avaimet.size(), 3U);
  const clsMuuttunutAttribuutti& nimi = muutokset_.Item(1);
  EXPECT_EQ(nimi.AttribuutinNimi, "KulutusRyhma");
  EXPECT_EQ(nimi.TietoTyyppi, 8);
  EXPECT_EQ(nimi.ArvoEnnenStr + ">" + nimi.ArvoJalkeenStr, "valot>Valot");
  const clsMuuttunutAttribuutti& aika = muutokset_.Item(2);
  EXPECT_EQ(aika.TietoTyyppi, 5);
  EXPECT_EQ(aika.ArvoEnnen, 24);
  EXPECT_EQ(aika.ArvoJalkeen, 8);
  const clsMuuttunutAttribuutti& tapa = muutokset_.Item(3);
  EXPECT_EQ(tapa.TietoTyyppi, 11);
  EXPECT_EQ(tapa.ArvoEnnen, -1);
  EXPECT_EQ(tapa.ArvoJalkeen, 0);
}

TEST_F(Muunnelma, EriLuokkienVertailuIlmoitetaanEikaLisaaMitaan) {
  clsSahkonKulutusryhma sahko;
  clsVedenKulutusryhma vesi;
  VertaileOliot(sahko, vesi, muutokset_, tyypit_);
  EXPECT_EQ(muutokset_.Count(), 0);
  ASSERT_EQ(viestit_.Naytetyt().size(), 1U);
}

using clsSaastotoimenpideTesti = Asetuskansio;

TEST_F(clsSaastotoimenpideTesti, UusiToimenpideOnPaivattyTekijallaJaKelluu) {
  const clsSaastotoimenpide toimenpide;
  EXPECT_EQ(toimenpide.ToimenpiteenPaivays, TamaPaiva());
  EXPECT_TRUE(toimenpide.ToimenpiteenTekijanNimi.starts_with("In Excel: '"));
  EXPECT_TRUE(toimenpide.MuuttuneetAttribuutit.Kelluva());
  EXPECT_FALSE(toimenpide.EnnenTiedotUpToDate || toimenpide.JalkeenTiedotUpToDate);
}

TEST_F(clsSaastotoimenpideTesti, YliKymmenesosanMuutosPerustassaMitatoiTiedot) {
  clsSaastotoimenpide toimenpide;
  for (void (clsSaastotoimenpide::*aseta)(double) noexcept :
       {static_cast<void (clsSaastotoimenpide::*)(double) noexcept>(&clsSaastotoimenpide::LampoEnergiaEnnen),
        static_cast<void (clsSaastotoimenpide::*)(double) noexcept>(&clsSaastotoimenpide::SahkoEnergiaEnnen),
        static_cast<void (clsSaastotoimenpide::*)(double) noexcept>(&clsSaastotoimenpide::VedenkulutusEnnen)}) {
    (toimenpide.*aseta)(100);
    toimenpide.EnnenTiedotUpToDate = toimenpide.JalkeenTiedotUpToDate = true;
    (toimenpide.*aseta)(100.05);
    EXPECT_TRUE(toimenpide.EnnenTiedotUpToDate && toimenpide.JalkeenTiedotUpToDate);
    (toimenpide.*aseta)(99.8);
    EXPECT_FALSE(toimenpide.EnnenTiedotUpToDate || toimenpide.JalkeenTiedotUpToDate);
  }
  EXPECT_EQ(toimenpide.LampoEnergiaEnnen(), 99.8);
}

TEST_F(clsSaastotoimenpideTesti, KelluvaRyhmaLuodaanTyypinMukaanJaKopioituuErilliseksi) {
  clsSaastotoimenpide toimenpide;
  const Jasen& ennen = *clsSaastotoimenpide::kLuokka.Etsi("Ennen");
  EXPECT_TRUE(ennen.viittaus);
  EXPECT_EQ(ennen.olio(toimenpide), nullptr);
  toimenpide.MuuttuneetAttribuutit.TyypinNimi = "clsVedenKulutusryhma";
  auto& ryhma = static_cast<clsVedenKulutusryhma&>(ennen.luo(toimenpide));
  ASSERT_EQ(&ryhma.LuokanTiedot(), &clsVedenKulutusryhma::kLuokka);
  ryhma.Laskentayksikko = 3;
  toimenpide.MuuttuneetAttribuutit.Lisaa({"Laskentayksikko", "clsVedenKulutusryhma", Laji::Kaksinkertainen, {}, 3, 2});

  const auto kopio = toimenpide.Kopioi();
  ryhma.Laskentayksikko = 9;
  ASSERT_NE(kopio->KelluvaEnnen.get(), nullptr);
  EXPECT_EQ(static_cast<clsVedenKulutusryhma*>(kopio->KelluvaEnnen.get())->Laskentayksikko, 3);
  EXPECT_EQ(kopio->MuuttuneetAttribuutit.Item(1).ArvoJalkeen, 2);

  toimenpide.MuuttuneetAttribuutit.TyypinNimi = "clsTila";
  EXPECT_THROW(ennen.luo(toimenpide), std::invalid_argument);
}

}  // namespace
