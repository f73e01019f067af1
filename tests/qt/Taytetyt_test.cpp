// SPDX-License-Identifier: GPL-3.0-or-later
// The forms filled with the figures of a large building. With LUMIVIRTA_KUVAT=<folder> their pictures are left there.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <functional>

#include "kernel/Luvut.h"
#include "tekstit/hankinta_ja_toimenpiteet.h"
#include "tekstit/lomakkeet_toimenpide.h"
#include "tekstit/lomakkeet_toimenpideluettelo.h"
#include "tests/qt/Ikkunatesti.h"
#include "ui/Lampotilakuvaus.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmEkoprofiili.h"
#include "ui/frmElinkaarenYmparistoVaikutukset.h"
#include "ui/frmEnergiamuotomuutokset.h"
#include "ui/frmIVKoneYhteenveto.h"
#include "ui/frmIlmanvaihtokone.h"
#include "ui/frmJakaumaGraafi.h"
#include "ui/frmKulutusluettelo.h"
#include "ui/frmKustannukset.h"
#include "ui/frmKustannusLaskennanOletusarvot.h"
#include "ui/frmLTOhyotylaskenta.h"
#include "ui/frmLammonTuotonJaJaonHaviot.h"
#include "ui/frmLampoYhteenveto.h"
#include "ui/frmMateriaalimuutokset.h"
#include "ui/frmNormeeraamatonKulutus.h"
#include "ui/frmPerustiedot.h"
#include "ui/frmRakenteet.h"
#include "ui/frmSaastoToimenpiteet.h"
#include "ui/frmSaastotoimenpide.h"
#include "ui/frmSahkoLaitteet.h"
#include "ui/frmSahkotariffi.h"
#include "ui/frmSahkotariffiVertailu.h"
#include "ui/frmSplash.h"
#include "ui/frmTarkennettuLaiteLaskenta.h"
#include "ui/frmTarkennettuVesiLaskenta.h"
#include "ui/frmToimenpiteidenJarjestelija.h"
#include "ui/frmVedenKulutus.h"
#include "ui/frmVesitariffi.h"
#include "ui/frmYhteenveto.h"
#include "ui/qt/Kehys.h"

