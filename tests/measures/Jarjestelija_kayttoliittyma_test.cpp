// SPDX-License-Identifier: GPL-3.0-or-later
// The arranger's window: ticking, moving, when it computes, what it follows, and its picture.
#include <algorithm>
#include <numeric>

#include "kernel/Luvut.h"
#include "lifecycle/clsElinkaari.h"
#include "measures/Riviperuste.h"
#include "measures/Toimenpidesarakkeet.h"
#include "measures/Vesiputous.h"
#include "supply/clsTariffiVertailuTapaus.h"
#include "tests/kernel/Koehakemisto.h"
#include "tests/measures/Koetoimenpiteet.h"
#include "tests/tuki/Koetaulukko.h"

namespace {

using Rivit = std::vector<std::string>;
constexpr int kEuro = 1;
constexpr const char *kBrutto = "lvwToimenpiteet", *kNetto = "lvwValitut", *kKuva = "chtVesiputous";

class Jarjestelijaikkuna : public JarjestelijaTesti {
 protected:
  Jarjestelijaikkuna() {
    Asetukset().KaytaKohtTulostuksissaALVHintoja = false;
    Asetukset().ValuuttaTyyppi(kEuro);
    for (const auto& [toimenpide, nimi] :
         {std::pair{&lampotila, "Lämpötila"}, {&eristys, "Eristys"}, {&kone, "Talteenotto"}, {&kelluva, "Valaistus"}}) {
      toimenpide->Nimi = nimi;
      toimenpiteet.ListaItem(toimenpide->sKey).NimiTeksti = nimi;
    }
    rakennus->OtaKirjatuksi();
    rakennus->MuutosVahvistettu = [this](std::string_view nimi) {
      askeleet.emplace_back(nimi);
      kuvat.push_back(rakennus->Tilannekuva());
    };
  }
  void Avaa() const { jarjestelija.NaytaKayttoliittyma(); }
  void AvaaValinnoin() {
    Avaa();
    for (const char* nimi : {"Lämpötila", "Eristys", "Talteenotto"}) L().KayttajaRastittaa(kBrutto, nimi);
    askeleet.clear();
  }
  Ikkunaton& L() const { return ikkunat.Ikkuna("frmToimenpiteidenJarjestelija"); }
  /// Names of the lower list, those that are stale with an asterisk.
  Rivit Netto() const {
    const Luettelo& lista = L().Etsi(kNetto).Lista();
    Rivit nimet;
    for (int i = 0; i < lista.Maara(); ++i)
      nimet.push_back((lista.Piirteet(i).merkitys == Merkitys::Vanhentunut ? "*" : "") +
                      lista.Solut()[static_cast<std::size_t>(i)].front());
    return nimet;
  }
  Rivit Rastitetut() const {
    const Luettelo& lista = L().Etsi(kBrutto).Lista();
    Rivit nimet;
    for (int i = 0; i < lista.Maara(); ++i)
      if (lista.Piirteet(i).rasti.value()) nimet.push_back(lista.Solut()[static_cast<std::size_t>(i)].front());
    return nimet;
  }
  std::string Napit() const {
    std::string tila;
    for (const char* nappi : {"cmdYlos", "cmdAlas", "cmdPoista"}) tila += L().Etsi(nappi).Kaytossa() ? 'x' : '.';
    return tila;
  }
  const Rivi& Rivi_(const char* nimi) const {
    for (const Rivi& rivi : rivit)
      if (rivi.Nimi == nimi) return rivi;
    throw std::logic_error("no such row");
  }

