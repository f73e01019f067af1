// SPDX-License-Identifier: GPL-3.0-or-later
// The report table: the shipped template and restyled ones, filled with measures and with the object's figures.
#include "results/Paataulu.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "kernel/Hakemistot.h"
#include "kernel/Tiedostot.h"
#include "measures/Toimenpidesarakkeet.h"
#include "measures/clsValitutToimenpiteet.h"
#include "results/Taulukkovienti.h"
#include "settings/Asetusavaimet.h"
#include "supply/clsTariffit.h"
#include "tekstit/lomakkeet_taulukot.h"
#include "tests/building/Koerakennus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/tuki/Koetaulukko.h"
#include "ui/frmTilaYhteenveto.h"

namespace {

constexpr int kEverything = 2;  // the view of the list

class PaatauluTesti : public RakennusTesti {
 protected:
  PaatauluTesti() {
    LuoKoulu();
    rakennus->Perustiedot.Kayttotarkoitus = "Peruskoulu & lukio";
    clsToteutunutKulutus& vuosi = rakennus->Perustiedot.ToteutuneetKulutukset.Item(2);
    rakennus->Perustiedot.ToteutuneetKulutukset.Item(1).KaytaVertailuVuotena = false;
    vuosi.Lampo = 764.2;
    vuosi.Sahko = 207.3;
    vuosi.Vesi = 1510;
    vuosi.LammTarveLuku = 4459;
    vuosi.KaytaVertailuVuotena = true;
    clsTariffi& tariffi = rakennus->Tariffit.LisaaTariffi(clsTariffi::LampoTariffi);
    tariffi.Maksu(1).Hinta = 40;
    tariffi.Maksu(1).Kulutusosuus = 100;
    clsEnergiamuoto& muoto = rakennus->Perustiedot.LammonHankinta.LisaaMuoto();
    muoto.OsuusNettotarpeesta = 100;
    muoto.MyyntiTariffiSkey = tariffi.sKey;
    std::filesystem::copy_file(AppPath() + "Paataulu.xls", pohja);
    TallennaAsetus(Avain::Taulukkokansio, (kansio / "").string());
    AsetaAppPath((kansio / "").string());
    AsetaToimenpidesarakkeet(lomake.lvwTilat, kEverything);
  }
  ~PaatauluTesti() override { AsetaAppPath({}); }

  /// The list as the arranger has it: the totals first, then so many measures, of which the second is bold.
  void Toimenpiteita(int maara) {
    Luettelosisalto sisalto;
    for (int i = 0; i <= maara; ++i) {
      Toimenpiderivi rivi{.nimi = i ? "=Toimenpide " + std::to_string(i) : "Valitut yhteensä",
                          .saasto = {1000.4 * i, 10.5 * i, 1},
                          .kustannukset = {.lampoEnergia = 1234.5 * i},
                          .investointi = 5e6};
      if (i > 0) rivi.takaisinmaksuaika = 7.25, rivi.takaisinmaksukuvio = "### ##0.0";
      Luettelorivi solut = ToimenpiderivinSolut(rivi);
      solut.avain = i ? Tunniste("t" + std::to_string(i)) : clsValitutToimenpiteet::kYhteensa;
      solut.piirteet.lihava = i == 0 || i == 2;
      sisalto.rivit.push_back(std::move(solut));
    }
    lomake.lvwTilat.Tayta(std::move(sisalto));
  }
  Koetaulukko Vie() {
    VieListaTaulukkoon(lomake.lvwTilat, true, 1, 1, true);
    if (viestit.Avatut().empty()) throw std::runtime_error("taulukkoa ei avattu");
    return Koetaulukko(viestit.Avatut().back());
  }
  /// The part of the template as the office has changed it.
  void Muokkaa(const std::string& osa, const std::function<std::string(std::string)>& muutos) const {
    const std::string uusi = muutos(Koepaketti(pohja).Osa(osa));
    zip_t* zip = zip_open(pohja.c_str(), 0, nullptr);
    const auto paikka = static_cast<zip_uint64_t>(zip_name_locate(zip, osa.c_str(), 0));
    ASSERT_EQ(zip_file_replace(zip, paikka, zip_source_buffer(zip, uusi.data(), uusi.size(), 0), 0), 0);
    ASSERT_EQ(zip_close(zip), 0);
  }

