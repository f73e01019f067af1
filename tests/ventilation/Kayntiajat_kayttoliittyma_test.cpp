// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog of the running times, driven as a person would, without a screen.
#include <tuple>

#include "kernel/Luvut.h"
#include "tests/tuki/Lahdekoodi.h"
#include "tests/ventilation/Koekone.h"
#include "ui/Ikkunaton.h"
#include "ui/Kenttatarkistus.h"
#include "ui/Viikkokuvaus.h"

namespace {

class KayntiaikaDialogi : public KoneTesti {
 protected:
  KayntiaikaDialogi() : ikkunat(Lahdekoodi("ui/forms")) {
    AsetaTarkistuksenKello([] { return kello += 2000; });
  }
  ~KayntiaikaDialogi() override { AsetaTarkistuksenKello(nullptr); }

  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmIlmanvaihtokoneenKayntiajat", kasikirjoitus);
    return ajat.NaytaKayttoliittyma();
  }
  static void Kirjoita(Ikkunaton& l, const char* kentta, const char* teksti) {
    l.KayttajaKirjoittaa(kentta, teksti);
    l.KayttajaPoistuu(kentta);
  }
  static void Ok(Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); }
  static void Peruuta(Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); }
  static const std::vector<std::string>& Jakso(const Ikkunaton& l, std::size_t rivi) {
    return l.Etsi("lvwJaksot").Rivit()[rivi];
  }
  clsKayntiAika& Rivi(int rivi, int vuosijakso = clsKayntiAika::KokoVuosi) const {
    return ajat.Item(clsKayntiAjat::JaksonAvain(rivi, vuosijakso));
  }
  /// All that a schedule holds.
  auto Sisalto() const {
    std::vector<std::tuple<Tunniste, Tunniste, int, int, int, int, double, double, double>> jaksot;
    for (const clsKayntiAika& j : ajat)
      jaksot.emplace_back(j.sKey, j.InstanssiId, j.Jakso, j.KayntiJaksojenLkm, j.Alkaa.minuutit, j.Paattyy.minuutit,
                          j.TuloIlmavirtaProsentti, j.Tsp, j.dTPuhallin);
    return std::tuple(jaksot, ajat.KayntiaikojenSyottotapaID, ajat.KayntiAikojenSyottoTapa);
  }

  static inline std::uint32_t kello = 0;
  Ikkunattomat ikkunat;
  clsIVKone& kone = LisaaKone();
  clsKayntiAjat& ajat = kone.KayntiAikaYleistiedot;
};

TEST_F(KayntiaikaDialogi, WhatIsWrittenIsUnderstoodAndCountedAtOnce) {
  ajat.IvKoneenNimi = "TK1";
  EXPECT_TRUE(Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Otsikko(), "TK1: Ilmanvaihtokoneen käyntiajat");
    EXPECT_EQ(l.Teksti("txtTunnit1"), "") << "a line that isn't run";
    Kirjoita(l, "txtKayntiJaksojenLkm1", "5");
    EXPECT_EQ(l.Teksti("txtTunnit1"), "24,0") << "equal times";
    l.KayttajaKirjoittaa("txtAlkaa1", "620");
    l.KayttajaKirjoittaa("txtPaattyy1", "17.45");
    EXPECT_EQ(l.Teksti("txtPaattyy1"), "17.45") << "not under the person's hands";
    EXPECT_EQ(l.Teksti("txtTunnit1"), "11,42");
    for (const char* kentta : {"txtAlkaa1", "txtPaattyy1"}) l.KayttajaPoistuu(kentta);
    EXPECT_EQ(l.Teksti("txtAlkaa1"), "06:20");
    EXPECT_EQ(l.Teksti("txtPaattyy1"), "17:45");
    Kirjoita(l, "txtTuloIlmavirtaProsentti1", "80");
    Kirjoita(l, "txtKayntiJaksojenLkm2", "7");
    Kirjoita(l, "txtTuloIlmavirtaProsentti2", "30");
    // 365 d × 5/7 × 11 h 25 min, and all hours of the year
    const double eka = 365 * 5 / 7.0 * (11 + 25 / 60.0), toka = 8760;
    EXPECT_EQ(Jakso(l, 0),
              (std::vector<std::string>{"Tammi-joulukuu vakiokäyttö", "2", Muotoile(eka + toka, "# ### ##0"),
                                        Muotoile((80 * eka + 30 * toka) / (eka + toka), "0.#")}));
    Ok(l);
  }));
  EXPECT_EQ(Rivi(1).Alkaa.minuutit, 380);
  EXPECT_EQ(Rivi(1).Paattyy.minuutit, 17 * 60 + 45);
  EXPECT_EQ(Rivi(1).KayntiJaksojenLkm, 5);
  EXPECT_EQ(ajat.KayntiAikojenSyottoTapa, "Vakiokäyttö koko vuoden");
}