  Rivit askeleet;
  std::vector<std::unique_ptr<clsRakennus>> kuvat;
};

const Rivit kKolme{"Valitut yhteensä", "Lämpötila", "Eristys", "Talteenotto"};

TEST_F(Jarjestelijaikkuna, TheLifeCycleViewHasAFigureForEachMeasureAndForThePackage) {
  eristys.Investointi = 1000;
  AvaaValinnoin();
  const auto solu = [this](const char* lista, std::size_t rivi, const char* avain) {
    return L().Etsi(lista).Rivit().at(rivi).at(static_cast<std::size_t>(Toimenpidesarake(avain)));
  };
  L().KayttajaValitsee("cmbNakymatasonValinta", "Elinkaari");
  EXPECT_EQ(solu(kNetto, 0, "KeyNettonykyarvo"), "---") << "no defaults are given";
  L().KayttajaPainaa("cmdPeruuta");
  rakennus->Elinkaari.OletuksetAnnettu = true;
  rakennus->Elinkaari.Pitoaika = 20;
  rakennus->Elinkaari.Korkokanta = 5;
  Avaa();
  const auto luvut = LaskeElinkaariluvut(PaketinInvestointi(jarjestelija, toimenpiteet, Asetukset().NaytettavatAlvt()),
                                         rakennus->Elinkaari.Oletukset());
  ASSERT_TRUE(luvut.nettonykyarvo);
  EXPECT_EQ(solu(kNetto, 0, "KeyNettonykyarvo"), Muotoile(*luvut.nettonykyarvo, "### ##0"));
  const auto yksin = LaskeElinkaariluvut(ToimenpiteenInvestointi(eristys, Asetukset().NaytettavatAlvt()),
                                         rakennus->Elinkaari.Oletukset());
  const auto& nimet = L().Etsi(kBrutto).Rivit();
  const auto rivi = std::ranges::find(nimet, "Eristys", [](const auto& solut) { return solut.front(); });
  EXPECT_EQ(solu(kBrutto, static_cast<std::size_t>(rivi - nimet.begin()), "KeyDiskontattuTakaisinmaksu"),
            yksin.takaisinmaksuaika ? Muotoile(*yksin.takaisinmaksuaika, "### ##0.0") : "---");
  EXPECT_EQ(L().Etsi(kBrutto).Osat().at(static_cast<std::size_t>(Toimenpidesarake("KeyLampoEnergiaSaasto"))).leveys, 0);
}

TEST_F(Jarjestelijaikkuna, EachActionIsOneStepAndComputedAtOnce) {
  Avaa();
  EXPECT_EQ(Netto(), Rivit{"Valitut yhteensä"});
  EXPECT_EQ(L().Teksti("lblBrutto"), "Bruttosäästövaikutukset verrattuna perustapaukseen. ALV: 0 %");
  EXPECT_EQ(Napit(), "...") << "the totals stay";
  for (const char* nimi : {"Lämpötila", "Eristys", "Talteenotto"}) L().KayttajaRastittaa(kBrutto, nimi);
  EXPECT_EQ(Netto(), kKolme);
  EXPECT_EQ(Rastitetut(), (Rivit{"Lämpötila", "Eristys", "Talteenotto"}));
  EXPECT_FALSE(rakennus->Tallennettu);
  L().KayttajaValitsee(kNetto, "Lämpötila");
  EXPECT_EQ(Napit(), ".xx");
  L().KayttajaPainaa("cmdAlas");
  L().KayttajaPainaa("cmdAlas");
  EXPECT_EQ(Netto(), (Rivit{"Valitut yhteensä", "Eristys", "Talteenotto", "Lämpötila"}));
  EXPECT_EQ(Napit(), "x.x") << "the moved row stays chosen";
  L().KayttajaPainaa("cmdYlos");
  L().KayttajaJarjestaa(kNetto, "Talteenotto", "Valitut yhteensä");
  EXPECT_EQ(Netto(), (Rivit{"Valitut yhteensä", "Talteenotto", "Eristys", "Lämpötila"}));
  EXPECT_THROW(L().KayttajaJarjestaa(kNetto, "Valitut yhteensä", "Eristys"), std::logic_error);
  L().Etsi(kNetto).KayttajaJarjestaa(false);  // by keys
  EXPECT_EQ(Netto()[2], "Talteenotto");
  EXPECT_EQ(askeleet, (Rivit{"Toimenpiteen valinta pakettiin", "Toimenpiteen valinta pakettiin",
                             "Toimenpiteen valinta pakettiin", "Paketin järjestys", "Paketin järjestys",
                             "Paketin järjestys", "Paketin järjestys", "Paketin järjestys"}));
  L().Etsi(kNetto).KayttajaPoistaa();
  L().KayttajaRastittaa(kBrutto, "Lämpötila");
  EXPECT_EQ(Netto(), (Rivit{"Valitut yhteensä", "Eristys"}));
  EXPECT_EQ(Rastitetut(), Rivit{"Eristys"});
  L().KayttajaValitsee(kNetto, "Valitut yhteensä");
  L().Etsi(kNetto).KayttajaPoistaa();
  EXPECT_EQ(rivit.Count(), 2) << "the totals can't be removed";
  L().KayttajaPainaa("cmdPeruuta");
  EXPECT_FALSE(L().Auki());
  EXPECT_EQ(rivit.Count(), 2) << "each action was committed";
  EXPECT_EQ(askeleet.size(), 10u);
}

TEST_F(Jarjestelijaikkuna, PutOffRowsStayStaleUntilPressed) {
  AvaaValinnoin();
  L().KayttajaPainaa("chkLaskeHeti");
  const Kaaviotiedot kuva = L().Etsi(kKuva).Kaavio();
  L().KayttajaRastittaa(kBrutto, "Valaistus");
  EXPECT_EQ(Netto(), (Rivit{"*Valitut yhteensä", "Lämpötila", "Eristys", "Talteenotto", "*Valaistus"}));
  L().KayttajaJarjestaa(kNetto, "Eristys", "Valitut yhteensä");
  EXPECT_EQ(Netto(), (Rivit{"*Valitut yhteensä", "*Eristys", "*Lämpötila", "Talteenotto", "*Valaistus"}));
  EXPECT_EQ(Rivi_("Valaistus").Takaisinmaksuaika, 0) << "not computed, not paid back at once";
  EXPECT_FALSE(L().Etsi(kKuva).Kaytossa());
  EXPECT_EQ(L().Etsi(kKuva).Kaavio().nimet, kuva.nimet) << "the former picture, greyed";
  EXPECT_EQ(L().Teksti("lblPaketti"), "");
  const Luettelo& lista = L().Etsi(kNetto).Lista();
  EXPECT_TRUE(lista.Piirteet(1).selite.ends_with("Paina Laske."));
  L().KayttajaPainaa("cmdLaske");
  EXPECT_EQ(Netto(), (Rivit{"Valitut yhteensä", "Eristys", "Lämpötila", "Talteenotto", "Valaistus"}));
  EXPECT_TRUE(L().Etsi(kKuva).Kaytossa());
  EXPECT_TRUE(L().Teksti("lblPaketti").starts_with("Paketin takaisinmaksuaika: "));
  rakennus->Muuttui("Tila");
  EXPECT_EQ(Netto()[3], "*Talteenotto");
  L().KayttajaPainaa("chkLaskeHeti");
  EXPECT_EQ(Netto()[3], "Talteenotto");
}

TEST_F(Jarjestelijaikkuna, WhatOthersCommitAndUndoIsFollowed) {
  AvaaValinnoin();
  const double ennen = rivit.Item(1).SaastoLampoEnergia;
  Tila(1).Sisalampotila += 3;
  rakennus->Muuttui("Tila");
  EXPECT_EQ(Netto(), kKolme) << "computed anew";
  EXPECT_NE(rivit.Item(1).SaastoLampoEnergia, ennen);
  toimenpiteet.Poista(eristys.sKey);
  rakennus->ToimenpiteetMuuttuivat("Poisto");
  EXPECT_EQ(Netto(), (Rivit{"Valitut yhteensä", "Lämpötila", "Talteenotto"}));
  EXPECT_EQ(L().Etsi(kBrutto).Lista().Maara(), 3);
  rakennus->PalautaTilannekuva(*kuvat[3]);  // before the removal
  EXPECT_EQ(Netto(), kKolme);
  rakennus->PalautaTilannekuva(*kuvat[1]);
  EXPECT_EQ(Netto(), (Rivit{"Valitut yhteensä", "Lämpötila", "Eristys"}));
  EXPECT_EQ(Rastitetut(), (Rivit{"Lämpötila", "Eristys"}));
  EXPECT_NEAR(rivit.Item(1).SaastoLampoEnergia, rivit.Item(2).SaastoLampoEnergia + rivit.Item(3).SaastoLampoEnergia,
              1e-9);
}

TEST_F(Jarjestelijaikkuna, AStepThatCantBeCommittedLeavesAllAsItWas) {
  AvaaValinnoin();
  rakennus->MuutosVahvistettu = [](std::string_view) { throw std::runtime_error("levy täynnä"); };
  L().KayttajaRastittaa(kBrutto, "Valaistus");
  L().KayttajaJarjestaa(kNetto, "Talteenotto", "Valitut yhteensä");
  EXPECT_EQ(viestit.Naytetyt().size(), 2u);
  rakennus->MuutosVahvistettu = nullptr;
  L().KayttajaPainaa("cmdLaske");
  EXPECT_EQ(Netto(), kKolme);
  EXPECT_EQ(Rastitetut().size(), 3u);
}

TEST_F(Jarjestelijaikkuna, ABuildingThatCantBeCalculatedOpensWithoutFigures) {
  rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).Hyotysuhde = 0;
  Tila(1).Sisalampotila = std::numeric_limits<double>::infinity();
  AvaaValinnoin();
  EXPECT_FALSE(viestit.Naytetyt().empty());
  EXPECT_EQ(L().Etsi(kBrutto).Rivit()[0][1], "---");
  EXPECT_EQ(Netto()[1], "*Lämpötila");
  Tila(1).Sisalampotila = 21;
  rakennus->Perustiedot.LammonHankinta.Energiamuodot.Item(1).Hyotysuhde = 80;
  rakennus->Muuttui("Tila");
  EXPECT_EQ(Netto(), kKolme);
}

