// SPDX-License-Identifier: GPL-3.0-or-later
// The way to the user's guide without a window: topics of the forms, the list of pages.
#include "ui/Ohje.h"
#include "tests/tuki/Lahdekoodi.h"

#include <gtest/gtest.h>

#include "ui/Ikkunaton.h"
#include "ui/Ohjeluettelo.h"
#include "ui/Tekstivarasto.h"
#include "ui/frmLammonTuotonJaJaonHaviot.h"
#include "ui/frmLampoYhteenveto.h"

namespace {

class Muistava : public Ohjenaytto {
 public:
  Muistava() { AsetaOhjenaytto(this); }
  ~Muistava() override { AsetaOhjenaytto(nullptr); }
  void Avaa(int aihe) override { aihe_ = aihe; }
  void AvaaHaku() override { aihe_ = -1; }
  int aihe_ = 0;
};

TEST(Ohje, HelpIsThatOfTheUppermostForm) {
  AlustaTekstit();
  Ikkunattomat ikkunat(Lahdekoodi("ui/forms"));
  Muistava ohje;
  AvaaLomakkeenOhje();
  EXPECT_EQ(ohje.aihe_, kOhjeSisallys) << "mitään lomaketta ei ole auki";

  frmLampoYhteenveto yhteenveto;
  yhteenveto.Nayta();
  AvaaLomakkeenOhje();
  EXPECT_EQ(ohje.aihe_, Ohjeaihe("frmLampoYhteenveto", 0));

  int haviot = 0;
  ikkunat.KunNaytetaan("frmLammonTuotonJaJaonHaviot", [&](Ikkunaton& ikkuna) {
    AvaaLomakkeenOhje();
    haviot = ohje.aihe_;
    ikkuna.KayttajaPainaa("cmdSulje");
  });
  frmLammonTuotonJaJaonHaviot().NaytaHaviot(10, 1, 1, 1);
  EXPECT_EQ(haviot, Ohjeaihe("frmLammonTuotonJaJaonHaviot", 0)) << "valintaikkuna on yhteenvedon päällä";
}

TEST(Ohjeluettelo, ATopicIsFoundAndAnUnknownOneGivesTheContents) {
  const Ohjeluettelo luettelo(
      "0\tsisallys.html\tSisällys\t1\n"
      "rikkinäinen rivi\n"
      "x\ttaso.html\tTaso ei ole luku\t3\n"
      "2\trakenteet.html#kerrokset\tRakennekerrokset\t31 33\n");
  ASSERT_EQ(luettelo.Rivit().size(), 2u);
  EXPECT_EQ(luettelo.Aihe(33)->sivu, "rakenteet.html#kerrokset");
  EXPECT_EQ(luettelo.Aihe(999)->sivu, "sisallys.html");
  EXPECT_EQ(Ohjeluettelo("").Aihe(1), nullptr);
}

}  // namespace