TEST_F(KayntiaikaDialogi, FirstQuarterIsCopiedToTheOthersButNotToTheYear) {
  Kayta(kone, Toimistoajat(), clsKayntiAika::EkaNeljannes);
  const auto vuosi = Rivi(2).InstanssiId;
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    EXPECT_FALSE(l.Etsi("cmdKopioiMuihin").Kaytossa()) << "there are no others";
    l.KayttajaValitsee("cmbKayntiAikojenSyottoTapa", "Neljännesvuosittain");
    EXPECT_EQ(l.Etsi("lvwJaksot").Rivit().size(), 4u);
    EXPECT_EQ(Jakso(l, 2)[1], "0");
    l.KayttajaValitsee("lvwJaksot", "Kesä-elokuu");
    Kirjoita(l, "txtTsp7", "19");
    EXPECT_EQ(Rivi(7, 2).Tsp, 19);
    l.KayttajaPainaa("cmdKopioiMuihin");
    EXPECT_EQ(l.Teksti("txtTuloIlmavirtaProsentti2"), "50,0") << "the season shown follows";
    EXPECT_EQ(l.Teksti("txtTsp7"), "16,0");
    EXPECT_EQ(l.Etsi("lvwJaksot").Summarivi()[1], "12");
    Ok(l);
  }));
  EXPECT_EQ(ajat.KayntiaikojenSyottotapaID, 1);
  EXPECT_EQ(ajat.KayntiAikojenSyottoTapa, "Neljännesvuosittain");
  for (int vuosijakso = 0; vuosijakso < 4; ++vuosijakso) {
    EXPECT_EQ(Rivi(2, vuosijakso).Paattyy.minuutit, 6 * 60 + 20);
    EXPECT_EQ(Rivi(2, vuosijakso).Jakso, vuosijakso);
  }
  EXPECT_EQ(Rivi(2).KayntiJaksojenLkm, 0);
  EXPECT_EQ(Rivi(2).InstanssiId, vuosi);
  // The quarters together are the year-round use of the same lines.
  Kayta(kone, Toimistoajat());
  double neljannekset = 0;
  for (int vuosijakso = 0; vuosijakso < 4; ++vuosijakso) neljannekset += ajat.Vuosijaksolta(vuosijakso).virtatunnit;
  EXPECT_NEAR(neljannekset, ajat.Vuosijaksolta(clsKayntiAika::KokoVuosi).virtatunnit, 1e-6);
}