TEST_F(Jarjestelijaikkuna, TheReportTableIsInEurosAndOfThePresentModel) {
  const Koehakemisto kansio;
  const Ymparistomuuttuja valiaikaiset{"TMPDIR", (kansio / "").string()};
  AvaaValinnoin();
  L().KayttajaValitsee("cmbNakymatasonValinta", "Kaikki");
  Asetukset().ValuuttaTyyppi(0);
  L().KayttajaPainaa("cmdTaulukko2een");
  EXPECT_EQ(viestit.Esiintymia("euro"), 1);
  EXPECT_TRUE(viestit.Avatut().empty());
  Asetukset().ValuuttaTyyppi(kEuro);
  L().KayttajaPainaa("cmdTaulukko2een");
  ASSERT_EQ(viestit.Avatut().size(), 1u);
  const Koetaulukko kirja(viestit.Avatut().front());
  for (const int rivi : {1, 2, 3})
    EXPECT_EQ(kirja.Sivu().Teksti(14 + rivi, 1), kKolme.at(static_cast<std::size_t>(rivi)));
  EXPECT_EQ(kirja.Sivu().Teksti(18, 1), "");
}

TEST_F(Jarjestelijaikkuna, FilterAndViewsChooseRowsAndColumns) {
  Avaa();
  const auto nimet = [&] {
    Rivit kaikki;
    for (const auto& solut : L().Etsi(kBrutto).Rivit()) kaikki.push_back(solut.front());
    return kaikki;
  };
  const auto sarakkeita = [&](const char* lista) {
    return std::ranges::count_if(L().Etsi(lista).Osat(), &Osa::Nakyva);
  };
  EXPECT_EQ(sarakkeita(kBrutto), 5);
  L().KayttajaValitsee("cmbVaihtoehtoSuodatus", "Ilmanvaihtokoneet");
  EXPECT_EQ(nimet(), Rivit{"Talteenotto"});
  EXPECT_EQ(jarjestelija.NaytaToimenpiteetStr, "sKeyIlmanvaihtokoneet");
  EXPECT_FALSE(L().Etsi("cmdTaulukko2een").Kaytossa());
  L().KayttajaValitsee("cmbNakymatasonValinta", "Kaikki");
  EXPECT_EQ(sarakkeita(kNetto), 13);
  EXPECT_TRUE(L().Etsi("cmdTaulukko2een").Kaytossa());
  L().KayttajaPainaa("cmdOk");
  Avaa();
  EXPECT_EQ(nimet().size(), 4u) << "the filter begins with the whole object, the view is kept";
  EXPECT_EQ(sarakkeita(kNetto), 13);
  EXPECT_TRUE(askeleet.empty());
}

