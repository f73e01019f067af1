// SPDX-License-Identifier: GPL-3.0-or-later
// The batch calculator over files good and bad, and the program itself by its exit code and streams.
#include "batch/Kohdelaskenta.h"

#include <sys/wait.h>

#include <fstream>
#include <regex>
#include <sstream>

#include "batch/Rinnakkain.h"
#include "batch/Tulokset.h"
#include "building/clsTilat.h"
#include "kernel/Luvut.h"
#include "kernel/Tietokanta.h"
#include "kernel/Versio.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tekstit/tulokset.h"
#include "tekstit/viestit.h"
#include "tests/batch/Malliauditoinnit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ventilation/clsIVKoneet.h"

namespace {

namespace fs = std::filesystem;

class KohdelaskentaTesti : public MalliauditointiTesti {
 protected:
  /// A copy of the first sample, changed by the SQL.
  std::string Muutettu(const std::string& sql, const std::string& nimi = "koulu.lvt") {
    const fs::path kopio = hakemisto_ / nimi;
    fs::copy_file(Tiedostot().front(), kopio, fs::copy_options::overwrite_existing);
    Tietokanta(kopio.string(), Tietokanta::Tapa::Kirjoitus).Aja(sql);
    return kopio.string();
  }
  struct Ajo {
    int paluuarvo;
    std::string tuloste, virheet;
  };
  /// Runs the program.
  Ajo Aja(const std::string& sanat) {
    const std::string ulos = (hakemisto_ / "ulos").string(), virheet = (hakemisto_ / "virheet").string();
    const int tila =
        std::system(("'" + AppPath() + "lumivirta-laske' " + sanat + " >'" + ulos + "' 2>'" + virheet + "'").c_str());
    return {WEXITSTATUS(tila), Sisalto(ulos), Sisalto(virheet)};
  }
  static std::string Sisalto(const std::string& polku) {
    std::ifstream tiedosto(polku, std::ios::binary);
    return {std::istreambuf_iterator(tiedosto), {}};
  }
  static bool Sisaltaa(const std::string& teksti, const std::string& osa) {
    return teksti.find(osa) != std::string::npos;
  }