TEST_F(KayntiaikaDialogi, CancelRestoresAndALackingScheduleIsMadeOnlyByOk) {
  Kayta(kone, Toimistoajat());
  const auto muuta = [](Ikkunaton& l) {
    l.KayttajaValitsee("cmbKayntiAikojenSyottoTapa", "Neljännesvuosittain");
    Kirjoita(l, "txtKayntiJaksojenLkm1", "3");
    l.KayttajaPainaa("cmdKopioiMuihin");
    Peruuta(l);
  };
  const auto ennen = Sisalto();
  EXPECT_FALSE(Muokkaa(muuta));
  EXPECT_EQ(Sisalto(), ennen);
  ajat.Tyhjenna();
  EXPECT_FALSE(Muokkaa(muuta));
  EXPECT_EQ(ajat.Count(), 0);
  clsKayntiAika& oma = ajat.Add("2KokoVuosi");
  oma.Jakso = clsKayntiAika::KokoVuosi;
  oma.Tsp = 20;
  EXPECT_TRUE(Muokkaa(Ok));
  EXPECT_EQ(ajat.Count(), 35);
  EXPECT_EQ(Rivi(2).Tsp, 20) << "what there was stays";
}

TEST_F(KayntiaikaDialogi, WhatIsNoTimeStaysToBeMended) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    l.KayttajaValitsee("cmbKayntiAikojenSyottoTapa", "Neljännesvuosittain");
    Kirjoita(l, "txtAlkaa3", "7:75");
    EXPECT_EQ(l.Teksti("txtAlkaa3"), "7:75");
    l.KayttajaValitsee("lvwJaksot", "Kesä-elokuu");
    EXPECT_EQ(l.Etsi("lvwJaksot").Indeksi(), 0) << "not left with a bad field";
    l.KayttajaValitsee("cmbKayntiAikojenSyottoTapa", "Vakiokäyttö koko vuoden");
    EXPECT_EQ(l.Etsi("cmbKayntiAikojenSyottoTapa").Indeksi(), 1);
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(l.Kohdistettu(), "txtAlkaa3");
    EXPECT_EQ(viestit.Esiintymia("hh:mm"), 3);
    Kirjoita(l, "txtAlkaa3", "7:45");
    Kirjoita(l, "txtTuloIlmavirtaProsentti1", "-1");
    Ok(l);
    EXPECT_EQ(l.Kohdistettu(), "txtTuloIlmavirtaProsentti1");
    Kirjoita(l, "txtTuloIlmavirtaProsentti1", "0");
    Ok(l);
  }));
  EXPECT_EQ(Rivi(3, clsKayntiAika::EkaNeljannes).Alkaa.minuutit, 465);
}

TEST_F(KayntiaikaDialogi, LinesThatDoNotDoWhatTheySeemToAreTold) {
  Muokkaa([](Ikkunaton& l) {
    const auto huomautus = [&l] { return l.Teksti("lblHuomautus"); };
    EXPECT_EQ(huomautus(), "");
    Kirjoita(l, "txtKayntiJaksojenLkm2", "8");
    EXPECT_NE(huomautus().find("Rivi 2: ilmavirta on 0"), std::string::npos);
    Kirjoita(l, "txtTuloIlmavirtaProsentti2", "100");
    EXPECT_NE(huomautus().find("on 8."), std::string::npos);
    Kirjoita(l, "txtdTPuhallin2", "1,5");
    EXPECT_NE(huomautus().find("alle 15"), std::string::npos);
    Kirjoita(l, "txtTsp2", "30");
    Kirjoita(l, "txtKayntiJaksojenLkm2", "7");
    EXPECT_EQ(huomautus(), "");
    Kirjoita(l, "txtTsp2", "30,5");
    EXPECT_NE(huomautus().find("yli 30"), std::string::npos);
    Ok(l);
  });
  EXPECT_TRUE(viestit.Naytetyt().empty());
}

