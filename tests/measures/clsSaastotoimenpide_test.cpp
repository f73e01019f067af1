// SPDX-License-Identifier: GPL-3.0-or-later
#include "measures/clsSaastotoimenpide.h"

#include <set>

#include "kernel/Paivamaara.h"
#include "tests/measures/Asetuskansio.h"

namespace {

// The numbers of the kinds are those of the project file.
TEST(clsMuuttuneetAttribuutit, AChangeIsEnteredByItsKindUnderItsKey) {
  constexpr std::pair<Laji, int> kNumerot[] = {{Laji::Teksti, 8}, {Laji::Kaksinkertainen, 5}, {Laji::Totuus, 11}};
  clsMuuttuneetAttribuutit muutokset;
  std::set<std::string> avaimet;
  for (const auto& [laji, numero] : kNumerot) {
    muutokset.Lisaa({"Jasen", "clsTila", laji, "clsTila 1", 2, 3, "ennen", "jälkeen"});
    const clsMuuttunutAttribuutti& muutos = muutokset.Item(muutokset.Count());
    EXPECT_EQ(muutos.TietoTyyppi, numero);
    EXPECT_EQ(muutos.InstanssiId, Tunniste("clsTila 1"));
    EXPECT_EQ(muutos.ArvoEnnenStr + ">" + muutos.ArvoJalkeenStr, "ennen>jälkeen");
    EXPECT_EQ(muutos.ArvoEnnen, 2);
    EXPECT_EQ(muutos.ArvoJalkeen, 3);
    avaimet.insert(muutos.sKey.Teksti());
  }
  EXPECT_EQ(avaimet.size(), 3U);
}

TEST(clsMuuttuneetAttribuutit, AChangeGoesWithWhatHasNoMeaningWithoutIt) {
  clsMuuttuneetAttribuutit muutokset;
  const auto lisaa = [&](const char* nimi, const char* olio = "clsTila 1") {
    muutokset.Lisaa({nimi, "clsTila", Laji::Teksti, olio});
    return muutokset.Item(muutokset.Count()).sKey;
  };
  const Tunniste valinta = lisaa("SaatotapaID");
  lisaa("SaatotapaStr");
  lisaa("SaatotapaStr", "clsTila 2");
  const Tunniste periaate = lisaa("IVPeriaate");
  lisaa("IVPeriaateID");
  lisaa("U_arvo");
  const Tunniste lippu = lisaa("LaskeU_arvoMateriaaleista");
  lisaa("BruttoAla");
  for (const Tunniste& avain : {valinta, periaate, lippu}) muutokset.PoistaPareineen(avain);
  ASSERT_EQ(muutokset.Count(), 2);
  EXPECT_EQ(muutokset.Item(1).InstanssiId, Tunniste("clsTila 2"));
  EXPECT_EQ(muutokset.Item(2).AttribuutinNimi, "BruttoAla");
}

using clsSaastotoimenpideTesti = Asetuskansio;

TEST_F(clsSaastotoimenpideTesti, ANewMeasureIsDatedHasItsAuthorAndFloats) {
  const clsSaastotoimenpide toimenpide;
  EXPECT_EQ(toimenpide.ToimenpiteenPaivays, TamaPaiva());
  EXPECT_TRUE(toimenpide.ToimenpiteenTekijanNimi.starts_with("In Excel: '"));
  EXPECT_TRUE(toimenpide.MuuttuneetAttribuutit.Kelluva());
}

TEST_F(clsSaastotoimenpideTesti, ATenthsChangeOfTheBaseMakesFiguresStale) {
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

TEST_F(clsSaastotoimenpideTesti, AFloatingGroupIsMadeByTypeAndCopiedApart) {
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