  Koehakemisto hakemisto_;
};

TEST_F(KohdelaskentaTesti, ANewerProgramsFileAndAMissingFileAreRefused) {
  const std::string uudempi = Muutettu("UPDATE clsRakennus SET Major = " + std::to_string(kVersioMajor + 1));
  for (const Tulostusmuoto muoto : {Tulostusmuoto::Yhteenveto, Tulostusmuoto::Json})
    for (const std::string& tiedosto : {uudempi, std::string("puuttuu.lvt")}) {
      const Laskettu laskettu = LaskeKohde(tiedosto, muoto, 0);
      EXPECT_FALSE(laskettu.onnistui);
      EXPECT_EQ(laskettu.tulos, "");
      EXPECT_TRUE(laskettu.virheet.starts_with("lumivirta-laske: " + tiedosto + ": ")) << laskettu.virheet;
    }
  const Ajo ajo = Aja("--json '" + uudempi + "'");
  EXPECT_EQ(ajo.paluuarvo, 1);
  EXPECT_EQ(ajo.tuloste, "");
  EXPECT_TRUE(Sisaltaa(ajo.virheet, Teksti(tekstit::kVersioUudempi))) << ajo.virheet;
}

TEST_F(KohdelaskentaTesti, TheSchoolBuysHeatAtItsTariffWithVatAsTheSettingsSay) {
  const std::string koulu = Tiedostot().front().string();
  const double ostettu = Avaa(koulu)->VuotuinenBruttoLampoEnergia();
  for (const bool alv : {false, true}) {
    Asetukset().KaytaKohtTulostuksissaALVHintoja = alv;
    const double kustannus = (33 * ostettu + 16 * 330) * Asetukset().NayttoKerroin(Energialaji::Lampo);
    const std::string tulos = LaskeKohde(koulu, Tulostusmuoto::Yhteenveto, 0).tulos;
    EXPECT_TRUE(Sisaltaa(tulos, Muotoile(ostettu, "### ##0.00") + " MWh/a  " + Muotoile(kustannus, "### ##0") + " "))
        << tulos;
    EXPECT_EQ(Sisaltaa(tulos, "sisältävät arvonlisäveron"), alv);
    EXPECT_TRUE(Sisaltaa(tulos, Muotoile(ostettu * 183 / 1000, "0.00") + "\n")) << tulos;
  }
  Asetukset().HaeRekisteristä();
}

TEST_F(KohdelaskentaTesti, ATariffThatIsGoneLeavesOnlyItsSupplyUntold) {
  const std::string tiedosto = Muutettu("UPDATE clsEnergiamuoto SET MyyntiTariffiSkey = 'poistettu' WHERE Tyyppi = 0");
  const Laskettu json = LaskeKohde(tiedosto, Tulostusmuoto::Json, 0);
  EXPECT_FALSE(json.onnistui);
  EXPECT_TRUE(Sisaltaa(json.tulos, "\"LammonHankinta\": {\n      \"Keskihinta\": null")) << json.tulos;
  EXPECT_TRUE(Sisaltaa(json.tulos, "clsEnergiamuodot:Keskihinta Method: avainta ei ole: poistettu"));
  EXPECT_TRUE(Sisaltaa(json.tulos, "\"YhtLammitysenergiaKustannus\": null"));
  EXPECT_FALSE(Sisaltaa(json.tulos, "\"YhtLammitysenergiaKulutus\": null"));
  EXPECT_FALSE(Sisaltaa(json.tulos, "\"YhtSahkoKustannus\": null"));
  const Laskettu teksti = LaskeKohde(tiedosto, Tulostusmuoto::Yhteenveto, 0);
  EXPECT_TRUE(Sisaltaa(teksti.tulos, "Lämmön hankinta: avainta ei ole: poistettu")) << teksti.tulos;
  EXPECT_TRUE(Sisaltaa(teksti.tulos, "Sähkön hankinta  "));
}

/// A user whose data directory is missing or can't be filled has the files of the package.
TEST_F(KohdelaskentaTesti, WithoutADataDirectoryTheInstalledFilesAreRead) {
  const std::string kohde = "'" + Tiedostot().front().string() + "'";
  const Ajo tavallinen = Aja(kohde);
  const Ymparistomuuttuja koti("LUMIVIRTA_KOTI", "/ei/ole");
  const Ajo ilman = Aja(kohde);
  EXPECT_EQ(ilman.paluuarvo, 0) << ilman.virheet;
  EXPECT_EQ(ilman.tuloste, tavallinen.tuloste);
}

TEST_F(KohdelaskentaTesti, PuuttuvaTulosOnVirhe) {
  const std::string tiedosto = Muutettu("UPDATE clsTila SET Kokonaistilavuus = 1e308");
  const Laskettu json = LaskeKohde(tiedosto, Tulostusmuoto::Json, 0);
  EXPECT_FALSE(json.onnistui);
  EXPECT_TRUE(Sisaltaa(json.tulos, "\"VuotuinenLampoEnergianTarveTilat\": null"));
  EXPECT_FALSE(Sisaltaa(json.tulos, "\"Viestit\": []"));
  const Laskettu yhteenveto = LaskeKohde(tiedosto, Tulostusmuoto::Yhteenveto, 0);
  EXPECT_FALSE(yhteenveto.onnistui);
  EXPECT_EQ(yhteenveto.tulos, "");
  const Ajo ajo = Aja("--json '" + tiedosto + "' '" + Tiedostot().back().string() + "'");
  EXPECT_EQ(ajo.paluuarvo, 1);
  EXPECT_TRUE(ajo.tuloste.starts_with("[\n  {\n") && ajo.tuloste.ends_with("\n  }\n]\n"));
}

TEST_F(KohdelaskentaTesti, AnInvalidCharacterIsReplacedAndTold) {
  const std::string json =
      LaskeKohde(Muutettu("UPDATE clsTila SET TilanNimi = CAST(x'4BE4790A61C3B6EDA08080' AS TEXT)"),
                 Tulostusmuoto::Json, 0)
          .tulos;
  EXPECT_TRUE(Sisaltaa(json, "\"TilanNimi\": \"K\uFFFDy\\u000aa\u00F6\uFFFD\uFFFD\uFFFD\uFFFD\""))
      << json.substr(0, 4000);
  EXPECT_TRUE(Sisaltaa(json, Teksti(tekstit::kMerkkejaKorvattiin) + " 1"));
}

/// The numbers of a row of the summary, by the row's name.
std::vector<std::string> Luvut(const std::string& yhteenveto, const std::string& nimi) {
  const auto alku = yhteenveto.find("\n  " + nimi + "  ") + nimi.size() + 3;
  std::vector<std::string> luvut;
  std::string rivi = yhteenveto.substr(alku, yhteenveto.find('\n', alku) - alku);
  for (std::size_t i; (i = rivi.find_first_not_of(' ')) != std::string::npos;) {
    const auto loppu = std::min(rivi.find("  ", i), rivi.size());
    luvut.push_back(rivi.substr(i, loppu - i));
    rivi.erase(0, loppu);
  }
  return luvut;
}

TEST_F(KohdelaskentaTesti, TheSummarysColumnAddsUpAndLargeNumbersStayApart) {
  // 0.004 and the sums of the machines would give a hundredth more than what is seen
  const std::string tiedosto = Muutettu("UPDATE clsRakennus SET MuuLampo = 12345678.004");
  const std::string yhteenveto = LaskeKohde(tiedosto, Tulostusmuoto::Yhteenveto, 0).tulos;
  double summa = 0;
  for (const char* osa : {"Tilojen lämmitys", "Ilmanvaihtokoneiden jälkilämmitys", "Käyttöveden lämmitys",
                          "Prosessiveden lämmitys", "Muu lämpö"}) {
    ASSERT_EQ(Luvut(yhteenveto, osa).size(), 3u) << osa << "\n" << yhteenveto;
    summa += LueLuku(Luvut(yhteenveto, osa)[0]).value();
  }
  const double yhteensa = LueLuku(Luvut(yhteenveto, "Laskettu kulutus yhteensä")[0]).value();
  EXPECT_EQ(Muotoile(summa, "0.00"), Muotoile(yhteensa, "0.00"));
  const double mitattu = LueLuku(Luvut(yhteenveto, "Mitattu kulutus, normitettu")[0]).value();
  EXPECT_EQ(Luvut(yhteenveto, "Mitattu − laskettu")[0], Muotoile(mitattu - yhteensa, "### ##0.00"));
}

TEST_F(KohdelaskentaTesti, TheGuideShowsTheSummaryAndTellsEveryKeyOfTheJson) {
  const std::string opas = Sisalto(Lahdekoodi("docs/opas/komentorivi.md"));
  const fs::path koulu = Tiedostot().front();
  std::string yhteenveto = LaskeKohde(koulu.string(), Tulostusmuoto::Yhteenveto, 0).tulos;
  yhteenveto.replace(yhteenveto.find(koulu.string()), koulu.string().size(), koulu.filename().string());
  yhteenveto.pop_back();
  EXPECT_NE(opas.find("```\n" + yhteenveto + "```"), std::string::npos) << yhteenveto;

  const std::string json = LaskeKohde(koulu.string(), Tulostusmuoto::Json, 0).tulos;
  const std::regex avain("\"(\\w+)\": ");
  for (std::sregex_iterator it(json.begin(), json.end(), avain), loppu; it != loppu; ++it)
    if (!(*it)[1].str().starts_with("sKey")) {
      EXPECT_TRUE(Sisaltaa(opas, "`" + (*it)[1].str() + "`")) << (*it)[1];
    }
}

TEST_F(KohdelaskentaTesti, EqualNoticesAreOneLineThatTellsTheirObjects) {
  const std::string tiedosto = Muutettu(
      "UPDATE clsIVKone SET SisaanpuhallusLampotila = 5; UPDATE clsKayntiAika SET Tsp = 5, TuloIlmavirtaProsentti = "
      "100");
  const std::string json = LaskeKohde(tiedosto, Tulostusmuoto::Json, 0).tulos;
  const std::string viestit = json.substr(json.find("\"Viestit\""));
  EXPECT_EQ(std::ranges::count(viestit, '\n'), 3) << viestit;
  EXPECT_TRUE(Sisaltaa(viestit, "Koskee: ") && Sisaltaa(viestit, "kertaa")) << viestit;
}

TEST_F(KohdelaskentaTesti, FilesAreComputedInParallelAndToldInOrder) {
  std::string sanat;
  for (const fs::path& tiedosto : Tiedostot()) sanat += " '" + tiedosto.string() + "'";
  const Ajo yksin = Aja("--json --rinnakkain=1" + sanat), monta = Aja("--json --rinnakkain=4" + sanat + sanat);
  EXPECT_EQ(yksin.paluuarvo, 0) << yksin.virheet;
  EXPECT_EQ(monta.paluuarvo, 0) << monta.virheet;
  const std::string oliot = yksin.tuloste.substr(1, yksin.tuloste.size() - 4);  // without "[" and "\n]\n"
  EXPECT_TRUE(monta.tuloste == "[" + oliot + "," + oliot + "\n]\n") << "the same to the last digit";
}

/// The first sample with a measure on a space, one with a group of its own, and two of one name; both first in order.
class ToimenpidekohdeTesti : public KohdelaskentaTesti {
 protected:
  ToimenpidekohdeTesti() {
    const auto rakennus = Avaa(Tiedostot().front());
    clsSaastotoimenpiteet& toimenpiteet = rakennus->Saastotoimenpiteet;
    while (toimenpiteet.Count() > 0) toimenpiteet.Poista(toimenpiteet.Item(1).sKey);
    toimenpiteet.PaivitaHierarkiaLista();
    clsTila& tila = rakennus->Tilat.Item(1);
    clsSaastotoimenpide& lampotila = *toimenpiteet.Lisaa(tila.sKey, "Lämpötila 2 astetta alas");
    lampotila.MuuttuneetAttribuutit.Lisaa({"Sisalampotila", "clsTila", Laji::Kaksinkertainen, tila.InstanssiId,
                                           tila.Sisalampotila, tila.Sisalampotila - 2});
    lampotila.MuuttuneetAttribuutit.Lisaa({"Kuvausteksti", "clsTila", Laji::Teksti, tila.InstanssiId, 0, 0, "a", "b"});
    lampotila.Investointi = 1000;
    avain = lampotila.sKey.Teksti();
    toimenpiteet.Lisaa("sKeySahko", "Oma ryhmä");
    for (int i = 0; i < 2; ++i) toimenpiteet.Lisaa(tila.sKey, "Sama nimi");
    for (int i = 1; i <= 2; ++i) rakennus->ToimenpiteidenJarjestelija.Valitse(toimenpiteet.Item(i).sKey, true);
    EXPECT_TRUE(rakennus->Tallenna(tiedosto));
    // figures of a file aren't believed
    Tietokanta(tiedosto, Tietokanta::Tapa::Kirjoitus)
        .Aja(
            "UPDATE clsSaastotoimenpide SET LampoEnergiaJalkeen = 1, JalkeenTiedotUpToDate = -1; "
            "UPDATE clsValittuToimenpide SET SaastoLampoEnergia = 7, TiedotUpToDate = -1");
  }
  const std::string tiedosto = (hakemisto_ / "toimenpiteet.lvt").string();
  std::string avain;
};

TEST_F(ToimenpidekohdeTesti, MeasuresAndTheirOrderAreComputedAnew) {
  const auto rakennus = Avaa(tiedosto);
  clsSaastotoimenpide& toimenpide = rakennus->Saastotoimenpiteet.Item(1);
  toimenpide.PaivitaKulutukset();
  const double saasto = toimenpide.Saasto().lampo;
  EXPECT_GT(saasto, 1);
  std::ostringstream luku;
  JsonKirjoitin(luku).Arvo(saasto);
  const Laskettu json = LaskeKohde(tiedosto, Tulostusmuoto::Json, 0);
  EXPECT_TRUE(json.onnistui) << json.virheet;
  const auto alku = json.tulos.find("\"Toimenpiteet\": [");
  ASSERT_NE(alku, std::string::npos);
  const auto jarjestelija = json.tulos.find("\"Jarjestelija\"", alku);
  const std::string yksin = json.tulos.substr(alku, jarjestelija - alku), rivit = json.tulos.substr(jarjestelija);
  for (const std::string& osa : {yksin, rivit})
    EXPECT_TRUE(Sisaltaa(osa, "\"SaastoLampoEnergia\": " + luku.str())) << osa.substr(0, 3000);
  EXPECT_TRUE(Sisaltaa(yksin, "\"AttribuutinNimi\": \"Sisalampotila\",\n          \"Ennen\": 21,")) << yksin;
  EXPECT_TRUE(Sisaltaa(yksin, "\"Ennen\": \"a\",\n          \"Jalkeen\": \"b\""));
  EXPECT_TRUE(Sisaltaa(rivit, "\"PaketinTakaisinmaksuaika\": "));
  EXPECT_TRUE(Sisaltaa(json.tulos, "\"HalvinTariffisKey\": \"\""));
  const std::string teksti = LaskeKohde(tiedosto, Tulostusmuoto::Yhteenveto, 0).tulos;
  EXPECT_EQ(Luvut(teksti, "Lämpötila 2 astetta alas").front(), Muotoile(saasto, "### ##0.00")) << teksti;
  EXPECT_TRUE(Sisaltaa(teksti, "Valitut yhteensä"));
}

TEST_F(ToimenpidekohdeTesti, AMeasureIsCarriedOutInANewFile) {
  const std::string uusi = (hakemisto_ / "toteutettu.lvt").string(),
                    valinta = " --vie '" + uusi + "' '" + tiedosto + "'";
  const std::string kVirheet[][2] = {{"Ei ole", "Toimenpiteet: Lämpötila"},
                                     {"Sama nimi", "Anna avain: clsSaastotoimenpide "},
                                     {"Oma ryhmä", "ei voi viedä"}};
  for (const auto& [nimi, syy] : kVirheet) {
    const Ajo ajo = Aja("--toimenpide '" + nimi + "'" + valinta);
    EXPECT_EQ(ajo.paluuarvo, 1);
    EXPECT_TRUE(Sisaltaa(ajo.virheet, syy)) << ajo.virheet;
    EXPECT_FALSE(fs::exists(uusi));
  }
  const auto alku = Avaa(tiedosto);
  alku->Saastotoimenpiteet.Item(1).PaivitaKulutukset();
  const Hyodykkeet odotettu = alku->Saastotoimenpiteet.Item(1).KulutusJalkeen();
  for (const std::string& haku : {std::string("Lämpötila 2 astetta alas"), avain}) {
    const Ajo ajo = Aja("--toimenpide '" + haku + "'" + valinta);
    EXPECT_EQ(ajo.paluuarvo, 0) << ajo.virheet;
    const auto rakennus = Avaa(uusi);
    EXPECT_EQ(rakennus->VuotuinenBruttoLampoEnergia(), odotettu.lampo);
    EXPECT_EQ(rakennus->Tilat.Item(1).Kuvausteksti, "b");
    EXPECT_EQ(rakennus->Saastotoimenpiteet.Item(1).Saasto(), Hyodykkeet{}) << "done already";
    EXPECT_EQ(Aja("--toimenpide '" + haku + "'" + valinta).paluuarvo, 1) << "nothing is written over";
    fs::remove(uusi);
  }
}

TEST_F(KohdelaskentaTesti, FindingsAreToldByLevelAndDontFailTheRun) {
  const std::string tiedosto = Muutettu(
      "UPDATE clsToteutunutKulutus SET KaytaVertailuVuotena = 0; UPDATE clsEnergiamuoto SET OsuusNettotarpeesta = 50 "
      "WHERE Tyyppi = 0");
  const Ajo ajo = Aja("--tarkista '" + tiedosto + "'");
  EXPECT_EQ(ajo.paluuarvo, 0) << ajo.virheet;
  EXPECT_TRUE(ajo.tuloste.starts_with("Koulu 1965  (" + tiedosto +
                                      ")\n  Ristiriidat\n    Lämmön hankinta: Energiamuotojen "
                                      "osuudet ovat yhteensä 50 %"))
      << ajo.tuloste;
  EXPECT_TRUE(Sisaltaa(ajo.tuloste, "\n  Puutteet\n    Koulu 1965: Vertailuvuotta ei ole valittu."));
  const std::string json = LaskeKohde(tiedosto, Tulostusmuoto::Json, 0).tulos;
  EXPECT_TRUE(Sisaltaa(json,
                       "\"Tarkistukset\": [\n    {\n      \"Nimi\": \"OsuudetEivatTayta\",\n      \"Taso\": "
                       "\"ristiriita\",\n      \"Kohde\": \"Lämmön hankinta\",\n      \"Teksti\": "))
      << json.substr(json.find("\"Tarkistukset\""), 600);
  EXPECT_EQ(Aja("--tarkista puuttuu.lvt").paluuarvo, 1);
}

TEST_F(KohdelaskentaTesti, AFaultyCommandTellsTheUsage) {
  for (const char* sanat : {"", "--xml a.lvt", "--rinnakkain=0 a.lvt", "--rinnakkain=2x a.lvt", "a.lvt --vie",
                            "--vie b.lvt a.lvt", "--toimenpide t --vie c.lvt a.lvt b.lvt"}) {
    const Ajo ajo = Aja(sanat);
    EXPECT_EQ(ajo.paluuarvo, 2) << sanat;
    EXPECT_TRUE(Sisaltaa(ajo.virheet, "Käyttö: lumivirta-laske")) << sanat;
  }
  EXPECT_EQ(Aja("--help").paluuarvo, 0);
}

}  // namespace
