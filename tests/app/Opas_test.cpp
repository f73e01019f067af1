// SPDX-License-Identifier: GPL-3.0-or-later
// The example that the user's guide tells: the figures of its sample audit must be the program's. With
// LUMIVIRTA_KUVAT=<folder> the pictures of the guide (docs/opas/kuvat) are taken there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <sstream>

#include "app/Istunto.h"
#include "app/Valikkotaulu.h"
#include "app/frmMain.h"
#include "building/Hankintalaskelma.h"
#include "building/Kuukausitase.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsTilat.h"
#include "consumers/Kulutusluettelo.h"
#include "consumers/clsSahkonKulutusryhmat.h"
#include "consumers/clsVedenKulutusryhmat.h"
#include "kernel/Luvut.h"
#include "measures/clsSaastotoimenpiteet.h"
#include "measures/clsToimenpiteidenJarjestelija.h"
#include "settings/clsLumivirtaAsetukset.h"
#include "supply/clsSahkoTariffienVertailu.h"
#include "supply/clsTariffit.h"
#include "tests/app/Koekoti.h"
#include "tests/qt/Ikkunatesti.h"
#include "tests/tuki/Koeviestit.h"
#include "tests/tuki/Lahdekoodi.h"
#include "ui/Lomakekaannos.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmLampoYhteenveto.h"
#include "ventilation/clsIVKoneet.h"

namespace {

constexpr double kVakioOsuus = 48;  // MWh/a

std::string OppaanSivu(const char* sivu) {
  std::ifstream virta(Lahdekoodi(std::string("docs/opas/") + sivu));
  std::ostringstream teksti;
  teksti << virta.rdbuf();
  EXPECT_FALSE(teksti.str().empty()) << sivu;
  return teksti.str();
}

/// The table of keys as the page must have it.
std::string PikanappaintenTaulu() {
  std::string taulu = "| Näppäin | Valikko | Toiminto |\n|---|---|---|\n";
  const auto pelkka = [](int tunnus) {
    return QString::fromStdString(Teksti(tunnus)).remove('&').remove("...").toStdString();
  };
  for (const Paavalikko& valikko : Paavalikot())
    for (const Valikkorivi& rivi : Valikkorivit())
      if (std::string_view(rivi.valikko) == valikko.ohjain && *rivi.nappaimet)
        taulu +=
            std::string("| ") + rivi.nappaimet + " | " + pelkka(valikko.teksti) + " | " + pelkka(rivi.teksti) + " |\n";
  return taulu + "\n";
}

TEST(Opas, ShortcutsAreTheMenusKeys) {
  const Koekoti koti;
  EXPECT_NE(OppaanSivu("nappaimet.md").find(PikanappaintenTaulu()), std::string::npos) << PikanappaintenTaulu();
}

/// The form alone, also when it is inside the main window.
void KuvaaLomake(const Lomake& lomake) { TallennaKuva(Juuri(lomake), QString::fromStdString(lomake.Nimi())); }

/// Takes the picture of the modal form that opens next, lets `katso` use it and presses its button.
void KunAuki(const char* nappi, const std::function<void(Lomake&)>& katso = {}) {
  QTimer::singleShot(0, [=] {
    Lomake& lomake = *AvoimetLomakkeet().back();
    KuvaaLomake(lomake);
    if (katso) katso(lomake);
    lomake.Etsi(nappi).KayttajaPainaa();
  });
}

/// The sample school of the guide, opened from a copy.
class OppaanKoulu : public ::testing::Test {
 protected:
  void SetUp() override {
    ikkuna_ = std::make_unique<frmMain>(istunto_);
    ikkuna_->resize(700, 500);
    ikkuna_->AsetaPaneeli(Teksti(1092));
    ikkuna_->show();
    const std::string koulu = koti_.Tiedosto("Koulu.lvt");
    std::filesystem::copy_file(AppPath() + "Malliauditoinnit/K01 Koulu 1965.lvt", koulu);
    ASSERT_TRUE(istunto_.Avaa(koulu));
    rakennus().Perustiedot.LammKulVakioOsuus.kkOsuus = kVakioOsuus / 12;
    rakennus().Perustiedot.LammKulVakioOsuus.VuosiOsuus = kVakioOsuus;
  }
  void TearDown() override {
    istunto_.SuljeKohde();
    ikkuna_.reset();
  }
  clsRakennus& rakennus() { return *istunto_.Rakennus(); }
  clsTila& tila() { return *rakennus().Tilat.begin(); }

