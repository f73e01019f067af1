// SPDX-License-Identifier: GPL-3.0-or-later
// The audit report and the portfolio as workbooks, read back: every number in full, every formula with its value.
#include "batch/Raporttitiedosto.h"
#include "batch/Salkku.h"
#include "building/Kuukausitase.h"
#include "building/clsPerustiedot.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "results/clsRaporttiasetukset.h"
#include "results/clsYhteenveto.h"
#include "results/raportti/Raportinosat.h"
#include "results/raportti/Raporttiaineisto.h"
#include "results/raportti/Raporttikirja.h"
#include "tests/batch/Malliauditoinnit.h"
#include "tests/tuki/Koelaskin.h"

namespace {

namespace fs = std::filesystem;

class RaporttiTesti : public MalliauditointiTesti {
 protected:
  std::string Polku(const std::string& nimi) const { return (hakemisto_ / nimi).string(); }
  Koetaulukko Kirjoita(const Raportti& raportti) const {
    KirjoitaRaporttikirja(raportti, Polku("raportti.xlsx"));
    return Koetaulukko(Polku("raportti.xlsx"));
  }
  static const Raportinosa& Osa(const Raportti& raportti, std::string_view nimi) {
    return *std::ranges::find(raportti.osat, nimi, &Raportinosa::nimi);
  }
  /// The numbers of a chapter in ascending order.
  static std::vector<double> Luvut(const Raportinosa& osa) {
    std::vector<double> luvut;
    for (const Raporttilohko& lohko : osa.lohkot) {
      if (const auto* t = std::get_if<Raporttitaulukko>(&lohko))
        for (const Raporttirivi& rivi : t->rivit)
          for (const Raporttisolu& solu : rivi.solut)
            if (const auto* luku = std::get_if<Raporttiluku>(&solu)) luvut.push_back(luku->arvo);
      if (const auto* a = std::get_if<Avainluvut>(&lohko))
        for (const Avainluku& luku : a->luvut) luvut.push_back(luku.arvo);
    }
    std::ranges::sort(luvut);
    return luvut;
  }
  static std::vector<double> Luvut(const Koesivu& sivu) {
    std::vector<double> luvut;
    for (const auto& [paikka, solu] : sivu.Solut())
      if (solu.luku) luvut.push_back(*solu.luku);
    std::ranges::sort(luvut);
    return luvut;
  }
  /// Every formula of the workbook gives what is stored beside it. How many there were.
  static int TarkistaKaavat(const Koetaulukko& kirja) {
    const Koelaskin laskin(kirja);
    int kaavoja = 0;
    for (const Koesivu& sivu : kirja.Sivut())
      for (const auto& [paikka, solu] : sivu.Solut()) {
        if (solu.kaava.empty()) continue;
        ++kaavoja;
        if (!solu.luku) {
          ADD_FAILURE() << sivu.Nimi() << " " << paikka.first << ", " << paikka.second << ": no stored value";
          continue;
        }
        EXPECT_NEAR(laskin.Laske(sivu, solu.kaava), *solu.luku, 1e-9 * std::max(1.0, std::abs(*solu.luku)))
            << sivu.Nimi() << " " << paikka.first << ", " << paikka.second << ": " << solu.kaava;
      }
    return kaavoja;
  }
  static std::string Tekstit(const Raportti& raportti) {
    std::string teksti;
    for (const Raportinosa& osa : raportti.osat)
      for (const Raporttilohko& lohko : osa.lohkot)
        if (const auto* kappale = std::get_if<Raporttikappale>(&lohko)) teksti += kappale->teksti + "\n";
    return teksti;
  }

