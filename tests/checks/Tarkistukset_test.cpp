// SPDX-License-Identifier: GPL-3.0-or-later
// A sound building has no findings, and each check finds what is made wrong in it.
#include "checks/Tarkistukset.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <set>

#include "building/Lammitystarveluvut.h"
#include "checks/Ominaiskulutukset.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "supply/clsTariffit.h"
#include "supply/clsVesitariffit.h"
#include "tests/building/Koerakennus.h"
#include "ventilation/clsIVKoneet.h"

namespace {

class KouluTesti : public RakennusTesti {
 protected:
  KouluTesti() { LuoKoulu(); }
};

/// A school that nothing is to be said of: its model explains the use measured in a year of the normal climate.
class TarkistusTesti : public KouluTesti {
 protected:
  TarkistusTesti() {
    LisaaKone();
    LisaaKulutukset();
    LisaaMuoto(tiedot.LammonHankinta, clsTariffi::LampoTariffi);
    LisaaMuoto(tiedot.SahkonHankinta, clsTariffi::SahkoMyyntiTariffi);
    clsVesitariffi& vesi = rakennus->Vesitariffit.LisaaTariffi();
    vesi.PuhdasVesi().Hinta = 2;
    vesi.PuhdasVesi().Kulutusosuus = 100;
    clsEnergiamuoto& vesimuoto = tiedot.VedenHankinta.LisaaMuoto();
    vesimuoto.MyyntiTariffiSkey = vesi.sKey;
    vesimuoto.OsuusNettotarpeesta = 100;
    // a year that the program's table of degree days doesn't know
    tiedot.ToteutuneetKulutukset.KulutusTietojenViimVuosi = 1990;
    vuosi.LammTarveLuku = tiedot.NormVuodenLammTarveLuku;
    vuosi.Lampo = rakennus->VuotuinenBruttoLampoEnergia();
    vuosi.Sahko = rakennus->SahkonKulutusryhmat.Vuosikulutus();
    vuosi.Vesi = rakennus->VedenKulutusryhmat.VuotuinenVedenKulutus();
  }

  void LisaaKone() {
    kone.LiittyyTilaansKey = tila.sKey;
    kone.KoneenTunnus = "TK01";
    kone.IVPeriaateID = clsIVKone::TuloPoisto;
    kone.TuloIlmavirta11Teho = 4.2;
    kone.PoistoIlmavirta11Teho = 4.6;
    kone.LtoHyotysuhde = 50;
    kone.PuhaltimienSahkonKulutus.TuloSahkoTeho11 = 6.3;
    kone.PuhaltimienSahkonKulutus.PoistoSahkoTeho11 = 4.6;
    kone.KayntiAikaYleistiedot.LuoJaksot(18, 1);
    kone.SisaanpuhallusLampotila(18);
    clsKayntiAika& arki = jakso();
    arki.KayntiJaksojenLkm = 5;
    arki.Alkaa.minuutit = 6 * 60;
    arki.Paattyy.minuutit = 16 * 60;
    arki.TuloIlmavirtaProsentti = 100;
  }
  void LisaaKulutukset() {
    sahko.KulutusRyhma = "Valaistus";
    sahko.LaskentatapaTehopohjainen(false);
    sahko.LaskentatapaEnergiapohjainenIndex = 0;
    sahko.SyötettyKulutus = 250;
    for (clsVedenKulutusryhma& ryhma : rakennus->VedenKulutusryhmat) {
      ryhma.LaskentaperusteNumber = ryhma.Muuntokerroin();
      ryhma.Laskentayksikko = 500;  // m³/a
      ryhma.KayttokuvausKertaaD = ryhma.KayttokuvausDpA = ryhma.Tasauskerroin = 1;
    }
  }
  void LisaaMuoto(clsEnergianHankinta& hankinta, clsTariffi::Laji laji) const {
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(laji);
    tariffi.Nimi = "Yleinen";
    tariffi.Maksu(1).Hinta = 40;
    tariffi.Maksu(1).Kulutusosuus = 100;
    clsEnergiamuoto& muoto = hankinta.LisaaMuoto();
    muoto.OsuusNettotarpeesta = muoto.Hyotysuhde = 100;
    muoto.MyyntiTariffiSkey = tariffi.sKey;
  }
  clsKayntiAika& jakso() const {
    return kone.KayntiAikaYleistiedot.Item(clsKayntiAjat::JaksonAvain(1, clsKayntiAika::KokoVuosi));
  }
  clsRakenne& Rakenne(std::int32_t tyyppi) const {
    for (clsRakenne& rakenne : tila.Rakenteet)
      if (rakenne.Rakennetyyppi == tyyppi) return rakenne;
    throw std::out_of_range("rakennetta ei ole");
  }
  clsEnergiamuoto& Lampomuoto() const { return tiedot.LammonHankinta.Energiamuodot.Item(1); }
  clsTariffi& Lampotariffi() const { return rakennus->Tariffit.Item(1); }