  const Koehakemisto kansio;
  const Ymparistomuuttuja asetukset{"XDG_CONFIG_HOME", (kansio / "asetukset").string()};
  const std::string pohja = (kansio / "Paataulu.xls").string();
  frmTilaYhteenveto lomake;
};

void OdotaTuloksettomatKaavat(const Koetaulukko& kirja) {
  int kaavoja = 0;
  for (const Koesivu& sivu : kirja.Sivut())
    for (const auto& [paikka, solu] : sivu.Solut()) {
      if (solu.kaava.empty()) continue;
      ++kaavoja;
      EXPECT_FALSE(solu.luku || !solu.teksti.empty()) << paikka.first << ", " << paikka.second;
    }
  EXPECT_GT(kaavoja, 20);
  EXPECT_EQ(
      kirja.Paketti().Xml("xl/workbook.xml").child("workbook").child("calcPr").attribute("fullCalcOnLoad").as_int(), 1);
}

TEST_F(PaatauluTesti, TheTemplateGetsTheMeasuresAndTheFiguresOfTheObject) {
  Toimenpiteita(26);
  const Koetaulukko kirja = Vie();
  const Koesivu& sivu = kirja.Sivu();
  const clsPerustiedot& tiedot = rakennus->Perustiedot;
  EXPECT_EQ(sivu.Teksti(9, 3), "Koulu");
  EXPECT_EQ(sivu.Luku(11, 3), 17500);
  EXPECT_EQ(sivu.Teksti(12, 3), "Peruskoulu & lukio");
  EXPECT_EQ(sivu.Luku(6, 57), tiedot.ToteutuneetKulutukset.KulutusTietojenViimVuosi - 1);
  EXPECT_DOUBLE_EQ(sivu.Luku(8, 57), rakennus->ToteutunutNormitettuLampo());
  EXPECT_EQ(sivu.Luku(11, 57), 207.3);
  EXPECT_EQ(sivu.Luku(14, 57), 1510);
  const clsEnergiamuodot& lampo = tiedot.LammonHankinta.Energiamuodot;
  EXPECT_EQ(lampo.Keskihinta(), 40);
  EXPECT_DOUBLE_EQ(sivu.Luku(9, 57),
                   (rakennus->ToteutunutNormitettuLampo() * lampo.Keskihinta() + lampo.Vuosimaksut()) *
                       Asetukset().NayttoKerroin(Energialaji::Lampo));
  EXPECT_EQ(sivu.Teksti(14, 1), lomake.lvwTilat.Kohde().Osat().front().otsikko);
  EXPECT_TRUE(sivu.Solu(14, 13).lihava);
  EXPECT_EQ(sivu.Teksti(14, 14), "") << "columns without width are left out";
  EXPECT_EQ(sivu.Teksti(15, 1), "=Toimenpide 1") << "a name, not the totals";
  EXPECT_EQ(sivu.Luku(15, 3), 7.3) << "as it is shown";
  EXPECT_EQ(sivu.Luku(15, 4), std::round(5e6 * Asetukset().NayttoKerroin(Energialaji::Yleinen)));
  EXPECT_EQ(sivu.Luku(16, 5), 2001);
  EXPECT_TRUE(sivu.Solu(16, 5).lihava);
  EXPECT_FALSE(sivu.Solu(17, 5).lihava);
  EXPECT_EQ(sivu.Solu(17, 5).muoto, "#,##0");
  EXPECT_EQ(sivu.Solu(16, 5).muoto, "#,##0") << "the cell's own style, in bold";
  EXPECT_EQ(sivu.Teksti(40, 1), "=Toimenpide 26");
  EXPECT_EQ(sivu.Solu(41, 2).kaava, "SUM(B15:B40)");
  OdotaTuloksettomatKaavat(kirja);
  EXPECT_TRUE(kirja.Paketti().OnOsa("xl/charts/chart1.xml"));
  EXPECT_TRUE(viestit.Avatut().back().ends_with(".xlsx"));
}

TEST_F(PaatauluTesti, FormulasOfTheTemplateAreNotWrittenOver) {
  Toimenpiteita(27);
  VieListaTaulukkoon(lomake.lvwTilat, true, 1, 1, true);
  EXPECT_EQ(viestit.Esiintymia(Teksti(tekstit::kPohjassaEiTilaa)), 1);
  EXPECT_TRUE(viestit.Avatut().empty());
}

TEST_F(PaatauluTesti, AMissingOrDamagedTemplateIsToldAndNothingIsWritten) {
  Toimenpiteita(1);
  const std::string alku = "Virhe Paataulu97.xls:n aukaisussa. Tiedosto puuttuu tai on viallinen. Description: ";
  const auto vie = [&](const std::string& syy) {
    viestit.Tyhjenna();
    VieListaTaulukkoon(lomake.lvwTilat, true, 1, 1, true);
    ASSERT_EQ(viestit.Naytetyt().size(), 1u);
    EXPECT_EQ(viestit.Naytetyt().front().teksti, alku + syy);
    EXPECT_TRUE(viestit.Avatut().empty());
  };
  const std::string viallinen = Teksti(tekstit::kEiTyokirja), kokonainen = LueTiedosto(pohja);
  Muokkaa("xl/workbook.xml", [](const std::string&) { return std::string("<workbook"); });
  vie(viallinen);
  for (const std::string& sisalto : {std::string("vanha taulukko"), std::string(), kokonainen.substr(0, 3000)}) {
    KirjoitaTiedosto(pohja, sisalto);
    vie(viallinen);
  }
  std::filesystem::remove(pohja);
  vie("tiedostoa tai kansiota ei ole");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(kansio / "."), {}), 1) << "the settings";
}