  Koehakemisto hakemisto_;
};

TEST_F(RaporttiTesti, WorkbooksOfTheSampleAuditsHoldEveryNumberAndFormulasThatAgree) {
  for (const fs::path& tiedosto : Tiedostot()) {
    SCOPED_TRACE(tiedosto.filename());
    const auto rakennus = Avaa(tiedosto);
    const Raportti raportti = TeeRaportti(*rakennus);
    ASSERT_EQ(raportti.osat.size(), Raporttiosat().size());
    EXPECT_EQ(Tekstit(raportti).find("ei voitu laskea"), std::string::npos) << Tekstit(raportti);
    const Koetaulukko kirja = Kirjoita(raportti);
    EXPECT_GT(TarkistaKaavat(kirja), 40);
    ASSERT_EQ(kirja.Sivut().size(), raportti.osat.size() + 1);
    for (std::size_t i = 0; i < raportti.osat.size(); ++i) {
      const std::vector<double> raportin = Luvut(raportti.osat[i]), kirjan = Luvut(kirja.Sivu(i + 1));
      ASSERT_EQ(raportin.size(), kirjan.size()) << raportti.osat[i].nimi;
      for (std::size_t j = 0; j < raportin.size(); ++j)
        EXPECT_DOUBLE_EQ(raportin[j], kirjan[j]) << raportti.osat[i].nimi;
    }
  }
}

TEST_F(RaporttiTesti, FiguresAreTheModels) {
  const auto rakennus = Avaa(Tiedostot().front());
  const Raportti raportti = TeeRaportti(*rakennus);
  const Koetaulukko kirja = Kirjoita(raportti);
  clsYhteenveto y;
  y.LueDataluokka(*rakennus);
  const auto luku = [&](const std::string& nimi) {
    const std::string paikka = kirja.Nimet().at(nimi);
    const auto huuto = paikka.rfind('!');
    std::string sivu = paikka.substr(0, huuto);
    std::erase(sivu, '\'');
    const auto [r, c] = Koetaulukko::Osoite(paikka.substr(huuto + 1));
    return kirja.Sivu(sivu).Luku(r, c);
  };
  EXPECT_DOUBLE_EQ(luku("VuosikustannusLampo"), y.YhtLammitysenergiaKustannus.yhteensa);
  EXPECT_DOUBLE_EQ(luku("VuosikustannusSahko"), y.YhtSahkoKustannus.yhteensa);
  EXPECT_EQ(luku("BruttoAla"), rakennus->Perustiedot.BruttoAla);
  EXPECT_NEAR(luku("MitattuLampo"), rakennus->ToteutunutNormitettuLampo(), 0.005) << "as it is shown";
  const Kuukausitase tase = LaskeKuukausitase(*rakennus);
  const Koesivu& lampo = kirja.Sivu(4);
  const auto [r, c] = lampo.Etsi("Tammi");
  EXPECT_DOUBLE_EQ(lampo.Luku(r, 2), tase[Tasetermi::Johtuminen][0]);
  EXPECT_DOUBLE_EQ(lampo.Luku(r + 11, 8), tase[Tasetermi::Tarve][11]);
  EXPECT_NEAR(lampo.Luku(r + 12, 8), tase.Vuosi(Tasetermi::Tarve), 1e-6);
}

TEST_F(RaporttiTesti, ChaptersCanBeLeftOutAndFreeTextsStandInTheirPlaces) {
  const auto rakennus = Avaa(Tiedostot().front());
  clsRaporttiasetukset& asetukset = rakennus->Raporttiasetukset;
  asetukset.Poisjatetyt = "Tuntematon";
  for (const char* nimi : {"Kohde", "Yhteenveto"}) asetukset.OtaMukaan(nimi, false);
  asetukset.OtaMukaan("Yhteenveto", true);
  EXPECT_EQ(asetukset.Poisjatetyt, "Tuntematon,Kohde");
  asetukset.Nykytila = "Ikkunat on uusittu.\nKatto vuotaa.";
  asetukset.Suositus = "=Paketti kannattaa toteuttaa";
  Raportti raportti = TeeRaportti(*rakennus);
  EXPECT_EQ(raportti.osat.size(), Raporttiosat().size() - 1);
  EXPECT_EQ(raportti.osat[1].numero, "2") << "numbers run on";
  const Koetaulukko kirja = Kirjoita(raportti);
  TarkistaKaavat(kirja);  // those that lean on what was left out are their values
  EXPECT_NE(kirja.Sivu(1).Etsi("=Paketti kannattaa toteuttaa").first, 0) << "stays text";
  asetukset.OtaMukaan("Kohde", true);
  raportti = TeeRaportti(*rakennus);
  EXPECT_NE(Tekstit(raportti).find("Ikkunat on uusittu.\nKatto vuotaa.\n"), std::string::npos);

  ASSERT_TRUE(rakennus->Tallenna(Polku("kohde.lvt")));
  EXPECT_EQ(Avaa(Polku("kohde.lvt"))->Raporttiasetukset.Nykytila, asetukset.Nykytila);
}

TEST_F(RaporttiTesti, AnEmptyBuildingAndHardNamesMakeAWorkbook) {
  clsRakennus tyhja;
  AsetaGlobaaliRakennus(&tyhja);
  tyhja.Perustiedot.KohteenNimi = "Äö&\"<[]:*?/\\'" + std::string(300, 'x');
  Raportti raportti = TeeRaportti(tyhja);
  for (const char* lause :
       {"Kohteessa ei ole tiloja", "Kohteessa ei ole ilmanvaihtokoneita", "Kohteessa ei ole rakenteita",
        "Kohteessa ei ole sähkön kulutusryhmiä", "Kohteessa ei ole ehdotettu säästötoimenpiteitä"})
    EXPECT_NE(Tekstit(raportti).find(lause), std::string::npos) << lause;
  raportti.osat[1].otsikko = tyhja.Perustiedot.KohteenNimi;
  const Koetaulukko kirja = Kirjoita(raportti);
  TarkistaKaavat(kirja);
  EXPECT_NE(kirja.Sivu(0).Etsi(tyhja.Perustiedot.KohteenNimi).first, 0);

  clsTila& tila = tyhja.Tilat.Add("t");
  for (int i = 0; i < 5000; ++i) {
    clsRakenne& rakenne = tila.Rakenteet.Add(Tunniste::Uusi(clsRakenne::kLuokka.NimiSana()));
    rakenne.PintaAla = 1 + i;
    rakenne.U_arvo(0.3);
  }
  const Raportti suuri = TeeRaportti(tyhja);
  const Koetaulukko suuriKirja = Kirjoita(suuri);
  const Koesivu& rakenteet = suuriKirja.Sivu(10);
  EXPECT_GT(rakenteet.Riveja(), 5000);
  EXPECT_NEAR(rakenteet.Luku(rakenteet.Riveja(), 5), 5000.0 * 5001 / 2, 1e-6);
}

TEST_F(RaporttiTesti, AFileThatCantBeWrittenLeavesNothing) {
  const auto rakennus = Avaa(Tiedostot().front());
  const Raportti raportti = TeeRaportti(*rakennus);
  EXPECT_THROW(KirjoitaRaporttikirja(raportti, Polku("ei/ole/raportti.xlsx")), std::runtime_error);
  fs::create_directory(Polku("kansio.xlsx"));
  fs::create_directory(Polku("kansio.xlsx") + "/sisalla");
  EXPECT_THROW(KirjoitaRaporttikirja(raportti, Polku("kansio.xlsx")), std::runtime_error);
  EXPECT_FALSE(fs::exists(Polku("kansio.xlsx.uusi")));
}

TEST_F(RaporttiTesti, APortfolioIsRankedBySavingThenBySpecificHeat) {
  std::vector<std::string> rivit;
  for (const fs::path& tiedosto : Tiedostot()) {
    const Laskettu rivi = LaskeSalkkurivi(tiedosto.string());
    ASSERT_TRUE(rivi.onnistui) << rivi.virheet;
    rivit.push_back(rivi.tulos);
  }
  EXPECT_FALSE(LaskeSalkkurivi(Polku("puuttuu.lvt")).onnistui);
  KirjoitaSalkku(rivit, Polku("salkku.xlsx"));
  const Koetaulukko kirja(Polku("salkku.xlsx"));
  TarkistaKaavat(kirja);
  const Koesivu& sivu = kirja.Sivu(1);
  const int alku = sivu.Etsi("Käyttötarkoitus").first + 1;
  for (std::size_t i = 1; i < rivit.size(); ++i) {
    const int r = alku + static_cast<int>(i);
    EXPECT_GE(std::pair(sivu.Luku(r - 1, 16), sivu.Luku(r - 1, 8)), std::pair(sivu.Luku(r, 16), sivu.Luku(r, 8)));
  }
  const auto koulu = Avaa(Tiedostot().front());
  const int r = sivu.Etsi(koulu->Perustiedot.KohteenNimi).first;
  EXPECT_DOUBLE_EQ(sivu.Luku(r, 5), koulu->ToteutunutNormitettuLampo());
  EXPECT_DOUBLE_EQ(sivu.Luku(r, 16), Raporttiaineisto(*koulu).yhteensa.kustannussaasto);
}

}  // namespace
