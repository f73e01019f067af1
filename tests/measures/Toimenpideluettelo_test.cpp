// SPDX-License-Identifier: GPL-3.0-or-later
// The list of saving measures, driven as a person would, without a screen, and the lock that measures put on the model.
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "kernel/Luvut.h"
#include "measures/Toimenpidesarakkeet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "tests/measures/Koemuunnelma.h"

namespace {

class Luettelotesti : public Muunneltava {
 protected:
  Luettelotesti() {
    rakennus->SahkonKulutusryhmat.PaivitaKulutusRyhmatJaLaitteet();
    rakennus->Tilat.Item(1).TilanNimi = "Koulu";
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) { askeleet.emplace_back(nimi); };
    ikkunat.KunNaytetaan("frmSyotaToimenpiteenNimi", [this](Ikkunaton& l) {
      ehdotus = l.Teksti("txtNimi");
      if (annettu) l.KayttajaKirjoittaa("txtNimi", *annettu);
      l.KayttajaPainaa(annettu ? "cmdOk" : "cmdPeruuta");
    });
    ikkunat.KunNaytetaan("frmSaastotoimenpide", [](Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); });
  }
  void Avaa(int taso = 0) {
    toimenpiteet.NaytaKayttoliittyma(taso);
    rakennus->OtaKirjatuksi();
    rakennus->Tallennettu = true;
    askeleet.clear();
  }
  Ikkunaton& L() const { return ikkunat.Ikkuna("frmSaastoToimenpiteet"); }
  void Lisaa(const char* solmu, const char* nimi) {
    annettu = nimi;
    L().KayttajaValitsee("lvwKohdentaminen", solmu);
    L().KayttajaPainaa("cmdLisaaUusi");
  }
  bool Kaytossa(const char* nappi) const { return L().Etsi(nappi).Kaytossa(); }
  std::vector<std::string> Nimet() const {
    std::vector<std::string> nimet;
    for (const auto& rivi : L().Etsi("lvwToimenpiteet").Rivit()) nimet.push_back(rivi.at(0));
    return nimet;
  }
  std::string Solu(std::size_t rivi, std::string_view avain) const {
    return L().Etsi("lvwToimenpiteet").Rivit().at(rivi).at(static_cast<std::size_t>(Toimenpidesarake(avain)));
  }
  std::string Valittu(const char* lista) const {
    const Ohjain& ohjain = L().Etsi(lista);
    return ohjain.Indeksi() < 0 ? "" : ohjain.Rivit().at(static_cast<std::size_t>(ohjain.Indeksi()))[0];
  }
  /// A measure that saves: the first space is colder.
  clsSaastotoimenpide& Viilenna(const char* nimi, double lampotila) {
    toimenpiteet.PaivitaHierarkiaLista();
    clsSaastotoimenpide& toimenpide = *toimenpiteet.Lisaa(rakennus->Tilat.Item(1).sKey, nimi);
    const auto jalkeen = toimenpide.TeeJalkeen();
    static_cast<clsTila&>(*jalkeen).Sisalampotila = lampotila;
    toimenpide.PaivitaMuuttuneetAttribuutit(*jalkeen);
    return toimenpide;
  }

  clsSaastotoimenpiteet& toimenpiteet = rakennus->Saastotoimenpiteet;
  std::vector<std::string> askeleet;
  std::optional<std::string> annettu;
  std::string ehdotus;
};

TEST_F(Luettelotesti, AnEmptyListTellsWhatToDoAndWhereAMeasureCanBeAdded) {
  Avaa(7);
  EXPECT_EQ(Valittu("lvwKohdentaminen"), "") << "no such level";
  EXPECT_FALSE(Kaytossa("cmdLisaaUusi"));
  toimenpiteet.NaytaKayttoliittyma(4);
  EXPECT_EQ(Valittu("lvwKohdentaminen"), "Sähkö");
  EXPECT_TRUE(Nimet().empty());
  EXPECT_FALSE(L().Teksti("lblOhje").empty());
  EXPECT_TRUE(Kaytossa("cmdLisaaUusi"));
  for (const char* nappi : {"cmdMuokkaa", "cmdPoista"}) EXPECT_FALSE(Kaytossa(nappi)) << nappi;
  for (const char* solmu : {"Koko kohde", "Johtuminen", "Ilmanvaihtokoneet", "Valaistus"}) {
    L().KayttajaValitsee("lvwKohdentaminen", solmu);
    EXPECT_FALSE(Kaytossa("cmdLisaaUusi")) << solmu;
    EXPECT_FALSE(L().Etsi("cmdLisaaUusi").Vihje().empty());
  }
  for (const char* solmu : {"Koulu", "Vesi", "Lämpö"}) {
    L().KayttajaValitsee("lvwKohdentaminen", solmu);
    EXPECT_TRUE(Kaytossa("cmdLisaaUusi")) << solmu;
  }
  EXPECT_FALSE(rakennus->Kirjaamatta()) << "looking changes nothing";
}