TEST_F(PaatauluTesti, ARestyledTemplateIsFilledWhereItsNamesAre) {
  constexpr int kEnsimmainenSiirretty = 9, kLisatty = 3;  // rows inserted above the row 9
  const auto siirra = [](const std::string& teksti, const std::regex& viite) {
    std::string tulos;
    auto alku = teksti.cbegin();
    for (std::sregex_iterator it(teksti.begin(), teksti.end(), viite), loppu; it != loppu; ++it) {
      const int rivi = std::stoi((*it)[2].str());
      tulos.append(alku, (*it)[2].first);
      tulos += std::to_string(rivi >= kEnsimmainenSiirretty ? rivi + kLisatty : rivi);
      alku = (*it)[2].second;
    }
    return tulos.append(alku, teksti.cend());
  };
  Muokkaa("xl/workbook.xml", [&](const std::string& xml) {
    return siirra(std::regex_replace(xml, std::regex("<calcPr[^>]*/>"), ""), std::regex("(\\$[A-Z]+\\$)(\\d+)"));
  });
  Muokkaa("xl/worksheets/sheet1.xml", [&](const std::string& xml) {
    std::string tulos = siirra(xml, std::regex("( r=\"[A-Z]*)(\\d+)"));
    tulos = std::regex_replace(tulos, std::regex("</f>"), "</f><v>999</v>");
    tulos = std::regex_replace(tulos, std::regex("<c r=\"(C12|BE9|B19)\"[^>]*/>"), "");  // the office has cleared these
    return std::regex_replace(tulos, std::regex("<row r=\"20\">.*?</row>"), "");
  });
  Toimenpiteita(6);
  const Koetaulukko kirja = Vie();
  const Koesivu& sivu = kirja.Sivu();
  EXPECT_EQ(sivu.Teksti(9 + kLisatty, 3), "Koulu");
  EXPECT_EQ(sivu.Luku(11 + kLisatty, 3), 17500);
  EXPECT_GT(sivu.Luku(9 + kLisatty, 57), 0);
  EXPECT_GT(sivu.Luku(8, 57), 0) << "above the inserted rows";
  EXPECT_EQ(sivu.Teksti(14 + kLisatty + 6, 1), "=Toimenpide 6");
  EXPECT_EQ(sivu.Luku(20, 5), 3001);
  EXPECT_EQ(sivu.Luku(19, 2), std::round(2469 * Asetukset().NayttoKerroin(Energialaji::Lampo)));
  OdotaTuloksettomatKaavat(kirja);
}

TEST_F(PaatauluTesti, WithoutAComparisonYearTheFiguresAreZerosAndThePersonIsTold) {
  for (clsToteutunutKulutus& vuosi : rakennus->Perustiedot.ToteutuneetKulutukset) vuosi.KaytaVertailuVuotena = false;
  Toimenpiteita(1);
  const Koetaulukko kirja = Vie();
  const Koesivu& sivu = kirja.Sivu();
  for (const int rivi : {6, 8, 11, 14}) EXPECT_EQ(sivu.Luku(rivi, 57), 0);
  EXPECT_EQ(viestit.Naytetyt().size(), 1u);
}

}  // namespace
