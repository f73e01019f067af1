// SPDX-License-Identifier: GPL-3.0-or-later
// The monthly balance: its laws, what the dialog shows of it, and the sheet.
#include "building/Kuukausitase.h"

#include <filesystem>

#include "kernel/Hakemistot.h"
#include "kernel/Luvut.h"
#include "results/Laskentataulukko.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"

namespace {

constexpr Tasetermi kHavioosat[] = {Tasetermi::Johtuminen, Tasetermi::Ilmanvaihtokoneet, Tasetermi::Vuotoilma};
constexpr Tasetermi kKuormaosat[] = {Tasetermi::Sahko, Tasetermi::Henkilot, Tasetermi::Aurinko, Tasetermi::IVKuormat};

class KuukausitaseTesti : public RakennusTesti {
 protected:
  KuukausitaseTesti() { LuoKoulu(); }
};

double Summa(const Kuukausitase& tase, std::span<const Tasetermi> termit, std::size_t m) {
  double summa = 0;
  for (const Tasetermi termi : termit) summa += tase[termi][m];
  return summa;
}

TEST_F(KuukausitaseTesti, TheTermsOfEachMonthAddUp) {
  rakennus->Tilat.Item(1).Vuotoilmanvaihto = 0.2;
  const Kuukausitase tase = LaskeKuukausitase(*rakennus);
  for (std::size_t m = 0; m < kKuukausia; ++m) {
    const double haviot = tase[Tasetermi::Haviot][m], kuormat = tase[Tasetermi::Kuormat][m];
    EXPECT_NEAR(Summa(tase, kHavioosat, m), haviot, 1e-6);
    EXPECT_NEAR(Summa(tase, kKuormaosat, m), kuormat, 1e-6);
    EXPECT_NEAR(haviot - tase[Tasetermi::HyodynnetytKuormat][m], tase[Tasetermi::Tarve][m], 1e-6);
    EXPECT_NEAR(tase[Tasetermi::Hyvaksikayttoaste][m] * kuormat, tase[Tasetermi::HyodynnetytKuormat][m], 1e-6);
    EXPECT_LE(tase[Tasetermi::Hyvaksikayttoaste][m], 1);
  }
  EXPECT_GT(tase[Tasetermi::Vuotoilma][0], 0);
  EXPECT_GT(tase[Tasetermi::Aurinko][6], tase[Tasetermi::Aurinko][11]);
}

TEST_F(KuukausitaseTesti, TheYearIsTheBuildingsOwnDemandAndTheBuildingTheSumOfItsSpaces) {
  clsTila& toinen = LisaaTila(900, 300);
  LisaaRakenne(toinen, Rakennelaji::Ulkoseina, 200, 0.5);
  const Kuukausitase koko = LaskeKuukausitase(*rakennus);
  EXPECT_NEAR(koko.NormitettuTarve(), rakennus->VuotuinenLampoEnergianTarveTilat(), 1e-6);
  double summa = 0;
  for (clsTila& tila : rakennus->Tilat) summa += LaskeKuukausitase(*rakennus, tila).NormitettuTarve();
  EXPECT_NEAR(summa, koko.NormitettuTarve(), 1e-6);
  EXPECT_FALSE(rakennus->Tilat.VuotuinenLampoEnergianTarveUpToDate()) << "no cache is left on";
}

TEST_F(KuukausitaseTesti, TheDialogShowsTheFiguresAndHowTheYearIsScaled) {
  const Kuukausitase tase = LaskeKuukausitase(*rakennus);
  ikkunat.KunNaytetaan("frmKuukausitase", [&](Ikkunaton& lomake) {
    EXPECT_EQ(lomake.Otsikko(), "Kuukausitase: Koulu, koko rakennus");
    const Ohjain& lista = lomake.Etsi("lvwTase");
    ASSERT_EQ(lista.Rivit().size(), 11u);
    EXPECT_EQ(lista.Rivit()[0][0], "Johtuminen");
    EXPECT_EQ(lista.Rivit()[0][1], Muotoile(tase[Tasetermi::Johtuminen][0], "### ##0"));
    EXPECT_EQ(lista.Summarivi()[0], "Lämmöntarve");
    EXPECT_EQ(lista.Summarivi()[13], Muotoile(tase.Vuosi(Tasetermi::Tarve), "### ##0"));
    const Kaaviotiedot& kaavio = lomake.Etsi("chtTase").Kaavio();
    ASSERT_EQ(kaavio.sarjat.size(), 8u);
    for (const Kaaviosarja& sarja : kaavio.sarjat) EXPECT_EQ(sarja.arvot.size(), kaavio.nimet.size());
    const std::string normitus = lomake.Teksti("lblNormitus");
    EXPECT_NE(normitus.find(Muotoile(tase.paikkakunta, "### ##0") + " °Cd / "), std::string::npos) << normitus;
    EXPECT_NE(normitus.find(Muotoile(tase.NormitettuTarve(), "### ##0.00") + " MWh/a"), std::string::npos) << normitus;
    lomake.KayttajaPainaa("cmdSulje");
  });
  NaytaKuukausitase(*rakennus);
}

TEST_F(KuukausitaseTesti, HeatSummaryAndListOfSpacesLeadToTheBalance) {
  std::vector<std::string> otsikot;
  ikkunat.KunNaytetaan("frmKuukausitase", [&](Ikkunaton& lomake) {
    otsikot.push_back(lomake.Otsikko());
    lomake.KayttajaPainaa("cmdSulje");
  });
  rakennus->Tilat.Item(1).TilanNimi = "Luokat";
  rakennus->NaytaLampoYhteenvetoDlg();
  ikkunat.Ikkuna("frmLampoYhteenveto").KayttajaPainaa("cmdKuukausitase");
  rakennus->Tilat.NaytaKayttoliittyma();
  ikkunat.Ikkuna("frmTilaYhteenveto").KayttajaPainaa("cmdKuukausitase");
  EXPECT_EQ(otsikot, (std::vector<std::string>{"Kuukausitase: Koulu, koko rakennus", "Kuukausitase: Koulu, Luokat"}));
}

TEST_F(KuukausitaseTesti, TheTableIsSavedAsASheetAndAFileIsReplacedOnlyByPermission) {
  const Koehakemisto kansio;
  const std::string tiedosto = (kansio / "tase.xlsx").string();
  ikkunat.KunNaytetaan("frmKuukausitase", [&](Ikkunaton& lomake) {
    viestit.AsetaSeuraavaTiedosto((kansio / "tase").string());
    lomake.KayttajaPainaa("cmdTallennaTaulukko");
    EXPECT_GT(std::filesystem::file_size(tiedosto), 2000u) << "the extension is added";
    KirjoitaTiedosto(tiedosto, "entinen");
    viestit.AsetaSeuraavaTiedosto(tiedosto);
    viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
    lomake.KayttajaPainaa("cmdTallennaTaulukko");
    EXPECT_EQ(std::filesystem::file_size(tiedosto), 7u);
    viestit.AsetaSeuraavaTiedosto((kansio / "ei ole" / "tase.xlsx").string());
    lomake.KayttajaPainaa("cmdTallennaTaulukko");
    EXPECT_NE(viestit.Naytetyt().back().teksti.find("ei ole/tase.xlsx"), std::string::npos);
    viestit.AsetaSeuraavaTiedosto({});
    lomake.KayttajaPainaa("cmdTallennaTaulukko");
    lomake.KayttajaPainaa("cmdSulje");
  });
  NaytaKuukausitase(*rakennus, rakennus->Tilat.Item(1));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(kansio / "."), {}), 1) << "nothing half-written is left";
}

}  // namespace
