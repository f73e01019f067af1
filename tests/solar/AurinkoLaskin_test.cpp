// SPDX-License-Identifier: GPL-3.0-or-later
#include "solar/AurinkoLaskin.h"

#include "tests/solar/Koetiedostot.h"
#include "tests/solar/Muistivaraukset.h"

namespace {

enum { kPohjoinen, kIta, kEtela, kLansi, kVaaka };

class AurinkoLaskinTesti : public Koetiedostot {
 protected:
  const std::string saa = Kirjoita("SaaVyohyke1.txt", kSaaVyohyke1);
  const std::string fh = Kirjoita("CenFh_Table.txt", kFh);
  const std::string fo = Kirjoita("CenFo_Table.txt", kFo);
  const std::string ff = Kirjoita("CenFf_Table.txt", kFf);

  AurinkoLaskin Laskin() const {
    AurinkoLaskin laskin;
    laskin.LataaSaa(saa);
    laskin.LataaFh(fh);
    return laskin;
  }

  /// 2 m², g 0.6, frame and curtain 0.75, no fins.
  LaskentaIkkuna Ikkuna(int suuntaus) const {
    LaskentaIkkuna ikkuna;
    ikkuna.Suuntaus = suuntaus;
    ikkuna.PintaAla = 2;
    ikkuna.U_arvo = 1.4;
    ikkuna.Aurinkoenergianlapaisy = 0.6;
    ikkuna.Karmikerroin = ikkuna.Verhokerroin = 0.75;
    ikkuna.LataaFf(ff);
    ikkuna.LataaFo(fo);
    return ikkuna;
  }

