// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs of the fans, driven as a person would, without a screen.
#include <cmath>

#include "kernel/Luvut.h"
#include "tests/tuki/Lahdekoodi.h"
#include "tests/ventilation/Koekone.h"
#include "ui/Ikkunaton.h"
#include "ui/Kenttatarkistus.h"

namespace {

class PuhallinDialogi : public KoneTesti {
 protected:
  PuhallinDialogi() : ikkunat(Lahdekoodi("ui/forms")) {
    AsetaTarkistuksenKello(nullptr);
    kone.KoneenTunnus = "TK1";
    kone.TuloIlmavirta11Teho = 2;
    kone.PoistoIlmavirta11Teho = 2.5;
    puhaltimet.TuloSahkoTeho11 = 4.1234;
    puhaltimet.PoistoSahkoTeho11 = 3;
  }

  bool Muokkaa(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    kone.PaivitaPuhaltimienTiedot();
    ikkunat.KunNaytetaan("frmIVKoneenPuhaltimienSahkonKaytto", kasikirjoitus);
    return puhaltimet.NaytaKayttoliittyma();
  }
  void KunTarkennetaan(const std::function<void(Ikkunaton&)>& kasikirjoitus) {
    ikkunat.KunNaytetaan("frmPuhaltimenOttotehonTarkennettuLaskenta", kasikirjoitus);
  }
  static void Ok(Ikkunaton& l) { l.KayttajaPainaa("cmdOk"); }
  static void Peruuta(Ikkunaton& l) { l.KayttajaPainaa("cmdPeruuta"); }
  static const Kaaviotiedot& Kayra(const Ikkunaton& l) { return l.Etsi("chtOsateho").Kaavio(); }

  Ikkunattomat ikkunat;
  clsIVKone& kone = LisaaKone();
  clsPuhaltimenSahkonKulutus& puhaltimet = kone.PuhaltimienSahkonKulutus;
};

TEST_F(PuhallinDialogi, PowerIsGivenByHandOrCalculatedFromItsParts) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    EXPECT_EQ(l.Otsikko(), "TK1: Puhaltimien sähkönkäyttö");
    EXPECT_EQ(l.Teksti("txtOminaistehoPoisto"), "1,20");
    l.KayttajaKirjoittaa("txtSahkoTeho11Poisto", "5");
    EXPECT_EQ(l.Etsi("cmbTeho11TiedonLaatuPoisto").Indeksi(), 1) << "written by hand is given";
    EXPECT_EQ(l.Teksti("txtOminaistehoPoisto"), "2,00");
    KunTarkennetaan([](Ikkunaton& t) {
      EXPECT_EQ(t.Otsikko(), "Poistopuhallin: Puhaltimen ottotehon tarkennettu laskenta");
      EXPECT_EQ(t.Teksti("txtIlmavirta"), "2,5") << "the machine's";
      t.KayttajaKirjoittaa("txtPaineenKorotus", "900");
      t.KayttajaKirjoittaa("txtPuhaltimenHyotysuhde", "");
      t.KayttajaKirjoittaa("txtPuhaltimenHyotysuhde", "50");
      EXPECT_EQ(t.Teksti("txtOttoteho"), "5,371") << "2,5 × 0,9 / (0,5 × 0,95 × 0,9 × 0,98)";
      Peruuta(t);
    });
    l.KayttajaValitsee("cmbTeho11TiedonLaatuPoisto", "Laskettu");
    EXPECT_EQ(l.Etsi("cmbTeho11TiedonLaatuPoisto").Indeksi(), 1) << "nothing was calculated";
    EXPECT_EQ(puhaltimet.PoistoPuhParam.PaineenKorotus, 0);
    KunTarkennetaan([](Ikkunaton& t) {
      t.KayttajaKirjoittaa("txtPaineenKorotus", "900");
      t.KayttajaKirjoittaa("txtMoottorinHyotysuhde", "0");
      EXPECT_EQ(t.Teksti("txtOttoteho"), "---");
      Ok(t);
      EXPECT_TRUE(t.Auki());
      t.KayttajaKirjoittaa("txtMoottorinHyotysuhde", "90");
      Ok(t);
    });
    l.KayttajaPainaa("cmdTarkennettuPoisto");
    EXPECT_EQ(l.Etsi("cmbTeho11TiedonLaatuPoisto").Indeksi(), 0);
    EXPECT_EQ(l.Teksti("txtSahkoTeho11Poisto"), "4,475");
    Ok(l);
  }));
  EXPECT_DOUBLE_EQ(puhaltimet.PoistoSahkoTeho11, 2.5 * 0.9 / (0.6 * 0.95 * 0.9 * 0.98));
  EXPECT_EQ(puhaltimet.Teho11TiedonLaatuIDPoisto, clsPuhaltimenSahkonKulutus::Laskettu);
  EXPECT_EQ(puhaltimet.PoistoPuhParam.Ilmavirta, 2.5);
}