TEST_F(KayntiaikaDialogi, TimesAreGivenAsHours) {
  Kayta(kone, {{7, 22 * 60 + 30, 6 * 60 + 15, 100}});
  const auto tunteina = [this](Ikkunaton& l, const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmSyotaTuntiTiedot", kasikirjoitus);
    l.KayttajaPainaa("cmdTunteina1");
  };
  Muokkaa([&](Ikkunaton& l) {
    tunteina(l, [](Ikkunaton& t) {
      EXPECT_EQ(t.Teksti("txtTunteja"), "7,75");
      Kirjoita(t, "txtAlkaa", "20");
      EXPECT_EQ(t.Teksti("txtPaattyy"), "03:45") << "the length stays";
      Peruuta(t);
    });
    EXPECT_EQ(l.Teksti("txtAlkaa1"), "22:30");
    tunteina(l, [](Ikkunaton& t) {
      t.KayttajaKirjoittaa("txtTunteja", "25");
      Ok(t);
      EXPECT_TRUE(t.Auki());
      t.KayttajaKirjoittaa("txtTunteja", "1,5");
      EXPECT_EQ(t.Teksti("txtPaattyy"), "00:00");
      Ok(t);
    });
    EXPECT_EQ(l.Teksti("txtPaattyy1"), "00:00");
    EXPECT_EQ(l.Teksti("txtTunnit1"), "1,5");
    Ok(l);
  });
  EXPECT_EQ(Rivi(1).Alkaa.minuutit, 22 * 60 + 30);
  EXPECT_EQ(Rivi(1).KayntiTunnit(), 1.5);
}

double Virtatunnit(const Kaaviotiedot& kuva) {
  double summa = 0;
  for (std::size_t i = 0; i < kuva.sarjat[kPaivat].arvot.size(); ++i)
    summa += (kuva.sarjat[kLoput].arvot[i] - kuva.sarjat[kAlut].arvot[i]) / 60 * kuva.sarjat[kVirrat].arvot[i];
  return summa;
}

TEST_F(KayntiaikaDialogi, PictureOfTheWeekHoldsEveryHourOfTheLines) {
  const Kaaviotiedot toimisto = Viikkokuvaus(
      "", {{5, {380}, {1065}, 100}, {5, {1065}, {380}, 50}, {2, {0}, {0}, 40}, {0, {0}, {60}, 100}, {3, {0}, {60}, 0}});
  EXPECT_NEAR(Virtatunnit(toimisto), 5 * 685 / 60.0 * 100 + 5 * 755 / 60.0 * 50 + 2 * 24 * 40, 1e-9);
  // Monday has three periods; Friday's night goes on into Saturday, over the weekend's own use.
  EXPECT_EQ(std::ranges::count(toimisto.sarjat[kPaivat].arvot, 0), 2);
  EXPECT_EQ(std::ranges::max(toimisto.sarjat[kVirrat].arvot), 100);
  const auto lauantai = std::ranges::find(toimisto.sarjat[kPaivat].arvot, 5) - toimisto.sarjat[kPaivat].arvot.begin();
  EXPECT_EQ(toimisto.sarjat[kVirrat].arvot[static_cast<std::size_t>(lauantai)], 90);
  EXPECT_EQ(toimisto.sarjat[kLoput].arvot[static_cast<std::size_t>(lauantai)], 380);

  const auto paivat = [](const std::vector<Viikkokaynti>& kaynnit) {
    return Viikkokuvaus("", kaynnit).sarjat[kPaivat].arvot;
  };
  EXPECT_EQ(paivat({{3, {60}, {120}, 1}}), (std::vector<double>{0, 1, 2}));
  EXPECT_EQ(paivat({{1, {60}, {120}, 1}, {1, {60}, {120}, 1}}), (std::vector<double>{5, 6}));
  EXPECT_EQ(paivat({{6, {60}, {120}, 1}, {1, {60}, {120}, 1}}).size(), 7u) << "Sunday is the free day";
  EXPECT_EQ(paivat({{10, {60}, {120}, 1}}).size(), 7u);
  EXPECT_NEAR(Virtatunnit(Viikkokuvaus("", {{7, {1439}, {1438}, 100}})), 7 * 1439 / 60.0 * 100, 1e-9)
      << "Sunday's night goes on on Monday";
}

}  // namespace
