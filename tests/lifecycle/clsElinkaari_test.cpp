// SPDX-License-Identifier: GPL-3.0-or-later
// Trees of life-cycle costs of a building, and its measures over their life.
#include "lifecycle/clsElinkaari.h"

#include <cmath>
#include <map>

#include "building/Hankintalaskelma.h"
#include "kernel/Tulos.h"
#include "lifecycle/Kustannuspuu.h"
#include "lifecycle/Toimenpideinvestointi.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "supply/clsTariffit.h"
#include "tests/measures/Koemuunnelma.h"

namespace {

class Elinkaari : public Muunneltava {
 protected:
  clsElinkaarisolmu& Syota(clsElinkaarisolmut& solmut, const Tunniste& avain, double maara, double hinta) {
    clsElinkaarisolmu& solmu = solmut.Add(avain);
    solmu.YksikoidenMaara = maara;
    solmu.Yksikkokustannus = hinta;
    return solmu;
  }
  Kustannuspuu Perustaminen() { return {*rakennus, Kustannuspuu::Laji::Perustaminen}; }
  Kustannuspuu Hoito() { return {*rakennus, Kustannuspuu::Laji::Hoito}; }

  clsElinkaari& elinkaari = rakennus->Elinkaari;
};

TEST_F(Elinkaari, NothingIsInvented) {
  EXPECT_FALSE(Perustaminen().Yhteensa());
  EXPECT_FALSE(elinkaari.Oletukset());
  rakennus->Tilat.Tyhjenna();
  rakennus->IVKoneet.Tyhjenna();
  const Kustannuspuu puu = Perustaminen();
  EXPECT_EQ(puu.Solmut().size(), 46u) << "placeholders stand while there is nothing of their kind";
  EXPECT_EQ(puu.Etsi("S1")->nimi, "Perusmuuuri");
}

TEST_F(Elinkaari, TheBuildingsStructuresAndMachinesTakeThePlaceholdersPlaces) {
  const Kustannuspuu puu = Perustaminen();
  EXPECT_EQ(puu.Etsi("Tila2"), nullptr);
  EXPECT_EQ(puu.Etsi("IV1"), nullptr);
  double seinat = 0;
  for (const int lapsi : puu.Etsi("US1")->lapset) {
    EXPECT_EQ(puu.Solmut()[lapsi].yksikko, "m²");
    seinat += *puu.Solmut()[lapsi].maara;
  }
  double ala = 0;
  for (const clsTila& tila : rakennus->Tilat)
    for (const clsRakenne& rakenne : tila.Rakenteet)
      if (rakenne.Rakennetyyppi == Rakennelaji::Ulkoseina) ala += rakenne.PintaAla;
  EXPECT_NEAR(seinat, ala, 1e-9);
  EXPECT_EQ(static_cast<int>(puu.Etsi("IV")->lapset.size()), rakennus->IVKoneet.Count());
  EXPECT_EQ(puu.Etsi("sah"), puu.Etsi("Sah")) << "keys pass over letter case, so the two never meet in one tree";
}

TEST_F(Elinkaari, NodesSumUpUnlessTheyHaveAnAmountOfTheirOwn) {
  Syota(elinkaari.Perustaminen, "L1", 10, 100);
  Syota(elinkaari.Perustaminen, "Pil", 4, 250);
  clsElinkaarisolmu& seina =
      Syota(elinkaari.Perustaminen, Perustaminen().Solmut()[Perustaminen().Etsi("US1")->lapset[0]].avain, 0, 200);
  seina.MaaraMallista = true;
  const double seinat = *Perustaminen().Etsi(seina.sKey)->mallinMaara * 200;
  EXPECT_NEAR(*Perustaminen().Yhteensa(), 1000 + 1000 + seinat, 1e-9);
  Syota(elinkaari.Perustaminen, "J", 1, 5);
  EXPECT_NEAR(*Perustaminen().Yhteensa(), 2005, 1e-9) << "what is below an own amount doesn't count";
  elinkaari.Perustaminen.Item("J").TyyppiID = clsElinkaarisolmu::SummaAlemmista;
  EXPECT_NEAR(*Perustaminen().Yhteensa(), 2000 + seinat, 1e-9) << "and back";
}

TEST_F(Elinkaari, FeesComeFromTheModelAndRiseByWhatTheyBuy) {
  for (clsTariffi& tariffi : rakennus->Tariffit) {
    tariffi.Perusmaksu = 500;
    tariffi.Tehomaksu = 10;
    tariffi.TehomaksunMaaraytymisperuste = 30;
  }
  const Kustannuspuu puu = Hoito();
  const auto kustannus = [&](clsEnergianHankinta::Laji laji) { return LaskeHankinta(*rakennus, laji).kustannus; };
  EXPECT_NEAR(*puu.Etsi("Lammm")->kustannus, kustannus(clsEnergianHankinta::Lampo), 1e-6);
  EXPECT_NEAR(*puu.Etsi("sah")->kustannus, kustannus(clsEnergianHankinta::Sahko), 1e-6);
  EXPECT_NEAR(*puu.Etsi("Vesi")->kustannus, kustannus(clsEnergianHankinta::Vesi), 1e-6);
  EXPECT_DOUBLE_EQ(*puu.Etsi("Tehsah")->kustannus, rakennus->Perustiedot.SahkonHankinta.Energiamuodot.Tehomaksut());

  Syota(elinkaari.Hoito, "Siiv", 1000, 2);
  elinkaari.OletuksetAnnettu = true;
  elinkaari.Pitoaika = 25;
  elinkaari.Korkokanta = 4;
  elinkaari.SahkonHinnannousu = 4;
  const Elinkaarioletukset oletukset = *elinkaari.Oletukset();
  const double kerroin = Nykyarvokerroin(25, 0.04);
  EXPECT_NEAR(*Hoito().Nykyarvo(oletukset),
              25 * kustannus(clsEnergianHankinta::Sahko) +
                  kerroin * (2000 + kustannus(clsEnergianHankinta::Lampo) + kustannus(clsEnergianHankinta::Vesi)),
              1e-6);
  Syota(elinkaari.Hoito, "Kulsan", 1, 700);
  EXPECT_DOUBLE_EQ(*Hoito().Etsi("Kulsan")->kustannus, 700);
  EXPECT_NEAR(*Hoito().Etsi("Kulsan")->mallinArvo, *puu.Etsi("Kulsan")->kustannus, 1e-9) << "what it overrides";
  elinkaari.Hoito.Remove(Tunniste("Kulsan"));
  EXPECT_DOUBLE_EQ(*Hoito().Etsi("Kulsan")->kustannus, *puu.Etsi("Kulsan")->kustannus);
}

TEST_F(Elinkaari, ResultsTellTheCostOfEveryKnownNode) {
  Syota(elinkaari.Perustaminen, "L1", 10, 100);
  std::map<std::string, double> solmut;
  const Tuloskohde koko{*rakennus};
  clsElinkaari::kLuokka.TulosNimella("Perustaminen")
      .kartta({elinkaari, &koko}, [&](std::string_view avain, double arvo) { solmut.emplace(avain, arvo); });
  EXPECT_EQ(solmut, (std::map<std::string, double>{{"Kaikki", 1000}, {"EV", 1000}, {"L1", 1000}}));
}

TEST_F(Elinkaari, MeasuresAndThePackageAreReckonedByTheSameDefaults) {
  elinkaari.OletuksetAnnettu = true;
  elinkaari.Pitoaika = 20;
  elinkaari.Korkokanta = 5;
  rakennus->Saastotoimenpiteet.PaivitaHierarkiaLista();
  clsSaastotoimenpide& toimenpide = *rakennus->Saastotoimenpiteet.Lisaa(rakennus->Tilat.Item(1).sKey);
  toimenpide.Investointi = 10000;
  toimenpide.TekninenKayttoika = 15;
  toimenpide.EnnenTiedotUpToDate = toimenpide.JalkeenTiedotUpToDate = true;
  const Investointi investointi = ToimenpiteenInvestointi(toimenpide, {.yleinen = 25});
  ASSERT_EQ(investointi.hankinnat.size(), 1u);
  EXPECT_DOUBLE_EQ(investointi.hankinnat[0].hinta, 12500) << "with VAT as the payback has it";
  EXPECT_DOUBLE_EQ(investointi.hankinnat[0].kayttoika, 15);
  EXPECT_FALSE(PaketinInvestointi(rakennus->ToimenpiteidenJarjestelija, rakennus->Saastotoimenpiteet, {})
                   .value_or(Investointi{})
                   .energia > 0)
      << "nothing is arranged";
}

}  // namespace