TEST_F(PuhallinDialogi, PartPowerFollowsTheFlowUntilItIsGiven) {
  EXPECT_TRUE(Muokkaa([this](Ikkunaton& l) {
    const double puoliteho = puhaltimet.TuloSahkoOsaTeho();
    EXPECT_EQ(l.Teksti("txtSahkoOsaTehoTulo"), Muotoile(puoliteho, "0.000"));
    for (const char* teksti : {"", "5", "5x", "500"}) l.KayttajaKirjoittaa("txtOsaTehoProsentti", teksti);
    EXPECT_EQ(l.Teksti("txtSahkoOsaTehoTulo"), "---");
    EXPECT_NE(l.Teksti("lblHuomautus"), "");
    EXPECT_TRUE(viestit.Naytetyt().empty()) << "not while the field is half written";
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(l.Kohdistettu(), "txtOsaTehoProsentti");
    l.KayttajaKirjoittaa("txtOsaTehoProsentti", "80");
    EXPECT_GT(LueLuku(l.Teksti("txtSahkoOsaTehoTulo")), puoliteho);
    EXPECT_EQ(l.Teksti("lblHuomautus"), "");
    l.KayttajaKirjoittaa("txtSahkoOsaTehoTulo", "1,5");
    EXPECT_EQ(l.Etsi("cmbOsaTehoTiedonLaatuTulo").Indeksi(), 1);
    l.KayttajaValitsee("cmbOsaTehoTiedonLaatuPoisto", "Annettu");
    l.KayttajaKirjoittaa("txtOsaTehoProsentti", "60");
    EXPECT_EQ(l.Teksti("txtSahkoOsaTehoTulo"), "1,5");
    Ok(l);
  }));
  EXPECT_EQ(puhaltimet.TuloSahkoOsaTeho(), 1.5);
  EXPECT_EQ(puhaltimet.OsaTehoProsentti, 60);
  puhaltimet.OsaTehoTiedonLaatuIDPoisto = clsPuhaltimenSahkonKulutus::Laskettu;
  puhaltimet.OsaTehoProsentti = 80;
  EXPECT_EQ(puhaltimet.TallennettuPoistoSahkoOsaTeho(), puhaltimet.PoistoSahkoOsaTeho()) << "begins as calculated";
}

TEST_F(PuhallinDialogi, CurveAndFieldsAreThoseOfTheMachine) {
  Muokkaa([this](Ikkunaton& l) {
    ASSERT_EQ(Kayra(l).sarjat.size(), 2u);
    EXPECT_EQ(Kayra(l).arvot.front(), 30);
    EXPECT_NEAR(Kayra(l).sarjat[0].arvot.back(), 4.1234, 1e-6);
    EXPECT_EQ(Kayra(l).sarjat[1].arvot[20], puhaltimet.PoistoSahkoOsaTeho());
    l.KayttajaKirjoittaa("txtTeho11Prosentti", "8");
    EXPECT_TRUE(Kayra(l).sarjat.empty());
    EXPECT_TRUE(viestit.Naytetyt().empty());
    Peruuta(l);
  });
  kone.JarjestelmaTyyppiID = PuhaltimenTeho::Kaksinopeus;
  kone.IVPeriaateID = clsIVKone::Poistoilmakone;
  puhaltimet.OsaTehoProsentti = 70;
  Muokkaa([this](Ikkunaton& l) {
    ASSERT_EQ(Kayra(l).sarjat.size(), 1u);
    const auto& tehot = Kayra(l).sarjat[0].arvot;
    EXPECT_EQ(std::ranges::count_if(tehot, [](double t) { return std::isfinite(t); }), 34 + 1) << "33 to 66 %, 100 %";
    EXPECT_EQ(tehot.back(), 3);
    for (const char* nimi : {"txtSahkoTeho11Tulo", "cmdTarkennettuTulo", "txtSahkoOsaTehoTulo", "txtTeho11Prosentti"})
      EXPECT_FALSE(l.Etsi(nimi).Kaytossa()) << nimi;
    Ok(l);
    EXPECT_TRUE(l.Auki());
    EXPECT_EQ(viestit.Esiintymia("33–66"), 1) << "the range of two speeds is the model's own message";
    l.KayttajaKirjoittaa("txtOsaTehoProsentti", "50");
    Ok(l);
  });
  kone.JarjestelmaTyyppiID = PuhaltimenTeho::Vakioilmavirta;
  Muokkaa([](Ikkunaton& l) {
    EXPECT_EQ(l.Teksti("txtSahkoOsaTehoPoisto"), "3,000");
    for (const char* nimi : {"txtOsaTehoProsentti", "txtSahkoOsaTehoPoisto", "cmbOsaTehoTiedonLaatuPoisto"})
      EXPECT_FALSE(l.Etsi(nimi).Kaytossa()) << nimi;
    Ok(l);
  });
}

TEST_F(PuhallinDialogi, CancelRestoresTheFansWithTheirParts) {
  const auto sisalto = [this] {
    const auto& p = puhaltimet;
    return std::vector<double>{p.TuloSahkoTeho11,
                               p.PoistoSahkoTeho11,
                               p.Teho11Prosentti,
                               p.OsaTehoProsentti,
                               p.TallennettuTuloSahkoOsaTeho(),
                               p.TallennettuPoistoSahkoOsaTeho(),
                               double(p.Teho11TiedonLaatuIDTulo),
                               double(p.OsaTehoTiedonLaatuIDTulo),
                               p.TuloPuhParam.Ilmavirta,
                               p.TuloPuhParam.PaineenKorotus};
  };
  const auto ennen = sisalto();
  EXPECT_FALSE(Muokkaa([this](Ikkunaton& l) {
    KunTarkennetaan([](Ikkunaton& t) {
      t.KayttajaKirjoittaa("txtPaineenKorotus", "900");
      Ok(t);
    });
    l.KayttajaPainaa("cmdTarkennettuTulo");
    l.KayttajaKirjoittaa("txtSahkoTeho11Tulo", "9");
    l.KayttajaKirjoittaa("txtTeho11Prosentti", "90");
    l.KayttajaKirjoittaa("txtOsaTehoProsentti", "40");
    l.KayttajaValitsee("cmbOsaTehoTiedonLaatuTulo", "Annettu");
    EXPECT_EQ(puhaltimet.TuloPuhParam.PaineenKorotus, 900);
    Peruuta(l);
  }));
  EXPECT_EQ(sisalto(), ennen);
}

}  // namespace