TEST_F(Luettelotesti, AddingWarnsOnceAsksTheNameAndCommitsAndDeletingAsks) {
  Avaa();
  Lisaa("Koulu", "Seinien lisäeristys");
  EXPECT_EQ(viestit.Esiintymia("ei voi enää lisätä"), 1);
  EXPECT_EQ(ehdotus, "Koulu, muutettu");
  EXPECT_EQ(Nimet(), std::vector<std::string>{"Seinien lisäeristys"});
  EXPECT_EQ(Valittu("lvwToimenpiteet"), "Seinien lisäeristys");
  EXPECT_EQ(Valittu("lvwKohdentaminen"), "Koulu") << "the choice of the tree stays";
  EXPECT_EQ(askeleet, std::vector<std::string>{"Säästötoimenpiteen lisäys"});
  EXPECT_FALSE(rakennus->Tallennettu);

  Lisaa("Koulu", "");
  EXPECT_EQ(Nimet().back(), "Koulu, muutettu") << "the proposal in place of nothing";
  L().KayttajaValitsee("lvwKohdentaminen", "Seinien lisäeristys");
  EXPECT_EQ(Valittu("lvwToimenpiteet"), "Seinien lisäeristys") << "its own node shows it among those beside it";
  EXPECT_EQ(Nimet().size(), 2u);
  annettu.reset();
  L().KayttajaPainaa("cmdLisaaUusi");
  EXPECT_EQ(toimenpiteet.Count(), 2) << "given up";
  EXPECT_EQ(viestit.Esiintymia("ei voi enää lisätä"), 1) << "not again";

  askeleet.clear();
  viestit.AsetaSeuraavaVastaus(Vastaus::Ei);
  L().KayttajaPainaa("cmdPoista");
  EXPECT_EQ(toimenpiteet.Count(), 2);
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  L().KayttajaPainaa("cmdPoista");
  EXPECT_EQ(Nimet(), std::vector<std::string>{"Koulu, muutettu"});
  EXPECT_EQ(askeleet, std::vector<std::string>{"Säästötoimenpiteen poisto"});
}

TEST_F(Luettelotesti, UndoBringsTheMeasureBackToTheOpenList) {
  Viilenna("Viileämpi", 19);
  Avaa(2);
  const auto ennen = rakennus->Tilannekuva();
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  L().KayttajaPainaa("cmdPoista");
  EXPECT_TRUE(Nimet().empty());
  rakennus->PalautaTilannekuva(*ennen);
  EXPECT_EQ(Nimet(), std::vector<std::string>{"Viileämpi"});
  EXPECT_NE(LueLuku(Solu(0, "KeyLampoEnergiaSaasto")).value_or(0), 0);
}

TEST_F(Luettelotesti, TheFiguresFollowTheModelAndTheVatAndACopyHasTheShownColumns) {
  clsLumivirtaAsetukset& asetukset = Asetukset();
  const clsLumivirtaAsetukset entiset = asetukset;
  asetukset.ValuuttaTyyppi(1);  // euros
  asetukset.KaytaKohtTulostuksissaALVHintoja = false;
  Viilenna("Viileämpi", 18).LampoEnergiaHinta = 60;
  toimenpiteet.Item(1).Investointi = 1000;
  Avaa();
  const double energia = toimenpiteet.Item(1).Saasto().lampo;
  ASSERT_GT(energia, 1);
  EXPECT_EQ(Solu(0, "KeyLampoEnergiaSaasto"), Muotoile(energia, "### ##0"));
  EXPECT_EQ(Solu(0, "KeySaastoMKYht"), Muotoile(60 * energia, "### ##0"));
  EXPECT_EQ(Solu(0, "KeyPaastotSaastoYht"), "1 000");
  EXPECT_EQ(Solu(0, "KeyNettosaasto"), "") << "it isn't arranged";

  asetukset.KaytaKohtTulostuksissaALVHintoja = true;
  asetukset.dblLampoALV = 50;
  asetukset.YleinenALV = 20;
  AvoinLomake("frmSaastoToimenpiteet")->RahatMuuttuivat();
  EXPECT_EQ(Solu(0, "KeyLampoKustannusSaasto"), Muotoile(90 * energia, "### ##0"));
  EXPECT_EQ(Solu(0, "KeyInvestointi"), "1 200");
  EXPECT_EQ(Solu(0, "KeyTakaisinmaksuaika"), Muotoile(1200 / (90 * energia), "### ##0"));
  EXPECT_NE(L().Teksti("lblToimenpiteet").find("Maksut sisältävät ALV:n"), std::string::npos);
  asetukset = entiset;

  rakennus->Tilat.Item(1).Sisalampotila = 18;
  rakennus->Muuttui("Tila");
  EXPECT_EQ(Solu(0, "KeyLampoEnergiaSaasto"), "0") << "the base has it now";

  L().KayttajaValitsee("cmbNakymatasonValinta", "Päästöt");
  EXPECT_FALSE(rakennus->Kirjaamatta()) << "a view is no change";
  const std::string rivit = L().Etsi("lvwToimenpiteet").RivitTekstina({});
  EXPECT_EQ(rivit.substr(rivit.find('\n') + 1), "Viileämpi\t1000\t800\n");
}