  /// With horizon 15, overhang 25 and side fin 10 degrees.
  LaskentaIkkuna VarjostettuIkkuna(int suuntaus) const {
    LaskentaIkkuna ikkuna = Ikkuna(suuntaus);
    ikkuna.YlaLippaKulma = 25;
    ikkuna.SivuLippaKulma = 10;
    return ikkuna;
  }
};

// April, south: I = 386.28 MJ/m².  386.28 x 2 x 0.9 x 0.6 x 0.75 x 0.75 = 234.6651 MJ unshaded.
// At 60 degrees, half way from 55 to 65:  Fh(15) = (0.81 + 0.72) / 2 = 0.765;
// Fo(25) = 1 - 25/30 x (0.07 + 0.05) / 2 = 0.95;  Ff(10) = 1 - 10/30 x 0.06 = 0.98.
// 234.6651 x 0.765 x 0.95 x 0.98 = 167.132 MJ.
TEST_F(AurinkoLaskinTesti, AWindowsEnergyIsAsComputedByHand) {
  AurinkoLaskin laskin = Laskin();
  laskin.Vyohykkeet.Add({});
  laskin.HorisonttiKulma(kEtela, 15);
  laskin.Ikkunat.Add(VarjostettuIkkuna(kEtela));
  laskin.Laske();
  EXPECT_NEAR(laskin.AurinkoEnergia(4), 167.132, 5e-4);
  EXPECT_NEAR(laskin.AurinkoEnergia(12), 167.132 * 42.48 / 386.28, 5e-4);  // the months differ by radiation alone

  laskin.Leveysaste = 65;  // 0.72 x (1 - 25/30 x 0.05) x 0.98 = 0.6762
  laskin.Laske();          // anew, not on top of the former
  EXPECT_NEAR(laskin.AurinkoEnergia(4), 234.6651 * 0.6762, 5e-4);
}

TEST_F(AurinkoLaskinTesti, AngleZeroAndHorizontalAreUnshaded) {
  const double aprilli[] = {158.04, 287.64, 386.28, 290.16, 431.64};  // by orientation, MJ/m²
  for (int suuntaus = kPohjoinen; suuntaus <= kVaaka; ++suuntaus) {
    AurinkoLaskin laskin = Laskin();
    laskin.Vyohykkeet.Add({});
    laskin.HorisonttiKulma((suuntaus + 1) % 4, 30);  // of another orientation
    laskin.Ikkunat.Add(suuntaus == kVaaka ? VarjostettuIkkuna(suuntaus) : Ikkuna(suuntaus));
    laskin.Laske();
    EXPECT_NEAR(laskin.AurinkoEnergia(4), aprilli[suuntaus] * 0.6075, 1e-9) << suuntaus;  // 2 x .9 x .6 x .75 x .75
  }
}

TEST_F(AurinkoLaskinTesti, WindowsAreSummedByZone) {
  AurinkoLaskin laskin = Laskin();
  laskin.Vyohykkeet.Add({});
  laskin.Vyohykkeet.Add({});
  LaskentaIkkuna toisessa = Ikkuna(kEtela);
  toisessa.Vyohyke = 2;
  laskin.Ikkunat.Add(toisessa);
  laskin.Ikkunat.Add(Ikkuna(kEtela));
  laskin.Ikkunat.Add(Ikkuna(kPohjoinen));
  laskin.Laske();
  EXPECT_NEAR(laskin.AurinkoEnergia(4, 1), (386.28 + 158.04) * 0.6075, 1e-9);
  EXPECT_NEAR(laskin.AurinkoEnergia(4, 2), 386.28 * 0.6075, 1e-9);
}

TEST_F(AurinkoLaskinTesti, AMissingOrWrongDatumIsAnErrorAndLeavesNoResult) {
  AurinkoLaskin laskin;
  const auto laske = [&] { laskin.Laske(); };
  EXPECT_EQ(Virheteksti(laske), "Aurinkolaskennan säätiedostoa ei ole luettu.");
  laskin.LataaSaa(saa);
  EXPECT_EQ(Virheteksti(laske), "Horisontin varjostustaulukkoa (Fh) ei ole luettu.");
  laskin.LataaFh(fh);
  laskin.Ikkunat.Add(Ikkuna(kEtela));
  EXPECT_EQ(Virheteksti(laske), "Laskennan kohdetta 1 ei ole, kohteita on 0.");  // a window without its zone
  laskin.Vyohykkeet.Add({});
  EXPECT_EQ(Virheteksti(laske), "");
  EXPECT_EQ(Virheteksti([&] { laskin.AurinkoEnergia(13); }), "Kuukauden pitää olla välillä 1–12, nyt se on 13.");
  EXPECT_NE(Virheteksti([&] { laskin.AurinkoEnergia(0); }), "");
  EXPECT_NE(Virheteksti([&] { laskin.HorisonttiKulma(5, 15); }), "");

  laskin.Ikkunat.Add(Ikkuna(5));
  EXPECT_EQ(Virheteksti(laske), "Suuntauksen pitää olla välillä 0–4, nyt se on 5.");
  EXPECT_NE(Virheteksti([&] { laskin.AurinkoEnergia(4); }), "");

  laskin.Ikkunat.Item(2) = LaskentaIkkuna{};
  EXPECT_NE(Virheteksti(laske).find("ei ole luettu"), std::string::npos);
}

TEST_F(AurinkoLaskinTesti, AFileIsReadOnceAndForgottenWhenAsked) {
  const auto huhtikuu = [&](const std::string& saatiedosto) {
    AurinkoLaskin laskin = Laskin();
    laskin.LataaSaa(saatiedosto);
    laskin.Vyohykkeet.Add({});
    laskin.Ikkunat.Add(Ikkuna(kEtela));
    laskin.Laske();
    return laskin.AurinkoEnergia(4);
  };
  const double ennen = huhtikuu(saa);
  std::string kirkas = kSaaVyohyke1;
  kirkas.replace(kirkas.find("386.28"), 6, "772.56");
  Kirjoita("SaaVyohyke1.txt", kirkas);
  EXPECT_EQ(huhtikuu(saa), ennen);

  const std::string toinen = Polku("SaaVyohyke2.txt");
  EXPECT_NE(Virheteksti([&] { huhtikuu(toinen); }).find(toinen), std::string::npos);
  Kirjoita("SaaVyohyke2.txt", kirkas);  // another path is another file, and one that was missing is looked for again
  EXPECT_NEAR(huhtikuu(toinen), 2 * ennen, 1e-9);
  EXPECT_EQ(huhtikuu(saa), ennen);

  TyhjennaAurinkotaulukot();
  EXPECT_NEAR(huhtikuu(saa), 2 * ennen, 1e-9);
}

TEST_F(AurinkoLaskinTesti, ComputingOneWindowAllocatesNothing) {
  const auto laske = [&] {
    AurinkoLaskin laskin;
    laskin.LataaSaa(saa);
    laskin.Leveysaste = 62;
    laskin.LataaFh(fh);
    laskin.Vyohykkeet.Add({});
    laskin.HorisonttiKulma(kLansi, 15);
    laskin.Ikkunat.Add(VarjostettuIkkuna(kLansi));
    laskin.Laske();
    return laskin.AurinkoEnergia(7);
  };
  const double ensin = laske();
  const int ennen = Muistivarauksia();
  EXPECT_GT(ennen, 0);
  EXPECT_EQ(laske(), ensin);
  EXPECT_EQ(Muistivarauksia(), ennen);
}

}  // namespace
