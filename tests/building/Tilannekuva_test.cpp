// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of the whole object, the change notice, and the register behind them.
#include "kernel/Kokoelma.h"
#include "settings/clsProjektiAsetukset.h"
#include "tests/building/Koerakennus.h"

namespace {

/// Another value of the same kind.
void MuutaArvo(Olio& olio, const Jasen& jasen) {
  ArvoNakyma arvo;
  jasen.nayta(olio, arvo);
  const std::string teksti = std::string(arvo.Teksti()) + "x";
  ArvoNakyma uusi;
  if (jasen.laji == Laji::Teksti)
    uusi.Aseta(std::string_view(teksti));
  else if (jasen.laji == Laji::Totuus)
    uusi.Aseta(std::int64_t{arvo.Kokonais() ? 0 : -1});
  else
    uusi.Aseta(arvo.Lukuna() + 1);
  if (jasen.aseta) jasen.aseta(olio, uusi);
}

/// Changes every value of the tree and gives each empty collection an item.
void MuutaKaikki(Olio& olio) {
  if (KokoelmaPohja* kokoelma = olio.Kokoelmana()) {
    if (kokoelma->Count() == 0) kokoelma->LisaaPohja(Tunniste::Uusi(olio.LuokanTiedot().NimiSana()));
    for (int i = 1; i <= kokoelma->Count(); ++i) MuutaKaikki(kokoelma->Pohja(i));
  }
  for (const Jasen& jasen : olio.LuokanTiedot().Jasenet()) {
    if (!jasen.OnOlio())
      MuutaArvo(olio, jasen);
    else if (Olio* lapsi = jasen.viittaus ? nullptr : jasen.olio(olio))
      MuutaKaikki(*lapsi);
  }
}

using TilannekuvaTesti = RakennusTesti;

TEST_F(TilannekuvaTesti, EveryPartOfTheObjectButItsFileComesBack) {
  LuoKoulu();
  rakennus->ProjektiAsetukset.strCurrentProjectFile = "A.lvt";
  const auto kuva = rakennus->Tilannekuva();
  const std::uint64_t ennen = rakennus->Sormenjalki();
  EXPECT_EQ(kuva->Sormenjalki(), ennen);
  int osia = 0;
  for (const Jasen& jasen : clsRakennus::kLuokka.Jasenet()) {
    if (!jasen.OnOlio() || jasen.nimi == "ProjektiAsetukset") continue;
    ++osia;
    MuutaKaikki(*jasen.olio(*rakennus));
    EXPECT_NE(rakennus->Sormenjalki(), ennen) << jasen.nimi;
    rakennus->PalautaTilannekuva(*kuva);
    EXPECT_EQ(rakennus->Sormenjalki(), ennen) << jasen.nimi;
  }
  EXPECT_EQ(osia, 14);
  rakennus->MuuLampo = 5;
  rakennus->ProjektiAsetukset.strCurrentProjectFile = "B.lvt";
  EXPECT_NE(rakennus->Sormenjalki(), ennen);
  rakennus->PalautaTilannekuva(*kuva);
  EXPECT_EQ(rakennus->MuuLampo, 0);
  EXPECT_EQ(rakennus->ProjektiAsetukset.strCurrentProjectFile, "B.lvt");
}

TEST_F(TilannekuvaTesti, TheRegisterFollowsWhatComesAndGoes) {
  LuoKoulu();
  const auto loytyy = [&](const Tunniste& id) { return rakennus->HaeInstanssi("clsTila", id).olio; };
  clsTila& uusi = rakennus->Tilat.Add("uusi");
  const Tunniste id = uusi.InstanssiId;
  rakennus->Muuttui("Tilan lisäys");
  EXPECT_EQ(loytyy(id), &uusi);
  const auto kuva = rakennus->Tilannekuva();
  EXPECT_EQ(kuva->HaeInstanssi("clsTila", id).olio, &kuva->Tilat.Item("uusi")) << "a register of its own";
  rakennus->Tilat.Remove("uusi");
  rakennus->RekisteriVanheni();
  EXPECT_EQ(loytyy(id), nullptr);
  rakennus->PalautaTilannekuva(*kuva);
  EXPECT_EQ(loytyy(id), &rakennus->Tilat.Item("uusi"));
}

TEST_F(TilannekuvaTesti, WindowsAreToldOfChangesWhileTheyListen) {
  int eka = 0, toka = 0;
  Muutostilaus sulkeutuva = rakennus->TilaaMuutokset([&] {
    ++eka;
    sulkeutuva.reset();
  });
  const auto rikki = rakennus->TilaaMuutokset([] { throw std::runtime_error("ikkuna ei piirry"); });
  const auto pysyva = rakennus->TilaaMuutokset([&] { ++toka; });
  rakennus->Muuttui("Koe");
  rakennus->Muuttui("Koe");
  EXPECT_EQ(eka, 1);
  EXPECT_EQ(toka, 2);
  EXPECT_EQ(viestit.Esiintymia("ikkuna ei piirry"), 2) << "the others follow all the same";
  const Muutostilaus jaa = rakennus->TilaaMuutokset([] {});
  rakennus.reset();  // a subscription may outlive the building
}

TEST_F(TilannekuvaTesti, AnOpenHeatSummaryFollowsEachChangeWithoutItsWarnings) {
  LuoKoulu();
  rakennus->NaytaLampoYhteenvetoDlg();
  const Ikkunaton& lomake = ikkunat.Ikkuna("frmLampoYhteenveto");
  const std::string ennen = lomake.Teksti("txtTilojenLammitys");
  const std::size_t viesteja = viestit.Naytetyt().size();
  rakennus->Tilat.Item(1).Sisalampotila += 2;
  LisaaIkkuna(rakennus->Tilat.Item(1), 50, 0);
  rakennus->Muuttui("Tilan tiedot");
  EXPECT_NE(lomake.Teksti("txtTilojenLammitys"), ennen);
  EXPECT_EQ(viestit.Naytetyt().size(), viesteja);
}

}  // namespace