TEST_F(Luettelotesti, EachViewHasItsColumnsAndTheirWidths) {
  Avaa();
  const std::pair<const char*, std::set<int>> kNakymat[] = {
      {"Kustannukset", {0, 1, 2, 6, 9, 13}},
      {"Energia ja vesi", {0, 1, 2, 5, 8, 12}},
      {"Kaikki", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13}},
      {"Päästöt", {0, 14, 15}},  // not the third one of emissions
  };
  L().KayttajaValitsee("cmbNakymatasonValinta", "Päästöt");
  for (const auto& [nakyma, nakyvat] : kNakymat) {
    L().KayttajaValitsee("cmbNakymatasonValinta", nakyma);
    const std::vector<Osa>& sarakkeet = L().Etsi("lvwToimenpiteet").Osat();
    ASSERT_EQ(sarakkeet.size(), 22u) << "and four over the life, which the arranger shows";
    std::set<int> leveat;
    for (int s = 0; s < 22; ++s) {
      const double leveys = sarakkeet[static_cast<std::size_t>(s)].leveys.value();
      if (leveys > 0) leveat.insert(s);
      EXPECT_TRUE(leveys == 0 || leveys == (s == 0 ? 1 / 2.9 : 1 / 4.7)) << s;
    }
    EXPECT_EQ(leveat, nakyvat) << nakyma;
    EXPECT_EQ(sarakkeet[1].otsikko, "Säästö yhteensä (" + Asetukset().strDefaultCurrencyUnit + "/a)");
  }
}

TEST_F(Luettelotesti, NetStandsBesideAloneAndIsMarkedWhenItIsStale) {
  for (const auto& [nimi, lampotila] : {std::pair{"Eka", 19.0}, {"Toka", 18.0}, {"Muu", 17.0}})
    Viilenna(nimi, lampotila).LampoEnergiaHinta = 60;
  clsToimenpiteidenJarjestelija& jarjestelija = rakennus->ToimenpiteidenJarjestelija;
  for (const int i : {1, 2}) jarjestelija.Valitse(toimenpiteet.Item(i).sKey, true);
  Avaa();
  const auto piirteet = [this](int rivi) { return L().Etsi("lvwToimenpiteet").Lista().Piirteet(rivi); };
  EXPECT_EQ(Solu(0, "KeyNettosaasto"), "---") << "never computed";
  EXPECT_EQ(piirteet(0).merkitys, Merkitys::Vanhentunut);
  jarjestelija.PaivitaValitutToimenpiteet();
  rakennus->ToimenpiteetMuuttuivat("Laskenta");
  EXPECT_EQ(Solu(0, "KeyNettosaasto"), Solu(0, "KeySaastoMKYht")) << "the first one";
  EXPECT_LT(LueLuku(Solu(1, "KeyNettosaasto")).value(), LueLuku(Solu(1, "KeySaastoMKYht")).value());
  EXPECT_EQ(Solu(2, "KeyNettosaasto"), "");
  EXPECT_EQ(piirteet(1).merkitys, Merkitys::Tavallinen);

  L().KayttajaValitsee("lvwToimenpiteet", "Eka");
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  L().KayttajaPainaa("cmdPoista");
  EXPECT_EQ(viestit.Esiintymia("poistuu myös toimenpiteiden järjestelijästä"), 1);
  EXPECT_EQ(piirteet(0).merkitys, Merkitys::Vanhentunut) << "it was computed behind the removed one";
  EXPECT_EQ(piirteet(0).merkitty, Toimenpidesarake("KeyNettosaasto"));
}

// The lock.

bool OnMuokkausnappi(std::string_view nimi) {
  return nimi.starts_with("cmdLisaa") || nimi.starts_with("cmdKopioi") || nimi.starts_with("cmdPoista");
}

