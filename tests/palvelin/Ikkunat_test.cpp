// SPDX-License-Identifier: GPL-3.0-or-later
// The library's real windows with shipped entries. With LUMIVIRTA_KUVAT=<folder> their pictures are left there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFileInfo>
#include <QTest>
#include <QTextBrowser>

#include "library/server/Materiaaliselain.h"
#include "library/server/Rakenneselain.h"
#include "tests/palvelin/Koekirjasto.h"
#include "tests/qt/Ikkunatesti.h"
#include "tests/tuki/Koeviestit.h"
#include "ui/qt/QtOhje.h"

namespace {

class Kirjastoikkunat : public Ikkunatesti {
 protected:
  static Lomake& Auki(const char* nimi) { return *AvoinLomake(nimi); }
  /// The window fits a small screen also when it is full.
  static void Katso(const char* nimi) {
    TallennaKuva(Auki(nimi));
    EXPECT_LE(Juuri(Auki(nimi)).width(), 1000) << nimi;
    EXPECT_LE(Juuri(Auki(nimi)).height(), 700) << nimi;
  }

  Koekirjasto koe_;
  Koeviestit viestit_;
};

TEST_F(Kirjastoikkunat, FitASmallScreenWhenFull) {
  const auto avaus = [this](std::string alku) {
    return Selaimenavaus{{koe_.Oma(), koe_.Vakio()}, true, std::move(alku), {}};
  };
  Rakenneselain rakenteet(avaus("Ulkoseinä"), {});
  rakenteet.Nayta();
  Lomake& lista = Auki("frmRakennekirjasto");
  lista.Etsi("txtHaku").KayttajaKirjoittaa("puurunko");
  lista.Etsi("txtHaku").KayttajaPoistuu();
  lista.Etsi("txtHaku").Teksti("puurunko");
  Katso("frmRakennekirjasto");
  lista.Etsi("cmdKopioi").KayttajaPainaa();
  lista.Etsi("cmdMuokkaa").KayttajaPainaa();
  Katso("frmKirjastorakenne");
  Auki("frmKirjastorakenne").Etsi("tabRakenne").KayttajaValitsee(1);
  Auki("frmKirjastorakenne").Etsi("tabRakenne").Indeksi(1);
  Auki("frmKirjastorakenne").Etsi("lvwKerrokset").KayttajaValitsee(1);
  Katso("frmKirjastorakenne");

  Materiaaliselain materiaalit(avaus("Puu, havupuu 500"), {});
  materiaalit.Nayta();
  Katso("frmMateriaalikirjasto");
  Auki("frmMateriaalikirjasto").Etsi("cmdKopioi").KayttajaPainaa();
  Auki("frmMateriaalikirjasto").Etsi("cmdMuokkaa").KayttajaPainaa();
  Katso("frmKirjastomateriaali");
  EXPECT_TRUE(viestit_.Naytetyt().empty());
}

/// Another program's window mustn't take this one along when it goes.
TEST_F(Kirjastoikkunat, WindowsOfTwoProgramsLiveApart) {
  auto ensin = std::make_unique<Rakenneselain>(Selaimenavaus{{koe_.Oma(), koe_.Vakio()}}, nullptr);
  ensin->Nayta();
  QApplication::processEvents();
  Materiaaliselain sitten(Selaimenavaus{{koe_.Oma(), koe_.Vakio()}}, nullptr);
  sitten.Nayta();
  QApplication::processEvents();
  ensin.reset();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  const QWidget* juuri = static_cast<QtIkkuna&>(Auki("frmMateriaalikirjasto").Ikkuna()).Juuri();
  ASSERT_NE(juuri, nullptr);
  EXPECT_TRUE(juuri->isVisible());
}

TEST_F(Kirjastoikkunat, F1OpensTheGuideAtTheTopicOfTheWindow) {
  const QtOhje ohje;
  const auto sivu = [](const char* lomake) {
    QWidget* juuri = Juuri(Auki(lomake)).window();
    juuri->activateWindow();
    QApplication::processEvents();
    QTest::keyClick(juuri, Qt::Key_F1);
    for (const QWidget* ikkuna : QApplication::topLevelWidgets())
      if (const auto* selain = ikkuna->findChild<QTextBrowser*>("sivu"))
        return QFileInfo(selain->source().toString()).fileName().toStdString();
    return std::string();
  };
  Rakenneselain rakenteet(Selaimenavaus{{koe_.Oma(), koe_.Vakio()}}, {});
  rakenteet.Nayta();
  EXPECT_EQ(sivu("frmRakennekirjasto"), "kirjastot.html#rakennekirjasto");
  Auki("frmRakennekirjasto").Etsi("cmdUusi").KayttajaPainaa();
  EXPECT_EQ(sivu("frmKirjastorakenne"), "kirjastot.html#oman-rakenteen-muokkaaminen");
}

}  // namespace