  clsPerustiedot& tiedot = rakennus->Perustiedot;
  clsToteutunutKulutus& vuosi = *tiedot.ToteutuneetKulutukset.Vuosi(1);
  clsTila& tila = rakennus->Tilat.Item(1);
  clsIVKone& kone = rakennus->IVKoneet.Add(Tunniste::Uusi(clsIVKone::kLuokka.NimiSana()));
  clsSahkonKulutusryhma& sahko =
      rakennus->SahkonKulutusryhmat.Add(Tunniste::Uusi(clsSahkonKulutusryhma::kLuokka.NimiSana()));
};

std::set<std::string_view> Nimet(const std::vector<Havainto>& havainnot) {
  std::set<std::string_view> nimet;
  for (const Havainto& havainto : havainnot) nimet.insert(havainto.nimi);
  return nimet;
}

std::string Lomakkeen(std::string_view lomake) {
  std::ifstream tiedosto(Lahdekoodi("ui/forms/" + std::string(lomake) + ".ui"));
  return {std::istreambuf_iterator(tiedosto), {}};
}

/// What holds of every finding: its text is whole, its object is the building's, its field is in its form.
void TarkistaHavainto(const Havainto& havainto, clsRakennus& rakennus) {
  EXPECT_EQ(havainto.teksti.find("%1"), std::string::npos) << havainto.teksti;
  EXPECT_EQ(havainto.teksti.find("[String"), std::string::npos) << havainto.teksti;
  EXPECT_TRUE(havainto.teksti.ends_with('.')) << havainto.teksti;
  EXPECT_FALSE(havainto.kohde.polku.empty()) << havainto.nimi;
  EXPECT_TRUE(rakennus.HaeInstanssi(havainto.kohde.luokka, havainto.kohde.instanssiId).olio) << havainto.nimi;
  EXPECT_NE(Lomakkeen(havainto.hyppy.lomake).find("name=\"" + std::string(havainto.hyppy.ohjain) + "\""),
            std::string::npos)
      << havainto.nimi << ": " << havainto.hyppy.lomake << "." << havainto.hyppy.ohjain;
}

TEST_F(TarkistusTesti, ASoundBuildingHasNoFindingsAndIsLeftAsItWas) {
  rakennus->Tallennettu = true;
  const auto ennen = rakennus->Sormenjalki();
  for (const Havainto& havainto : Tarkista(*rakennus)) ADD_FAILURE() << havainto.nimi << ": " << havainto.teksti;
  vuosi.KaytaVertailuVuotena = false;
  Rakenne(Rakennelaji::Ikkuna).RakenneRatkaisu.Tyhjenna();
  const auto rikottu = rakennus->Sormenjalki();
  EXPECT_NE(rikottu, ennen);
  EXPECT_EQ(Nimet(Tarkista(*rakennus)), (std::set<std::string_view>{"IkkunaIlmanRatkaisua", "VertailuvuosiPuuttuu"}));
  EXPECT_EQ(rakennus->Sormenjalki(), rikottu);
  EXPECT_TRUE(rakennus->Tallennettu);
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(TarkistusTesti, EachCheckFindsWhatIsWrong) {
  struct Tapaus {
    const char* nimi;
    std::function<void()> riko;
    std::string kohde = {};  ///< its names; empty: the building
  };
  const auto ikkuna = [&]() -> clsRakenne& { return Rakenne(Rakennelaji::Ikkuna); };
  const auto rakenne = [&](std::int32_t laji) { return tila.TilanNimi + " / " + Rakenne(laji).NaytettavaNimi(); };
  const auto vesiryhma = [&]() -> clsVedenKulutusryhma& { return rakennus->VedenKulutusryhmat.Item(1); };
  const std::string lampo = tiedot.LammonHankinta.Nimi, muoto = lampo + " / " + Lampomuoto().Nimi;
  const auto tasan1990 = "Koulu / 1990";
  const Tapaus tapaukset[] = {
      {"KokoPuuttuu", [&] { tiedot.BruttoAla = 0; }},
      {"KerroskorkeusPoikkeaa", [&] { tiedot.BruttoAla = 42000; }},
      {"TilojenAlaPoikkeaa", [&] { tila.BruttoAla = 4500; }},
      {"TilojenTilavuusPoikkeaa", [&] { tiedot.Kokonaistilavuus = 19000; }},
      {"VertailuvuosiPuuttuu", [&] { vuosi.KaytaVertailuVuotena = false; }},
      {"TarvelukuPuuttuu", [&] { vuosi.LammTarveLuku = 0; }, tasan1990},
      {"TarvelukuEsitaytetty", [&] { vuosi.LammTarveLuku = kLammitystarvelukuAluksi; }, tasan1990},
      {"TarvelukuPoikkeaa",
       [&] {
         tiedot.ToteutuneetKulutukset.KulutusTietojenViimVuosi = 2025;
         vuosi.LammTarveLuku = 1.11 * HaeLammitystarveluku(kTampere, 2025).value().luku;
       },
       "Koulu / 2025"},
      {"VakioOsuusSuuri", [&] { tiedot.LammKulVakioOsuus.VuosiOsuus = vuosi.Lampo + 1; }},
      {"TilanKokoPuuttuu", [&] { tila.Kokonaistilavuus = 0; }, tila.TilanNimi},
      {"TilanKorkeusPoikkeaa", [&] { tila.Kokonaistilavuus = 8400; }, tila.TilanNimi},
      {"SisalampotilaPoikkeaa", [&] { tila.Sisalampotila = 4; }, tila.TilanNimi},
      {"SaatohyotysuhdeMahdoton", [&] { tila.Saatohyotysuhde = 0; }, tila.TilanNimi},
      {"TilaIlmanIlmanvaihtoa", [&] { kone.LiittyyTilaansKey = {}; }, tila.TilanNimi},
      {"VaipanOsaPuuttuu", [&] { Rakenne(Rakennelaji::Alapohja).TyyppiID = kHuonelampoinenTila; }, tila.TilanNimi},
      {"UArvoPuuttuu",
       [&] {
         ikkuna().LaskeU_arvoMateriaaleista = false;
         ikkuna().U_arvo(0);
       },
       rakenne(Rakennelaji::Ikkuna)},
      {"UArvoPoikkeaa",
       [&] {
         Rakenne(Rakennelaji::Alapohja).LaskeU_arvoMateriaaleista = false;
         Rakenne(Rakennelaji::Alapohja).U_arvo(1.1);
       },
       rakenne(Rakennelaji::Alapohja)},
      {"IkkunaIlmanRatkaisua", [&] { ikkuna().RakenneRatkaisu->OnIkkuna = false; }, rakenne(Rakennelaji::Ikkuna)},
      {"IkkunaLapaisematon", [&] { ikkuna().RakenneRatkaisu->Verhokerroin = 0; }, rakenne(Rakennelaji::Ikkuna)},
      {"PohjaSuurempiKuinTila", [&] { Rakenne(Rakennelaji::Alapohja).PintaAla = 4500; }, tila.TilanNimi},
      {"KoneIlmanTilaa", [&] { kone.LiittyyTilaansKey = "poistettu"; }, "TK01"},
      {"IlmavirratYlipaineella", [&] { kone.TuloIlmavirta11Teho = 4.7; }},
      {"KoneenVirratPoikkeavat", [&] { kone.TuloIlmavirta11Teho = 2; }, "TK01"},
      {"KoneenVirtaPuuttuu", [&] { kone.PoistoIlmavirta11Teho = 0; }, "TK01"},
      {"KayntiaikaPuuttuu", [&] { jakso().KayntiJaksojenLkm = 0; }, "TK01"},
      {"TilaEiSoviKoneelle", [&] { tila.Sisalampotila = 15.5; }, tila.TilanNimi + " / TK01"},
      {"TuloilmaEiTaulukossa", [&] { kone.SisaanpuhallusLampotila(15.5); }, "TK01"},
      {"PainovoimainenJaKone", [&] { tila.PainovoimainenIlmanvaihto = true; }, tila.TilanNimi + " / TK01"},
      {"LtoPuuttuu",
       [&] {
         kone.IVPeriaateID = clsIVKone::TuloilmakonePlusLTO;
         kone.LtoHyotysuhde = 0;
       },
       "TK01"},
      {"LtoSuuri", [&] { kone.LtoHyotysuhde = 86; }, "TK01"},
      {"PuhallintehoPuuttuu", [&] { kone.PuhaltimienSahkonKulutus.PoistoSahkoTeho11 = 0; }, "TK01"},
      {"PuhallintehoPoikkeaa", [&] { kone.PuhaltimienSahkonKulutus.PoistoSahkoTeho11 = 46; }, "TK01"},
      {"SahkoryhmatPuuttuvat", [&] { sahko.SyötettyKulutus = 0; }},
      {"SahkoryhmaNolla", [&] { sahko.SyötettyKulutus = 0; }, "Valaistus"},
      {"RyhmanTilaPuuttuu", [&] { sahko.LiittyyTilaansKey = "poistettu"; }, "Valaistus"},
      {"VesiryhmatPuuttuvat",
       [&] {
         for (auto& ryhma : rakennus->VedenKulutusryhmat) ryhma.Laskentayksikko = 0;
       }},
      {"VesiryhmaNolla", [&] { vesiryhma().Laskentayksikko = 0; }, vesiryhma().KulutusRyhma},
      {"LampimanOsuusMahdoton", [&] { vesiryhma().LampimanVedenOsuus = 101; }, vesiryhma().KulutusRyhma},
      {"EnergiamuotoPuuttuu", [&] { tiedot.LammonHankinta.Energiamuodot.Tyhjenna(); }, lampo},
      {"OsuudetEivatTayta", [&] { Lampomuoto().OsuusNettotarpeesta = 90; }, lampo},
      {"HyotysuhdeNolla", [&] { Lampomuoto().Hyotysuhde = 0; }, muoto},
      {"TariffiPuuttuu", [&] { Lampomuoto().MyyntiTariffiSkey = {}; }, muoto},
      {"TariffiPoistettu", [&] { Lampomuoto().SiirtoTariffiSkey = "poistettu"; }, muoto},
      {"TariffinHintaPuuttuu", [&] { Lampotariffi().Maksu(1).Hinta = 0; }, muoto},
      {"TariffinOsuudetEivatTayta", [&] { Lampotariffi().Maksu(1).Kulutusosuus = 60; }, muoto},
      {"MittausPuuttuu", [&] { vuosi.Vesi = 0; }},
      {"LampoPoikkeaa", [&] { vuosi.Lampo /= 1.16; }},
      {"SahkoPoikkeaa", [&] { vuosi.Sahko /= 0.84; }},
      {"VesiPoikkeaa", [&] { vuosi.Vesi /= 1.16; }},
      {"OminaislampoPoikkeaa", [&] { vuosi.Lampo = 0.12 * tiedot.BruttoAla; }},
      {"OminaissahkoPoikkeaa", [&] { vuosi.Sahko = 0.027 * tiedot.Kokonaistilavuus; }},
      {"OminaisvesiPoikkeaa", [&] { vuosi.Vesi = 0.13 * tiedot.Kokonaistilavuus; }},
      {"TilojaEiOle", [&] { rakennus->Tilat.Tyhjenna(); }},  // the last: the space is another then
  };
  const auto ehja = rakennus->Tilannekuva();
  std::set<std::string_view> koetellut;
  for (const Tapaus& tapaus : tapaukset) {
    koetellut.insert(tapaus.nimi);
    const std::string kohde = tapaus.kohde.empty() ? tiedot.KohteenNimi : tapaus.kohde;
    tapaus.riko();
    const auto havainnot = Tarkista(*rakennus);
    EXPECT_TRUE(std::ranges::any_of(havainnot,
                                    [&](const Havainto& h) { return h.nimi == tapaus.nimi && h.kohde.polku == kohde; }))
        << tapaus.nimi << " " << kohde;
    for (const Havainto& havainto : havainnot) TarkistaHavainto(havainto, *rakennus);
    EXPECT_TRUE(std::ranges::is_sorted(havainnot, {}, &Havainto::taso));
    rakennus->PalautaTilannekuva(*ehja);
  }
  EXPECT_TRUE(Tarkista(*rakennus).empty());
  for (const Tarkistus& tarkistus : Tarkistukset()) EXPECT_TRUE(koetellut.contains(tarkistus.nimi)) << tarkistus.nimi;
}

TEST_F(TarkistusTesti, WhatCantBeComputedIsToldOnceAndTheRestIsChecked) {
  tila.Kokonaistilavuus = 1e308;
  sahko.LiittyyTilaansKey = "poistettu";
  const auto havainnot = Tarkista(*rakennus);
  const auto laskematta = [](const Havainto& h) { return h.nimi == "LampoPoikkeaa"; };
  ASSERT_EQ(std::ranges::count_if(havainnot, laskematta), 1);
  const Havainto& havainto = *std::ranges::find_if(havainnot, laskematta);
  EXPECT_EQ(havainto.taso, Tarkistustaso::Puute);
  EXPECT_TRUE(havainto.teksti.starts_with("Tarkistusta ”Laskettu lämpö poikkeaa mitatusta” ei voitu tehdä: "))
      << havainto.teksti;
  EXPECT_TRUE(Nimet(havainnot).contains("RyhmanTilaPuuttuu"));
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

/// A swimming hall uses four times what sports halls do, and is one of them; heating by electricity isn't use of the
/// kind that is usual.
TEST_F(TarkistusTesti, UsualUseKnowsSubKindsAndLeavesHeatingOut) {
  constexpr int kLiikuntaID = 18;
  ASSERT_EQ(clsRakennus::KayttoTarkoitusKoodit[kLiikuntaID], 45);
  tiedot.KayttoTarkoitusID = kLiikuntaID;
  vuosi.Lampo = 0.1 * tiedot.Kokonaistilavuus;
  EXPECT_FALSE(Nimet(Tarkista(*rakennus)).contains("OminaislampoPoikkeaa"));
  vuosi.Lampo = 0.16 * tiedot.Kokonaistilavuus;
  EXPECT_TRUE(Nimet(Tarkista(*rakennus)).contains("OminaislampoPoikkeaa"));

  tiedot.KayttoTarkoitusID = 20;
  tila.Sahkolammitys = true;
  vuosi.Sahko = rakennus->SahkonKulutusryhmat.Vuosikulutus();
  EXPECT_GT(vuosi.Sahko, 0.03 * tiedot.Kokonaistilavuus);
  EXPECT_FALSE(Nimet(Tarkista(*rakennus)).contains("OminaissahkoPoikkeaa"));
  for (const int koodi : clsRakennus::KayttoTarkoitusKoodit) {
    EXPECT_FALSE(HaeOminaiskulutukset(koodi, "sahko").empty()) << koodi;
    EXPECT_FALSE(HaeOminaiskulutukset(koodi, "vesi").empty()) << koodi;
  }
  EXPECT_TRUE(HaeOminaiskulutukset(5, "lampo").empty());
}

TEST_F(TarkistusTesti, TheGuideListsEveryCheckUnderItsLevel) {
  std::ifstream sivu(Lahdekoodi("docs/opas/tarkistukset.md"));
  std::vector<std::string> oppaassa, taulukossa;
  std::string otsikko;
  for (std::string rivi; std::getline(sivu, rivi);) {
    if (rivi.starts_with("## ")) otsikko = rivi.substr(3);
    if (rivi.starts_with("| ") && rivi.find("` | ") != std::string::npos)
      oppaassa.push_back(otsikko + ": " + rivi.substr(0, rivi.find("` | ")));
  }
  for (const Tarkistus& tarkistus : Tarkistukset())
    taulukossa.push_back(TasonOtsikko(tarkistus.taso) + ": | " + Teksti(tarkistus.otsikko) + " | `" +
                         std::string(tarkistus.nimi));
  std::ranges::sort(oppaassa);
  std::ranges::sort(taulukossa);
  EXPECT_EQ(oppaassa, taulukossa);
  EXPECT_EQ(std::ranges::adjacent_find(taulukossa), taulukossa.end());
}

}  // namespace