/// Forms whose buttons of that name bring or take no object that a measure can refer to: pictures and tables copied,
/// libraries, tariffs, lines of a fixed set, and the measures themselves.
const std::set<std::string> kLukitsemattomat{"frmAbout",
                                             "frmEkoprofiili",
                                             "frmJakaumaGraafi",
                                             "frmKuukausitase",
                                             "frmEmuo3",
                                             "frmKirjastorakenne",
                                             "frmMateriaalikirjasto",
                                             "frmRakennekirjasto",
                                             "frmSahkotariffi",
                                             "frmVesitariffi",
                                             "frmIlmanvaihtokoneenKayntiajat",
                                             "frmSaastoToimenpiteet",
                                             "frmSaastotoimenpide",
                                             "frmToimenpiteidenJarjestelija",
                                             "frmSahkotariffiVertailu"};

std::set<std::string> NapillisetLomakkeet() {
  std::set<std::string> lomakkeet;
  for (const auto& tiedosto : std::filesystem::directory_iterator(Lahdekoodi("ui/forms"))) {
    std::ifstream virta(tiedosto.path());
    std::ostringstream sisalto;
    sisalto << virta.rdbuf();
    for (const char* alku : {"\"cmdLisaa", "\"cmdKopioi", "\"cmdPoista"})
      if (sisalto.str().find(alku) != std::string::npos) lomakkeet.insert(tiedosto.path().stem().string());
  }
  return lomakkeet;
}

class Lukkotesti : public Luettelotesti {
 protected:
  void OdotaLukittua(const Ikkunaton& lomake, bool lukittu) const {
    int vapaita = 0;
    for (const auto& ohjain : lomake.Ohjaimet()) {
      if (ohjain->Tyyppi() != Ohjaintyyppi::CommandButton || !OnMuokkausnappi(ohjain->Nimi())) continue;
      vapaita += ohjain->Kaytossa();
      EXPECT_TRUE(!lukittu || ohjain->Vihje().find("säästötoimenpiteet viittaavat") != std::string::npos);
    }
    EXPECT_EQ(vapaita == 0, lukittu) << lomake.Nimi();
  }
  struct Avattava {
    const char* lomake;
    std::function<void()> avaa;
  };
  /// Those that stay open beside others.
  std::vector<Avattava> Sisaikkunat() const {
    return {{"frmTilaYhteenveto", [this] { rakennus->Tilat.NaytaKayttoliittyma(); }},
            {"frmIVKoneYhteenveto", [this] { rakennus->IVKoneet.NaytaKayttoliittyma(); }},
            {"frmSahkoLaitteet", [this] { rakennus->SahkonKulutusryhmat.NaytaKayttoliittyma(); }},
            {"frmVedenKulutus", [this] { rakennus->VedenKulutusryhmat.NaytaKayttoliittyma(); }}};
  }
  std::vector<Avattava> Dialogit() const {
    return {{"frmRakenteet",
             [this] {
               clsTila& tila = rakennus->Tilat.Item(1);
               tila.Rakenteet.NaytaRakenteetKayttoliittyma(Rakennelaji::Ulkoseina, "Koulu", 21);
             }},
            {"frmEnHankKoostEnergiamuodoista", [this] { rakennus->Perustiedot.LammonHankinta.NaytaKayttoliittyma(); }},
            {"frmEnergiamuoto",
             [this] { rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).NaytaKayttoliityma(); }}};
  }
  void OdotaLukot(bool lukittu) {
    for (const Avattava& ikkuna : Sisaikkunat()) OdotaLukittua(ikkunat.Ikkuna(ikkuna.lomake), lukittu);
    for (const Avattava& dialogi : Dialogit()) {
      ikkunat.KunNaytetaan(dialogi.lomake, [&](Ikkunaton& l) {
        OdotaLukittua(l, lukittu);
        l.KayttajaPainaa("cmdPeruuta");
      });
      dialogi.avaa();
    }
  }
};

TEST_F(Lukkotesti, EveryFormOfTheModelIsLockedWhileThereAreMeasuresAlsoThoseOpenAlready) {
  std::set<std::string> kaydyt = kLukitsemattomat;
  for (const auto& lomakkeet : {Sisaikkunat(), Dialogit()})
    for (const Avattava& lomake : lomakkeet) kaydyt.insert(lomake.lomake);
  for (const std::string& lomake : NapillisetLomakkeet()) EXPECT_TRUE(kaydyt.contains(lomake)) << lomake;

  for (const Avattava& ikkuna : Sisaikkunat()) ikkuna.avaa();
  Avaa();
  OdotaLukot(false);
  Lisaa("Koulu", "Viileämpi");
  OdotaLukot(true);
  EXPECT_TRUE(Kaytossa("cmdLisaaUusi")) << "another measure";
  viestit.AsetaSeuraavaVastaus(Vastaus::Kylla);
  L().KayttajaPainaa("cmdPoista");
  OdotaLukot(false);
}

}  // namespace