  Koekoti koti_;
  Koeviestit viestit_;
  Istunto istunto_;
  std::unique_ptr<frmMain> ikkuna_;
};

/// The school before its measures, which would keep objects of the model from being added.
/// The guide's pictures are in euros.
struct Eurot {
  Eurot() {
    Asetukset().ValuuttaTyyppi(1);
    AsetaRahayksikko(Asetukset().strDefaultCurrencyUnit);
  }
  ~Eurot() {
    AsetaRahayksikko("€");
    Asetukset().HaeRekisteristä();
  }
};

class OppaanEsimerkki : public OppaanKoulu {
 protected:
  void SetUp() override {
    OppaanKoulu::SetUp();
    clsSaastotoimenpiteet& toimenpiteet = rakennus().Saastotoimenpiteet;
    while (toimenpiteet.Count() > 0) toimenpiteet.Poista(toimenpiteet.Item(1).sKey);
  }
};

TEST_F(OppaanEsimerkki, BasicDataAndConstantShare) {
  KunAuki("cmdPeruuta", [](Lomake& perustiedot) {
    EXPECT_NE(OppaanSivu("tyonkulku.md").find(perustiedot.Etsi("txtLampo1").Teksti()), std::string::npos);
    KunAuki("cmdPeruuta");
    perustiedot.Etsi("cmdVakioOsuus").KayttajaPainaa();
  });
  EXPECT_TRUE(rakennus().Perustiedot.NaytaKayttoliityma());
}

TEST_F(OppaanEsimerkki, FiguresOfTheHeatSummaryAreTheGuides) {
  rakennus().NaytaLampoYhteenvetoDlg();
  ikkuna_->PaivitaValikot();
  QApplication::processEvents();
  TallennaKuva(*ikkuna_, "paaikkuna");
  const Lomake& yhteenveto = *AvoinLomake("frmLampoYhteenveto");
  KuvaaLomake(yhteenveto);
  const std::string opas = OppaanSivu("lampoyhteenveto.md");
  for (const char* kentta : {"txtTilojenLammitys", "txtIlmanvaihtokoneet", "txtKayttoVedenLammitys", "txtYhteensa",
                             "txtToteutunutKulutus", "txtHaviot", "txtHaviotYhteensa"})
    EXPECT_NE(opas.find(yhteenveto.Etsi(kentta).Teksti()), std::string::npos)
        << kentta << ": " << yhteenveto.Etsi(kentta).Teksti();
  for (const char* nappi : {"Command4", "cmdNaytaGraafi"}) {
    KunAuki("cmdSulje");
    yhteenveto.Etsi(nappi).KayttajaPainaa();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
}

TEST_F(OppaanEsimerkki, YearlySummary) {
  AsetaQtLomakkeet(nullptr);  // a window of its own has the room that it needs
  const Eurot eurot;
  rakennus().NaytaYhteenvetoDlg();
  QApplication::processEvents();
  KuvaaLomake(*AvoinLomake("frmYhteenveto"));
}

TEST_F(OppaanEsimerkki, StructuresAndALayer) {
  KunAuki("cmdPeruuta", [](Lomake& rakenteet) {
    rakenteet.Etsi("tabRakenne").Indeksi(1);
    QApplication::processEvents();
    KuvaaLomake(rakenteet);
    EXPECT_NE(OppaanSivu("rakenteet.md").find(rakenteet.Etsi("txtKerrostenUarvo").Teksti()), std::string::npos);
    KunAuki("cmdPeruuta");
    rakenteet.Etsi("lvwKerrokset").Indeksi(1);
    rakenteet.Etsi("lvwKerrokset").KayttajaPainaa();
  });
  EXPECT_FALSE(tila().Rakenteet.NaytaKayttoliityma(tila().TilanNimi, tila().Sisalampotila));
}

TEST_F(OppaanEsimerkki, Spaces) {
  AsetaQtLomakkeet(nullptr);  // a window of its own has the room that it needs
  rakennus().Tilat.NaytaKayttoliittyma();
  QApplication::processEvents();
  KuvaaLomake(*AvoinLomake("frmTilaYhteenveto"));
  KunAuki("cmdPeruuta");
  EXPECT_FALSE(tila().NaytaKayttoliittyma());
}

TEST_F(OppaanEsimerkki, MachineSchedulesAndFans) {
  AsetaQtLomakkeet(nullptr);
  rakennus().IVKoneet.NaytaKayttoliittyma();
  QApplication::processEvents();
  KuvaaLomake(*AvoinLomake("frmIVKoneYhteenveto"));
  clsIVKone& kone = rakennus().IVKoneet.Item(1);
  const double sahko = kone.Sahko();
  KunAuki("cmdPeruuta", [](Lomake& lomake) {
    for (const char* nappi : {"cmdKayntiajat", "cmdPuhaltimet"}) {
      KunAuki("cmdPeruuta");
      lomake.Etsi(nappi).KayttajaPainaa();
    }
  });
  EXPECT_FALSE(kone.NaytaKayttoliittyma());
  EXPECT_EQ(kone.Sahko(), sahko);
}

TEST_F(OppaanEsimerkki, ListsOfConsumers) {
  AsetaQtLomakkeet(nullptr);
  rakennus().SahkonKulutusryhmat.NaytaKayttoliittyma();
  rakennus().VedenKulutusryhmat.NaytaKayttoliittyma();
  QApplication::processEvents();
  for (const char* lomake : {"frmSahkoLaitteet", "frmVedenKulutus"}) KuvaaLomake(*AvoinLomake(lomake));
  clsVedenKulutusryhmat ryhmat;
  ryhmat.LKVKiertoVirtaama = 0.1;
  clsVedenKulutusryhma& suihkut = ryhmat.Add("suihkut", clsVedenKulutusryhma::Kayttovesi);
  suihkut.Laskentayksikko = 10;
  suihkut.LaskentaperusteNumber = 20;
  suihkut.KayttokuvausKertaaD = 2;
  suihkut.KayttokuvausDpA = 365;
  suihkut.VedenKayttolampotila = 55;
  const std::string opas = OppaanSivu("vedenkulutus.md");
  for (const std::string& luku :
       {Muotoile(suihkut.VedenKulutus(), "0") + " m³/a", Muotoile(suihkut.VedenLammityksenEnergia(), "0.0") + " MWh/a",
        Muotoile(ryhmat.LKVKiertopiirinHavio(), "### ##0") + " kWh/a"})
    EXPECT_NE(opas.find(luku), std::string::npos) << luku;
}

TEST_F(OppaanKoulu, ListOfMeasures) {
  AsetaQtLomakkeet(nullptr);
  const Eurot eurot;
  clsSaastotoimenpiteet& toimenpiteet = rakennus().Saastotoimenpiteet;
  ASSERT_GT(toimenpiteet.Count(), 0);
  rakennus().ToimenpiteidenJarjestelija.PaivitaValitutToimenpiteet();
  toimenpiteet.NaytaKayttoliittyma(0);
  QApplication::processEvents();
  const Lomake& luettelo = *AvoinLomake("frmSaastoToimenpiteet");
  KuvaaLomake(luettelo);
  EXPECT_EQ(luettelo.Etsi("lvwToimenpiteet").Lista().Maara(), toimenpiteet.Count());
  KunAuki("cmdPeruuta");
  const Ohjain& puu = luettelo.Etsi("lvwKohdentaminen");
  luettelo.Etsi("lvwKohdentaminen").KayttajaValitsee(puu.Lista().Etsi(tila().sKey));
  luettelo.Etsi("cmdLisaaUusi").KayttajaPainaa();
}

TEST_F(OppaanEsimerkki, PickingFromTheCatalogue) {
  KunAuki("cmdPeruuta");
  clsSahkonKulutusryhma ryhma;
  EXPECT_FALSE(PoimiLuettelosta(ryhma));
  const auto laitteet = LueSahkolaitteet(51);
  TaytaRyhma(*std::ranges::find(laitteet, "luokka_v", &Sahkolaite::Id), ryhma);
  ryhma.LaskentayksikkoNumber = 2400;
  const std::string opas = OppaanSivu("kulutusluettelo.md");
  EXPECT_NE(opas.find(ryhma.KulutusRyhma), std::string::npos);
  EXPECT_NE(opas.find(Muotoile(ryhma.Vuosikulutus(), "0.0") + " MWh/a"), std::string::npos);
}

TEST_F(OppaanEsimerkki, TariffsAndTheirCatalogue) {
  KunAuki("cmdPeruuta", [](Lomake& tariffit) {
    EXPECT_NE(OppaanSivu("tariffit.md").find(tariffit.Etsi("txtKaikkiMaksutYhteensa").Teksti() + " €"),
              std::string::npos)
        << tariffit.Etsi("txtKaikkiMaksutYhteensa").Teksti();
    KunAuki("cmdPeruuta");
    tariffit.Etsi("cmdLisaaLuettelosta").KayttajaPainaa();
  });
  const Eurot eurot;
  const double lampo = rakennus().Perustiedot.ToteutuneetKulutukset.VertailuVuodenTiedot().Lampo;
  EXPECT_FALSE(rakennus().Tariffit.NaytaKayttoliittyma(clsTariffi::LampoTariffi, {}, lampo));
}

TEST_F(OppaanKoulu, TheArrangerShowsThePackageOfTheGuide) {
  AsetaQtLomakkeet(nullptr);
  Asetukset().ValuuttaTyyppi(1);  // the euro
  rakennus().ToimenpiteidenJarjestelija.NaytaKayttoliittyma();
  const Lomake& jarjestelija = *AvoinLomake("frmToimenpiteidenJarjestelija");
  const std::string opas = OppaanSivu("esimerkkipaketti.md");
  const std::string paketti = jarjestelija.Etsi("lblPaketti").Teksti();
  EXPECT_TRUE(paketti.starts_with("Paketin takaisinmaksuaika: ")) << paketti;
  for (const auto& solut : jarjestelija.Etsi("lvwValitut").Rivit())
    EXPECT_TRUE(solut[0] == "Valitut yhteensä" || opas.find(solut[0]) != std::string::npos) << solut[0];
  jarjestelija.Etsi("lvwValitut").Indeksi(3);
  jarjestelija.Etsi("lvwValitut").KayttajaValitsee(3);
  QApplication::processEvents();
  KuvaaLomake(jarjestelija);
  Asetukset().HaeRekisteristä();
}

TEST_F(OppaanEsimerkki, ComparisonOfElectricityTariffs) {
  const std::string opas = OppaanSivu("tariffivertailu.md");
  AsetaQtLomakkeet(nullptr);
  Asetukset().ValuuttaTyyppi(1);
  AsetaRahayksikko(Asetukset().strDefaultCurrencyUnit);  // the euro
  clsTariffi& tarjous = rakennus().Tariffit.LisaaTariffi(clsTariffi::SahkoMyyntiTariffi);
  tarjous.Nimi = "Tarjous 42 €/MWh";
  tarjous.Maksu(1).Hinta = 42;
  tarjous.Maksu(1).Kulutusosuus = 100;
  rakennus().SahkoTariffienVertailu.KaytaVertailussaALVHintoja = false;
  rakennus().SahkoTariffienVertailu.NaytaKayttoliittyma();
  const Lomake& vertailu = *AvoinLomake("frmSahkotariffiVertailu");
  const auto kirjoita = [&](const char* kentta, const char* luku) {
    vertailu.Etsi(kentta).KayttajaKirjoittaa(luku);
    vertailu.Etsi(kentta).KayttajaPoistuu();
  };
  kirjoita("txtTotHuippuTeho", "75");
  kirjoita("txtTotLoisteho", "10");
  const auto talleta = [&](const char* nimi, const char* investointi) {
    const auto& summat = vertailu.Etsi("lvwKustannukset").Summarivi();
    for (const std::size_t i : {1u, 2u, 3u}) EXPECT_NE(opas.find(summat[i] + " €/a"), std::string::npos) << summat[i];
    KunAuki("cmdOk", [=](Lomake& kuvaus) {
      kuvaus.Etsi("txtNimi").KayttajaKirjoittaa(nimi);
      kuvaus.Etsi("txtInvestointi").KayttajaKirjoittaa(investointi);
    });
    vertailu.Etsi("cmdTalletaYhdistelma").KayttajaPainaa();
  };
  talleta("Nykyiset sopimukset", "0");
  vertailu.Etsi("cmbMyyntiTariffit").KayttajaValitsee(2);
  talleta("Tarjous ja nykyinen siirto", "200");
  QApplication::processEvents();
  KuvaaLomake(vertailu);
  KunAuki("cmdPeruuta", [&](Lomake& peruste) {
    EXPECT_EQ(peruste.Etsi("lblSaasto").Teksti(), "Säästö 663 euro/a, takaisinmaksuaika 0,3 a");
    EXPECT_NE(opas.find("säästö on 663 €/a ja takaisinmaksuaika 0,3 a"), std::string::npos);
  });
  vertailu.Etsi("cmdVieTaulukko2een").KayttajaPainaa();
  AsetaRahayksikko("€");
  Asetukset().HaeRekisteristä();
}

TEST_F(OppaanEsimerkki, GroupsOfConsumers) {
  const auto avaa = [](auto& ryhma, const char* sivu) {
    KunAuki("cmdPeruuta", [sivu](Lomake& lomake) {
      for (const char* kentta : {"txtKulutus", "txtVedenLammittamisenEnergia"})
        if (const Ohjain* tulos = lomake.Ikkuna().Loyda(kentta)) {
          EXPECT_NE(OppaanSivu(sivu).find("= " + tulos->Teksti()), std::string::npos) << tulos->Teksti();
        }
    });
    EXPECT_FALSE(ryhma.NaytaKayttoliittyma());
  };
  const auto nimella = [](auto& ryhmat, const char* nimi) -> auto& {
    return *std::ranges::find_if(ryhmat, [nimi](const auto& ryhma) { return ryhma.KulutusRyhma == nimi; });
  };
  auto& luokat = nimella(rakennus().SahkonKulutusryhmat, "Luokkahuone, vanha (loistelamput)");
  EXPECT_NE(OppaanSivu("sahkoryhma.md").find("= " + Muotoile(luokat.Vuosikulutus() * 1000 / 12, "### ##0") + " kWh"),
            std::string::npos);
  avaa(luokat, "sahkoryhma.md");
  avaa(nimella(rakennus().VedenKulutusryhmat, "Käsienpesu"), "vesiryhma.md");
}

TEST_F(OppaanKoulu, AMeasureWithItsChangesAndPayback) {
  AsetaQtLomakkeet(nullptr);
  Asetukset().ValuuttaTyyppi(1);  // the euro
  clsSaastotoimenpiteet& toimenpiteet = rakennus().Saastotoimenpiteet;
  clsSaastotoimenpide& ylapohja =
      *std::ranges::find(toimenpiteet, "Yläpohjan puhallusvilla", &clsSaastotoimenpide::Nimi);
  KunAuki("cmdPeruuta", [](Lomake& lomake) {
    EXPECT_NE(OppaanSivu("esimerkkipaketti.md").find(lomake.Etsi("txtTakaisinmaksuaika").Teksti() + " |\n"),
              std::string::npos);
  });
  EXPECT_FALSE(ylapohja.NaytaKayttoliittyma());
  Asetukset().HaeRekisteristä();
}

TEST_F(OppaanEsimerkki, ASupplyFromNetDemandToMoneyAndTonnes) {
  const std::string opas = OppaanSivu("hankinta.md");
  Asetukset().ValuuttaTyyppi(1);  // the euro
  const clsEnergianHankinta& hankinta = rakennus().Perustiedot.LammonHankinta;
  KunAuki("cmdPeruuta", [&](Lomake& lomake) {
    for (const char* kentta : {"txtKeskihinta", "txtVuosimaksut"})
      EXPECT_NE(opas.find(lomake.Etsi(kentta).Teksti()), std::string::npos) << lomake.Etsi(kentta).Teksti();
    KunAuki("cmdPeruuta", [](Lomake& muoto) {
      KunAuki("cmdPeruuta");
      muoto.Etsi("cmdPoimiKirjastosta").KayttajaPainaa();
    });
    lomake.Etsi("cmdMuokkaa").KayttajaPainaa();
  });
  EXPECT_FALSE(rakennus().Perustiedot.LammonHankinta.NaytaKayttoliittyma());
  const Hankintalaskelma laskelma = LaskeHankinta(rakennus(), clsEnergianHankinta::Lampo);
  const double verolla = laskelma.kustannus * Asetukset().NayttoKerroin(Energialaji::Lampo);
  const std::pair<double, const char*> luvut[] = {{hankinta.Energiamuodot.Konversiohaviot(670.87), "0.00"},
                                                  {rakennus().VuotuisetLammonKonversiohaviot(), "0.00"},
                                                  {laskelma.brutto, "0.00"},
                                                  {laskelma.kustannus, "### ##0"},
                                                  {verolla, "### ##0"},
                                                  {laskelma.paasto, "0.00"}};
  for (const auto& [luku, kuvio] : luvut)
    EXPECT_NE(opas.find(Muotoile(luku, kuvio)), std::string::npos) << Muotoile(luku, kuvio);
  Asetukset().HaeRekisteristä();
}

TEST_F(OppaanEsimerkki, FiguresOfTheMonthlyBalanceAreTheGuides) {
  KunAuki("cmdSulje");
  NaytaKuukausitase(rakennus());
  const Kuukausitase tase = LaskeKuukausitase(rakennus());
  const std::string opas = OppaanSivu("lampotase.md");
  constexpr std::size_t kTammi = 0, kHeina = 6;
  for (const double luku :
       {tase[Tasetermi::Vuotoilma][kTammi], tase[Tasetermi::Ilmanvaihtokoneet][kTammi], tase[Tasetermi::Haviot][kTammi],
        tase[Tasetermi::Kuormat][kTammi], tase[Tasetermi::Tarve][kTammi], tase[Tasetermi::Haviot][kHeina],
        tase[Tasetermi::Kuormat][kHeina]})
    EXPECT_NE(opas.find(Muotoile(luku, "### ##0")), std::string::npos) << Muotoile(luku, "### ##0");
  for (const double luku : {tase.NormitettuTarve(), tase.Vuosi(Tasetermi::Tarve) / 1000,
                            tase.Vuosi(Tasetermi::HyodynnetytKuormat) / 1000, tila().VuotuisetSaatohaviot()})
    EXPECT_NE(opas.find(Muotoile(luku, "0.0")), std::string::npos) << Muotoile(luku, "0.0");
  EXPECT_NE(OppaanSivu("johtuminen.md").find(Muotoile((*tila().Rakenteet.begin()).LampoHaviot(21, 0), "### ##0")),
            std::string::npos);
}

}  // namespace