TEST_F(Jarjestelijaikkuna, ThePictureLeadsFromTheBaseToThePackage) {
  AvaaValinnoin();
  L().KayttajaRastittaa(kBrutto, "Valaistus");
  clsTariffiVertailuTapaus halpa, kallis;
  halpa.sKey = "halpa", halpa.Nimi = "Yleissähkö", halpa.TotEnergia = 90;
  halpa.MyyntiTariffiSkey = Tariffi(clsTariffi::SahkoMyyntiTariffi, 90, 0, 0);
  kallis = halpa;
  kallis.TotEnergia = 100;
  jarjestelija.LisaaTariffirivi(halpa, kallis);
  rakennus->ToimenpiteetMuuttuivat("Tariffi");
  const Luettelo& lista = L().Etsi(kNetto).Lista();
  EXPECT_TRUE(lista.Piirteet(0).lihava && lista.Piirteet(5).lihava);
  EXPECT_EQ(lista.Solut()[0][static_cast<std::size_t>(3)], "--");
  const auto& paketti = *jarjestelija.LaskettuPaketti();
  const std::pair<const char*, double Hyodykkeet::*> suureet[] = {
      {"Lämpöenergia", &Hyodykkeet::lampo}, {"Sähköenergia", &Hyodykkeet::sahko}, {"Vesi", &Hyodykkeet::vesi}};
  const auto kuva = [&](const char* suure) {
    if (L().Etsi("cmbSuure").Indeksi() < 0 || L().Etsi(kKuva).Kaavio().otsikko != suure)
      L().KayttajaValitsee("cmbSuure", suure);
    return L().Etsi(kKuva).Kaavio();
  };
  const auto muutos = [](const Kaaviotiedot& k) {
    double summa = 0;
    for (std::size_t s = 1; s < k.sarjat.size(); ++s)
      summa = std::accumulate(k.sarjat[s].arvot.begin(), k.sarjat[s].arvot.end(), summa);
    return summa;
  };
  for (const auto& [nimi, maara] : suureet) {
    const Kaaviotiedot k = kuva(nimi);
    EXPECT_EQ(k.nimet, (Rivit{"Perustapaus", "Lämpötila", "Eristys", "Talteenotto", "Valaistus", "Paketin jälkeen"}));
    EXPECT_EQ(k.sarjat[0].arvot.front(), paketti.ennen.*maara);
    EXPECT_EQ(k.sarjat[0].arvot.back(), paketti.lopuksi.*maara);
    EXPECT_NEAR(k.sarjat[0].arvot.front() + muutos(k), k.sarjat[0].arvot.back(), 1e-9);
  }
  EXPECT_EQ(kuva("Sähköenergia").sarjat.back().nimi, "Kelluva toimenpide");
  const Kaaviotiedot hinta = kuva("Kustannukset");
  EXPECT_EQ(hinta.nimet.size(), 7u);
  EXPECT_EQ(hinta.sarjat.back().nimi, "Tariffin vaihto");
  EXPECT_DOUBLE_EQ(hinta.sarjat.back().arvot[5], -900);
  EXPECT_DOUBLE_EQ(hinta.sarjat[0].arvot.front(), paketti.ostot->hinta.Yhteensa());
  EXPECT_NEAR(-muutos(hinta), rivit.Item(1).Kustannussaasto().Yhteensa({}), 1e-9);
}

