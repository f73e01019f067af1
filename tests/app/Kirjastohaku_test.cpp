// SPDX-License-Identifier: GPL-3.0-or-later
// A structure picked from the library server, a process of its own, into the dialog of a space's structures. The server
// is the one of tests/palvelin, whose person follows a script.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include "building/Yhteiset.h"
#include "building/clsPerustiedot.h"
#include "building/clsRakennus.h"
#include "building/clsSaa.h"
#include "building/clsTilat.h"
#include "tests/app/Koekoti.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/Lomake.h"
#include "ui/qt/Kirjastoyhteys.h"
#include "ui/qt/QtIkkuna.h"

namespace {

constexpr int kEnintaan_ms = 20000;

class OikeaKirjasto : public testing::Test {
 protected:
  OikeaKirjasto() {
    AsetaQtLomakkeet(nullptr);
    AsetaGlobaaliRakennus(&rakennus_);
    rakennus_.Perustiedot.LammTarveLukuPaikkakuntaID(1);
    rakennus_.Saa.AsetaSaaPaikkakunta(1);
    clsRakenne& seina = rakennus_.Tilat.Add("tila").Rakenteet.Add("seina");
    seina.U_arvo(0.28);
    rakennus_.PaivitaInstanssiIdLista();
  }
  ~OikeaKirjasto() override {
    AsetaGlobaaliRakennus(nullptr);
    AsetaLomakesovitin(nullptr);
  }
  clsRakenteet& Rakenteet() { return rakennus_.Tilat.Item(1).Rakenteet; }
  const clsRakenne& Seina() { return Rakenteet().Item(1); }

  /// Asks for a structure in the open dialog, waits until the library has closed, and accepts.
  void Hae(const std::string& kasikirjoitus) {
    qputenv("KIRJASTOKOE", kasikirjoitus.c_str());
    const Kirjastoyhteys yhteys({.koti = AppPath(),
                                 .ohjelma = AppPath() + "palvelin_test",
                                 .kayttajanKanta = [] { return Asetukset().strKayttajanTietokanta; },
                                 .vakiokanta = [] { return Asetukset().strVakioTietokanta; }});
    QTimer::singleShot(0, [] {
      Lomake& lomake = *AvoinLomake("frmRakenteet");
      lomake.Etsi("cmdHaeKirjastosta").KayttajaPainaa();
      QElapsedTimer kello;
      for (kello.start(); !lomake.Etsi("lblHaku").Teksti().empty() && kello.elapsed() < kEnintaan_ms;)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
      EXPECT_EQ(lomake.Etsi("lblHaku").Teksti(), "");
      lomake.Etsi("cmdOk").KayttajaPainaa();
    });
    EXPECT_TRUE(Rakenteet().NaytaKayttoliityma("Sali"));
  }

  Koekoti koti_;
  Ymparistomuuttuja ajohakemisto_{"XDG_RUNTIME_DIR", koti_.hakemisto.Polku().string()};
  Koeviestit viestit_;
  clsRakennus rakennus_;
};

TEST_F(OikeaKirjasto, ClosedWithoutAPickItLeavesTheStructure) {
  Hae("sulje");
  EXPECT_FALSE(Seina().RakenneRatkaisu);
  EXPECT_EQ(Seina().U_arvo(), 0.28);
  EXPECT_TRUE(viestit_.Naytetyt().empty());
}

TEST_F(OikeaKirjasto, PickSurvivesTheDeathOfTheServer) {
  Hae("kuole:" + koti_.Tiedosto("kuoli"));
  ASSERT_TRUE(std::filesystem::exists(koti_.Tiedosto("kuoli")));
  ASSERT_TRUE(Seina().RakenneRatkaisu);
  EXPECT_EQ(Seina().RakenneRatkaisu->Rakennetyyppi, "Ulkoseinä");
  EXPECT_GT(Seina().RakenneRatkaisu->Kerrokset.Count(), 0);
  EXPECT_TRUE(Seina().LaskeU_arvoMateriaaleista);
  EXPECT_NE(Seina().U_arvo(), 0.28);
}

TEST_F(OikeaKirjasto, ServerThatKeepsDyingLeavesTheStructureAndTheDialog) {
  Hae("kuole");
  EXPECT_FALSE(Seina().RakenneRatkaisu);
  EXPECT_EQ(viestit_.Naytetyt().size(), 1u);
}

}  // namespace