namespace {

void OdotaMahtuvan(const Lomake& lomake) {
  QCoreApplication::processEvents();
  for (const QLineEdit* kentta : Juuri(lomake).findChildren<QLineEdit*>()) {
    const int reunat = kentta->sizeHint().width() - 17 * kentta->fontMetrics().horizontalAdvance('x');
    EXPECT_LE(kentta->fontMetrics().horizontalAdvance(kentta->text()) + reunat, kentta->width())
        << kentta->objectName().toStdString() << ": " << kentta->text().toStdString();
  }
  TallennaKuva(lomake);
}

/// Pixels of the picture that differ from the window's background.
int Piirretty(const QWidget& pinta) {
  const QImage kuva = const_cast<QWidget&>(pinta).grab().toImage();
  const QRgb tausta = pinta.palette().color(QPalette::Window).rgb();
  int maara = 0;
  for (int y = 0; y < kuva.height(); ++y)
    for (int x = 0; x < kuva.width(); ++x) maara += kuva.pixel(x, y) != tausta;
  return maara;
}

class Taytetyt : public Ikkunatesti {
 protected:
  /// Looks at a form while it is open as modal, then presses its button.
  static void KunAuki(const char* nappi, const std::function<void(const Lomake&)>& katso) {
    QTimer::singleShot(0, [=] {
      Lomake& lomake = *AvoimetLomakkeet().back();
      katso(lomake);
      lomake.Etsi(nappi).KayttajaPainaa();
    });
  }
};

TEST_F(Taytetyt, BasicDataFitTheirFields) {
  frmPerustiedot lomake;
  lomake.txtKohteenNimi.Teksti("Työväenopiston ja kirjaston yhteisrakennus, Åkerlundinkatu 12");
  lomake.cmbKayttotarkoitus.Indeksi(24);
  lomake.cmbPaikkakunta.Indeksi(13);
  lomake.txtNormVuodenLammTarveLuku.Teksti("4719");
  lomake.txtValmistumisVuosi.Teksti("1974");
  lomake.txtKokonaistilavuus.Luku(1234567.89, "### ##0.00");
  lomake.txtBruttoAla.Luku(345678.9, "### ##0.00");
  for (const TextBox& kentta : {lomake.txtKylmanTilavuudenOsuus, lomake.txtKylmanAlanOsuus}) kentta.Teksti("12,5");
  lomake.txtKerrostenLukumaara.Teksti("4");
  lomake.txtKohteenHenkiloMaara.Teksti("1250");
  lomake.txtPvm.Teksti("21.11.2026");
  lomake.lblALV.Otsikko("Maksut sisältävät ALV:n");
  for (std::size_t i = 0; i < 3; ++i) {
    lomake.lblVuosi[i].Otsikko(std::to_string(2025 - i));
    lomake.txtLammTarveLuku[i].Teksti("4444");
    lomake.txtLampo[i].Luku(12345.67, "### ##0.00");
    lomake.txtSahko[i].Luku(2345.67, "### ##0.00");
    lomake.txtVesi[i].Luku(123456.78, "### ##0.00");
  }
  lomake.optVertailuvuosi[0].Valittu(true);
  lomake.LaskeOminaiskulutukset();
  lomake.Nayta();
  OdotaMahtuvan(lomake);
}

TEST_F(Taytetyt, TheSummaryFitsItsFields) {
  frmLampoYhteenveto lomake;
  lomake.BruttoAla = 345678.9;
  lomake.Kokonaistilavuus = 1234567.89;
  const std::pair<const frmLampoYhteenveto::Rivi*, double> luvut[] = {{&lomake.txtTilojenLammitys, 123456.78},
                                                                      {&lomake.txtIlmanvaihtokoneet, 34567.89},
                                                                      {&lomake.txtKayttoVedenLammitys, 23456.78},
                                                                      {&lomake.txtProsessiVedenLammitys, 1234.5},
                                                                      {&lomake.txtMuuLampo, 0},
                                                                      {&lomake.txtToteutunutKulutus, 178901.23}};
  for (const auto& [rivi, arvo] : luvut) rivi->arvo.Luku(arvo, "### ##0.00");
  lomake.txtSaatoHaviot.Teksti("12345,67890123");
  lomake.txtLammonTuotonHaviot.Teksti("2345,67890123");
  lomake.Laske();
  lomake.Nayta();
  OdotaMahtuvan(lomake);
}

TEST_F(Taytetyt, SmallFormsFitTheirFields) {
  frmSplash alku;
  alku.lblVersio.Otsikko("2.0.1 SP2");
  alku.Nayta();
  OdotaMahtuvan(alku);

  KunAuki("cmdPeruuta", OdotaMahtuvan);
  double kk = 1234.56, vuosi = 14814.72;
  EXPECT_FALSE(frmNormeeraamatonKulutus().Kysy(kk, vuosi));

  KunAuki("cmdSulje", OdotaMahtuvan);
  frmLammonTuotonJaJaonHaviot().NaytaHaviot(182716, -3814.72, 12345.67, 2345.67);

  KunAuki("cmdSulje", OdotaMahtuvan);
  frmJakaumaGraafi().NaytaJakauma("Työväenopiston ja kirjaston yhteisrakennus",
                                  {"Tilojen lämmitys", "Ilmanvaihtokoneiden jälkilämmitys", "Käyttöveden lämmitys",
                                   "Prosessiveden lämmitys", "Muu lämpö"},
                                  {123456.78, 34567.89, 23456.78, 1234.5, 0}, "MWh/a");
}

void EiVieritettava(const Lomake& lomake, QSize naytto) {
  dynamic_cast<Dialogikehys&>(*Juuri(lomake).window()).Mahduta(naytto);
  QCoreApplication::processEvents();
  const auto* alue = Juuri(lomake).findChild<QScrollArea*>("qt_vieritysalue");
  EXPECT_FALSE(alue->verticalScrollBar()->isVisible() || alue->horizontalScrollBar()->isVisible()) << lomake.Nimi();
}

/// A list whose columns have shares of its width: names, three of numbers, one of them hidden.
void TaytaToimenpiteet(const frmSaastoToimenpiteet& lomake, int maara) {
  Luettelosisalto puu{{{{"Koko kohde"}, "kohde"}, {{"Johtuminen"}, "johtuminen", "kohde"}}}, lista;
  for (int i = 0; i < maara; ++i) {
    const std::string nimi = "Ullakon ja ulkoseinien lisäeristys, vaihe " + std::to_string(i + 1), avain = nimi;
    puu.rivit.push_back({.solut = {nimi}, .avain = avain, .ylempi = "johtuminen"});
    lista.rivit.push_back({.solut = {nimi, "1 234 567", i % 3 ? "-12 345" : "", "800"}, .avain = avain});
    if (i % 3 == 1) lista.rivit.back().piirteet = {.merkitys = Merkitys::Vanhentunut, .merkitty = 2};
  }
  lomake.lvwKohdentaminen.Tayta(std::move(puu));
  lomake.lvwToimenpiteet.Kohde().Osat({{.otsikko = "Toimenpide", .leveys = 1 / 2.9},
                                       {.otsikko = "Säästö yhteensä (€/a)", .leveys = 1 / 4.7},
                                       {.otsikko = "Nettosäästö (€/a)", .leveys = 1 / 4.7},
                                       {.otsikko = "Päästöt (kg/a)", .leveys = 0}});
  lomake.lvwToimenpiteet.Tayta(std::move(lista));
  lomake.lblOhje.Otsikko(maara ? "" : Teksti(tekstit::kEiToimenpiteita));
}

TEST_F(Taytetyt, ColumnsOfMeasuresHaveTheirSharesOfTheWidthAndHiddenOnesNone) {
  frmSaastoToimenpiteet lomake;
  TaytaToimenpiteet(lomake, 0);
  lomake.Nayta();
  TallennaKuva(lomake, "-tyhja");
  TaytaToimenpiteet(lomake, 60);
  OdotaMahtuvan(lomake);
  const auto& lista = *Juuri(lomake).findChild<QTreeView*>("lvwToimenpiteet");
  const auto osuus = [&](int sarake) {
    return static_cast<double>(lista.columnWidth(sarake)) / lista.viewport()->width();
  };
  EXPECT_TRUE(lista.isColumnHidden(3));
  Juuri(lomake).window()->resize(1400, 700);
  QCoreApplication::processEvents();
  EXPECT_NEAR(osuus(0), 1 / 2.9, 0.01);
  EXPECT_NEAR(osuus(1), 1 / 4.7, 0.01);
  lomake.lvwToimenpiteet.Kohde().Osat({{.otsikko = "Toimenpide", .leveys = 1 / 2.9},
                                       {.otsikko = "Säästö yhteensä (€/a)", .leveys = 0},
                                       {.otsikko = "Nettosäästö (€/a)", .leveys = 0},
                                       {.otsikko = "Päästöt (kg/a)", .leveys = 1 / 4.7}});
  EXPECT_TRUE(lista.isColumnHidden(1));
  EXPECT_NEAR(osuus(3), 1 / 4.7, 0.01);
}

/// The screen of a small laptop.
constexpr QSize kPieniNaytto{1050, 840};

TEST_F(Taytetyt, TheStructuresWindowFitsWithManyLayers) {
  frmRakenteet lomake;
  Taulukko rakenteet, kerrokset;
  std::vector<std::string> nimet;
  for (int i = 1; i <= 12; ++i) {
    nimet.push_back("Mineraalivilla puurungon välissä, tuulensuojattu " + std::to_string(i));
    kerrokset.push_back({std::to_string(i), nimet.back(), "1 234,56", "Kyllä", std::to_string(i), "Kyllä", "12,345"});
    rakenteet.push_back(
        {nimet.back(), "Kantava väliseinä", "123 456,78", "0,123", "Huonelämpöinen tila", "", "12 345,6", "100,0"});
  }
  lomake.lvwRakenteet.Rivit(rakenteet);
  lomake.lvwKerrokset.Rivit(kerrokset);
  lomake.tabRakenne.Indeksi(1);
  lomake.lblHaku.Otsikko("Kirjastosta haetaan rakenteelle: " + nimet.back());
  std::vector<double> lampotilat(nimet.size() + 3);
  for (std::size_t i = 0; i < lampotilat.size(); ++i) lampotilat[i] = 21 - 3.1 * static_cast<double>(i);
  lomake.chtLampotilat.Kaavio(Lampotilakuvaus("Tilan sisälämpötila 21 °C, mitoittava ulkolämpötila -26 °C", nimet,
                                              std::vector<double>(nimet.size(), 50),
                                              std::vector<double>(nimet.size(), 1), lampotilat));
  lomake.Nayta();
  OdotaMahtuvan(lomake);
  EiVieritettava(lomake, kPieniNaytto);
}

TEST_F(Taytetyt, TheListOfChangesFitsItsWindow) {
  KunAuki("cmdOk", OdotaMahtuvan);
  const std::vector<std::string> rivi{"Työväenopiston juhlasali ja lämpiö",
                                      "Puurunko 150, tuulensuoja 50",
                                      "2",
                                      "Mineraalivilla, tuulensuojattu",
                                      "Lämmönjohtavuus, W/mK",
                                      "0,045",
                                      "0,0375"};
  EXPECT_TRUE(frmMateriaalimuutokset().Kysy(Taulukko(200, rivi)));
  KunAuki("cmdOk", OdotaMahtuvan);
  EXPECT_TRUE(
      frmEnergiamuotomuutokset().Kysy(Taulukko(20, {"Lämmön hankinta", "Kaukolämpö, yhteistuotanto",
                                                    "Ilmaston lämpeneminen, CO₂-ekv., kg/MWh", "183,0", "168,5"})));
}

TEST_F(Taytetyt, TheCatalogueOfConsumersFitsItsWindow) {
  std::vector<frmKulutusluettelo::Rivi> rivit;
  for (int i = 0; i < 60; ++i) {
    frmKulutusluettelo::Rivi& rivi = rivit.emplace_back();
    rivi.rivi.avain = "laite" + std::to_string(i);
    rivi.rivi.solut = {"Autonlämmityspistorasia, lohko- ja sisätilalämmitin, kello 2 h", "Valaistus"};
    rivi.rivi.LisaaLuku(120000, "### ##0.###");
    for (const char* solu :
         {"kWh/vapaa yksikkö,a", "annosta vuodessa", "2 h/d, 110 d/a, kerroin 0,6", "yleisesti tunnettu"})
      rivi.rivi.solut.push_back(solu);
    rivi.hakusanat = "auto;lohkolämmitin";
    rivi.selite =
        "Autonlämmityspistorasia: tavallisesti 1 400–2 100 W/laite. Sähkö ei lämmitä tiloja. Lähde: lohko 550 W "
        "+ sisätila 1 200 W (uutinen 2022: 900–1 500 W) (johdettu).";
    rivi.ryhma = i / 20;
  }
  QTimer::singleShot(0, [] {
    const Lomake& lomake = *AvoimetLomakkeet().back();
    OdotaMahtuvan(lomake);
    auto& haku = Etsi<QLineEdit>(lomake, "txtHaku");
    QTest::keyClicks(&haku, "lohko");
    QTest::keyClick(&haku, Qt::Key_Return);  // takes the best row
  });
  EXPECT_EQ(frmKulutusluettelo().Poimi(rivit, {"Toimistorakennus", "Kaikille yhteiset", "Muiden"}), "laite0");
}

/// The largest amount that there is in practice, or the longest name.
const char* Tayte(const Ohjain& kentta) {
  if (kentta.Lukittu()) return "1 234 567,89";
  if (kentta.Tag().find(",N,") == std::string::npos) return "Talvi 1.11.–31.3.";
  return kentta.Nimi() == "txtALV" || kentta.Nimi().find("suus") != std::string::npos ? "80,25" : "123 456,78";
}

void TaytaTariffi(Tariffilomake& lomake, int osia) {
  lomake.lista.Tayta({{{{"Kaukolämpö, Lahti, kausihinnat, enintään 50 kW (30 kW)"}, "a"}, {{"Oma tariffi"}, "b"}}});
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti(Tayte(*ohjain));
  Kaaviotiedot kaavio{.otsikko = "Vuosilasku, ALV 25,5 %", .yksikko = "€/a"};
  for (int i = 0; i < osia; ++i) {
    kaavio.nimet.emplace_back("Perusmaksu");
    kaavio.arvot.push_back(i == 2 ? 0 : 123456.78 / (i + 1));
  }
  lomake.chtLasku.Kaavio(kaavio);
}

TEST_F(Taytetyt, TheTariffsFitTheirFields) {
  frmSahkotariffi sahko;
  sahko.NaytaOsuudet(80.25, false);
  sahko.cmbSahkoVeroTyyppi.Indeksi(1);
  frmVesitariffi vesi;
  TaytaTariffi(sahko, 6);
  TaytaTariffi(vesi, 4);
  for (Lomake* lomake : std::initializer_list<Lomake*>{&sahko, &vesi}) {
    lomake->Nayta();
    OdotaMahtuvan(*lomake);
    dynamic_cast<Dialogikehys&>(*Juuri(*lomake).window()).Mahduta(kPieniNaytto);
    QCoreApplication::processEvents();
    const auto* alue = Juuri(*lomake).findChild<QScrollArea*>("qt_vieritysalue");
    EXPECT_FALSE(alue->verticalScrollBar()->isVisible() || alue->horizontalScrollBar()->isVisible());
  }
}

/// A laptop of 1366 × 768 whose desktop is shown at 125 %, less its title bar and panel.
constexpr QSize kSuurennettuNaytto{1092, 560};

TEST_F(Taytetyt, TheLifeCycleFormsFitAMagnifiedScreen) {
  frmKustannukset kustannukset;
  frmKustannusLaskennanOletusarvot oletukset;
  frmElinkaarenYmparistoVaikutukset vaikutukset;
  frmEkoprofiili profiili;
  Luettelosisalto puu{{{{"Koko kohde", "1 234 567"}, "Kaikki"}, {{"Ulkoseinät", "234 567"}, "US1", "Kaikki"}}};
  for (const ListView& lista : {kustannukset.puut[0], kustannukset.puut[1], vaikutukset.TreeView1}) lista.Tayta(puu);
  kustannukset.cmbJasentelynValinta.Rivit({"Perustamiskustannukset rakennusosittain"});
  kustannukset.cmbJasentelynValinta.Indeksi(0);
  kustannukset.NaytaJasentely();
  kustannukset.lblOletukset.Otsikko(
      "Nykyarvoa ei lasketa, koska laskennan oletusarvoja ei ole annettu. Anna ne valikosta.");
  for (const auto& laji : vaikutukset.lajit) laji.lblIlman.Otsikko("12,3 %");
  vaikutukset.lblTiedot.Otsikko(
      "Materiaaleja yhteensä: 2 345 678 kg, 12,3 % massasta ei ole mitään tietoa vaikutuksista.");
  profiili.cmbLaji.Rivit({"Ilmaston lämpeneminen CO2-ekv"});
  profiili.cmbLaji.Indeksi(0);
  profiili.Picture1.Kaavio({.otsikko = "Ilmaston lämpeneminen CO2-ekv",
                            .nimet = {"A1–A3 Materiaalit", "B6 Energia"},
                            .sarjat = {{"Tämä kohde", {6.2, 24.8}}},
                            .yksikko = "kg/m²"});
  for (Lomake* lomake : std::initializer_list<Lomake*>{&kustannukset, &oletukset, &vaikutukset, &profiili}) {
    for (const auto& ohjain : lomake->Ohjaimet())
      if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti("1 234 567,89");
    lomake->Nayta();
    OdotaMahtuvan(*lomake);
    dynamic_cast<Dialogikehys&>(*Juuri(*lomake).window()).Mahduta(kSuurennettuNaytto);
    QCoreApplication::processEvents();
    const auto* alue = Juuri(*lomake).findChild<QScrollArea*>("qt_vieritysalue");
    EXPECT_FALSE(alue->verticalScrollBar()->isVisible() || alue->horizontalScrollBar()->isVisible()) << lomake->Nimi();
  }
}

TEST_F(Taytetyt, TheComparisonOfTariffsFitsItsFieldsAndASmallScreen) {
  frmSahkotariffiVertailu lomake;
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti("1 234 567,89");
  lomake.cmbMyyntiTariffit.Rivit({"Aikasähkö, toistaiseksi voimassa oleva"});
  lomake.cmbMyyntiTariffit.Indeksi(0);
  Luettelosisalto kustannukset{{}, {"Yhteensä:", "123 456", "1 234 567", "1 358 023"}}, yhdistelmat;
  for (const char* nimi :
       {"Perusmaksu:", "Tehomaksu:", "Loistehomaksu:", "Energiamaksut:", "Sähkövero:", "Muut maksut:"})
    kustannukset.rivit.push_back({{nimi, "123 456", "1 234 567", "1 358 023"}});
  lomake.lvwKustannukset.Tayta(std::move(kustannukset));
  for (const char* avain : {"a", "b", "c", "d"})
    yhdistelmat.rivit.push_back(
        {{"Aikasähkö. Tehosiirto. ALV 25,5 %", "Aikasähkö 2007", "123 456", "Pienjännitetehosiirto, Kymenlaakso",
          "1 234 567", "1 358 023", "12 345", "1 234,5", "Tarjous 1.3.2026"},
         avain});
  yhdistelmat.rivit[1].piirteet.lihava = true;
  yhdistelmat.rivit[2].piirteet = {.merkitys = Merkitys::Huomio, .merkitty = 5};
  lomake.lvwYhdistelmat.Tayta(std::move(yhdistelmat));
  lomake.lblHalvinJaKallein.Otsikko(
      "Ero 1 234 €/a: halvin on Aikasähkö. Tehosiirto. ALV 25,5 %, kallein on Yleissähkö");
  lomake.Nayta();
  OdotaMahtuvan(lomake);
  EiVieritettava(lomake, kSuurennettuNaytto);
  TallennaKuva(lomake, "Pieni");
}

/// A tree of three levels with long names and large numbers.
Luettelosisalto Kulutuspuu(int lukuja) {
  Luettelosisalto sisalto;
  const auto lisaa = [&](const std::string& nimi, const char* ylempi, bool lihava) {
    Luettelorivi& rivi = sisalto.rivit.emplace_back();
    rivi.solut = {nimi};
    rivi.avain = nimi;
    rivi.ylempi = ylempi;
    rivi.piirteet.lihava = lihava;
    for (int i = 0; i < lukuja; ++i) rivi.LisaaLuku(123456.78, "##0.00");
  };
  lisaa("Yhteensä", "", true);
  for (const char* nimike : {"Muu sähkö", "LVI-sähkö", "Valaistus"}) lisaa(nimike, "Yhteensä", true);
  for (int i = 1; i <= 40; ++i)
    lisaa("Työväenopiston luokkahuoneet ja käytävät, itäsiipi " + std::to_string(i), "Valaistus", false);
  return sisalto;
}

TEST_F(Taytetyt, TheListsOfConsumersFitAMagnifiedScreen) {
  frmSahkoLaitteet sahko;
  sahko.lvwRyhmat.Tayta(Kulutuspuu(1));
  sahko.NaytaVertailu(12345, 23456, "0");
  sahko.Nayta();
  OdotaMahtuvan(sahko);
  EiVieritettava(sahko, kSuurennettuNaytto);
  TallennaKuva(sahko, "Pieni");

  frmVedenKulutus vesi;
  vesi.lvwRyhmat.Tayta(Kulutuspuu(3));
  vesi.NaytaVesivertailu(123456.78, 234567.89);
  for (const TextBox& kentta : {vesi.txtLKVKiertojohdonHaviot, vesi.txtLKVKiertovirtaama}) kentta.Luku(1234.56, "0.00");
  vesi.Nayta();
  OdotaMahtuvan(vesi);
  EXPECT_NE(Etsi<QLineEdit>(vesi, "txtErotus").palette().color(QPalette::Text),
            Etsi<QLineEdit>(vesi, "txtLaskettu").palette().color(QPalette::Text))
      << "a negative difference catches the eye";
  EiVieritettava(vesi, kSuurennettuNaytto);
  for (int sivu = 0; sivu < 3; ++sivu) {
    vesi.Etsi("tabVesi").Indeksi(sivu);
    TallennaKuva(vesi, "Sivu" + QString::number(sivu));
  }
}

TEST_F(Taytetyt, TheYearlySummaryFitsItsFields) {
  frmYhteenveto lomake;
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti("1 234 567");
  lomake.lblMitattu.Otsikko("Mitattu, vuosi 2025");
  lomake.lblPerusteet.Otsikko(Teksti(4723));
  lomake.lblHuomautukset.Otsikko(Teksti(4725) + "\n" + Teksti(4726));
  lomake.Laske();
  lomake.Nayta();
  OdotaMahtuvan(lomake);
  TallennaKuva(lomake, "Pieni");
}

/// An arranger of so many measures, every fourth row stale, and its picture.
void TaytaJarjestelija(const frmToimenpiteidenJarjestelija& lomake, int toimenpiteita) {
  for (const ListView& lista : {lomake.lvwToimenpiteet, lomake.lvwValitut})
    lista.Kohde().Osat({{.otsikko = "Toimenpide", .leveys = 1 / 2.9},
                        {.otsikko = "Säästö yhteensä (euro/a)", .leveys = 1 / 4.7},
                        {.otsikko = "Lämpöenergian säästö (euro/a)", .leveys = 1 / 4.7},
                        {.otsikko = "Sähköenergian säästö (euro/a)", .leveys = 1 / 4.7},
                        {.otsikko = "Veden säästö (euro/a)", .leveys = 1 / 4.7}});
  Luettelosisalto brutto, netto{{{.solut = {"Valitut yhteensä", "1 234 567", "123 456", "12 345", "0"},
                                  .avain = "yhteensä",
                                  .piirteet = {.lihava = true}}}};
  Kaaviotiedot kuva{.otsikko = "Lämpöenergia",
                    .nimet = {"Perustapaus"},
                    .sarjat = {{"Perustapaus ja tulos", {764}}, {"Toimenpide", {0}}, {"Kelluva toimenpide", {0}}},
                    .yksikko = "MWh/a"};
  for (int i = 1; i <= toimenpiteita; ++i) {
    const std::string nimi = "Luokkahuoneiden ja käytävien lisäeristys ja ikkunat, itäsiipi " + std::to_string(i);
    const std::vector<std::string> solut{nimi, "123 456", "12 345", "-1 234", "0"};
    brutto.rivit.push_back({.solut = solut, .avain = nimi, .piirteet = {.rasti = i % 2 == 0}});
    netto.rivit.push_back(
        {.solut = solut,
         .avain = nimi,
         .piirteet = {.siirrettava = true, .merkitys = i % 4 == 2 ? Merkitys::Vanhentunut : Merkitys::Tavallinen}});
    kuva.nimet.push_back(nimi);
    const double muutos = i % 5 == 3 ? 9.5 : -21.25;
    const double arvot[] = {0, i % 3 == 0 ? 0 : muutos, i % 3 == 0 ? muutos : 0};
    for (std::size_t s = 0; s < std::size(arvot); ++s) kuva.sarjat[s].arvot.push_back(arvot[s]);
  }
  kuva.nimet.push_back("Paketin jälkeen");
  for (Kaaviosarja& sarja : kuva.sarjat) sarja.arvot.push_back(&sarja == &kuva.sarjat[0] ? 355.5 : 0);
  lomake.lvwToimenpiteet.Tayta(std::move(brutto));
  lomake.lvwValitut.Tayta(std::move(netto));
  lomake.lvwValitut.Indeksi(std::min(3, toimenpiteita));
  lomake.chtVesiputous.Kaavio(std::move(kuva));
  lomake.lblPaketti.Otsikko(
      "Paketin takaisinmaksuaika: 12,3 a\nPäästöt vähenevät (CO₂-ekvivalentti): 123,4 t/a\nSäästö kunkin tilanteen "
      "omilla tariffeilla: 123 456 euro/a");
}

TEST_F(Taytetyt, TheArrangerFitsASmallScreenWithAFullPackage) {
  for (const int toimenpiteita : {0, 3, 26}) {
    frmToimenpiteidenJarjestelija lomake;
    TaytaJarjestelija(lomake, toimenpiteita);
    lomake.Nayta();
    OdotaMahtuvan(lomake);
    TallennaKuva(lomake, QString::number(toimenpiteita));
    EiVieritettava(lomake, kSuurennettuNaytto);
    TallennaKuva(lomake, QString::number(toimenpiteita) + "Pieni");
  }
}

TEST_F(Taytetyt, ASavingMeasureFitsItsFieldsAndAMagnifiedScreen) {
  frmSaastotoimenpide lomake;
  Luettelosisalto muutokset;
  for (int i = 1; i <= 12; ++i)
    muutokset.rivit.push_back(
        {{"Työväenopiston luokkahuoneet ja käytävät, itäsiipi, Ulkoseinä (" + std::to_string(i) + ")", "U-arvo",
          "0,40 W/m²K", "0,17 W/m²K"},
         Tunniste(std::to_string(i))});
  lomake.NaytaMuutokset(std::move(muutokset));
  lomake.NaytaVero(Teksti(tekstit::kMaksutSisaltavatAlvn));
  lomake.lblModuuli.Otsikko(Teksti(tekstit::kModuuliHankinta));
  for (const auto& ohjain : lomake.Ohjaimet())
    if (ohjain->Tyyppi() == Ohjaintyyppi::TextBox) ohjain->Teksti(ohjain->Lukittu() ? "123 456,78" : "12345,67");
  lomake.Etsi("txtNimi").Teksti("Työväenopiston luokkahuoneet ja käytävät, itäsiipi, lisäeristys");
  lomake.lblHuomautus.Otsikko(Teksti(tekstit::kLahtotilanneMuuttui));
  lomake.Nayta();
  OdotaMahtuvan(lomake);
  EiVieritettava(lomake, {1092, 614});
  for (const char* kuva :
       {"ToimenpideTila", "ToimenpideIVKone", "ToimenpideSahko", "ToimenpideVesi", "ToimenpideHankinta"}) {
    lomake.imgModuuli.Kuva(kuva);
    QCoreApplication::processEvents();
    TallennaKuva(lomake, kuva);
    EXPECT_GT(Piirretty(*Juuri(lomake).findChild<QWidget*>("imgModuuli")), 300) << kuva;
  }
}

void TaytaKone(frmIlmanvaihtokone& lomake) {
  lomake.Tilat({"Työväenopiston luokkahuoneet ja käytävät, itäsiipi", "Kirjasto"});
  lomake.cmbLiittyyTilaan.Indeksi(1);
  lomake.txtKoneenTunnus.Teksti("TK01/PK01 luokat ja käytävät, itäsiipi");
  lomake.txtTuloIlmavirta11Teho.Luku(12.345, "0.00#");
  lomake.txtPoistoIlmavirta11Teho.Luku(12.5, "0.00#");
  lomake.txtSisaanpuhallusLampotila.Luku(18, "0.0#");
  lomake.txtPoistoLampotila.Luku(21.25, "0.0#");
  lomake.txtIlmanLampeneminenPuhaltimessa.Luku(1, "0.0#");
  lomake.txtLtoHyotysuhde.Luku(62.5, "0.0#");
  lomake.cmbJarjestelmaTyyppi.Indeksi(2);
  lomake.cmbPuhaltimenVoimansiirtoTapa.Indeksi(0);
  lomake.cmbPuhaltimenSaatotapa.Indeksi(5);
  lomake.cmbVakioPaineOsuus.Indeksi(3);
  lomake.txtKayntiaika.Luku(8760, "### ##0");
  for (const TextBox& kentta : {lomake.txtJalkilammitys, lomake.txtPuhallinSahko, lomake.txtLtoEnergia})
    kentta.Luku(12345.67, "### ##0.00");
  lomake.lblHuomautus.Otsikko(Teksti(3037));
}

TEST_F(Taytetyt, TheMachinesFormsFitTheirFields) {
  frmIlmanvaihtokone kone;
  TaytaKone(kone);
  kone.Nayta();
  for (int periaate = 0; periaate < kone.cmbIVPeriaate.Maara(); ++periaate) {
    kone.cmbIVPeriaate.Indeksi(periaate);
    kone.PaivitaKentat();
    OdotaMahtuvan(kone);
    TallennaKuva(kone, QString::number(periaate));
  }
  const QWidget* huomautus = Juuri(kone).findChild<QWidget*>("lblHuomautus");
  EXPECT_GE(huomautus->height(), huomautus->heightForWidth(huomautus->width()));

  frmLTOhyotylaskenta lto;
  for (const TextBox& kentta : {lto.txtTu, lto.txtTp, lto.txtTlto}) kentta.Luku(-12.34, "0.0#");
  lto.txtLtoHyotysuhde.Luku(62.5, "0.0");
  lto.Nayta();
  OdotaMahtuvan(lto);

  frmIVKoneYhteenveto luettelo;
  luettelo.lvwKoneet.Rivit({{"TK01 Työväenopisto", "Tulo- ja poistoilmakone", "Luokkahuoneet", "12,345", "12,50",
                             "2 650", "1 234,56", "2 345,67", "123,45"},
                            {"PK03", "Poistoilmakone", "---", "0,00", "0,45", "8 760", "0,00", "0,00", "3,94"}});
  luettelo.lvwKoneet.Summarivi({"Yhteensä", "", "", "12,345", "12,95", "", "1 234,56", "2 345,67", "127,39"});
  luettelo.lvwKoneet.Indeksi(0);
  luettelo.luettelo.PaivitaNapit();
  luettelo.Nayta();
  OdotaMahtuvan(luettelo);
}

void TaytaTekijat(const Kulutuslomake& lomake) {
  lomake.txtKulutusRyhmanNimi.Teksti("Luokkahuoneet ja käytävät, vanhat loistelamput");
  lomake.txtOminaissuureidenMaara.Luku(123456.5, "0.0");
  lomake.txtLaskentaYksikoidenMaara.Luku(1234567.8, "0.0");
  lomake.txtKayttomaaraTunnitVrk_ssa.Teksti("12,5");
  lomake.txtKayttomaaraVrktVuodessa.Teksti("365");
  lomake.txtTasauskerroin.Teksti("0,85");
  lomake.txtKulutus.Luku(1234567.89, "### ##0.00");
}

TEST_F(Taytetyt, GroupsOfConsumersFitTheirFieldsInEachWayOfCalculation) {
  for (const bool teho : {true, false}) {
    frmTarkennettuLaiteLaskenta laite;
    laite.cmbLiittyyTilaan.Rivit({"---", "Luokkahuone 112, maantieto ja luonnontieto"});
    laite.cmbLiittyyTilaan.Indeksi(1);
    laite.Yksikot(teho);
    laite.cmbLaskentaOminaissuure.Indeksi(teho ? 2 : 6);
    laite.optLaskentatapa[teho ? 0 : 1].Valittu(true);
    laite.optEnergiamoodit[2].Valittu(true);
    TaytaTekijat(laite);
    laite.txtLaskentayksikko.Teksti("rasvakeitintä");
    laite.txth_per_a.Luku(8760, "### ##0");
    laite.txtKulutus2.Teksti("12345,6");
    laite.txtKulutusRyhmienMaara.Teksti("1000");
    laite.txtKokonaiskulutus.Luku(123456789.12, "### ##0.00");
    laite.Taytetty();
    laite.lblMuuntokerroin.Otsikko("1000000");
    laite.Nayta();
    OdotaMahtuvan(laite);
    TallennaKuva(laite, teho ? "Teho" : "Energia");
  }
  frmTarkennettuVesiLaskenta vesi;
  for (const int yksikko : {0, 1}) {
    vesi.cmbLaskentaOminaissuure.Indeksi(yksikko);
    TaytaTekijat(vesi);
    vesi.txtLaskentayksikko2.Teksti("asukasta");
    vesi.txtVedenKayttoLampotila.Teksti("38,0");
    vesi.txtLampimanVedenOsuus.Teksti("66");
    vesi.lblVedenTiedot.Otsikko("Kylmä vesi 5,0 °C, lämmin vesi 55,0 °C");
    vesi.txtVedenLammittamisenEnergia.Luku(123456.78, "### ##0.00");
    vesi.Taytetty();
    vesi.lblMuuntokerroin.Otsikko("16,6667");
    vesi.Nayta();
    OdotaMahtuvan(vesi);
    TallennaKuva(vesi, QString::number(yksikko));
  }
}

TEST_F(Taytetyt, ThePictureOfTheSystemChangesAndFollowsTheTheme) {
  frmIlmanvaihtokone kone;
  kone.Nayta();
  auto* pinta = Juuri(kone).findChild<QWidget*>("imgPeriaate");
  EXPECT_EQ(pinta->accessibleName(), "Koneen periaatekuva");
  kone.PaivitaKentat();
  EXPECT_EQ(Piirretty(*pinta), 0) << "no principle chosen";
  QList<QImage> kuvat;
  for (int periaate = 0; periaate < kone.cmbIVPeriaate.Maara(); ++periaate) {
    kone.cmbIVPeriaate.Indeksi(periaate);
    kone.PaivitaKentat();
    EXPECT_GT(Piirretty(*pinta), 1000);
    const QImage kuva = pinta->grab().toImage();
    EXPECT_FALSE(kuvat.contains(kuva));
    kuvat << kuva;
  }
  QPalette tumma = pinta->palette();
  tumma.setColor(QPalette::Window, Qt::black);
  tumma.setColor(QPalette::WindowText, Qt::white);
  pinta->setPalette(tumma);
  const QImage kuva = pinta->grab().toImage();
  bool valkoista = false;
  for (int y = 0; y < kuva.height(); ++y)
    for (int x = 0; x < kuva.width(); ++x) valkoista = valkoista || kuva.pixel(x, y) == qRgb(255, 255, 255);
  EXPECT_TRUE(valkoista);
}

}  // namespace