TEST_F(Jarjestelijaikkuna, ARowTellsWhatItBuildsUpon) {
  AvaaValinnoin();
  L().KayttajaRastittaa(kBrutto, "Valaistus");
  const auto peruste = [&](const char* nimi) { return Riviperuste(*rakennus, Rivi_(nimi)); };
  EXPECT_TRUE(peruste("Lämpötila").starts_with("Lasketaan suoraan perustapauksen varaan"));
  EXPECT_EQ(peruste("Eristys"), "Rakentuu näiden varaan:\n– Lämpötila (sama kohde)");
  EXPECT_EQ(peruste("Talteenotto"), "Rakentuu näiden varaan:\n– Lämpötila (sama tila)\n– Eristys (sama tila)");
  EXPECT_TRUE(peruste("Valaistus").starts_with("Kelluva toimenpide"));
  EXPECT_EQ(peruste("Valitut yhteensä"), "");
  L().KayttajaJarjestaa(kNetto, "Valaistus", "Valitut yhteensä");
  EXPECT_TRUE(peruste("Lämpötila").ends_with("mallia:\n– Valaistus"));
  toimenpiteet.Remove(eristys.sKey);
  EXPECT_TRUE(peruste("Eristys").starts_with("Tähän riviin kuuluvaa toimenpidettä"));
}

}  // namespace
